#include "suite/script/ScriptInteraction.h"

#include "host/Controles.h"
#include "host/Dialogos.h"

#include <algorithm>
#include <utility>

namespace suite::script {

namespace {

using Kind = ScriptFailure::Kind;

bool isQuestion(const host::TMensagem& message) {
    return message.Nivel == host::TNivelMensagem::Confirmacao || message.Botoes.size() > 1;
}

const char* levelName(host::TNivelMensagem level) {
    switch (level) {
    case host::TNivelMensagem::Informacao:
        return "informacao";
    case host::TNivelMensagem::Erro:
        return "erro";
    case host::TNivelMensagem::Confirmacao:
        return "confirmacao";
    }
    return "";
}

const char* eventName(host::TEventoProgresso::TTipo kind) {
    using Event = host::TEventoProgresso::TTipo;
    switch (kind) {
    case Event::Mostrar:
        return "mostrar";
    case Event::Fechar:
        return "fechar";
    case Event::Titulo:
        return "titulo";
    case Event::Texto:
        return "texto";
    case Event::Maximo:
        return "maximo";
    case Event::Passo:
        return "passo";
    }
    return "";
}

exporting::JsonObject describe(const host::TMensagem& message, const std::string& answer) {
    exporting::JsonObject members;
    return members.add("nivel", exporting::quoteJson(levelName(message.Nivel)))
        .add("titulo", exporting::quoteJson(message.Titulo))
        .add("texto", exporting::quoteJson(message.Texto))
        .add("botoes", exporting::jsonTexts(message.Botoes))
        .add("resposta", answer);
}

} // namespace

void ScriptInteraction::fail(ScriptFailure failure) {
    failure_ = failure;
    throw failure;
}

void ScriptInteraction::throwIfFailed() const {
    if (failure_)
        throw ScriptFailure(*failure_);
}

void ScriptInteraction::throwIfAnswersLeft() const {
    if (!answers_.empty())
        throw ScriptFailure(Kind::Refused, answers_.front().line,
                            "A resposta " + std::to_string(answers_.front().code) +
                                " sobrou: nenhuma pergunta a pediu.");
}

void ScriptInteraction::throwIfCancelled() const {
    if (stopped())
        throw ScriptFailure(Kind::Refused, out_.line(), "O roteiro foi interrompido.");
}

int ScriptInteraction::takeAnswer(const host::TMensagem& question) {
    if (answers_.empty()) {
        out_.write("mensagem", describe(question, "null"));
        auto text = question.Texto;
        std::replace(text.begin(), text.end(), '\r', '\n');
        fail({Kind::Refused, out_.line(), "Esta pergunta ficou sem resposta: " + text});
    }
    const auto answer = answers_.front();
    answers_.pop_front();
    // The third button cancels; a question without it is cancelled all the same.
    if (answer.code == host::TResposta::Segunda && question.Botoes.size() < 2)
        fail({Kind::WrongStep, answer.line, "A pergunta não tem o botão da resposta 7: " + question.Texto});
    return answer.code;
}

int ScriptInteraction::Mensagem(const host::TMensagem& message) {
    throwIfFailed();
    const int answer = isQuestion(message) ? takeAnswer(message) : host::TResposta::Primeira;
    out_.write("mensagem", describe(message, std::to_string(answer)));
    if (message.Causa && !toldFailure_)
        toldFailure_ = std::make_exception_ptr(*message.Causa);
    return answer;
}

bool ScriptInteraction::Falha(const base::TFalha& failure) {
    std::optional<base::TFalhaBanco> cause;
    if (const auto* ofDatabase = dynamic_cast<const base::TFalhaBanco*>(&failure))
        cause = *ofDatabase;
    else if (!toldFailure_)
        toldFailure_ = std::make_exception_ptr(failure);
    host::GZTUtilsDialogs.Erro(failure.what(), cause);
    return true;
}

void ScriptInteraction::Progresso(const host::TEventoProgresso& event) {
    using Event = host::TEventoProgresso::TTipo;
    if (event.Tipo == Event::Mostrar) {
        steps_ = 0;
        cancelAt_ = std::exchange(nextCancel_, 0);
    }
    if (event.Tipo == Event::Passo)
        ++steps_;
    exporting::JsonObject members;
    members.add("evento", exporting::quoteJson(eventName(event.Tipo))).add("nivel", std::to_string(event.Nivel));
    if (event.Tipo == Event::Titulo || event.Tipo == Event::Texto)
        members.add("texto", exporting::quoteJson(event.Texto));
    if (event.Tipo == Event::Maximo || event.Tipo == Event::Passo)
        members.add("valor", std::to_string(event.Valor));
    out_.write("progresso", members);
}

void ScriptInteraction::Focar(host::TControle& control) {
    exporting::JsonObject members;
    out_.write("foco", members.add("controle", exporting::quoteJson(control.Nome())));
}

} // namespace suite::script
