#pragma once

#include "suite/export/Rows.h"

namespace suite::terminal {

using exporting::ShownColumn;

// For people: aligned, Brazilian number formats, at most width characters a line; rows of title accounts in bold where
// the terminal has it. A last line sums the analytic accounts.
void writeTable(std::ostream& out, const host::TDataSet& rows, std::span<const ShownColumn> columns, std::size_t width,
                bool bold);

} // namespace suite::terminal
