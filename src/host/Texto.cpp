#include "host/Texto.h"

#include <charconv>
#include <stdexcept>
#include <vector>

namespace host {

namespace {

[[noreturn]] void Falhar(std::string_view ATexto, const std::string& AMotivo) {
    throw std::logic_error("Format: " + AMotivo + " in: " + std::string(ATexto.substr(0, 80)));
}

} // namespace

std::string Format(std::string_view ATexto, std::initializer_list<TArgumento> AArgumentos) {
    std::string LResultado;
    std::vector<bool> LUsados(AArgumentos.size());
    std::size_t LProximo = 0;
    for (std::size_t I = 0; I < ATexto.size(); ++I) {
        if (ATexto[I] != '%') {
            LResultado += ATexto[I];
            continue;
        }
        std::size_t LNumero = 0;
        std::size_t J = I + 1;
        while (J < ATexto.size() && ATexto[J] >= '0' && ATexto[J] <= '9')
            LNumero = LNumero * 10 + static_cast<std::size_t>(ATexto[J++] - '0');
        const bool LComNumero = J > I + 1;
        if (LComNumero && (J >= ATexto.size() || ATexto[J++] != ':'))
            Falhar(ATexto, "a placeholder without a colon");
        const char LTipo = J < ATexto.size() ? ATexto[J] : '\0';
        I = J;
        if (LTipo == '%' && !LComNumero) {
            LResultado += '%';
            continue;
        }
        if (!LComNumero)
            LNumero = LProximo;
        if (LNumero >= AArgumentos.size())
            Falhar(ATexto, "no argument " + std::to_string(LNumero));
        LProximo = LNumero + 1;
        LUsados[LNumero] = true;
        const TArgumento& LArgumento = *(AArgumentos.begin() + LNumero);
        if (LTipo == 's' && std::holds_alternative<std::string>(LArgumento))
            LResultado += std::get<std::string>(LArgumento);
        else if (LTipo == 'd' && std::holds_alternative<std::int64_t>(LArgumento))
            LResultado += std::to_string(std::get<std::int64_t>(LArgumento));
        else
            Falhar(ATexto, "argument " + std::to_string(LNumero) + " is of another kind");
    }
    for (std::size_t I = 0; I < LUsados.size(); ++I)
        if (!LUsados[I])
            Falhar(ATexto, "argument " + std::to_string(I) + " is not used");
    return LResultado;
}

std::string QuotedStr(std::string_view ATexto) {
    std::string LTexto = "'";
    for (char C : ATexto)
        LTexto += C == '\'' ? "''" : std::string(1, C);
    return LTexto + "'";
}

std::string Trim(std::string_view ATexto) {
    constexpr std::string_view Brancos = " \t\r\n";
    const auto LInicio = ATexto.find_first_not_of(Brancos);
    if (LInicio == std::string_view::npos)
        return {};
    return std::string(ATexto.substr(LInicio, ATexto.find_last_not_of(Brancos) - LInicio + 1));
}

std::int32_t NumeroOuZero(std::string_view ATexto) {
    std::int32_t LNumero = 0;
    const auto LFim = ATexto.data() + ATexto.size();
    const auto LResultado = std::from_chars(ATexto.data(), LFim, LNumero);
    return LResultado.ec == std::errc{} && LResultado.ptr == LFim ? LNumero : 0;
}

} // namespace host
