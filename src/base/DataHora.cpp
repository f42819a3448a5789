#include "base/DataHora.h"

#include <charconv>
#include <chrono>
#include <cstdio>

namespace base {

namespace {

using std::chrono::year_month_day;

constexpr std::chrono::sys_days DiaZero =
    std::chrono::sys_days{std::chrono::year{1899} / std::chrono::month{12} / std::chrono::day{30}};

std::int64_t DiaDe(std::int64_t ADecimos) {
    const std::int64_t LDia = ADecimos / TDataHora::DecimosPorDia;
    return ADecimos % TDataHora::DecimosPorDia < 0 ? LDia - 1 : LDia;
}

year_month_day Calendario(std::int64_t ADecimos) { return DiaZero + std::chrono::days{DiaDe(ADecimos)}; }

TDataHora DeCalendario(const year_month_day& AData) {
    const auto LDias = std::chrono::sys_days{AData} - DiaZero;
    return TDataHora::DeDecimos(LDias.count() * TDataHora::DecimosPorDia);
}

std::optional<int> Numero(std::string_view ATexto) {
    int LNumero = 0;
    const auto [LFim, LErro] = std::from_chars(ATexto.data(), ATexto.data() + ATexto.size(), LNumero);
    if (LErro != std::errc{} || LFim != ATexto.data() + ATexto.size())
        return std::nullopt;
    return LNumero;
}

template <class... T>
std::string Montar(const char* AFormato, T... AValores) {
    char LTexto[48];
    const int LTamanho = std::snprintf(LTexto, sizeof LTexto, AFormato, AValores...);
    return {LTexto, static_cast<std::size_t>(LTamanho)};
}

} // namespace

std::optional<TDataHora> TDataHora::De(int AAno, int AMes, int ADia) {
    if (AAno < 1 || AAno > 9999 || AMes < 1 || AMes > 12 || ADia < 1 || ADia > 31)
        return std::nullopt;
    const year_month_day LData{std::chrono::year{AAno}, std::chrono::month(static_cast<unsigned>(AMes)),
                               std::chrono::day(static_cast<unsigned>(ADia))};
    if (!LData.ok())
        return std::nullopt;
    return DeCalendario(LData);
}

std::optional<TDataHora> TDataHora::DeTexto(std::string_view ATexto) {
    if (ATexto.size() != 10 || ATexto[2] != '/' || ATexto[5] != '/')
        return std::nullopt;
    const auto LDia = Numero(ATexto.substr(0, 2));
    const auto LMes = Numero(ATexto.substr(3, 2));
    const auto LAno = Numero(ATexto.substr(6, 4));
    if (!LDia || !LMes || !LAno)
        return std::nullopt;
    return De(*LAno, *LMes, *LDia);
}

int TDataHora::Ano() const { return static_cast<int>(Calendario(FDecimos).year()); }
int TDataHora::Mes() const { return static_cast<int>(static_cast<unsigned>(Calendario(FDecimos).month())); }
int TDataHora::Dia() const { return static_cast<int>(static_cast<unsigned>(Calendario(FDecimos).day())); }

TDataHora TDataHora::SemHora() const { return DeDecimos(DiaDe(FDecimos) * DecimosPorDia); }

TDataHora TDataHora::UltimoDiaDoMes() const {
    const auto LData = Calendario(FDecimos);
    return DeCalendario(LData.year() / LData.month() / std::chrono::last);
}

std::string TDataHora::Texto() const {
    std::string LTexto = Montar("%02d/%02d/%04d", Dia(), Mes(), Ano());
    if (const auto LHora = (FDecimos - SemHora().FDecimos) / 10'000)
        LTexto += Montar(" %02d:%02d:%02d", static_cast<int>(LHora / 3600), static_cast<int>(LHora / 60 % 60),
                         static_cast<int>(LHora % 60));
    return LTexto;
}

std::string TDataHora::TextoIso() const {
    std::string LTexto = Montar("%04d-%02d-%02d", Ano(), Mes(), Dia());
    if (const auto LHora = FDecimos - SemHora().FDecimos)
        LTexto +=
            Montar(" %02d:%02d:%02d.%04d", static_cast<int>(LHora / 36'000'000), static_cast<int>(LHora / 600'000 % 60),
                   static_cast<int>(LHora / 10'000 % 60), static_cast<int>(LHora % 10'000));
    return LTexto;
}

} // namespace base
