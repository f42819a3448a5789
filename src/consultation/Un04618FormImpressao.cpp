#include "base/Falhas.h"
#include "consultation/Un04618Form.h"
#include "core/Un04618Const.h"
#include "host/Dialogos.h"
#include "host/Servicos.h"
#include "reports/Un04618DMRel.h"
#include "reports/Un04618DMRelPeriodos.h"
#include "reports/Un04618DMRelRazaoTot.h"

namespace pct04618 {

namespace {

constexpr const char* NadaSelecionado = "Não existem dados selecionados para impressão.";
constexpr const char* NadaEncontrado =
    "Não foram encontrados dados para impressão do relatório.\r\rVerifique a seleção "
    "dos dados através do botão SELECIONAR.";
constexpr base::TPapel PapelDaGrade{true, 12'700, 12'700, 12'700, 12'700};

[[noreturn]] void Recusar() {
    host::GZTUtilsDialogs.Informacao(NadaSelecionado);
    throw base::Abort();
}

// A result that is open without a row stands for itself, whatever else there is.
bool HaOQueImprimir(const TDM04618& ADm) {
    for (const host::TDataSet* LResultado : {&ADm.CdsMostraCtbOrcada, &ADm.CdsMostraCtbOrcMensal})
        if (LResultado->Active() && LResultado->IsEmpty())
            return false;
    return !ADm.FInformacoesCtbOrcadaInf.LListaIDs.empty() || ADm.FDetalharSelecao == ModoRazaoTotalizadores;
}

} // namespace

void TForm04618::Imprimir() {
    TFormZTTandorPadraoSelecao::Imprimir();
    const auto& LDm = GetDm04618();
    if (!HaOQueImprimir(LDm))
        Recusar();
    switch (LDm.FDetalharSelecao) {
    case ModoAgrupandoPeriodos:
    case ModoPeriodoExato:
        return LDm.CdsMostraCtbOrcada.IsEmpty() ? host::GZTUtilsDialogs.Informacao(NadaEncontrado)
                                                : ImprimirRelatorioBalanco();
    case ModoPeriodosEmColunas:
        return LDm.CdsMostraCtbOrcMensal.IsEmpty() ? host::GZTUtilsDialogs.Informacao(NadaEncontrado)
                                                   : ImprimirRelatorioPeriodos();
    case ModoMatricial:
        return ImprimirRelatorioMatricial();
    case ModoRazaoTotalizadores:
        return ImprimirRelatorioRazaoTot();
    default:
        return;
    }
}

template <typename TRelatorio>
void TForm04618::ImprimirRelatorio(TRelatorio& ARelatorio) {
    ARelatorio.FDm04618 = &GetDm04618();
    if (FFormSelecao)
        ARelatorio.FCriterios = FFormSelecao->Criterios();
    ARelatorio.Imprimir();
}

void TForm04618::ImprimirRelatorioBalanco() {
    TDM04618Rel LRelatorio;
    ImprimirRelatorio(LRelatorio);
}

void TForm04618::ImprimirRelatorioPeriodos() {
    TDM04618RelPeriodos LRelatorio;
    LRelatorio.FImpColorido = GetFormSelecao().ImpressaoColorida();
    ImprimirRelatorio(LRelatorio);
}

void TForm04618::ImprimirRelatorioMatricial() {
    host::GZTUtilsDialogs.Informacao("A impressão do relatório matricial ainda não faz parte desta versão.");
}

void TForm04618::ImprimirRelatorioRazaoTot() {
    TDM04618RelRazaoTot LRelatorio;
    ImprimirRelatorio(LRelatorio);
}

void TForm04618::ActImprimirGradeExecute() {
    const auto* LGrade = GradeEmVista();
    if (!LGrade || LGrade->DataSet()->IsEmpty())
        Recusar();
    host::Servicos().Interacao->MostrarImpressaoGrade({*LGrade, PapelDaGrade, "Contabilidade gerencial orçamentária",
                                                       "Configuração de percentuais por conta", "Visualizando"});
}

} // namespace pct04618
