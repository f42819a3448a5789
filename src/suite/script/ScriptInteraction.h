#pragma once

#include "host/Interacao.h"
#include "suite/script/JsonLines.h"
#include "suite/script/ScriptReader.h"

#include <deque>
#include <exception>
#include <functional>
#include <optional>

namespace suite::script {

// The host as a script meets it: all that it shows is written down, questions are answered from a queue, dialogs and
// searches are handed to whoever runs the steps.
class ScriptInteraction final : public host::TInteracao {
  public:
    ScriptInteraction(JsonLines& out, std::function<bool()> cancelled) : out_(out), cancelled_(std::move(cancelled)) {}

    std::function<void(host::TFormZTTandorPadraoResult&)> onModal;
    std::function<void(host::TZTLookupEx&)> onSearch;
    std::function<void(const host::TImpressao&)> onReport;

    // What the user will do, said at the current line.
    void answer(int code) { answers_.push_back({out_.line(), code}); }
    void cancelAtStep(int step) { nextCancel_ = step; }
    // A question that could not be answered, also where a rule has swallowed the failure.
    void throwIfFailed() const;
    void throwIfAnswersLeft() const;
    void throwIfCancelled() const;
    // The first failure that was only told of: in a message, or in a dialog.
    const std::exception_ptr& toldFailure() const { return toldFailure_; }

    int Mensagem(const host::TMensagem& message) override;
    void Progresso(const host::TEventoProgresso& event) override;
    bool ProgressoCancelado() override { return stopped() || (cancelAt_ > 0 && steps_ >= cancelAt_); }
    void MostrarModal(host::TFormZTTandorPadraoResult& form) override { onModal(form); }
    bool Falha(const base::TFalha& failure) override;
    void MostrarRelatorio(const host::TImpressao& print) override { onReport(print); }
    void MostrarImpressaoGrade(const host::TImpressaoGrade&) override {} // a preview that the user closes at once
    void Focar(host::TControle& control) override;
    void Pesquisar(host::TZTLookupEx& lookup) override { onSearch(lookup); }
    void ProcessarMensagens() override {}

  private:
    struct Answer {
        int line;
        int code;
    };
    bool stopped() const { return cancelled_ && cancelled_(); }
    [[noreturn]] void fail(ScriptFailure failure);
    int takeAnswer(const host::TMensagem& question);

    JsonLines& out_;
    std::function<bool()> cancelled_;
    std::deque<Answer> answers_;
    std::optional<ScriptFailure> failure_;
    std::exception_ptr toldFailure_;
    int nextCancel_ = 0; // for the progress dialog still to come; 0: none
    int cancelAt_ = 0;   // in the progress dialog shown last
    int steps_ = 0;
};

} // namespace suite::script
