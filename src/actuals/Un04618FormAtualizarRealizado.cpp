#include "actuals/Un04618FormAtualizarRealizado.h"

#include "base/Falhas.h"
#include "core/Un04618Const.h"
#include "host/Utilidades.h"
#include "totalization/GeradorTotalizacoes.h"

namespace pct04618 {

namespace {

using base::TDataHora;
using host::GZTUtilsDialogs;
using host::TZTUtilsControls;

[[noreturn]] void Recusar(const std::string& AMensagem, host::TControle& AControle) {
    GZTUtilsDialogs.Informacao(AMensagem);
    TZTUtilsControls::AtribuirFocoControle(AControle);
    throw base::Abort();
}

void ExigirData(host::TZTDateEdit& AData, const char* AMensagem) {
    if (host::TZTUtilsValidacoes::ValidouData(AData.Texto(), AMensagem))
        return;
    TZTUtilsControls::AtribuirFocoControle(AData);
    throw base::Abort();
}

TDataHora DataDe(host::TDataSet& ADataSet, const char* ACampo) {
    return ADataSet.FieldByName(ACampo).AsDateTime().value_or(TDataHora());
}

} // namespace

void TForm04618AtualizarRealizado::FormShow() {
    TFormZTTandorPadraoCalculos::FormShow();
    const bool LVarias = FDm04618.CdsFiliais.RecordCount() > 1;
    LkpFilial.SetEnabled(LVarias);
    ChkDetalharRealizadoPorFilial.SetEnabled(LVarias);
}

void TForm04618AtualizarRealizado::ValidarCampos(host::TControle* ASender) {
    if (auto* LData = dynamic_cast<host::TZTDateEdit*>(ASender); LData && !LData->EmBranco() && LData->Date().Vazia())
        Recusar("Data inválida!", *LData); // the field's own word on what it cannot read
    if (!ASender || (ASender == &DeDataInicial && !DeDataInicial.EmBranco())) {
        ExigirData(DeDataInicial, "Data inicial inválida. Verifique.");
        ValidarDataSeHePrimeiroEUltimoDiaMes(DeDataInicial, nullptr);
    }
    if (!ASender || ASender == &DeDataFinal) {
        ExigirData(DeDataFinal, "Data final inválida. Verifique.");
        ValidarDataSeHePrimeiroEUltimoDiaMes(DeDataFinal, &DeDataInicial);
    }
    if (ASender && ASender != &RgConfrontarProjecoes)
        return;
    if (Cenarios() < 1)
        Recusar("Nenhum cenário foi indicado. Verifique.", ChkCenarioNormal);
    HabilitarDetalhamentoPorFilial(BuscarProjecoes());
    ChkDetRealizCCusto.SetChecked(FDm04618.CdsCtbOrcadaInf.FieldByName("TPCCUSTO").AsInt64OuZero() == 1);
}

void TForm04618AtualizarRealizado::ValidarDataSeHePrimeiroEUltimoDiaMes(host::TZTDateEdit& AData,
                                                                        const host::TZTDateEdit* ADataInicial) {
    const auto LRecusar = [](const char* AMensagem, host::TControle& AControle) {
        GZTUtilsDialogs.Erro(AMensagem);
        TZTUtilsControls::AtribuirFocoControle(AControle);
        throw base::Abort();
    };
    if (&AData == &DeDataInicial && AData.Date().Dia() != 1)
        LRecusar("A data inicial deve ser o primeiro dia do mês. Verifique.", AData);
    if (&AData != &DeDataFinal)
        return;
    const auto LUltimoDia = host::TZTUtilsDatas::BuscarUltimoDiaMes(AData.Date());
    if (!AData.Date().Vazia() && AData.Date() != LUltimoDia) {
        GZTUtilsDialogs.Erro("A data final deve ser o último dia do mês.");
        AData.SetDate(LUltimoDia);
        TZTUtilsControls::AtribuirFocoControle(AData);
        throw base::Abort();
    }
    if (ADataInicial && !(ADataInicial->Date() < AData.Date()))
        LRecusar("A data final deve ser posterior à data de início. Verifique.",
                 AData.PodeReceberFoco() ? AData : DeDataInicial);
}

bool TForm04618AtualizarRealizado::BuscarProjecoes() {
    auto& LProjecoes = FDm04618.CdsCtbOrcadaInf;
    BuscarDadosCabecalhoOrcamentaria(FDm04618, Cenarios(), DeDataInicial.Date(), DeDataFinal.Date(), Mensais());
    if (LProjecoes.IsEmpty())
        Recusar("Não foi encontrada projeção para o período e cenário indicado.", DeDataInicial);
    const auto LDetalhe = [&] { return LProjecoes.FieldByName("TPDETALHE").AsInt64OuZero(); };
    bool LDetalhado = LDetalhe() == DetalhadaPorEstabelecimento;
    if (!Mensais())
        return LDetalhado;
    std::string LMudancas;
    // The dataset stays on the last row.
    for (auto LAnterior = LDetalhe(); !LProjecoes.Eof(); LProjecoes.Next()) {
        if (LDetalhe() != LAnterior)
            LMudancas +=
                "\r" + DataDe(LProjecoes, "DATAINICIO").Texto() + " a " + DataDe(LProjecoes, "DATAFIM").Texto();
        LAnterior = LDetalhe();
        LDetalhado = LDetalhado || LAnterior == DetalhadaPorEstabelecimento;
    }
    if (!LMudancas.empty())
        Recusar("Não é possível realizar a busca dos valores realizados,\rpois dentro do período indicado existe "
                "projeção com\rdetalhamento por estabelecimento e sem detalhamento!\r\rPeríodos: " +
                    LMudancas,
                DeDataInicial);
    return LDetalhado;
}

void TForm04618AtualizarRealizado::HabilitarDetalhamentoPorFilial(bool AHabilitar) {
    if (!AHabilitar)
        LkpFilial.Clear();
    LkpFilial.SetEnabled(AHabilitar);
    ChkDetalharRealizadoPorFilial.SetEnabled(AHabilitar);
    ChkDetalharRealizadoPorFilial.SetChecked(AHabilitar);
}

void TForm04618AtualizarRealizado::LkpPesquisaRealizadoBuscaAchou() {
    auto& LAchado = LkpPesquisaRealizado.GetResultSet();
    DeDataInicial.SetDate(DataDe(LAchado, "DATAINICIO"));
    DeDataFinal.SetDate(DataDe(LAchado, "DATAFIM"));
    const auto LCenario = LAchado.FieldByName("TPCENARIO").AsInt64();
    ChkCenarioNormal.SetChecked(LCenario == 0);
    ChkCenarioOtimista.SetChecked(LCenario == 1);
    ChkCenarioPessimista.SetChecked(LCenario == 2);
    HabilitarDetalhamentoPorFilial(LAchado.FieldByName("TPDETALHE").AsString() == "2 - Detalhado por estabelecimento");
    ChkDetRealizCCusto.SetChecked(LAchado.FieldByName("TPCCUSTO").AsString() == "1 - Sim");
    if (DeDataInicial.PodeReceberFoco())
        TZTUtilsControls::AtribuirFocoControle(DeDataInicial);
}

void TForm04618AtualizarRealizado::LkpFilialExit() {
    ChkDetalharRealizadoPorFilial.SetEnabled(LkpFilial.GetID() <= 0);
    if (LkpFilial.GetID() > 0)
        ChkDetalharRealizadoPorFilial.SetChecked(false);
}

// Leaving has validated it.
void TForm04618AtualizarRealizado::RgConfrontarProjecoesExit() {
    if (!EhUltimoControleAtivo(RgConfrontarProjecoes))
        return;
    TZTUtilsControls::AtribuirFocoControle(DeDataInicial);
    Executar(ActExecutar);
}

int TForm04618AtualizarRealizado::Cenarios() const {
    return host::TZTUtilsMatematica::SomarCombinacaoBinaria(
        {ChkCenarioNormal.Checked(), ChkCenarioOtimista.Checked(), ChkCenarioPessimista.Checked()});
}

void TForm04618AtualizarRealizado::ActExecutarExecute(host::TControle* ASender) {
    TFormZTTandorPadraoCalculos::ActExecutarExecute(ASender);
    AtualizarValoresRealizadosNoPeriodo();
    constexpr int LSim = 6;
    if (GZTUtilsDialogs.ConfirmacaoCustomizada("Deseja visualizar os dados?", host::TNivelMensagem::Confirmacao, LSim,
                                               "Confirmação:", {"Sim", "Não"}, DescreverResultado()) != LSim)
        return;
    FDm04618.FIDFilial = LkpFilial.GetID();
    FDm04618.FDataInicio = DeDataInicial.Date();
    FDm04618.FDataFim = DeDataFinal.Date();
    FDm04618.FDetalharSelecao = Mensais() ? ModoAgrupandoPeriodos : ModoPeriodoExato;
    FDm04618.FCenario = ChkCenarioNormal.Checked() ? 0 : ChkCenarioOtimista.Checked() ? 1 : 2;
    Fechar(ResultadoVisualizar);
}

void TForm04618AtualizarRealizado::AtualizarValoresRealizadosNoPeriodo() {
    const struct TMostrar {
        TForm04618AtualizarRealizado& Form;
        ~TMostrar() { Form.FTabelas.Carregar(Form.FResultado); } // of a run that ended early, too
    } LMostrar{*this};
    TAtualizadorRealizado LAtualizador(
        FDm04618,
        {.DataInicial = DeDataInicial.Date(),
         .DataFinal = DeDataFinal.Date(),
         .Periodicidade = Mensais() ? TPeriodicidadeRealizado::prMensais : TPeriodicidadeRealizado::prDoPerInformado,
         .Cenarios = Cenarios(),
         .IDFilial = LkpFilial.GetID()},
        FResultado);
    LAtualizador.AtualizarValoresRealizadosNoPeriodo();
    if (DeDataInicial.PodeReceberFoco())
        TZTUtilsControls::AtribuirFocoControle(DeDataInicial);
}

void TForm04618AtualizarRealizado::ActGerarTotaisExecute() {
    TSelecao LSelecao = FDm04618;
    LSelecao.FInformacoesCtbOrcadaInf.LListaIDs = FResultado.ListaIDs();
    while (!FResultado.Defasadas.empty()) {
        LSelecao.FIDDemac = FResultado.Defasadas.front().IDDemac;
        TGeradorTotalizacoes(LSelecao).Gerar();
        FResultado.Defasadas.erase(FResultado.Defasadas.begin());
        FTabelas.Carregar(FResultado);
    }
}

void TForm04618AtualizarRealizado::ActExcluirExecute(host::TControle* ASender) {
    TFormZTTandorPadraoCalculos::ActExcluirExecute(ASender);
    TResultadoRealizado LResultado;
    auto& LProjecoes = FDm04618.CdsCtbOrcadaInf;
    for (LProjecoes.First(); !LProjecoes.Eof(); LProjecoes.Next())
        LResultado.Projecoes.push_back(LerAntesDeExcluir(TConfronto::Do(LProjecoes, 0, {})));
    FDm04618.RemoverValorRealizado(LResultado.ListaIDs());
    FResultado = LResultado;
    FTabelas.Carregar(FResultado);
}

} // namespace pct04618
