#pragma once

#include "suite/desktop/form/FormBinding.h"

#include <QDialog>

namespace suite::desktop {

// A modal dialog of the module on screen, laid out by the description of its form's name. Kept as long as its form: a
// second showing finds everything as it was left.
class DialogWindow : public QDialog {
    Q_OBJECT

  public:
    DialogWindow(host::TFormZTTandorPadraoResult& form, QWidget* parent);

    FormBinding& binding() { return binding_; }
    // Shows the dialog until the form is closed. Closing the window is the form's "Sair".
    void run();
    void reject() override;

  protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void darkenDisabled();
    void dressButtons(const std::vector<std::string>& names);

    FormBinding binding_;
    host::TFormZTTandorPadraoResult& form_;
};

} // namespace suite::desktop
