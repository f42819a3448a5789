#include "suite/terminal/Headless.h"

#include "base/Falhas.h"
#include "base/Texto.h"

namespace suite::terminal {

int Headless::Mensagem(const host::TMensagem& message) {
    const bool question = message.Botoes.size() > 1;
    const auto answer = question && onQuestion ? onQuestion(message) : Answer{};
    if (answer.code != 0)
        return answer.code;
    auto text = base::LinhasSemControles(message.Texto);
    if (message.Causa) {
        text += "\n(" + base::LinhasSemControles(message.Causa->Diagnostico()) + ")";
        failure_ = message.Causa;
    }
    progress_.clear();
    // The rules may tell the same thing on leaving a field and at the commit; one line says it.
    if (text != last_)
        messages_ << text << std::endl;
    last_ = text;
    ++count_;
    if (question)
        throw base::TFalha("A pergunta acima ficou sem resposta." + answer.advice);
    return host::TResposta::Primeira;
}

void Headless::MostrarRelatorio(const host::TImpressao& print) {
    if (!onReport)
        return TInteracao::MostrarRelatorio(print);
    onReport(print);
}

void Headless::MostrarModal(host::TFormZTTandorPadraoResult& form) {
    if (onModal)
        onModal(form);
    if (form.Aberto())
        form.Executar(form.Acao("actSair"));
}

} // namespace suite::terminal
