#include "suite/export/XlsxGrid.h"

namespace suite::exporting {

namespace {

lxw_col_t place(std::size_t column) { return static_cast<lxw_col_t>(column); }

} // namespace

XlsxGrid::XlsxGrid(const table::Table& shown, XlsxBook& target, const char* name)
    : table(shown), columns(shown.columnsOfFiles()), book(target), sheet(target.addSheet(name)),
      text(target.numberFormat("")) {
    for (const auto& column : columns)
        numbers.emplace_back(book, column.digits);
}

void XlsxGrid::number(lxw_row_t row, std::size_t column, double value, lxw_format* format) const {
    book.check(worksheet_write_number(sheet, row, place(column), value, format));
}

void XlsxGrid::string(lxw_row_t row, std::size_t column, const std::string& value, lxw_format* format) const {
    book.check(worksheet_write_string(sheet, row, place(column), value.c_str(), format));
}

void XlsxGrid::blank(lxw_row_t row, std::size_t column, lxw_format* format) const {
    book.check(worksheet_write_blank(sheet, row, place(column), format));
}

void XlsxGrid::formula(lxw_row_t row, std::size_t column, const std::string& formula, double result,
                       lxw_format* format) const {
    book.check(worksheet_write_formula_num(sheet, row, place(column), formula.c_str(), format, result));
}

std::string columnName(std::size_t column) {
    char name[LXW_MAX_COL_NAME_LENGTH];
    lxw_col_to_name(name, place(column), LXW_FALSE);
    return name;
}

} // namespace suite::exporting
