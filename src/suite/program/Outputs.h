#pragma once

#include "suite/export/Exporter.h"

namespace suite::program {

// All formats of this program.
const exporting::Exporter& exporter();

// Of an output made now, from a database as the user names it. The time is that of SOURCE_DATE_EPOCH where it is set,
// so that the same data gives the same bytes.
exporting::Origin originNow(const std::string& database);

// Characters of a line of standard output: of its terminal, or of a page where there is none.
std::size_t tableWidth(bool terminal);

} // namespace suite::program
