#pragma once

#include "suite/export/Exporter.h"
#include "suite/export/XlsxBook.h"

namespace suite::exporting {

// A sheet that says what was asked for, and what made the book of what and when.
void writeCriteria(XlsxBook& book, const Heading& heading);

} // namespace suite::exporting
