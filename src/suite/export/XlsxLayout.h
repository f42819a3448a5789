#pragma once

#include "suite/export/XlsxHead.h"
#include "suite/export/XlsxSums.h"

namespace suite::exporting {

// Widths, what stays in view and can be filtered, and how it is printed.
void layOut(const XlsxGrid& grid, const XlsxHead& head, const XlsxSums& sums, const std::string& title);

} // namespace suite::exporting
