#include "selection/Un04618FormSelecao.h"

#include "core/Un04618Const.h"
#include "host/Falhas.h"
#include "host/Texto.h"
#include "host/Utilidades.h"

namespace pct04618 {

namespace {

using host::GZTUtilsDialogs;

std::int32_t NumeroOuZero(const std::string& AValor) {
    const auto LNumero = host::TDecimal::De(AValor);
    return LNumero ? static_cast<std::int32_t>(LNumero->Unidades) : 0;
}

[[noreturn]] void Recusar(const char* AMensagem, host::TControle& AControle) {
    GZTUtilsDialogs.Informacao(AMensagem);
    host::TZTUtilsControls::AtribuirFocoControle(AControle);
    throw host::Abort();
}

} // namespace

TForm04618Selecao::TForm04618Selecao(TDM04618& ADm04618)
    : TFormZTTandorPadraoResult("TForm04618Selecao", "Selecionar períodos projetados"), FDm04618(ADm04618) {
    ActOK.SetCaption("&Selecionar");
    ActSair.SetCaption("&Sair [Esc]");
    DeDataIni.SetCaption("Data inicial:");
    DeDataFim.SetCaption("Data Final :");
    CbSelecionar.SetCaption("Visualizar:");
    CbSelecionar.SetItens({"1 - Orçamentária com base no balanço"}, {"1"});
    CbDetalharSelecao.SetCaption("Detalhar:");
    CbDetalharSelecao.SetItens({"1 - Agrupando períodos intermediários", "2 - Pesquisando período exato"}, {"1", "2"});
    CbDetalharSelecao.OnExit = [this] { CbDetalharSelecaoExit(); };
    ChkAgruparValFiliais.SetCaption("Agrupar valores dos estabelecimentos");
    ChkAgruparValFiliais.SetEnabled(false);
    CbCenario.SetCaption("Cenário:");
    CbCenario.SetItens({"0 - Condições normais - Previsão normal", "1 - Condições favoráveis - Previsão otimista ",
                        "2 - Condições adversas - Previsão pessimista"},
                       {"0", "1", "2"});
    Registrar({&DeDataIni, &DeDataFim, &CbSelecionar, &CbDetalharSelecao, &ChkAgruparValFiliais, &CbCenario});
}

void TForm04618Selecao::FormShow() {
    FCancelou = true;
    host::TZTUtilsControls::AtribuirFocoControle(DeDataIni);
}

std::int32_t TForm04618Selecao::ModoSelecionado() const {
    return NumeroOuZero(CbDetalharSelecao.GetValorSelecionado());
}

void TForm04618Selecao::ValidarCampos(host::TControle* ASender) {
    if (!ASender || (ASender == &DeDataIni && !DeDataIni.EmBranco())) {
        FDm04618.FDataInicio = DeDataIni.Date();
        if (!host::TZTUtilsValidacoes::ValidouData(DeDataIni.Texto(), "Data inicial inválida. Verifique.")) {
            host::TZTUtilsControls::AtribuirFocoControle(DeDataIni);
            throw host::Abort();
        }
        ValidarDataSeHePrimeiroEUltimoDiaMes(DeDataIni, nullptr);
    }
    if (!ASender || ASender == &DeDataFim) {
        FDm04618.FDataFim = DeDataFim.Date();
        if (!host::TZTUtilsValidacoes::ValidouData(DeDataFim.Texto(), "Data final inválida. Verifique.")) {
            host::TZTUtilsControls::AtribuirFocoControle(DeDataFim);
            throw host::Abort();
        }
        ValidarDataSeHePrimeiroEUltimoDiaMes(DeDataFim, &DeDataIni);
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
        host::TZTUtilsControls::AtribuirFocoControle(AData);
        throw host::Abort();
    }
    if (ADataInicial && !(ADataInicial->Date() < AData.Date()))
        Recusar("A data inicial não pode ser maior que a data final. Verifique.", DeDataFim);
}

void TForm04618Selecao::CbDetalharSelecaoExit() {
    FDm04618.FDetalharPercentual = TDetalhePercentual::dpRealizadoXOrcado;
    FDm04618.FDetalharSelecao = ModoSelecionado();
    FDm04618.FInformacoesCtbOrcadaInf = FDm04618.BuscarListaInformacoesCtbOrcadaInf();
    HabilitarCamposReferentesASelecaoDeEstabelecimento();
}

void TForm04618Selecao::HabilitarCamposReferentesASelecaoDeEstabelecimento() {
    ChkAgruparValFiliais.SetEnabled(!FDm04618.FEhConsolidadoHolding &&
                                    FDm04618.CalculoDaProjecaoHeDetalhadoPorFilial());
    if (!ChkAgruparValFiliais.Enabled())
        ChkAgruparValFiliais.SetChecked(false);
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
        if (!host::Trim(FDm04618.FInformacoesCtbOrcadaInf.LListaIDs).empty())
            BuscarInformacoesOrcamentaria();
    } catch (...) {
        LEncerrar();
        throw;
    }
    LEncerrar();
}

void TForm04618Selecao::AtribuirPropriedadesDm04618() {
    FDm04618.FDetalharSelecao = ModoSelecionado();
    FDm04618.FAgruparValFiliais = ChkAgruparValFiliais.Checked();
    FDm04618.FImprimirOrcamentariaBal = CbSelecionar.GetValorSelecionado() == "1";
    FDm04618.FCenario = NumeroOuZero(CbCenario.GetValorSelecionado());
    FDm04618.FAnoI = DeDataIni.Date().Ano();
    FDm04618.FAnoF = DeDataFim.Date().Ano();
    FDm04618.FInformacoesCtbOrcadaInf = FDm04618.BuscarListaInformacoesCtbOrcadaInf();
}

void TForm04618Selecao::BuscarInformacoesOrcamentaria() {
    host::TZTBarraProgressoDlg LProgresso;
    LProgresso.SetTitulo("Buscando informações orçamentária.");
    LProgresso.MostrarBarraProgresso();
    auto& LBarra = LProgresso.BuscarBarraProgresso(0);
    LBarra.IniciarSimulacaoProcesso();
    LBarra.SetTexto("Aguarde buscando informações");
    FDm04618.CdsMostraCtbOrcada.CommandText = FDm04618.BuscarDadosOrcamentariaComBaseNoBalanco();
    FDm04618.CdsMostraCtbOrcada.Open(); // a failure closes the progress dialog on its way out
    LBarra.PararSimulacaoProcesso();
    LProgresso.FecharBarraProgresso();
}

} // namespace pct04618
