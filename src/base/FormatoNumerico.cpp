#include "base/FormatoNumerico.h"

#include <algorithm>

namespace base {

namespace {

TSecaoNumerica LerSecao(std::string_view AFormato) {
    TSecaoNumerica LSecao;
    bool LNumero = false;
    bool LPonto = false;
    for (char C : AFormato) {
        if (C == ',')
            LSecao.Milhares = true;
        else if (C == '.')
            LPonto = true;
        else if (C == '0')
            ++(LPonto ? LSecao.Decimais : LSecao.Inteiros);
        else
            (LNumero ? LSecao.Depois : LSecao.Antes) += C;
        LNumero = LNumero || C == ',' || C == '.' || C == '0';
    }
    return LSecao;
}

// Of the value without its sign.
std::string Digitos(const TDecimal& AValor, const TSecaoNumerica& ASecao) {
    std::string LTexto = AValor.ComEscala(ASecao.Decimais).Texto();
    if (LTexto.front() == '-')
        LTexto.erase(0, 1);
    auto LPonto = LTexto.find('.');
    if (LPonto == std::string::npos)
        LPonto = LTexto.size();
    else
        LTexto[LPonto] = ',';
    if (LPonto < static_cast<std::size_t>(ASecao.Inteiros)) {
        LTexto.insert(0, static_cast<std::size_t>(ASecao.Inteiros) - LPonto, '0');
        LPonto = static_cast<std::size_t>(ASecao.Inteiros);
    }
    if (ASecao.Milhares)
        for (auto I = LPonto; I > 3; I -= 3)
            LTexto.insert(I - 3, 1, '.');
    return LTexto;
}

} // namespace

TFormatoNumerico::TFormatoNumerico(std::string_view ATexto, int AEscala) {
    if (ATexto.empty()) {
        Positiva = {{}, {}, AEscala > 0, 1, AEscala};
        return;
    }
    const auto LDivisa = std::min(ATexto.find(';'), ATexto.size());
    Positiva = LerSecao(ATexto.substr(0, LDivisa));
    if (LDivisa + 1 < ATexto.size())
        Negativa = LerSecao(ATexto.substr(LDivisa + 1));
}

std::string FormatarNumero(const TDecimal& AValor, const TFormatoNumerico& AFormato) {
    // What rounds to zero has no sign.
    const bool LMenor = AValor.ComEscala(AFormato.Positiva.Decimais).Unidades < 0;
    const auto& LSecao = LMenor && AFormato.Negativa ? *AFormato.Negativa : AFormato.Positiva;
    const char* LSinal = LMenor && !AFormato.Negativa ? "-" : "";
    return LSinal + LSecao.Antes + Digitos(AValor, LSecao) + LSecao.Depois;
}

std::string FormatarNumero(const TDecimal& AValor, std::string_view AFormato) {
    return FormatarNumero(AValor, TFormatoNumerico(AFormato, AValor.Escala));
}

} // namespace base
