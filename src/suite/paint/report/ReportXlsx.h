#pragma once

#include "suite/paint/Painting.h"

namespace suite::paint {

// A report as a spreadsheet: a row for each line of a band, numbers and dates as such, in the columns of the ruler that
// has most of them. Throws TFalha or std::system_error, and leaves the file as far as it is.
void writeXlsx(const base::TRelatorio& report, const std::filesystem::path& file, const Document& document);

} // namespace suite::paint
