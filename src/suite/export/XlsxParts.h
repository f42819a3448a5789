#pragma once

#include "suite/export/XlsxGrid.h"

namespace suite::exporting {

// Formulas of the columns that are the sum of others of their line.
class XlsxParts {
  public:
    explicit XlsxParts(const XlsxGrid& grid);
    // "=O8-N8" for a value of the dataset's row in that row of the sheet; "" where what the sheet shows of its parts,
    // under the looks of the row's cells, does not give the value exactly.
    std::string formula(std::size_t column, const base::TDecimal& value, std::size_t row, lxw_row_t sheetRow,
                        const std::vector<host::TAparencia>& looks) const;

  private:
    struct Part {
        bool minus;
        const host::TColuna* values;
        std::optional<std::size_t> place; // in the sheet
        std::string name;                 // of the sheet's column
    };
    std::vector<std::vector<Part>> parts_; // by column
};

} // namespace suite::exporting
