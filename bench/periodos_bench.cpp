// Opening a mode 3 result of 50,000 lines of three rows and twelve periods over 600,000 value rows. Arguments:
// Medicao.h.
#include "Medicao.h"

int main(int argc, char** argv) {
    return bench::run(argc, argv, {500, 10, 10}, 12, [](pct04618::TDM04618& dm) -> host::TZTClientDataSet& {
        dm.FDetalharSelecao = 3;
        dm.FInformacoesCtbOrcadaInf.LListaIDs = "1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12";
        dm.FImprimirOrcamentariaBal = true;
        dm.FDetalharLinhaVlrBase = dm.FDetalharLinhaVlrOrcado = dm.FDetalharLinhaVlrRealizado = true;
        dm.BuscarDadosOrcamentariaBalancoOuDemonstConfigDemonstPeriodosEmColunas(dm.CdsMostraCtbOrcMensal,
                                                                                 dm.SdsMostraCtbOrcMensal, false);
        return dm.CdsMostraCtbOrcMensal;
    });
}
