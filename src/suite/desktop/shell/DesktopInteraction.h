#pragma once

#include "host/Interacao.h"
#include "suite/desktop/shell/Aside.h"
#include "suite/desktop/shell/ProgressWindow.h"
#include "suite/export/Exporter.h"

#include <QElapsedTimer>

#include <map>
#include <memory>

namespace suite::desktop {

class DialogWindow;
class FormBinding;

// The host on the desktop: messages, questions, progress and dialogs are windows.
class DesktopInteraction final : public host::TInteracao {
  public:
    // cancelStatement ends the call that runs aside.
    DesktopInteraction(Aside& aside, std::function<void()> cancelStatement);
    ~DesktopInteraction() override;

    // The window that dialogs stand before, and the binding of its form. Null when it goes; the dialogs go with it.
    void attach(QWidget* window, FormBinding* binding);
    // A failure in a dialog.
    std::function<void(const std::exception&)> onFailure;
    // What the documents of a preview say made them.
    std::string program;
    // The table of the grid in view with what it was asked for, null for none.
    std::function<const table::Table*()> tableInView;
    std::function<exporting::Heading(const table::Table&)> headingOf;
    // Whether the next dialog is confirmed as it stands, and shown only if a rule keeps it open.
    void confirmNextModal(bool confirm) { confirmNext_ = confirm; }

    int Mensagem(const host::TMensagem& message) override;
    void Progresso(const host::TEventoProgresso& event) override;
    bool ProgressoCancelado() override;
    void MostrarModal(host::TFormZTTandorPadraoResult& form) override;
    bool Falha(const base::TFalha& failure) override;
    void MostrarRelatorio(const host::TImpressao& print) override;
    void MostrarImpressaoGrade(const host::TImpressaoGrade& print) override;
    void Focar(host::TControle& control) override;
    void Pesquisar(host::TZTLookupEx& lookup) override;
    void ProcessarMensagens() override;

  private:
    DialogWindow& dialogOf(host::TFormZTTandorPadraoResult& form);
    void show(const struct PreviewContent& content);
    void waiting(std::chrono::milliseconds since);
    void waited();
    void turnNowAndThen();
    QWidget* front() const; // the window that the user is in

    Aside& aside_;
    std::unique_ptr<ProgressWindow> progress_;
    std::unique_ptr<ProgressWindow> busy_; // of a call that no progress tells of
    QWidget* window_ = nullptr;
    FormBinding* binding_ = nullptr;
    std::map<host::TFormZTTandorPadraoResult*, std::unique_ptr<DialogWindow>> dialogs_;
    QElapsedTimer lastTurn_;
    bool confirmNext_ = false;
    bool waitCursor_ = false;
};

} // namespace suite::desktop
