#include "suite/paint/report/ReportFile.h"

#include "base/ArquivoInteiro.h"
#include "paper/BandPages.h"
#include "suite/paint/report/ReportHtml.h"
#include "suite/paint/report/ReportText.h"
#include "suite/paint/report/ReportXlsx.h"

#include <fstream>

namespace suite::paint {

namespace {

void writeStream(const std::filesystem::path& file, const base::TRelatorio& report,
                 void (*write)(std::ostream&, const base::TRelatorio&)) {
    std::ofstream out(file, std::ios::binary);
    out.exceptions(std::ios::failbit | std::ios::badbit);
    write(out, report);
    out.close();
}

} // namespace

Document documentOf(const base::TRelatorio& report, const std::string& program, base::TDataHora made) {
    return {report.Definicao().Titulo, report.Definicao().Criterios, program, made};
}

void writeReport(const base::TRelatorio& report, const std::filesystem::path& file, ReportFormat format,
                 const Document& document, const std::function<void(int page)>& progress) {
    base::GravarArquivoInteiro(file, [&](const std::filesystem::path& aside) {
        if (format == ReportFormat::Pdf) {
            paper::BandPages pages(report, paperMeasure());
            writePdf(pages, aside, document, progress);
        } else if (format == ReportFormat::Xlsx) {
            writeXlsx(report, aside, document);
        } else {
            writeStream(aside, report, format == ReportFormat::Html ? writeHtml : writeText);
        }
    });
}

} // namespace suite::paint
