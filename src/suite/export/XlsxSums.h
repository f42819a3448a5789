#pragma once

#include "suite/export/XlsxGrid.h"

namespace suite::exporting {

// Rows that sum up: one above each group, and the total at the end. Their formulas count the rows that a hidden column
// behind the others marks, and so exactly the lines that count: not the titles, not the sums of inner groups.
class XlsxSums {
  public:
    // The rows of groups and lines begin at that one.
    XlsxSums(const XlsxGrid& grid, lxw_row_t first);

    bool any() const { return !exact_.empty(); }               // columns that are summed, over a line or more
    std::size_t marks() const { return grid_.columns.size(); } // place of the hidden column
    void mark(std::size_t line, lxw_row_t row) const;
    void writeGroup(std::uint32_t group, lxw_row_t row) const;
    // After a row that keeps it out of what a filter takes for its own.
    void writeTotal() const;
    lxw_row_t last() const { return rowOfLine(grid_.table.lines().size() - 1); } // of the lines; there is one

  private:
    void writeRow(std::size_t set, lxw_row_t row, lxw_row_t first, lxw_row_t last, const std::string& caption,
                  const host::TAparencia& look) const;
    std::string formula(std::size_t column, lxw_row_t first, lxw_row_t last) const;
    lxw_row_t rowOfLine(std::size_t line) const;

    const XlsxGrid& grid_;
    lxw_row_t first_;
    std::vector<bool> exact_; // by column: the sheet has all its amounts as numbers
};

} // namespace suite::exporting
