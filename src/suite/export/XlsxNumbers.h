#pragma once

#include "suite/export/XlsxBook.h"

#include <optional>

namespace suite::exporting {

// A spreadsheet keeps 15 significant digits. A number with more has none here: it is written as text, so that nothing
// is lost silently.
std::optional<double> sheetNumber(base::TDecimal value);
std::string allDigits(const base::TDecimal& value); // as text, whatever its format shows of them
// Nothing before March 1900, where spreadsheets count days that never were.
std::optional<double> sheetDate(base::TDataHora date);

// The number formats of a column in the workbook.
struct NumberLook {
    int places;
    std::size_t format;
    std::size_t nil; // of what is below zero and rounds to it: no sign

    NumberLook(XlsxBook& book, const base::TFormatoNumerico& digits);
    std::size_t of(const base::TDecimal& value) const;
};

} // namespace suite::exporting
