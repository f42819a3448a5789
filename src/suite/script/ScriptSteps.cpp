#include "suite/script/ScriptRunner.h"
#include "suite/script/Show.h"

#include "base/Texto.h"
#include "suite/paint/report/ReportFile.h"

#include <algorithm>
#include <map>
#include <utility>

namespace suite::script {

namespace {

int positive(const std::string& word) {
    const auto number = base::NumeroOuZero(word);
    if (number < 1)
        throw WrongUse("\"" + word + "\" não é um número a partir de 1.");
    return number;
}

} // namespace

void ScriptRunner::open(const Words&) {
    if (window_)
        throw WrongUse("A janela já está aberta; \"abrir\" é o primeiro passo.");
    window_ = factory_();
    forms_.push_back(window_.get());
    window_->InitializeForm();
}

void ScriptRunner::select(const Words&) { FormDriver(*window_).click("ActSelecionar"); }

void ScriptRunner::updateActuals(const Words&) { FormDriver(*window_).click("ActAtualizarRealizado"); }

void ScriptRunner::define(const Words& words) {
    FormDriver(front()).define(words.front(), words.size() > 1 ? words.back() : std::string());
}

void ScriptRunner::leave(const Words& words) { FormDriver(front()).leave(words.front()); }

void ScriptRunner::click(const Words& words) { FormDriver(front()).click(words.front()); }

void ScriptRunner::press(const Words& words) {
    static const std::map<std::string, host::TTecla> Keys{{"Enter", host::TTecla::Enter},
                                                          {"Baixo", host::TTecla::Baixo},
                                                          {"F11", host::TTecla::F11},
                                                          {"Esc", host::TTecla::Esc}};
    const auto key = Keys.find(words.back());
    if (key == Keys.end())
        throw WrongUse("A tecla \"" + words.back() + "\" não existe. Existem: Enter, Baixo, F11, Esc.");
    FormDriver(front()).press(words.front(), key->second);
}

void ScriptRunner::answer(const Words& words) {
    constexpr auto& Codes = host::TResposta::Todas;
    const auto code = base::NumeroOuZero(words.front());
    if (std::find(Codes.begin(), Codes.end(), code) == Codes.end())
        throw WrongUse("Uma resposta é 6, 7 ou 2, e não \"" + words.front() + "\".");
    interaction_.answer(code);
}

void ScriptRunner::cancel(const Words& words) { interaction_.cancelAtStep(positive(words.front())); }

void ScriptRunner::print(const Words& words) {
    printTo_ = words.empty() ? std::string() : words.front();
    FormDriver(*window_).click("ActImprimirRelatorio");
}

void ScriptRunner::take(const host::TImpressao& print) {
    printed_.keep(print);
    const auto file = std::exchange(printTo_, {});
    if (file.empty())
        return;
    const auto origin = output_.origin();
    paint::writeReport(print.Relatorio, file, paint::ReportFormat::Pdf,
                       paint::documentOf(print.Relatorio, origin.program, origin.made),
                       [this](int) { interaction_.throwIfCancelled(); });
}

void ScriptRunner::exportView(const Words& words) {
    const auto* grid = window_->GradeEmVista();
    if (!grid)
        throw WrongUse("Nenhuma grade está à vista para exportar.");
    const table::Table table(*grid);
    output_.exporter.write(table, words.front(), exporting::headingOf(*window_, table, output_.origin()));
}

void ScriptRunner::showSubject(const Words& words) { show(out_, {*window_, front(), printed_}, words.front()); }

} // namespace suite::script
