#pragma once

#include "suite/paint/Painting.h"

namespace suite::paint {

enum class ReportFormat { Pdf, Text, Html, Xlsx };

// What a report's document says of itself.
Document documentOf(const base::TRelatorio& report, const std::string& program, base::TDataHora made);

// A report as a file, whole or not at all. progress is told the pages of a PDF made so far and may throw to stop.
// Throws TFalha.
void writeReport(const base::TRelatorio& report, const std::filesystem::path& file, ReportFormat format,
                 const Document& document, const std::function<void(int page)>& progress = {});

} // namespace suite::paint
