#pragma once

#include "suite/export/XlsxGrid.h"

namespace suite::exporting {

// How deep a row stands in the sheet's outline: below its groups, and below the accounts that hold its own and stand
// above it. Lines that are sorted otherwise stand below their groups alone.
class XlsxOutline {
  public:
    explicit XlsxOutline(const XlsxGrid& grid);
    // In the sheet's order, and before anything else of the row.
    void setGroup(const table::Rows::Group& group, lxw_row_t row);
    void setLine(std::size_t line, lxw_row_t row);

  private:
    void set(std::size_t level, lxw_row_t row) const;

    const XlsxGrid& grid_;
    std::vector<std::size_t> above_; // the dataset's rows that hold the last line, and itself
};

} // namespace suite::exporting
