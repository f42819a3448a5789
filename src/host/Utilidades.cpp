#include "host/Utilidades.h"

#include "base/Texto.h"
#include "host/Controles.h"
#include "host/DataSet.h"
#include "host/Dialogos.h"
#include "host/Servicos.h"

#include <stdexcept>

namespace host {

std::string TUtilGeral::FormataData(base::TDataHora AData, bool AComAspas) const {
    return AComAspas ? base::QuotedStr(AData.TextoIso()) : AData.TextoIso();
}

void TUtilGeral::FormataCampoValor(TField& ACampo) const { FormatarCampoNumerico(ACampo, ",0.00", "0.00"); }

void TUtilGeral::FormatarCampoNumerico(TField& ACampo, std::string AExibicao, std::string AEdicao) const {
    ACampo.FormatoExibicao = std::move(AExibicao);
    ACampo.FormatoEdicao = std::move(AEdicao);
}

int TUtilGeral::EspacoEntreDatas(base::TDataHora AInicio, base::TDataHora AFim, std::string_view AUnidade,
                                 std::string_view AModo) const {
    const int LMeses = (AFim.Ano() - AInicio.Ano()) * 12 + AFim.Mes() - AInicio.Mes();
    if (AUnidade == "MESES" && AModo == "PARCIAL")
        return LMeses;
    if (AUnidade == "ANOS" && AModo == "INTEGRAL")
        return (LMeses - (AFim.Dia() < AInicio.Dia() ? 1 : 0)) / 12;
    throw std::logic_error("EspacoEntreDatas: " + std::string(AUnidade) + ", " + std::string(AModo));
}

bool TZTUtilsValidacoes::ValidouData(std::string_view ATexto, const std::string& AMensagem) {
    if (base::TDataHora::DeTexto(ATexto))
        return true;
    GZTUtilsDialogs.Informacao(AMensagem);
    return false;
}

void TZTUtilsControls::AtribuirFocoControle(TControle& AControle) { Servicos().Interacao->Focar(AControle); }

bool TZTUtilsControls::EhUltimoControleAtivo(const TControle& AControle,
                                             std::initializer_list<const TControle*> AGrupo) {
    const TControle* LUltimo = nullptr;
    for (const auto* LControle : AGrupo)
        if (LControle->PodeReceberFoco())
            LUltimo = LControle;
    return LUltimo == &AControle;
}

int TZTUtilsMatematica::SomarCombinacaoBinaria(std::initializer_list<bool> AOpcoes) {
    int LSoma = 0;
    int LPotencia = 1;
    for (const bool LOpcao : AOpcoes) {
        LSoma += LOpcao ? LPotencia : 0;
        LPotencia *= 2;
    }
    return LSoma;
}

} // namespace host
