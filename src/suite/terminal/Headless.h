#pragma once

#include "host/Formularios.h"
#include "host/Interacao.h"
#include "suite/terminal/TerminalProgress.h"

#include <functional>
#include <ostream>
#include <string>

namespace suite::terminal {

// The host without a screen: messages go to a stream, dialogs are driven by a function, progress is drawn on a
// terminal. A message that tells of a database failure is followed by its diagnosis. A question that nobody answers is
// a base::TFalha.
class Headless final : public host::TInteracao {
  public:
    Headless(std::ostream& messages, bool terminal) : messages_(messages), progress_(messages, terminal) {}

    // Runs once for each dialog that opens; a dialog still open behind it is closed by its "Sair".
    std::function<void(host::TFormZTTandorPadraoResult&)> onModal;
    // An answer by its host::TResposta, 0 for none, and then how to give one. A question that is answered is not shown.
    struct Answer {
        int code = 0;
        std::string advice;
    };
    std::function<Answer(const host::TMensagem&)> onQuestion;
    // Shows a report; without it a report is a fault of the program.
    std::function<void(const host::TImpressao&)> onReport;
    // Whether the user wants the work under way to stop.
    std::function<bool()> onCancelQuery;
    // Of the database, told by the message that was shown last of such; none where it failed in nothing.
    const std::optional<base::TFalhaBanco>& failure() const { return failure_; }
    // Number of messages shown so far.
    int messageCount() const { return count_; }

    int Mensagem(const host::TMensagem& message) override;
    void Progresso(const host::TEventoProgresso& event) override { progress_.show(event); }
    bool ProgressoCancelado() override { return onCancelQuery && onCancelQuery(); }
    void MostrarModal(host::TFormZTTandorPadraoResult& form) override;
    void MostrarRelatorio(const host::TImpressao& print) override;
    bool Falha(const base::TFalha&) override { return false; }
    void Focar(host::TControle&) override {}
    void Pesquisar(host::TZTLookupEx&) override {}
    void ProcessarMensagens() override {}

  private:
    std::ostream& messages_;
    TerminalProgress progress_;
    int count_ = 0;
    std::string last_;
    std::optional<base::TFalhaBanco> failure_;
};

} // namespace suite::terminal
