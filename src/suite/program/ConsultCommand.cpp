#include "suite/program/ConsultCommand.h"

#include "base/ArquivoInteiro.h"
#include "base/Falhas.h"
#include "base/Texto.h"
#include "host/Grade.h"
#include "suite/export/Formats.h"
#include "suite/program/Consultation.h"
#include "suite/program/Outputs.h"
#include "suite/terminal/TableText.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <unistd.h>

namespace suite::program {

namespace {

struct Result {
    const table::Table& table;
    exporting::Heading heading;
};

void writeTable(std::ostream& out, const Result& result, bool terminal) {
    out << base::SemControles(result.heading.title()) << '\n';
    for (std::size_t i = 1; i < result.heading.criteria.size(); ++i)
        out << base::SemControles(result.heading.criteria[i].Nome + ": " + result.heading.criteria[i].Valor) << '\n';
    out << '\n';
    terminal::writeTable(out, result.table, tableWidth(terminal), terminal);
}

void writeFile(const Result& result, const ConsultOptions& options, const exporting::Exporter& exporter) {
    if (options.format != "tabela")
        return exporter.write(result.table, options.output, "." + options.format, result.heading);
    base::GravarArquivoInteiro(options.output, [&](const std::filesystem::path& file) {
        std::ofstream out(file, std::ios::binary);
        out.exceptions(std::ios::failbit | std::ios::badbit);
        writeTable(out, result, false);
        out.close();
    });
}

void writeOutput(const Result& result, const ConsultOptions& options) {
    if (options.format == "json") {
        exporting::writeJson(std::cout, result.table, result.heading);
    } else if (options.format == "csv") {
        if (options.criteria)
            exporting::writeCsvHeading(std::cout, result.heading);
        exporting::writeCsv(std::cout, result.table);
    } else {
        writeTable(std::cout, result, ::isatty(STDOUT_FILENO) != 0);
    }
    std::cout.flush();
    if (!std::cout)
        throw base::TFalha("Não foi possível escrever o resultado na saída.");
}

} // namespace

ExitCode runConsult(const ConsultOptions& options, const exporting::Output& output, terminal::Headless& interaction) {
    const bool book = options.format == "xlsx" || options.format == "html";
    if (book && options.output.empty())
        throw base::TFalha("O formato " + options.format + " pede um arquivo: use também --saida.");
    if (options.criteria && options.format != "csv")
        throw base::TFalha("A opção --criterios é do formato csv; os outros dizem os critérios por si.");
    const auto window = consult(options, interaction);
    const auto* grid = resultGrid(*window);
    if (!grid)
        return interaction.failure() ? exitCodeOf(*interaction.failure()) : ExitCode::Refused; // it has been said why
    const table::Table table(*grid);
    Result result{table, exporting::headingOf(*window, table, output.origin())};
    result.heading.inCsv = options.criteria;
    if (options.output.empty())
        writeOutput(result, options);
    else
        writeFile(result, options, output.exporter);
    return ExitCode::Done;
}

} // namespace suite::program
