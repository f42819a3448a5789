#include "suite/program/PrintCommand.h"

#include "base/Falhas.h"
#include "suite/paint/report/ReportFile.h"
#include "suite/paint/report/ReportText.h"
#include "suite/program/Consultation.h"

#include <iostream>
#include <map>

namespace suite::program {

namespace {

const std::map<std::string, paint::ReportFormat> Formats{{"pdf", paint::ReportFormat::Pdf},
                                                         {"texto", paint::ReportFormat::Text},
                                                         {"html", paint::ReportFormat::Html},
                                                         {"xlsx", paint::ReportFormat::Xlsx}};

} // namespace

ExitCode runPrint(const ConsultOptions& options, const std::function<exporting::Origin()>& origin,
                  const std::function<bool()>& cancelled, terminal::Headless& interaction) {
    if (options.output.empty() && options.format != "texto")
        throw base::TFalha("O formato " + options.format + " pede um arquivo: use também --saida.");
    bool printed = false;
    interaction.onReport = [&](const host::TImpressao& print) {
        if (options.output.empty()) {
            paint::writeText(std::cout, print.Relatorio);
        } else {
            const auto made = origin();
            paint::writeReport(print.Relatorio, options.output, Formats.at(options.format),
                               paint::documentOf(print.Relatorio, made.program, made.made), [&](int) {
                                   if (cancelled())
                                       throw base::TFalha("A impressão foi cancelada; nenhum arquivo foi gravado.");
                               });
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
