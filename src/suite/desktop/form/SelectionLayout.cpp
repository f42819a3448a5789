#include "suite/desktop/form/DialogLayout.h"

namespace suite::desktop {

// clang-format off
DialogLayout selectionLayout() {
    return {
        .form = "TForm04618Selecao",
        .columns = {
            {
                {"Período e empresa", {
                    {"LblEmpresa", {"LkpEmpresa"}},
                    {"LblDataInicial", {"DeDataIni", "LblDataFinal", "DeDataFim",
                                        "LblPesquisaPerOrcConsulta", "LkpPesquisaPerOrcConsulta"}},
                }},
                {"O que visualizar", {
                    {"LblSelecionar", {"CbSelecionar"}},
                    {"LblDetalharSelecao", {"CbDetalharSelecao"}},
                }},
                {"Demonstração", {
                    {"LblRelatorioDemonstConfig", {"LkpRelatorioDemonstConfig"}},
                    {"LblTotalizadorDemonstConfig", {"LkpTotalizadorDemonstConfig"}},
                    {"LblUsuarioAtrib", {"LkpUsuarioAtrib"}},
                    {"LblDetalharTotalizadores",
                        {"ChkDetalharTotalizadoresEstab", "ChkDetalharTotalizadoresCCusto",
                         "ChkDetalharTotalizadoresContas"}, "PnlDetalharTotalizadores"},
                }},
                {"Percentuais", {
                    {"LblDetalharPercentualTots",
                        {"ChkDetPercRealizadoXOrcado", "ChkDetPercRealizadoXBase", "ChkDetPercAnaliseVertical"},
                         "PnlDetalharPercentual"},
                    {"LblCalcularPercentual",
                        {"ChkCalcularPercentualTotal", "ChkCalcularPercentualDiferenca"}, "PnlCalcularPercentual"},
                }},
            },
            {
                {"Filtros", {
                    {"LblEstabelecimento", {"LkpEstabelecimento"}},
                    {"", {"ChkAgruparValFiliais"}},
                    {"LblCentroCusto", {"LkpCentroCusto"}},
                    {"", {"ChkDetalharCCustoOrcamento"}},
                    {"", {"ChkDetalharSomenteCCustoTitulo"}},
                    {"LblContas", {"LkpContas"}},
                    {"", {"LkpContas.SubConta"}},
                }},
                {"Linhas e opções", {
                    {"LblDetalharLinhas",
                        {"ChkLinhaVlrBase", "ChkLinhaVlrOrcado", "ChkLinhaVlrRealizado"}, "PnlDetalharLinhas"},
                    {"LblDetalharValLacto",
                        {"ChkValLctoContasContabeis", "ChkValLctoCentrosCustos"}, "PnlDetalharValLancto"},
                    {"", {"ChkImpColorido"}},
                    {"", {"ChkPerSemMov"}},
                }},
                {"Cenário", {
                    {"LblCenario", {"CbCenario"}},
                }},
            },
        },
        .buttons = {"actOK", "actSair"},
        .searches = {"LkpPesquisaPerOrcConsulta"},
    };
}
// clang-format on

} // namespace suite::desktop
