#include "base/FormatoNumerico.h"

#include <algorithm>

namespace base {

namespace {

struct TSecao {
    std::string Antes;
    std::string Depois;
    bool Milhares = false;
    int Inteiros = 0;
    int Decimais = 0;
};

TSecao LerSecao(std::string_view AFormato) {
    TSecao LSecao;
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
std::string Digitos(const TDecimal& AValor, const TSecao& ASecao) {
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

std::string FormatarNumero(const TDecimal& AValor, std::string_view AFormato) {
    const std::string LSimples = ",0." + std::string(static_cast<std::size_t>(AValor.Escala), '0');
    if (AFormato.empty())
        AFormato = LSimples;
    const auto LDivisa = std::min(AFormato.find(';'), AFormato.size());
    const auto LNegativa = AFormato.substr(std::min(LDivisa + 1, AFormato.size()));
    TSecao LSecao = LerSecao(AFormato.substr(0, LDivisa));
    // What rounds to zero has no sign.
    const bool LMenor = AValor.ComEscala(LSecao.Decimais).Unidades < 0;
    if (LMenor && !LNegativa.empty())
        LSecao = LerSecao(LNegativa);
    const char* LSinal = LMenor && LNegativa.empty() ? "-" : "";
    return LSinal + LSecao.Antes + Digitos(AValor, LSecao) + LSecao.Depois;
}

} // namespace base
