#include "suite/program/ActualsCommand.h"

#include "base/Falhas.h"
#include "base/Texto.h"
#include "host/Grade.h"
#include "host/Lookup.h"
#include "suite/export/Formats.h"
#include "suite/program/Outputs.h"
#include "suite/program/Session.h"
#include "suite/script/FormDriver.h"
#include "suite/terminal/TableText.h"

#include <iostream>
#include <unistd.h>

namespace suite::program {

namespace {

// The grids of the dialog that hold something of this run.
std::vector<const host::TGrade*> resultGrids(const host::TForm& dialog) {
    std::vector<const host::TGrade*> grids;
    for (const auto* control : dialog.Controles())
        if (const auto* grid = dynamic_cast<const host::TGrade*>(control);
            grid && grid->DataSet()->Active() && !grid->DataSet()->IsEmpty())
            grids.push_back(grid);
    return grids;
}

void writeTables(const std::vector<const host::TGrade*>& grids) {
    const bool terminal = ::isatty(STDOUT_FILENO) != 0;
    for (const auto* grid : grids) {
        std::cout << (grid == grids.front() ? "" : "\n") << grid->Caption() << "\n\n";
        terminal::writeTable(std::cout, table::Table(*grid), tableWidth(terminal), terminal);
    }
}

void writeJson(const std::vector<const host::TGrade*>& grids) {
    std::cout << "[";
    for (const auto* grid : grids) {
        std::cout << (grid == grids.front() ? "\n{" : ",\n{");
        exporting::writeJsonMembers(std::cout, *grid->DataSet());
        std::cout << "}";
    }
    std::cout << "\n]\n";
}

// On a terminal the user is asked; elsewhere --sim has to say it.
void confirmRemoval(const ActualsOptions& options) {
    const auto question = "Excluir o realizado das projeções de " + options.from + " a " + options.to + "?";
    if (options.confirmed)
        return;
    if (::isatty(STDIN_FILENO) == 0)
        throw base::TFalha("Esta pergunta ficou sem resposta: " + question + " Use --sim para excluir sem perguntar.");
    std::cerr << base::SemControles(question) << " [s/N] ";
    std::string answer;
    std::getline(std::cin, answer);
    if (answer != "s" && answer != "S")
        throw base::TFalha("Nada foi excluído.");
}

class Filler {
  public:
    Filler(host::TForm& dialog, const ActualsOptions& options) : dialog_(dialog), driver_(dialog), options_(options) {}

    // False when the rules have something to say against it.
    bool fill() {
        driver_.define("DeDataInicial", options_.from);
        driver_.define("DeDataFinal", options_.to);
        driver_.define("RgConfrontarProjecoes", options_.confront == "mensais" ? "0" : "1");
        const auto wanted = "," + options_.scenarios + ",";
        for (const auto& [number, box] :
             {std::pair{",0,", "ChkCenarioNormal"}, {",1,", "ChkCenarioOtimista"}, {",2,", "ChkCenarioPessimista"}})
            driver_.define(box, wanted.find(number) == std::string::npos ? "0" : "1");
        return options_.establishment.empty() || chooseEstablishment();
    }

  private:
    // Whether the field is open depends on the projections, for which all the rest is looked at.
    bool chooseEstablishment() {
        if (!dialog_.Realizar([&] { dialog_.ValidarCampos(nullptr); }))
            return false;
        auto& lookup = dynamic_cast<host::TZTLookupEx&>(dialog_.Controle("LkpFilial"));
        if (!lookup.Enabled())
            throw base::TFalha("A opção --estabelecimento não se aplica: as projeções deste período não são detalhadas "
                               "por estabelecimento. Retire a opção.");
        driver_.define("LkpFilial", options_.establishment);
        if (lookup.GetID() <= 0)
            return false; // it has been said why
        driver_.leave("LkpFilial");
        return true;
    }

    host::TForm& dialog_;
    script::FormDriver driver_;
    const ActualsOptions& options_;
};

} // namespace

ExitCode runActuals(const ActualsOptions& options, terminal::Headless& interaction) {
    if (options.remove)
        confirmRemoval(options);
    const auto window = Session::makeWindow();
    window->InitializeForm();
    const host::TForm* dialog = nullptr;
    bool refused = true;
    interaction.onQuestion = [&](const host::TMensagem& question) -> terminal::Headless::Answer {
        const bool statements = question.Botoes.size() > 2; // those that others need: all of them are made anew
        refused = refused && statements;
        return {host::TResposta::Segunda, {}};
    };
    interaction.onModal = [&](host::TFormZTTandorPadraoResult& form) {
        dialog = &form;
        if (!Filler(form, options).fill())
            return;
        script::FormDriver(form).click(options.remove ? "ActExcluir" : "ActExecutar");
        if (options.remove)
            refused = resultGrids(form).empty();
        if (!refused && options.totals) {
            const auto shown = interaction.messageCount();
            script::FormDriver(form).click("ActGerarTotais");
            refused = interaction.messageCount() != shown;
        }
    };
    window->Executar(window->Acao("ActAtualizarRealizado"));
    const auto grids = resultGrids(*dialog);
    if (options.format == "json" && !grids.empty())
        writeJson(grids);
    else
        writeTables(grids);
    if (!refused)
        return ExitCode::Done;
    return interaction.failure() ? exitCodeOf(*interaction.failure()) : ExitCode::Refused;
}

} // namespace suite::program
