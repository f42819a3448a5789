#pragma once

#include "suite/export/XlsxParts.h"

namespace suite::exporting {

// The cells of a table's lines.
class XlsxCells {
  public:
    explicit XlsxCells(const XlsxGrid& grid);
    void write(std::size_t line, lxw_row_t row);

  private:
    void writeCell(std::size_t line, std::size_t index, lxw_row_t row) const;
    void writeNumber(std::size_t line, std::size_t index, const base::TDecimal& value, lxw_row_t row) const;

    const XlsxGrid& grid_;
    XlsxParts parts_;
    std::size_t real_;
    std::size_t date_;
    std::size_t time_;
    std::vector<host::TAparencia> looks_; // of the line, by column
};

} // namespace suite::exporting
