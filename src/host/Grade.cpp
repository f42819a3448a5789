#include "host/Grade.h"

#include "base/Falhas.h"
#include "base/FormatoNumerico.h"

#include <algorithm>

namespace host {

std::string TextoExibido(const base::TValor& AValor, std::string_view AFormato) {
    if (const auto* LDecimal = std::get_if<base::TDecimal>(&AValor))
        return base::FormatarNumero(*LDecimal, AFormato);
    if (const auto* LData = std::get_if<base::TDataHora>(&AValor))
        return LData->Texto();
    return base::TextoDe(AValor);
}

base::TValor TCelula::Valor(std::string_view ACampo) const {
    const auto* LDados = Grade->DataSet();
    const auto* LCampo = LDados ? LDados->FindField(ACampo) : nullptr;
    return LCampo ? LDados->Colunas()[LCampo->Indice()].Valor(LDados->LinhaDe(Posicao)) : base::TValor{};
}

std::string TCelula::Texto() const { return TextoExibido(Valor(Coluna->Campo), Grade->FormatoDe(*Coluna)); }

std::string TGrade::FormatoDe(const TColunaGrade& AColuna) const {
    const auto* LCampo = AColuna.Formato.empty() && DataSet() ? DataSet()->FindField(AColuna.Campo) : nullptr;
    return LCampo ? LCampo->FormatoExibicao : AColuna.Formato;
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
        throw base::TFalha("A grade " + Nome() + " não tem a coluna " + std::string(ACampo) + ".");
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
