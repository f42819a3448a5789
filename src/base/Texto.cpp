#include "base/Texto.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>
#include <vector>

namespace base {

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

std::size_t TamanhoDoCaractere(std::string_view AUtf8) {
    if (AUtf8.empty())
        return 0;
    const auto LByte = [&](std::size_t I) { return static_cast<unsigned char>(AUtf8[I]); };
    const std::size_t LTamanho = LByte(0) < 0x80                       ? 1
                                 : LByte(0) >= 0xC2 && LByte(0) < 0xE0 ? 2
                                 : LByte(0) >= 0xE0 && LByte(0) < 0xF0 ? 3
                                 : LByte(0) >= 0xF0 && LByte(0) < 0xF5 ? 4
                                                                       : 0;
    if (LTamanho > AUtf8.size())
        return 0;
    for (std::size_t I = 1; I < LTamanho; ++I)
        if ((LByte(I) & 0xC0U) != 0x80)
            return 0;
    // Written longer than need be, a surrogate, or beyond the last one.
    const bool LErrado = (LByte(0) == 0xE0 && LByte(1) < 0xA0) || (LByte(0) == 0xED && LByte(1) >= 0xA0) ||
                         (LByte(0) == 0xF0 && LByte(1) < 0x90) || (LByte(0) == 0xF4 && LByte(1) >= 0x90);
    return LErrado ? 0 : LTamanho;
}

std::string SemControles(std::string_view ATexto) {
    constexpr const char* Substituto = "\uFFFD";
    std::string LTexto;
    LTexto.reserve(ATexto.size());
    while (!ATexto.empty()) {
        const auto LTamanho = TamanhoDoCaractere(ATexto);
        const auto LByte = static_cast<unsigned char>(ATexto.front());
        if (LTamanho == 1 && LByte < 0x20)
            LTexto += {'\xE2', '\x90', static_cast<char>(0x80 + LByte)}; // U+2400 and on
        else if (LTamanho == 1 && LByte == 0x7F)
            LTexto += "\u2421";
        else if (LTamanho == 0 || (LByte == 0xC2 && static_cast<unsigned char>(ATexto[1]) < 0xA0)) // U+0080 to U+009F
            LTexto += Substituto;
        else
            LTexto += ATexto.substr(0, LTamanho);
        ATexto.remove_prefix(std::max<std::size_t>(LTamanho, 1));
    }
    return LTexto;
}

std::string LinhasSemControles(std::string_view ATexto) {
    std::string LTexto;
    while (true) {
        const auto LFim = std::min(ATexto.find_first_of("\r\n"), ATexto.size());
        LTexto += SemControles(ATexto.substr(0, LFim));
        if (LFim == ATexto.size())
            return LTexto;
        LTexto += '\n';
        ATexto.remove_prefix(LFim + (ATexto.substr(LFim, 2) == "\r\n" ? 2 : 1));
    }
}

std::int32_t NumeroOuZero(std::string_view ATexto) {
    std::int32_t LNumero = 0;
    const auto LFim = ATexto.data() + ATexto.size();
    const auto LResultado = std::from_chars(ATexto.data(), LFim, LNumero);
    return LResultado.ec == std::errc{} && LResultado.ptr == LFim ? LNumero : 0;
}

std::size_t Caracteres(std::string_view AUtf8) {
    return static_cast<std::size_t>(std::count_if(AUtf8.begin(), AUtf8.end(),
                                                  [](char C) { return (static_cast<unsigned char>(C) & 0xC0U) != 0x80; }));
}

std::string SemAcentos(std::string_view AUtf8) {
    constexpr std::string_view De0xC0 = "aaaaaaaceeeeiiiidnooooo*ouuuuyts"; // U+00C0 to U+00DF; twice, from U+00E0 on
    std::string LTexto;
    LTexto.reserve(AUtf8.size());
    for (std::size_t I = 0; I < AUtf8.size(); ++I) {
        const auto LByte = static_cast<unsigned char>(AUtf8[I]);
        if (LByte == 0xC3 && I + 1 < AUtf8.size())
            LTexto += De0xC0[(static_cast<unsigned char>(AUtf8[++I]) - 0x80U) % De0xC0.size()];
        else
            LTexto += LByte >= 'A' && LByte <= 'Z' ? static_cast<char>(LByte + ('a' - 'A')) : AUtf8[I];
    }
    return LTexto;
}

} // namespace base
