#include "suite/script/ScriptRunner.h"

#include "host/Lookup.h"

#include <algorithm>
#include <utility>

namespace suite::script {

namespace {

host::TServicos servicesWith(host::TInteracao& interaction) {
    auto services = host::Servicos();
    services.Interacao = &interaction;
    return services;
}

} // namespace

ScriptRunner::ScriptRunner(std::istream& script, std::ostream& out, host::TFabricaDeForm window,
                           exporting::Output output, std::function<bool()> cancelled)
    : out_(out), reader_(script), interaction_(out_, std::move(cancelled)), installed_(servicesWith(interaction_)),
      factory_(std::move(window)), output_(std::move(output)) {
    interaction_.onModal = [this](host::TFormZTTandorPadraoResult& form) { showModal(form); };
    interaction_.onSearch = [this](host::TZTLookupEx& lookup) { answerSearch(lookup); };
    interaction_.onReport = [this](const host::TImpressao& print) { take(print); };
}

const std::vector<ScriptRunner::Verb>& ScriptRunner::verbs() {
    using R = ScriptRunner;
    static const std::vector<Verb> Verbs{{"abrir", 0, 0, true, &R::open, "abrir"},
                                         {"selecionar", 0, 0, true, &R::select, "selecionar"},
                                         {"atualizar-realizado", 0, 0, true, &R::updateActuals, "atualizar-realizado"},
                                         {"definir", 1, 2, false, &R::define, "definir CONTROLE VALOR"},
                                         {"sair", 1, 1, false, &R::leave, "sair CONTROLE"},
                                         {"clicar", 1, 1, false, &R::click, "clicar NOME"},
                                         {"tecla", 2, 2, false, &R::press, "tecla CONTROLE TECLA"},
                                         {"responder", 1, 1, false, &R::answer, "responder N"},
                                         {"cancelar", 1, 1, false, &R::cancel, "cancelar N"},
                                         {"imprimir", 0, 1, true, &R::print, "imprimir [F]"},
                                         {"exportar", 1, 1, true, &R::exportView, "exportar F"},
                                         {"mostrar", 1, 1, false, &R::showSubject, "mostrar ASSUNTO"}};
    return Verbs;
}

std::string ScriptRunner::listOfVerbs() {
    std::string list;
    for (const auto& verb : verbs())
        list += (list.empty() ? "" : ", ") + std::string(verb.name);
    return list;
}

void ScriptRunner::run() {
    while (step()) {
    }
    if (!window_)
        open({});
    interaction_.throwIfAnswersLeft();
    out_.flush();
}

// A failure ends the script even where a rule on the way swallows it: no step runs behind it.
bool ScriptRunner::step() {
    if (failure_)
        std::rethrow_exception(failure_);
    try {
        out_.flush();
        const auto next = reader_.next();
        if (!next)
            return false;
        out_.setLine(next->line);
        interaction_.throwIfCancelled();
        execute(*next);
        interaction_.throwIfFailed();
    } catch (...) {
        if (!failure_)
            failure_ = std::current_exception();
    }
    if (failure_)
        std::rethrow_exception(failure_);
    return true;
}

void ScriptRunner::execute(const Step& step) {
    using Kind = ScriptFailure::Kind;
    const auto verb = std::find_if(verbs().begin(), verbs().end(), [&](const Verb& v) { return v.name == step.name; });
    try {
        if (verb == verbs().end())
            throw WrongUse("O passo \"" + step.name + "\" não existe. Existem: " + listOfVerbs() + ".");
        perform(*verb, step.rest);
    } catch (const WrongUse& wrong) {
        throw ScriptFailure(Kind::WrongStep, step.line, wrong.what());
    } catch (const base::TFalhaBanco&) {
        throw;
    } catch (const base::TFalha& failure) {
        throw ScriptFailure(Kind::Refused, out_.line(), failure.what()); // that of the step which closed a dialog
    }
}

void ScriptRunner::perform(const Verb& verb, const std::string& rest) {
    const auto words = splitWords(rest, verb.most);
    if (words.size() < verb.least || words.size() > verb.most)
        throw WrongUse("O passo se escreve \"" + std::string(verb.usage) + "\".");
    if (verb.ofWindow && forms_.size() > 1)
        throw WrongUse("\"" + std::string(verb.name) + "\" cabe à janela, e o diálogo \"" + front().Titulo() +
                       "\" está aberto.");
    if (!window_ && verb.run != &ScriptRunner::open)
        open({});
    (this->*verb.run)(words);
}

void ScriptRunner::showModal(host::TFormZTTandorPadraoResult& form) {
    const auto write = [&](const char* state, const std::string& result) {
        exporting::JsonObject members;
        out_.write("dialogo", members.add("nome", exporting::quoteJson(form.Nome()))
                                  .add("estado", exporting::quoteJson(state))
                                  .add("resultado", result));
    };
    const struct InFront {
        std::vector<host::TForm*>& forms;
        ~InFront() { forms.pop_back(); }
    } inFront{forms_};
    forms_.push_back(&form);
    write("aberto", "null");
    try {
        while (form.Aberto() && step()) {
        }
        if (form.Aberto())
            form.Executar(form.Acao("actSair"));
    } catch (...) {
        if (!form.Aberto())
            write("fechado", std::to_string(form.ModalResult()));
        throw;
    }
    write("fechado", std::to_string(form.ModalResult()));
}

void ScriptRunner::answerSearch(const host::TZTLookupEx& lookup) {
    const auto& next = reader_.peek();
    if (!next || next->name != "definir")
        return; // the user has left the search
    if (const auto words = splitWords(next->rest, 2); !words.empty() && words.front() == lookup.Nome())
        step();
}

} // namespace suite::script
