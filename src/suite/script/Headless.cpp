#include "suite/script/Headless.h"

#include "host/Falhas.h"
#include "host/Texto.h"

namespace suite::script {

int Headless::Mensagem(const host::TMensagem& message) {
    const bool question = message.Botoes.size() > 1;
    const auto answer = question && onQuestion ? onQuestion(message) : Answer{};
    if (answer.code != 0)
        return answer.code;
    auto text = host::LinhasSemControles(message.Texto);
    if (message.Causa) {
        text += "\n(" + host::LinhasSemControles(message.Causa->Diagnostico()) + ")";
        failure_ = message.Causa;
    }
    progress_.clear();
    // The rules may tell the same thing on leaving a field and at the commit; one line says it.
    if (text != last_)
        messages_ << text << std::endl;
    last_ = text;
    ++count_;
    if (question)
        throw host::TFalha("A pergunta acima ficou sem resposta." + answer.advice);
    return 6;
}

void Headless::MostrarModal(host::TFormZTTandorPadraoResult& form) {
    if (onModal)
        onModal(form);
    if (form.Aberto())
        form.Executar(form.Acao("actSair"));
}

} // namespace suite::script
