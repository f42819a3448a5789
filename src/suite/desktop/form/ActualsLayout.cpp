#include "suite/desktop/form/DialogLayout.h"

namespace suite::desktop {

// clang-format off
DialogLayout actualsLayout() {
    return {
        .form = "TForm04618AtualizarRealizado",
        .columns = {
            {
                {"Confronto da Execução", {
                    {"LblDataInicial", {"DeDataInicial", "LblDataFinal", "DeDataFinal",
                                        "LblPesquisaRealizado", "LkpPesquisaRealizado"}},
                    {"LblFilial", {"LkpFilial"}},
                    {"LblCenario", {"ChkCenarioNormal", "ChkCenarioOtimista", "ChkCenarioPessimista"}},
                    {"LblConfrontarProjecoes", {"RgConfrontarProjecoes"}},
                    {"", {"ChkDetalharRealizadoPorFilial"}},
                    {"", {"ChkDetRealizCCusto"}},
                }},
            },
        },
        .buttons = {"ActExecutar", "ActExcluir", "actSair"},
        .searches = {"LkpPesquisaRealizado"},
    };
}
// clang-format on

} // namespace suite::desktop
