#pragma once

#include "datamodule/Un04618Dm.h"
#include "host/Formularios.h"
#include "host/LookupsContabeis.h"

namespace pct04618 {

// The dialog in which the user says what is to be consulted. A control is a value; each rule is an operation that runs
// when the event that it is named after occurs. Which controls mean anything follows from two choices, what is viewed
// (CbSelecionar) and how it is detailed (CbDetalharSelecao). The commit writes the selection into the query module and
// runs the query of the mode. The dialog keeps its controls from one showing to the next, all but the company lookup.
class TForm04618Selecao final : public host::TFormZTTandorPadraoResult {
  public:
    // The query module must outlive the dialog's use of it.
    explicit TForm04618Selecao(TDM04618& ADm04618);

    // True from the moment the dialog is shown until an OK has passed validation.
    bool Cancelou() const { return FCancelou; }
    // What the last commit asked for, as the dialog called it then; the first is the title.
    const std::vector<host::TCriterio>& Criterios() const { return FCriterios; }
    bool ImpressaoColorida() const { return ChkImpColorido.Checked(); } // as the box stands now
    // Fills the dialog from outside, so that ActOKExecute can run without the user. AVisualizacao is an index from 0.
    void AtribuirDadosSelecao(std::int64_t AIDFilial, base::TDataHora ADataIni, base::TDataHora ADataFim,
                              std::int32_t AVisualizacao, std::int32_t ADetalhar, std::int32_t ACenario);

    void FormShow() override;
    bool FormKeyDown(host::TTecla ATecla) override;
    void ValidarCampos(host::TControle* ASender) override;
    // Validates, closes the earlier results, writes the selection, runs the query and closes the dialog.
    void ActOKExecute(host::TControle* ASender) override;

  private:
    // Construction (Un04618FormSelecaoControles.cpp)
    void ConfigurarControles();
    void LigarEventos();
    void LigarEventosDosLookups();
    void LigarTeclas();

    // Options and dependent fields (Un04618FormSelecaoOpcoes.cpp)
    void AtualizarItensEValuesDetalhamentosTiposDeRelatorios();
    void CbDetalharSelecaoExit();
    void AtualizarChkImpColorido();
    void HabilitarCamposReferentesADemonstConfig();
    void HabilitarCamposReferentesACalcularPercentual();
    void HabilitarCamposReferentesASelecaoDeEstabelecimento();
    void HabilitarCamposReferentesASelecaoDeCentroDeCusto();
    void HabilitarCamposReferentesASelecaoDeContas();
    void HabilitarCamposReferentesASelecaoDeUsuarioAtribuicao();
    void HabilitarDetalhamentosCCustoOrcamento();
    bool TotalizadoresSoDeContas() const;
    void ChkDetPercClick(host::TZTCheckBox& AMarcado, std::initializer_list<host::TZTCheckBox*> AOutros,
                         std::initializer_list<host::TZTCheckBox*> ALinhas, TDetalhePercentual ADetalhe);
    void LkpEstabelecimentoExit();
    std::int32_t Visualizacao() const; // value of CbSelecionar
    std::int32_t Modo() const;         // value of CbDetalharSelecao, 0 if it is no number
    bool UtilizaCentroDeCusto() const;
    bool DetalhadoPorEstabelecimento() const;

    // Validation and commit (Un04618FormSelecao.cpp)
    void ValidarDataSeHePrimeiroEUltimoDiaMes(host::TZTDateEdit& AData, const host::TZTDateEdit* ADataInicial);
    void ConferirMarcados();
    void AtribuirPropriedadesDm04618();
    void AtribuirUsuariosPorAtribuicao();
    void AtribuirHolding();
    TDetalhePercentual DetalhePercentual() const;
    void ExecutarConsultaDoModo();
    bool JaExistemProjecoesGeradas() const; // totals of the statement, in a projection of the selection
    bool AtualizarTotalizacoes();           // the totals step; False when the user ends the commit there
    void BuscarInformacoesOrcamentaria();

    // What was asked for (Un04618FormSelecaoCriterios.cpp)
    void GuardarCriterios();
    std::string LinhasMarcadas() const;
    std::string OpcoesMarcadas() const;

    // Lookups (Un04618FormSelecaoLookups.cpp)
    void AtualizarInformacoesIDsFilialSelecionados();
    void LkpEmpresaAntesDeBuscar(host::TZTLookupEx::TBusca& ABusca) const;

    TDM04618& FDm04618;
    std::int64_t FIDEmpresa; // the logged company
    bool FCancelou = false;
    std::vector<host::TCriterio> FCriterios;

