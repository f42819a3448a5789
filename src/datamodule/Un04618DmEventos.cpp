#include "core/Un04618Const.h"
#include "datamodule/Un04618Dm.h"
#include "host/Servicos.h"
#include "host/Utilidades.h"

namespace pct04618 {

using host::GUtilGeral;

void TDM04618::CdsMostraCtbOrcadaAfterOpen(host::TDataSet& ADataSet) {
    GUtilGeral.FormatarCampoNumerico(ADataSet.FieldByName("INDICEATBASE"), ",0.000000", "0.000000");
    GUtilGeral.FormataCampoValor(ADataSet.FieldByName("VLRBASE"));
    GUtilGeral.FormatarCampoNumerico(ADataSet.FieldByName("PERCORCADO"), ",0.0000", "0.0000");
    GUtilGeral.FormataCampoValor(ADataSet.FieldByName("VLRORCADO"));
    GUtilGeral.FormataCampoValor(ADataSet.FieldByName("VLRREALIZADO"));
    GUtilGeral.FormataCampoValor(ADataSet.FieldByName("DELTAVLR"));
    GUtilGeral.FormatarCampoNumerico(ADataSet.FieldByName("DELTAPERC"), ",0.0000", "0.0000");
    GUtilGeral.FormataCampoValor(ADataSet.FieldByName("DELTAVARIACAO"));
}

void TDM04618::CdsMostraCtbOrcMensalAfterOpen(host::TDataSet& ADataSet) {
    for (int I = 1; I <= MaximoPeriodosEmColunas; ++I) {
        GUtilGeral.FormataCampoValor(ADataSet.FieldByName("VAL" + std::to_string(I)));
        GUtilGeral.FormataCampoValor(ADataSet.FieldByName("PERC" + std::to_string(I)));
    }
    GUtilGeral.FormataCampoValor(ADataSet.FieldByName("TOTAL"));
    GUtilGeral.FormataCampoValor(ADataSet.FieldByName("PERCTOT"));
}

void TDM04618::CdsCtbOrcadaVlrNewRecord() {
    CdsCtbOrcadaVlr.FieldByName("IDCTBORCADAVLR")
        .Atribuir(base::Inteiro(host::ZTConnection().BuscarProximoID("CO01_CTBORCADAVLR")));
}

void TDM04618::DspCtbOrcadaVlrGetTableName(std::string& ATableName) {
    // The statements that load the dataset are joins, which name no single table.
    ATableName = "CO01_CTBORCADAVLR";
}

} // namespace pct04618
