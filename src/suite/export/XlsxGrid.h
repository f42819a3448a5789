#pragma once

#include "suite/export/Exporter.h"
#include "suite/export/XlsxNumbers.h"

namespace suite::exporting {

constexpr lxw_color_t BandColor = 0xD6DCE4;
constexpr lxw_color_t CaptionColor = 0xE9EDF2;

// The sheet of a table's rows, as those see it that write its parts. A column of the table is the sheet's at the same
// place.
struct XlsxGrid {
    XlsxGrid(const table::Table& shown, XlsxBook& target, const char* name);

    const table::Table& table;
    const std::vector<table::Column>& columns;
    XlsxBook& book;
    lxw_worksheet* sheet;
    std::size_t text; // a number format: none
    std::vector<NumberLook> numbers;

    std::size_t rowOf(std::size_t line) const { return table.dataSet().LinhaDe(table.lines()[line]); }

    void number(lxw_row_t row, std::size_t column, double value, lxw_format* format) const;
    // Never a formula, whatever it begins with.
    void string(lxw_row_t row, std::size_t column, const std::string& value, lxw_format* format) const;
    void blank(lxw_row_t row, std::size_t column, lxw_format* format) const;
    // Its result is kept beside it, for whoever does not calculate.
    void formula(lxw_row_t row, std::size_t column, const std::string& formula, double result,
                 lxw_format* format) const;
};

std::string columnName(std::size_t column); // "AA"

} // namespace suite::exporting
