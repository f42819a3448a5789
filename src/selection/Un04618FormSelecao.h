#pragma once

#include "core/Un04618Dm.h"
#include "host/Formularios.h"

namespace pct04618 {

// The dialog in which the user says what is to be consulted: its controls, what leaving them requires, and the commit
// that writes the selection into the query module and runs the query of the mode.
class TForm04618Selecao final : public host::TFormZTTandorPadraoResult {
  public:
    // The query module must outlive the dialog's use of it.
    explicit TForm04618Selecao(TDM04618& ADm04618);

    // True from the moment the dialog is shown until an OK has passed validation.
    bool Cancelou() const { return FCancelou; }

    void FormShow() override;
    void ValidarCampos(host::TControle* ASender) override;
    // Validates, closes the earlier results, writes the selection, runs the query and closes the dialog.
    void ActOKExecute(host::TControle* ASender) override;

  private:
    void ValidarDataSeHePrimeiroEUltimoDiaMes(host::TZTDateEdit& AData, const host::TZTDateEdit* ADataInicial);
    void CbDetalharSelecaoExit();
    void HabilitarCamposReferentesASelecaoDeEstabelecimento();
    void AtribuirPropriedadesDm04618();
    void BuscarInformacoesOrcamentaria();
    std::int32_t ModoSelecionado() const;

    TDM04618& FDm04618;
    bool FCancelou = false;

    host::TZTDateEdit DeDataIni{"DeDataIni"};
    host::TZTDateEdit DeDataFim{"DeDataFim"};
    host::TZTComboBox CbSelecionar{"CbSelecionar"};
    host::TZTComboBox CbDetalharSelecao{"CbDetalharSelecao"};
    host::TZTCheckBox ChkAgruparValFiliais{"ChkAgruparValFiliais"};
    host::TZTComboBox CbCenario{"CbCenario"};
};

} // namespace pct04618
