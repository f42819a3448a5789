#pragma once

#include "suite/table/Table.h"

#include <ostream>

namespace suite::terminal {

// For people: aligned below their bands, at most width characters a line; title lines in bold where the terminal has
// it, and a last line with the sums. Columns that say nothing are left out, and where room is narrow those that give
// way; the last line names these.
void writeTable(std::ostream& out, const table::Table& table, std::size_t width, bool bold);

} // namespace suite::terminal
