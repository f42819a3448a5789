#include "host/Grade.h"

#include "host/Falhas.h"
#include "host/FormatoNumerico.h"

#include <algorithm>

namespace host {

std::string TextoExibido(const TValor& AValor, std::string_view AFormato) {
    if (const auto* LDecimal = std::get_if<TDecimal>(&AValor))
        return LDecimal->Escala == 0 && AFormato.empty() ? LDecimal->Texto() : FormatarNumero(*LDecimal, AFormato);
    if (const auto* LData = std::get_if<TDataHora>(&AValor))
        return LData->Texto();
    return TextoDe(AValor);
}

TValor TCelula::Valor(std::string_view ACampo) const {
    const auto* LDados = Grade->DataSet();
    const auto* LCampo = LDados ? LDados->FindField(ACampo) : nullptr;
    return LCampo ? LDados->Colunas()[LCampo->Indice()].Valor(LDados->LinhaDe(Posicao)) : TValor{};
}

std::string TCelula::Texto() const {
    const auto* LDados = Grade->DataSet();
    const auto* LCampo = LDados ? LDados->FindField(Coluna->Campo) : nullptr;
    if (!LCampo)
        return {};
    return TextoExibido(Valor(Coluna->Campo), Coluna->Formato.empty() ? LCampo->FormatoExibicao : Coluna->Formato);
}

void TGrade::Avisar() { Mudar(FVersao, FVersao + 1); }

void TGrade::SetColunas(std::vector<TColunaGrade> AColunas) {
    FColunas = std::move(AColunas);
    Avisar();
}

const TColunaGrade& TGrade::Coluna(std::string_view ACampo) const {
    const auto LColuna =
        std::find_if(FColunas.begin(), FColunas.end(), [&](const TColunaGrade& C) { return C.Campo == ACampo; });
    if (LColuna == FColunas.end())
        throw TFalha("A grade " + Nome() + " não tem a coluna " + std::string(ACampo) + ".");
    return *LColuna;
}

void TGrade::MudarColuna(std::string_view ACampo, const std::function<void(TColunaGrade&)>& AMudanca) {
    AMudanca(const_cast<TColunaGrade&>(Coluna(ACampo)));
    Avisar();
}

TAparencia TGrade::Aparencia(const TCelula& ACelula) const {
    return RegraDaCelula ? RegraDaCelula(ACelula) : TAparencia{};
}

} // namespace host
