#include "suite/program/PrintCommand.h"

#include "base/ArquivoInteiro.h"
#include "base/Falhas.h"
#include "suite/paint/PageText.h"
#include "suite/paint/ReportFile.h"
#include "suite/program/Consultation.h"

#include <fstream>
#include <iostream>

namespace suite::program {

namespace {

void writeTextFile(const base::TRelatorio& report, const std::string& output) {
    base::GravarArquivoInteiro(output, [&](const std::filesystem::path& file) {
        std::ofstream out(file, std::ios::binary);
        out.exceptions(std::ios::failbit | std::ios::badbit);
        paint::writeText(out, report);
        out.close();
    });
}

} // namespace

ExitCode runPrint(const ConsultOptions& options, const std::function<exporting::Origin()>& origin,
                  const std::function<bool()>& cancelled, terminal::Headless& interaction) {
    if (options.output.empty() && options.format != "texto")
        throw base::TFalha("O formato " + options.format + " pede um arquivo: use também --saida.");
    bool printed = false;
    interaction.onReport = [&](const host::TImpressao& print) {
        if (options.format == "pdf") {
            const auto made = origin();
            paint::writeReportPdf(print.Relatorio, options.output,
                                  paint::documentOf(print.Relatorio, made.program, made.made), [&](int) {
                                      if (cancelled())
                                          throw base::TFalha("A impressão foi cancelada; nenhum arquivo foi gravado.");
                                  });
        } else if (options.output.empty()) {
            paint::writeText(std::cout, print.Relatorio);
        } else {
            writeTextFile(print.Relatorio, options.output);
        }
        printed = true;
    };
    const auto window = consult(options, interaction);
    if (!printed && resultGrid(*window))
        window->Executar(window->Acao("ActImprimirRelatorio"));
    if (printed)
        return ExitCode::Done;
    return interaction.failure() ? exitCodeOf(*interaction.failure()) : ExitCode::Refused; // it has been said why
}

} // namespace suite::program
