#pragma once

#include "suite/export/XlsxSums.h"

namespace suite::exporting {

// What stands above the rows, from the first row of the sheet on.
struct XlsxHead {
    lxw_row_t top;     // of the header: bands, or the captions
    lxw_row_t caption; // of each column; the rows follow
};
XlsxHead writeHead(const XlsxGrid& grid, const Heading& heading);

// Widths, what stays in view and can be filtered, and how it is printed.
void layOut(const XlsxGrid& grid, const XlsxHead& head, const XlsxSums& sums, const std::string& title);

} // namespace suite::exporting
