#include "suite/program/Consultation.h"

#include "host/Grade.h"
#include "suite/program/FillSelection.h"
#include "suite/program/Session.h"

#include <algorithm>
#include <cctype>

namespace suite::program {

namespace {

// The questions of the commit and the options that answer them: a value is the caption of its button in small letters.
terminal::Headless::Answer answer(const host::TMensagem& question, const ConsultOptions& options) {
    const struct {
        const char* option;
        const std::string& value;
        std::vector<std::string> values;
    } answers[] = {{"--totais", options.totals, {"consultar", "reatualizar"}},
                   {"--dependencias", options.dependencies, {"selecionado", "todos"}}};
    for (const auto& [option, value, values] : answers) {
        std::vector<std::string> captions = question.Botoes;
        for (auto& caption : captions)
            caption.front() = static_cast<char>(std::tolower(static_cast<unsigned char>(caption.front())));
        if (!std::equal(values.begin(), values.end(), captions.begin()))
            continue;
        if (value.empty())
            return {0, std::string(" Use ") + option + " " + values[0] + " ou " + option + " " + values[1] + "."};
        return {value == values[0] ? host::TResposta::Primeira : host::TResposta::Segunda, {}};
    }
    return {};
}

} // namespace

std::unique_ptr<host::TFormZTTandorPadraoSelecao> consult(const ConsultOptions& options,
                                                          terminal::Headless& interaction) {
    auto window = Session::makeWindow();
    window->InitializeForm();
    interaction.onModal = [&](host::TFormZTTandorPadraoResult& form) { fillSelection(form, options, interaction); };
    interaction.onQuestion = [&](const host::TMensagem& question) { return answer(question, options); };
    window->Executar(window->Acao("ActSelecionar"));
    return window;
}

const host::TGrade* resultGrid(const host::TForm& window) {
    for (const auto* control : window.Controles())
        if (const auto* grid = dynamic_cast<const host::TGrade*>(control); grid && grid->DataSet()->Active())
            return grid;
    return nullptr;
}

} // namespace suite::program
