#include "selection/Un04618FormSelecao.h"

#include "base/Falhas.h"
#include "base/Texto.h"
#include "core/Lista.h"
#include "core/Un04618Const.h"
#include "host/DbManager.h"
#include "host/Servicos.h"
#include "host/Utilidades.h"
#include "queries/Condicoes.h"
#include "selection/DefinicoesLookups.h"
#include "selection/SqlSelecao.h"

namespace pct04618 {

namespace {

using host::GZTUtilsDialogs;
using host::TZTUtilsControls;

[[noreturn]] void Recusar(const std::string& AMensagem, host::TControle& AControle) {
    GZTUtilsDialogs.Informacao(AMensagem);
    TZTUtilsControls::AtribuirFocoControle(AControle);
    throw base::Abort();
}

void ExigirData(const host::TZTDateEdit& AData, const char* AMensagem, host::TControle& AControle) {
    if (host::TZTUtilsValidacoes::ValidouData(AData.Texto(), AMensagem))
        return;
    TZTUtilsControls::AtribuirFocoControle(AControle);
    throw base::Abort();
}

} // namespace

void TForm04618Selecao::FormShow() {
    const auto LEmpresa = host::BuscarInstanciaZTEmpresaLogada().BuscarDadosEmpresa(FDm04618.FIDEmpresa);
    LkpEmpresa.SetEnabled(LEmpresa.EncabecaHolding);
    LblEmpresa.SetEnabled(LEmpresa.EncabecaHolding);
    LkpEmpresa.Clear();
    if (!FDm04618.CdsFiliais.IsEmpty()) // the search lists establishments: a company without any is not in it
        LkpEmpresa.Digitar(std::to_string(LEmpresa.Codigo));
    FCancelou = true;
    TZTUtilsControls::AtribuirFocoControle(LkpEmpresa.Enabled() ? static_cast<host::TControle&>(LkpEmpresa)
                                                                : DeDataIni);
}

void TForm04618Selecao::ValidarCampos(host::TControle* ASender) {
    if (!ASender || (ASender == &DeDataIni && !DeDataIni.EmBranco())) {
        FDm04618.FDataInicio = DeDataIni.Date();
        ExigirData(DeDataIni, "Data inicial inválida. Verifique.", DeDataIni);
        ValidarDataSeHePrimeiroEUltimoDiaMes(DeDataIni, nullptr);
    }
    if (!ASender || ASender == &DeDataFim) {
        FDm04618.FDataFim = DeDataFim.Date();
        ExigirData(DeDataFim, "Data final inválida. Verifique.", DeDataFim);
        ValidarDataSeHePrimeiroEUltimoDiaMes(DeDataFim, &DeDataIni);
    }
    if (!ASender && LblDetalharLinhas.Enabled() && !ChkLinhaVlrBase.Checked() && !ChkLinhaVlrOrcado.Checked() &&
        !ChkLinhaVlrRealizado.Checked())
        Recusar("Marque uma das opções de detalhamento de linhas de valores.", ChkLinhaVlrBase);
    if (!ASender)
        ConferirMarcados();
}

// What no statement can take is said while nothing has changed yet.
void TForm04618Selecao::ConferirMarcados() {
    for (auto* LLookup : std::initializer_list<host::TZTLookupEx*>{&LkpEmpresa, &LkpTotalizadorDemonstConfig,
                                                                   &LkpEstabelecimento, &LkpCentroCusto, &LkpContas})
        try {
            EstaEntreMarcados(BuscarIDsMultiselecao(*LLookup, "ID = ", LLookup->Definicao().CampoChave));
        } catch (const base::TFalha& E) {
            Recusar(E.what(), *LLookup);
        }
}

void TForm04618Selecao::ValidarDataSeHePrimeiroEUltimoDiaMes(host::TZTDateEdit& AData,
                                                             const host::TZTDateEdit* ADataInicial) {
    if (&AData == &DeDataIni && AData.Date().Dia() != 1)
        Recusar("A data inicial deve ser o primeiro dia do mês. Verifique.", AData);
    if (&AData != &DeDataFim)
        return;
    const auto LUltimoDia = host::TZTUtilsDatas::BuscarUltimoDiaMes(AData.Date());
    if (!AData.Date().Vazia() && AData.Date() != LUltimoDia) {
        GZTUtilsDialogs.Informacao("A data final deve ser o último dia do mês.");
        AData.SetDate(LUltimoDia);
        TZTUtilsControls::AtribuirFocoControle(AData);
        throw base::Abort();
    }
    if (ADataInicial && !(ADataInicial->Date() < AData.Date()))
        Recusar("A data inicial não pode ser maior que a data final. Verifique.", DeDataFim);
}

void TForm04618Selecao::ActOKExecute(host::TControle*) {
    ValidarCampos(nullptr);
    FDm04618.CdsMostraCtbOrcMensal.Close();
    FDm04618.CdsMostraCtbOrcada.Close();
    const auto LEncerrar = [this] {
        FCancelou = false;
        ActSair.Execute();
    };
    try {
        AtribuirPropriedadesDm04618();
        GuardarCriterios();
        if (!base::Trim(FDm04618.FInformacoesCtbOrcadaInf.LListaIDs).empty())
            ExecutarConsultaDoModo();
    } catch (...) {
        LEncerrar();
        throw;
    }
    LEncerrar();
}

// A view that was changed and not left stands beside the modes of the other one: for those there is no query.
void TForm04618Selecao::ExecutarConsultaDoModo() {
    const auto LModo = Modo();
    const bool LBalanco = Visualizacao() == 1 && (LModo == ModoAgrupandoPeriodos || LModo == ModoPeriodoExato);
    const bool LEmColunas = LModo == ModoPeriodosEmColunas || LModo == ModoMatricial;
    if (Visualizacao() == 2 && LEmColunas && !AtualizarTotalizacoes())
        return;
    if (LBalanco || LModo == ModoPeriodosEmColunas)
        BuscarInformacoesOrcamentaria();
}

bool TForm04618Selecao::JaExistemProjecoesGeradas() const {
    return !host::BuscarInstanciaZTUtilsDbManager()
                .AbrirConsultaSQL(
                    base::Format(sql::TotalizacoesGeradas,
                                 {CondicaoProjecoes(FDm04618, "CO01_CTBORCADAINF.IDCTBORCADAINF"), FDm04618.FIDDemac}),
                    "JaExistemProjecoesGeradas")
                ->IsEmpty();
}

bool TForm04618Selecao::AtualizarTotalizacoes() {
    constexpr int Consultar = host::TResposta::Primeira;
    constexpr int Reatualizar = host::TResposta::Segunda;
    const int LResposta =
        JaExistemProjecoesGeradas()
            ? GZTUtilsDialogs.ConfirmacaoCustomizada(
                  "Já existem projeções geradas para os totalizadores do relatório.\r\rDeseja somente consultar ou "
                  "reatualizar e consultar as projeções \rpara os totalizadores?",
                  host::TNivelMensagem::Confirmacao, Consultar,
                  "Confirmação:", {"Consultar", "Reatualizar", "Cancelar"})
            : Reatualizar;
    if (LResposta == Reatualizar)
        FDm04618.GerarTotalizacoesDemonstracoesConfiguraveis();
    return LResposta == Consultar || LResposta == Reatualizar;
}

void TForm04618Selecao::AtribuirPropriedadesDm04618() {
    auto& LDm = FDm04618;
    LDm.FDetalharCCustoComBaseOrc = ChkDetalharCCustoOrcamento.Checked();
    LDm.FDetalharSomenteCCustoTitulo = ChkDetalharSomenteCCustoTitulo.Checked();
    LDm.FCalcularPercentualDiferenca = ChkCalcularPercentualDiferenca.Checked();
    LDm.FDetalharValorLctoCCusto = ChkValLctoCentrosCustos.Checked();
    LDm.FDetalharLinhaVlrBase = ChkLinhaVlrBase.Checked();
    LDm.FDetalharLinhaVlrOrcado = ChkLinhaVlrOrcado.Checked();
    LDm.FDetalharLinhaVlrRealizado = ChkLinhaVlrRealizado.Checked();
    LDm.FDetalharSelecao = Modo();
    LDm.FAgruparValFiliais = ChkAgruparValFiliais.Checked();
    LDm.FImprimirOrcamentariaBal = Visualizacao() == 1;
    LDm.FImprimirDetContasTotaliz = ChkDetalharTotalizadoresContas.Checked();
    LDm.FImprimirDetFiliaisTotaliz = ChkDetalharTotalizadoresEstab.Checked();
    LDm.FImprimirDetCCustoTotaliz = ChkDetalharTotalizadoresCCusto.Checked();
    LDm.FIDDemac = LkpRelatorioDemonstConfig.GetID();
    LDm.FDescricaoRel =
        LDm.FIDDemac > 0 ? LkpRelatorioDemonstConfig.GetResultSet().FieldByName("TITULO").AsString() : std::string();
    const bool LRazao = Modo() == ModoRazaoTotalizadores;
    LDm.FIDsTotalizadores =
        BuscarIDsMultiselecao(LkpTotalizadorDemonstConfig, "CO01_DEMACTOT.IDDEMACTOT = ", "IDDEMACTOT");
    LDm.FIDsCentroCusto = BuscarIDsMultiselecao(
        LkpCentroCusto,
        LRazao ? "CO01_CENTROCUSTO.IDCENTROCUSTO = " : "CO01_CTBORCADAVLR.IDCENTROCUSTO = ", "IDCENTROCUSTO");
    LDm.FIDsContas =
        BuscarIDsMultiselecao(LkpContas, LRazao ? "CO01_PLANO.IDPLANO = " : "CO01_CTBORCADAVLR.IDPLANO = ", "IDPLANO");
    AtribuirUsuariosPorAtribuicao();
    AtribuirHolding();
    LDm.FCenario = base::NumeroOuZero(CbCenario.GetValorSelecionado());
    LDm.FAnoI = DeDataIni.Date().Ano();
    LDm.FAnoF = DeDataFim.Date().Ano();
    LDm.FClassificacao = LkpContas.GetClassifContab();
    LDm.FIDPlano = LkpContas.GetID();
    LDm.FDetalharPercentual = DetalhePercentual();
    LDm.FInformacoesCtbOrcadaInf = LDm.BuscarListaInformacoesCtbOrcadaInf();
    AtualizarInformacoesIDsFilialSelecionados();
}

void TForm04618Selecao::AtribuirUsuariosPorAtribuicao() {
    FDm04618.FIDsUsuariosAtrib =
        BuscarIDsMultiselecao(LkpUsuarioAtrib, "CO01_DEMACTOTUSUATRIB.IDUSUARIOATRIB = ", "IDUSUARIOATRIB");
    const auto LAtribuir = [this](std::string& ACondicao, const char* APrefixo, const char* AAtribuicao) {
        if (LkpUsuarioAtrib.GetResultSetMultiSelecao().Active()) {
            ACondicao = BuscarIDsMultiselecao(LkpUsuarioAtrib, APrefixo, "IDUSUARIOATRIB", AAtribuicao, "NOMEATRIB");
        } else if (LkpUsuarioAtrib.GetID() > 0) {
            const bool LTem = LkpUsuarioAtrib.GetResultSet().FieldByName("NOMEATRIB").AsString() == AAtribuicao;
            ACondicao = LTem ? BuscarIDsMultiselecao(LkpUsuarioAtrib, APrefixo, "IDUSUARIOATRIB") : std::string();
        }
    };
    LAtribuir(FDm04618.FIDsUsuariosAtribGestor, "DEMACTOTUSUATRIB_G.IDUSUARIOATRIB = ", "Gestor");
    LAtribuir(FDm04618.FIDsUsuariosAtribSupervisor, "DEMACTOTUSUATRIB_S.IDUSUARIOATRIB = ", "Supervisor");
}

void TForm04618Selecao::AtribuirHolding() {
    FDm04618.FIDsEmpresasDaHolding.clear();
    FDm04618.FIDsFiliaisDaHolding.clear();
    if (!LkpEmpresa.Enabled())
        return;
    // Marked and then none marks nothing: the statement of a holding has no form without a company.
    FDm04618.FEhConsolidadoHolding =
        LkpEmpresa.GetResultSetMultiSelecao().Active() && !LkpEmpresa.GetResultSetMultiSelecao().IsEmpty();
    if (!FDm04618.FEhConsolidadoHolding)
        return;
    FDm04618.FIDsEmpresasDaHolding = BuscarIDsMultiselecao(LkpEmpresa, "CO01_CTBORCADAINF.IDEMPRESA = ", "IDEMPRESA");
    FDm04618.FIDsFiliaisDaHolding = BuscarIDsMultiselecao(LkpEmpresa, "CO01_CTBORCADAINF.IDFILIAL = ", "IDFILIAL");
}

// What the boxes show is what runs, but for vertical analysis: boxes may show it from an earlier view, and only
// totalizers have a vertical base.
TDetalhePercentual TForm04618Selecao::DetalhePercentual() const {
    const auto LVale = [](const host::TZTCheckBox& ACaixa) { return ACaixa.Enabled() && ACaixa.Checked(); };
    if (Visualizacao() == 2 && LVale(ChkDetPercAnaliseVertical))
        return TDetalhePercentual::dpVertical;
    return LVale(ChkDetPercRealizadoXBase) ? TDetalhePercentual::dpRealizadoXBase
                                           : TDetalhePercentual::dpRealizadoXOrcado;
}

void TForm04618Selecao::BuscarInformacoesOrcamentaria() {
    FDm04618.CdsMostraCtbOrcMensal.Close();
    FDm04618.CdsMostraCtbOrcada.Close();
    host::TZTBarraProgressoDlg LProgresso; // closes itself on every way out
    LProgresso.SetTitulo("Buscando informações orçamentária.");
    LProgresso.MostrarBarraProgresso();
    auto& LBarra = LProgresso.BuscarBarraProgresso(0);
    LBarra.IniciarSimulacaoProcesso();
    LBarra.SetTexto("Aguarde buscando informações");
    if (Modo() == ModoPeriodosEmColunas) {
        FDm04618.BuscarDadosOrcamentariaBalancoOuDemonstConfigDemonstPeriodosEmColunas(
            FDm04618.CdsMostraCtbOrcMensal, FDm04618.SdsMostraCtbOrcMensal, ChkPerSemMov.Checked());
    } else {
        FDm04618.CdsMostraCtbOrcada.CommandText = FDm04618.BuscarDadosOrcamentariaComBaseNoBalanco();
        FDm04618.CdsMostraCtbOrcada.Open();
    }
    LBarra.PararSimulacaoProcesso();
    LProgresso.FecharBarraProgresso();
}

void TForm04618Selecao::AtribuirDadosSelecao(std::int64_t AIDFilial, base::TDataHora ADataIni, base::TDataHora ADataFim,
                                             std::int32_t AVisualizacao, std::int32_t ADetalhar,
                                             std::int32_t ACenario) {
    if (AIDFilial > 0)
        LkpEmpresa.SetID(AIDFilial);
    DeDataIni.SetDate(ADataIni);
    DeDataFim.SetDate(ADataFim);
    CbSelecionar.SetItemIndex(AVisualizacao);
    AtualizarItensEValuesDetalhamentosTiposDeRelatorios();
    CbDetalharSelecao.SetValorSelecionado(std::to_string(ADetalhar));
    CbCenario.SetValorSelecionado(std::to_string(ACenario));
}

} // namespace pct04618
