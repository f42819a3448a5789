// Opening a mode 1 result of 200,000 lines of 22 columns. Arguments: Medicao.h.
#include "Medicao.h"

int main(int argc, char** argv) {
    return bench::run(argc, argv, {2000, 10, 10}, 1, [](pct04618::TDM04618& dm) -> host::TZTClientDataSet& {
        dm.FDetalharSelecao = 1;
        dm.FInformacoesCtbOrcadaInf.LListaIDs = "1";
        dm.CdsMostraCtbOrcada.CommandText = dm.BuscarDadosOrcamentariaComBaseNoBalanco();
        dm.CdsMostraCtbOrcada.Open();
        return dm.CdsMostraCtbOrcada;
    });
}
