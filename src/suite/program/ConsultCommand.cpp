#include "suite/program/ConsultCommand.h"

#include "base/ArquivoInteiro.h"
#include "base/Falhas.h"
#include "base/Texto.h"
#include "host/Grade.h"
#include "host/Lookup.h"
#include "host/Registro.h"
#include "suite/export/GridExport.h"
#include "suite/export/Rows.h"
#include "suite/program/FillSelection.h"
#include "suite/program/TableColumns.h"
#include "suite/terminal/TableRows.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sys/ioctl.h>
#include <unistd.h>

namespace suite::program {

namespace {

constexpr std::size_t DefaultWidth = 120;

// Of the terminal, or of a page where there is none.
std::size_t tableWidth(bool terminal) {
    winsize size{};
    if (terminal && ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0)
        return std::max<std::size_t>(size.ws_col, 80);
    return DefaultWidth;
}

std::string itemOf(const host::TForm& dialog, const char* combo) {
    const auto& control = dynamic_cast<const host::TZTComboBox&>(dialog.Controle(combo));
    return base::Trim(control.Itens()[static_cast<std::size_t>(control.ItemIndex())]);
}

std::vector<std::string> heading(const host::TForm& dialog, const ConsultOptions& options, const Login& login) {
    std::string what = "por conta";
    if (options.view == "demonstracao") {
        const auto& statement = dynamic_cast<const host::TZTLookupEx&>(dialog.Controle("LkpRelatorioDemonstConfig"));
        what = "- " + statement.Codigo() + " - " + statement.Texto();
    }
    return {"Orçado x realizado " + what + ": " + itemOf(dialog, "CbDetalharSelecao"),
            std::to_string(login.company().Codigo) + " - " + login.company().Nome,
            "Período de " + options.from + " a " + options.to + ", cenário " + itemOf(dialog, "CbCenario")};
}

void writeTable(std::ostream& out, const host::TGrade& grid, const std::vector<std::string>& title, bool terminal) {
    for (const auto& line : title)
        out << base::SemControles(line) << '\n';
    out << '\n';
    terminal::writeTable(out, *grid.DataSet(), tableColumns(grid), tableWidth(terminal), terminal);
}

void writeFile(const host::TGrade& grid, const ConsultOptions& options, const std::vector<std::string>& title) {
    if (options.format != "tabela")
        return exporting::exportGrid(grid, options.output, "." + options.format, title);
    base::GravarArquivoInteiro(options.output, [&](const std::filesystem::path& file) {
        std::ofstream out(file, std::ios::binary);
        out.exceptions(std::ios::failbit | std::ios::badbit);
        writeTable(out, grid, title, false);
        out.close();
    });
}

void writeOutput(const host::TGrade& grid, const ConsultOptions& options, const std::vector<std::string>& title) {
    if (options.format == "json")
        exporting::writeJson(std::cout, *grid.DataSet());
    else if (options.format == "csv")
        exporting::writeCsv(std::cout, *grid.DataSet(), exporting::flatColumns(grid));
    else
        writeTable(std::cout, grid, title, ::isatty(STDOUT_FILENO) != 0);
    std::cout.flush();
    if (!std::cout)
        throw base::TFalha("Não foi possível escrever o resultado na saída.");
}

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

// That of the dataset which the commit has opened; null when the rules have declined it.
const host::TGrade* resultGrid(const host::TForm& window) {
    for (const char* name : {"DbgCtbOrcada", "DbgMostraCtbOrcMensal"}) {
        const auto& grid = dynamic_cast<const host::TGrade&>(window.Controle(name));
        if (grid.DataSet()->Active())
            return &grid;
    }
    return nullptr;
}

} // namespace

ExitCode runConsult(const ConsultOptions& options, const Login& login, terminal::Headless& interaction) {
    const bool book = options.format == "xlsx" || options.format == "html";
    if (book && options.output.empty())
        throw base::TFalha("O formato " + options.format + " pede um arquivo: use também --saida.");
    const auto factory = host::FindClass("TForm04618");
    if (!factory)
        throw base::TFalha("O módulo carregado não tem a janela de consulta.");
    const auto window = factory();
    window->InitializeForm();
    std::vector<std::string> title;
    interaction.onModal = [&](host::TFormZTTandorPadraoResult& form) {
        fillSelection(form, options, interaction);
        title = heading(form, options, login);
    };
    interaction.onQuestion = [&](const host::TMensagem& question) { return answer(question, options); };
    window->Executar(window->Acao("ActSelecionar"));
    const auto* grid = resultGrid(*window);
    if (!grid)
        return interaction.failure() ? exitCodeOf(*interaction.failure()) : ExitCode::Refused; // it has been said why
    if (options.output.empty())
        writeOutput(*grid, options, title);
    else
        writeFile(*grid, options, title);
    return ExitCode::Done;
}

} // namespace suite::program
