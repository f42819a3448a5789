#include "base/Texto.h"
#include "core/Un04618Const.h"
#include "host/DbManager.h"
#include "host/Servicos.h"
#include "host/Utilidades.h"
#include "selection/SqlSelecao.h"
#include "selection/Un04618FormSelecao.h"

#include <algorithm>

namespace pct04618 {

namespace {

void Habilitar(bool AHabilitado, std::initializer_list<host::TControle*> AControles) {
    for (auto* LControle : AControles)
        LControle->SetEnabled(AHabilitado);
}

} // namespace

std::int32_t TForm04618Selecao::Visualizacao() const { return base::NumeroOuZero(CbSelecionar.GetValorSelecionado()); }
std::int32_t TForm04618Selecao::Modo() const { return base::NumeroOuZero(CbDetalharSelecao.GetValorSelecionado()); }

bool TForm04618Selecao::UtilizaCentroDeCusto() const {
    return host::GUtilContabil().BuscarEmpresaUtilizaCtbPorCentroCusto(FDm04618.FIDEmpresa);
}

bool TForm04618Selecao::DetalhadoPorEstabelecimento() const {
    return !FDm04618.FEhConsolidadoHolding && FDm04618.CalculoDaProjecaoHeDetalhadoPorFilial();
}

void TForm04618Selecao::AtualizarItensEValuesDetalhamentosTiposDeRelatorios() {
    if (Visualizacao() == 2) {
        CbDetalharSelecao.SetItens({"3 - Demonstrando períodos em colunas",
                                    "4 - Demonstrando de forma matricial com períodos em colunas",
                                    "5 - Razão dos totalizadores"},
                                   {"3", "4", "5"}, "3");
        return;
    }
    const bool LMesmoMes =
        host::GUtilGeral.EspacoEntreDatas(DeDataIni.Date(), DeDataFim.Date(), "MESES", "PARCIAL") == 0;
    CbDetalharSelecao.SetItens({"1 - Agrupando períodos intermediários", "2 - Pesquisando período exato",
                                "3 - Demonstrando períodos em colunas"},
                               {"1", "2", "3"}, LMesmoMes ? "2" : "1");
}

void TForm04618Selecao::CbDetalharSelecaoExit() {
    FDm04618.FDetalharPercentual = TDetalhePercentual::dpRealizadoXOrcado;
    FDm04618.FDetalharSelecao = Modo();
    FDm04618.FInformacoesCtbOrcadaInf = FDm04618.BuscarListaInformacoesCtbOrcadaInf();
    ChkPerSemMov.SetEnabled(Modo() == ModoPeriodosEmColunas);
    HabilitarCamposReferentesADemonstConfig();
    HabilitarCamposReferentesASelecaoDeEstabelecimento();
    HabilitarCamposReferentesASelecaoDeCentroDeCusto();
    HabilitarCamposReferentesASelecaoDeContas();
    HabilitarCamposReferentesASelecaoDeUsuarioAtribuicao();
    AtualizarChkImpColorido();
}

void TForm04618Selecao::AtualizarChkImpColorido() {
    ChkImpColorido.SetEnabled(Modo() == ModoPeriodosEmColunas);
    ChkImpColorido.SetChecked(ChkImpColorido.Enabled());
}

void TForm04618Selecao::HabilitarCamposReferentesADemonstConfig() {
    LkpRelatorioDemonstConfig.Clear();
    LkpTotalizadorDemonstConfig.Clear();
    const bool LDemonstracao = Visualizacao() == 2;
    const auto LModo = Modo();
    const bool LEmColunas = LModo == ModoPeriodosEmColunas || LModo == ModoMatricial;
    Habilitar(LDemonstracao, {&LkpRelatorioDemonstConfig, &LkpTotalizadorDemonstConfig, &LblRelatorioDemonstConfig,
                              &LblTotalizadorDemonstConfig, &LblDetalharTotalizadores, &PnlDetalharTotalizadores});
    const bool LPercentuais = LDemonstracao && LModo != ModoRazaoTotalizadores;
    Habilitar(LPercentuais, {&LblDetalharPercentualTots, &PnlDetalharPercentual, &ChkDetPercRealizadoXOrcado,
                             &ChkDetPercRealizadoXBase, &ChkDetPercAnaliseVertical});
    ChkDetPercAnaliseVertical.SetChecked(LPercentuais);
    HabilitarCamposReferentesACalcularPercentual();
    ChkDetalharTotalizadoresContas.SetEnabled(LDemonstracao);
    ChkDetalharTotalizadoresContas.SetChecked(false);
    ChkDetalharTotalizadoresEstab.SetEnabled(LDemonstracao && LModo == ModoMatricial);
    ChkDetalharTotalizadoresEstab.SetChecked(false);
    const bool LCentroCusto = UtilizaCentroDeCusto();
    ChkDetalharTotalizadoresCCusto.SetEnabled(LCentroCusto && LDemonstracao &&
                                              (LModo == ModoMatricial || LModo == ModoRazaoTotalizadores));
    ChkDetalharTotalizadoresCCusto.SetChecked(false);
    Habilitar(LEmColunas,
              {&LblDetalharLinhas, &PnlDetalharLinhas, &ChkLinhaVlrBase, &ChkLinhaVlrOrcado, &ChkLinhaVlrRealizado});
    Habilitar(LModo != ModoRazaoTotalizadores, {&LblCenario, &CbCenario});
    const bool LLancamentos = LModo == ModoRazaoTotalizadores && LCentroCusto;
    Habilitar(LLancamentos, {&LblDetalharValLacto, &PnlDetalharValLancto, &ChkValLctoContasContabeis});
    ChkValLctoContasContabeis.SetChecked(FDm04618.FInformacoesCtbOrcadaInf.TpCCusto == 0);
    ChkValLctoCentrosCustos.SetEnabled(LLancamentos);
}

void TForm04618Selecao::HabilitarCamposReferentesACalcularPercentual() {
    const bool LEmColunas = Modo() == ModoPeriodosEmColunas || Modo() == ModoMatricial;
    Habilitar(
        (ChkDetPercRealizadoXOrcado.Checked() || ChkDetPercRealizadoXBase.Checked()) && LEmColunas,
        {&LblCalcularPercentual, &PnlCalcularPercentual, &ChkCalcularPercentualTotal, &ChkCalcularPercentualDiferenca});
    ChkCalcularPercentualTotal.SetChecked(true);
}

void TForm04618Selecao::HabilitarCamposReferentesASelecaoDeEstabelecimento() {
    const bool LDetalhado = DetalhadoPorEstabelecimento();
    ChkDetalharTotalizadoresEstab.SetEnabled(LDetalhado && LkpRelatorioDemonstConfig.Enabled() &&
                                             Modo() == ModoMatricial);
    const bool LSelecionavel =
        Visualizacao() == 1 ||
        (Visualizacao() == 2 &&
         (Modo() == ModoPeriodosEmColunas || (Modo() == ModoMatricial && ChkDetalharTotalizadoresEstab.Checked())));
    Habilitar(LDetalhado && LSelecionavel, {&LkpEstabelecimento, &LblEstabelecimento, &ChkAgruparValFiliais});
    if (!ChkAgruparValFiliais.Enabled())
        ChkAgruparValFiliais.SetChecked(false);
    LkpEstabelecimento.Clear();
}

void TForm04618Selecao::HabilitarCamposReferentesASelecaoDeCentroDeCusto() {
    const bool LDemonstracao = Visualizacao() == 2;
    const bool LDetalhe =
        (Modo() == ModoPeriodosEmColunas && ChkDetalharTotalizadoresContas.Checked()) ||
        ((Modo() == ModoMatricial || Modo() == ModoRazaoTotalizadores) && ChkDetalharTotalizadoresCCusto.Checked());
    Habilitar((Visualizacao() == 1 && UtilizaCentroDeCusto()) || (LDemonstracao && LDetalhe),
              {&LkpCentroCusto, &LblCentroCusto});
    LkpCentroCusto.Clear();
}

void TForm04618Selecao::HabilitarCamposReferentesASelecaoDeContas() {
    Habilitar(Visualizacao() == 1 || (Visualizacao() == 2 && ChkDetalharTotalizadoresContas.Checked()),
              {&LkpContas, &LblContas});
    LkpContas.Clear();
}

void TForm04618Selecao::HabilitarCamposReferentesASelecaoDeUsuarioAtribuicao() {
    Habilitar(Visualizacao() == 2 && Modo() == ModoMatricial, {&LkpUsuarioAtrib, &LblUsuarioAtrib});
}

void TForm04618Selecao::HabilitarDetalhamentosCCustoOrcamento() {
    for (auto* LCaixa : {&ChkDetalharCCustoOrcamento, &ChkDetalharSomenteCCustoTitulo}) {
        LCaixa->SetEnabled(false);
        LCaixa->SetChecked(false);
    }
    if (LkpRelatorioDemonstConfig.GetID() <= 0 || Modo() != ModoMatricial || !ChkDetalharTotalizadoresCCusto.Checked())
        return;
    Habilitar(TotalizadoresSoDeContas(), {&ChkDetalharCCustoOrcamento, &ChkDetalharSomenteCCustoTitulo});
}

bool TForm04618Selecao::TotalizadoresSoDeContas() const {
    const auto LTem = [&](const char* AColuna) {
        return !host::BuscarInstanciaZTUtilsDbManager()
                    .AbrirConsultaSQL(
                        base::Format(sql::TotalizadorComVinculo, {LkpRelatorioDemonstConfig.GetID(), AColuna}),
                        "TotalizadoresSoDeContas")
                    ->IsEmpty();
    };
    return LTem("IDPLANO") && !LTem("IDCENTROCUSTO");
}

void TForm04618Selecao::ChkDetPercClick(host::TZTCheckBox& AMarcado, std::initializer_list<host::TZTCheckBox*> AOutros,
                                        std::initializer_list<host::TZTCheckBox*> ALinhas,
                                        TDetalhePercentual ADetalhe) {
    if (AMarcado.Checked()) {
        for (auto* LOutro : AOutros)
            LOutro->SetChecked(false);
        for (auto* LLinha : ALinhas)
            LLinha->SetChecked(true);
        FDm04618.FDetalharPercentual = ADetalhe;
    } else {
        // The one that was on cannot be switched off by hand; vertical analysis can where it is not on offer.
        const bool LNenhum = std::none_of(AOutros.begin(), AOutros.end(), [](auto* O) { return O->Checked(); });
        const bool LOferecido = &AMarcado != &ChkDetPercAnaliseVertical || AMarcado.Enabled();
        AMarcado.SetChecked(LNenhum && LOferecido);
    }
    HabilitarCamposReferentesACalcularPercentual();
}

void TForm04618Selecao::LigarTeclas() {
    const auto LEnter = [](host::TTecla ATecla) {
        return ATecla == host::TTecla::Enter || ATecla == host::TTecla::Baixo;
    };
    CbCenario.OnKeyDown = [this, LEnter](host::TTecla ATecla) {
        if (LEnter(ATecla))
            ActOK.Execute();
        return false;
    };
    CbDetalharSelecao.OnKeyDown = [this, LEnter](host::TTecla ATecla) {
        if (LEnter(ATecla) && LkpRelatorioDemonstConfig.PodeReceberFoco())
            host::TZTUtilsControls::AtribuirFocoControle(LkpRelatorioDemonstConfig);
        return LEnter(ATecla);
    };
    ChkDetalharTotalizadoresContas.OnKeyDown = [this, LEnter](host::TTecla ATecla) {
        if (LEnter(ATecla) && Modo() == ModoRazaoTotalizadores && !ChkDetalharTotalizadoresCCusto.Checked() &&
            !ChkDetalharTotalizadoresContas.Checked() && !PnlDetalharValLancto.Enabled())
            ActOK.Execute();
        return LEnter(ATecla);
    };
    LkpCentroCusto.OnKeyDown = [this, LEnter](host::TTecla ATecla) {
        if (LEnter(ATecla) && Modo() == ModoRazaoTotalizadores && !ChkDetalharTotalizadoresContas.Checked() &&
            !PnlDetalharValLancto.Enabled())
            ActOK.Execute();
        return false;
    };
    LkpContas.OnKeyDown = LkpSubConta.OnKeyDown = [this, LEnter](host::TTecla ATecla) {
        LkpContas.TextoTodosMarcados = LkpSubConta.TextoTodosMarcados = "Todos os registros selecionados.";
        if (LEnter(ATecla) && Modo() == ModoRazaoTotalizadores && !PnlDetalharValLancto.Enabled())
            ActOK.Execute();
        return false;
    };
    ChkValLctoCentrosCustos.OnKeyDown = [this, LEnter](host::TTecla ATecla) {
        if (LEnter(ATecla) && Modo() == ModoRazaoTotalizadores)
            ActOK.Execute();
        return LEnter(ATecla);
    };
    ChkDetPercAnaliseVertical.OnKeyDown = ChkCalcularPercentualDiferenca.OnKeyDown = LEnter;
}

bool TForm04618Selecao::FormKeyDown(host::TTecla ATecla) {
    if (ATecla != host::TTecla::F11)
        return TFormZTTandorPadraoResult::FormKeyDown(ATecla);
    host::Servicos().Interacao->Pesquisar(LkpPesquisaPerOrcConsulta);
    return true;
}

} // namespace pct04618