    host::TAction ActCancelar{"ActCancelar", [] {}}; // nothing behind it: the dialog is left by ActSair
    host::TAction BtnCancelar{"BtnCancelar", [this] { ActCancelar.Execute(); }};
    host::TLabel LblPesquisaPerOrcConsulta{"LblPesquisaPerOrcConsulta"};
    host::TZTLookupEx LkpPesquisaPerOrcConsulta;
    host::TLabel LblEmpresa{"LblEmpresa"};
    host::TZTLookupEx LkpEmpresa;
    host::TLabel LblDataInicial{"LblDataInicial"};
    host::TZTDateEdit DeDataIni{"DeDataIni"};
    host::TLabel LblDataFinal{"LblDataFinal"};
    host::TZTDateEdit DeDataFim{"DeDataFim"};
    host::TLabel LblSelecionar{"LblSelecionar"};
    host::TZTComboBox CbSelecionar{"CbSelecionar"};
    host::TLabel LblDetalharSelecao{"LblDetalharSelecao"};
    host::TZTComboBox CbDetalharSelecao{"CbDetalharSelecao"};
    host::TLabel LblRelatorioDemonstConfig{"LblRelatorioDemonstConfig"};
    host::TZTLookupEx LkpRelatorioDemonstConfig;
    host::TLabel LblTotalizadorDemonstConfig{"LblTotalizadorDemonstConfig"};
    host::TZTLookupEx LkpTotalizadorDemonstConfig;
    host::TLabel LblUsuarioAtrib{"LblUsuarioAtrib"};
    host::TZTLookupEx LkpUsuarioAtrib;
    host::TLabel LblDetalharTotalizadores{"LblDetalharTotalizadores"};
    host::TPanel PnlDetalharTotalizadores{"PnlDetalharTotalizadores"};
    host::TZTCheckBox ChkDetalharTotalizadoresEstab{"ChkDetalharTotalizadoresEstab"};
    host::TZTCheckBox ChkDetalharTotalizadoresCCusto{"ChkDetalharTotalizadoresCCusto"};
    host::TZTCheckBox ChkDetalharTotalizadoresContas{"ChkDetalharTotalizadoresContas"};
    host::TLabel LblDetalharPercentualTots{"LblDetalharPercentualTots"};
    host::TPanel PnlDetalharPercentual{"PnlDetalharPercentual"};
    host::TZTCheckBox ChkDetPercRealizadoXOrcado{"ChkDetPercRealizadoXOrcado"};
    host::TZTCheckBox ChkDetPercRealizadoXBase{"ChkDetPercRealizadoXBase"};
    host::TZTCheckBox ChkDetPercAnaliseVertical{"ChkDetPercAnaliseVertical"};
    host::TLabel LblCalcularPercentual{"LblCalcularPercentual"};
    host::TPanel PnlCalcularPercentual{"PnlCalcularPercentual"};
    host::TZTCheckBox ChkCalcularPercentualTotal{"ChkCalcularPercentualTotal"};
    host::TZTCheckBox ChkCalcularPercentualDiferenca{"ChkCalcularPercentualDiferenca"};
    host::TLabel LblEstabelecimento{"LblEstabelecimento"};
    host::TframeZTLookupFilial LkpEstabelecimento{"LkpEstabelecimento", "TODOS OS ESTABELECIMENTOS"};
    host::TZTCheckBox ChkAgruparValFiliais{"ChkAgruparValFiliais"};
    host::TLabel LblCentroCusto{"LblCentroCusto"};
    host::TFrameZTTandorLookupCentroCusto LkpCentroCusto{"LkpCentroCusto", "TODOS OS CENTRO DE CUSTOS"};
    host::TZTCheckBox ChkDetalharCCustoOrcamento{"ChkDetalharCCustoOrcamento"};
    host::TZTCheckBox ChkDetalharSomenteCCustoTitulo{"ChkDetalharSomenteCCustoTitulo"};
    host::TLabel LblContas{"LblContas"};
    host::TLookupConta LkpContas{"LkpContas"};
    host::TZTLookupEx LkpSubConta;
    host::TLabel LblDetalharLinhas{"LblDetalharLinhas"};
    host::TPanel PnlDetalharLinhas{"PnlDetalharLinhas"};
    host::TZTCheckBox ChkLinhaVlrBase{"ChkLinhaVlrBase"};
    host::TZTCheckBox ChkLinhaVlrOrcado{"ChkLinhaVlrOrcado"};
    host::TZTCheckBox ChkLinhaVlrRealizado{"ChkLinhaVlrRealizado"};
    host::TLabel LblDetalharValLacto{"LblDetalharValLacto"};
    host::TPanel PnlDetalharValLancto{"PnlDetalharValLancto"};
    host::TZTCheckBox ChkValLctoContasContabeis{"ChkValLctoContasContabeis"};
    host::TZTCheckBox ChkValLctoCentrosCustos{"ChkValLctoCentrosCustos"};
    host::TZTCheckBox ChkImpColorido{"ChkImpColorido"};
    host::TZTCheckBox ChkPerSemMov{"ChkPerSemMov"};
    host::TLabel LblCenario{"LblCenario"};
    host::TZTComboBox CbCenario{"CbCenario"};
};

} // namespace pct04618
