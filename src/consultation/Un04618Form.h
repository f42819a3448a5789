#pragma once

#include "core/Un04618Dm.h"
#include "host/Formularios.h"
#include "selection/Un04618FormSelecao.h"

#include <memory>

namespace pct04618 {

// The module's only window towards the host. It owns the query module and the dialogs.
class TForm04618 final : public host::TFormZTTandorPadraoSelecao {
  public:
    TForm04618();
    ~TForm04618() override;

    // The entry into the module: makes the query module for the logged company. Nothing has been asked of the user.
    void InitializeForm() override;
    TDM04618& GetDm04618() const; // after InitializeForm
    TForm04618Selecao& GetFormSelecao(); // built when first asked for

    void ActSelecionarExecute(host::TControle* ASender) override;

  private:
    void FormDestroy();

    host::TDataSource DsMostraCtbOrcada{"DsMostraCtbOrcada"};
    host::TDataSource DsMostraCtbOrcMensal{"DsMostraCtbOrcMensal"};
    std::unique_ptr<TForm04618Selecao> FFormSelecao;
};

} // namespace pct04618
