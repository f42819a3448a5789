#pragma once

#include "suite/export/XlsxGrid.h"

namespace suite::exporting {

// What stands above the rows, from the first row of the sheet on.
struct XlsxHead {
    lxw_row_t top;     // of the header: bands, or the captions
    lxw_row_t caption; // of each column; the rows follow
};
XlsxHead writeHead(const XlsxGrid& grid, const Heading& heading);

} // namespace suite::exporting
