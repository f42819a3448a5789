#pragma once

#include "host/DataSet.h"

#include <ostream>
#include <span>
#include <string>

namespace suite::exporting {

// A column as it is shown: a field under a title. Rank says what a narrow table leaves out first, the highest before
// the others; 0 always stays.
struct ShownColumn {
    std::string field;
    std::string title;
    int rank = 0;
    bool stretches = false; // takes what room is left, and is cut where there is too little
    bool zeroIsBlank = false;
};

// {"dados":...,"colunas":[...],"linhas":[[...],...]}: every field, numbers exact with the scale of their column.
void writeJson(std::ostream& out, const host::TDataSet& rows);
// The members alone, without braces, all on one line.
void writeJsonMembers(std::ostream& out, const host::TDataSet& rows);
// For spreadsheets in Brazil: ";" between cells, decimal comma, no thousands points, titles in the first line.
void writeCsv(std::ostream& out, const host::TDataSet& rows, std::span<const ShownColumn> columns);

} // namespace suite::exporting
