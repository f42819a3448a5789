#pragma once

#include "suite/export/Exporter.h"

#include <ostream>

namespace suite::exporting {

// For other programs: every digit that is stored, with a decimal comma; ";" between cells, headings in the first line.
// A text that a spreadsheet would take for a formula has an apostrophe before it.
void writeCsv(std::ostream& out, const table::Table& table);
// The criteria as lines "Período;..." and an empty one before it.
void writeCsvHeading(std::ostream& out, const Heading& heading);
// {"dados":...,"colunas":[...],"linhas":[[...],...],"criterios":{...}}: every field of every row that the table shows,
// in its order.
void writeJson(std::ostream& out, const table::Table& table, const Heading& heading);
// The members alone, without braces, all on one line, and every row of a dataset.
void writeJsonMembers(std::ostream& out, const host::TDataSet& rows);

void writeHtml(const table::Table& table, const std::filesystem::path& file, const Heading& heading);
void writeXlsx(const table::Table& table, const std::filesystem::path& file, const Heading& heading);

// With an apostrophe before what a spreadsheet would take for a formula.
std::string harmless(std::string_view text);

} // namespace suite::exporting
