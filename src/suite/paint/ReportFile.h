#pragma once

#include "suite/paint/Painting.h"

namespace suite::paint {

// What a report's document says of itself.
Document documentOf(const base::TRelatorio& report, const std::string& program, base::TDataHora made);

// The pages of a report as a PDF, whole or not at all. progress is told the pages made so far and may throw to stop.
// Throws TFalha.
void writeReportPdf(const base::TRelatorio& report, const std::filesystem::path& file, const Document& document,
                    const std::function<void(int page)>& progress = {});

} // namespace suite::paint
