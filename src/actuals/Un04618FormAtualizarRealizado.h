#pragma once

#include "actuals/AtualizadorRealizado.h"
#include "actuals/TabelasRealizado.h"
#include "host/Formularios.h"
#include "host/LookupsContabeis.h"

namespace pct04618 {

// The dialog in which the user has projections confronted with the journal, or their actuals removed. It keeps its
// fields from one showing to the next.
class TForm04618AtualizarRealizado final : public host::TFormZTTandorPadraoCalculos {
  public:
    // The order to run a consultation with what the dialog has written into the query module.
    static constexpr int ResultadoVisualizar = 8;

    // The query module must outlive the dialog's use of it.
    explicit TForm04618AtualizarRealizado(TDM04618& ADm04618);

    void FormShow() override;
    bool FormKeyDown(host::TTecla ATecla) override;
    // Leaves CdsCtbOrcadaInf open on the projections that it has found.
    void ValidarCampos(host::TControle* ASender) override;
    void ActExecutarExecute(host::TControle* ASender) override;
    void ActExcluirExecute(host::TControle* ASender) override;

    // What the last run did; empty before the first.
    std::string DescreverResultado() const { return Descrever(FResultado); }

  private:
    // Construction (Un04618FormAtualizarRealizadoControles.cpp)
    void ConfigurarControles();
    void LigarEventos();

    void ValidarDataSeHePrimeiroEUltimoDiaMes(host::TZTDateEdit& AData, const host::TZTDateEdit* ADataInicial);
    bool BuscarProjecoes(); // whether they are detailed by establishment
    void HabilitarDetalhamentoPorFilial(bool AHabilitar);
    void LkpPesquisaRealizadoBuscaAchou();
    void LkpFilialExit();
    void RgConfrontarProjecoesExit();
    bool EhUltimoControleAtivo(const host::TControle& AControle) const;
    void AtualizarValoresRealizadosNoPeriodo();
    // The totals of the statements that had some in the projections of the last run.
    void ActGerarTotaisExecute();
    int Cenarios() const; // 1 normal, 2 optimistic, 4 pessimistic, added up
    bool Mensais() const { return RgConfrontarProjecoes.ItemIndex() == 0; }

    TDM04618& FDm04618;
    TResultadoRealizado FResultado;
    TTabelasRealizado FTabelas;

    host::TLabel LblPesquisaRealizado{"LblPesquisaRealizado"};
    host::TZTLookupEx LkpPesquisaRealizado;
    host::TLabel LblDataInicial{"LblDataInicial"};
    host::TZTDateEdit DeDataInicial{"DeDataInicial"};
    host::TLabel LblDataFinal{"LblDataFinal"};
    host::TZTDateEdit DeDataFinal{"DeDataFinal"};
    host::TLabel LblFilial{"LblFilial"};
    host::TframeZTLookupFilial LkpFilial{"LkpFilial", "TODOS OS ESTABELECIMENTOS", false};
    host::TLabel LblCenario{"LblCenario"};
    host::TZTCheckBox ChkCenarioNormal{"ChkCenarioNormal"};
    host::TZTCheckBox ChkCenarioOtimista{"ChkCenarioOtimista"};
    host::TZTCheckBox ChkCenarioPessimista{"ChkCenarioPessimista"};
    host::TLabel LblConfrontarProjecoes{"LblConfrontarProjecoes"};
    host::TZTComboBox RgConfrontarProjecoes{"RgConfrontarProjecoes"};
    host::TZTCheckBox ChkDetalharRealizadoPorFilial{"ChkDetalharRealizadoPorFilial"};
    host::TZTCheckBox ChkDetRealizCCusto{"ChkDetRealizCCusto"};
    host::TAction ActImprimir;
    host::TAction ActGerarTotais; // for who drives the dialog without a screen
};

} // namespace pct04618
