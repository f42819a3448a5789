#include "suite/paint/ReportFile.h"

#include "base/ArquivoInteiro.h"
#include "paper/BandPages.h"

namespace suite::paint {

Document documentOf(const base::TRelatorio& report, const std::string& program, base::TDataHora made) {
    return {report.Definicao().Titulo, report.Definicao().Criterios, program, made};
}

void writeReportPdf(const base::TRelatorio& report, const std::filesystem::path& file, const Document& document,
                    const std::function<void(int page)>& progress) {
    base::GravarArquivoInteiro(file, [&](const std::filesystem::path& aside) {
        paper::BandPages pages(report, paperMeasure());
        writePdf(pages, aside, document, progress);
    });
}

} // namespace suite::paint
