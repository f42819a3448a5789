#include "suite/export/XlsxCells.h"

#include <cmath>

namespace suite::exporting {

XlsxCells::XlsxCells(const XlsxGrid& grid)
    : grid_(grid), parts_(grid), real_(grid.book.numberFormat("General")), date_(grid.book.numberFormat("dd/mm/yyyy")),
      time_(grid.book.numberFormat("dd/mm/yyyy hh:mm:ss")), looks_(grid.columns.size()) {}

void XlsxCells::write(std::size_t line, lxw_row_t row) {
    for (std::size_t c = 0; c < looks_.size(); ++c)
        looks_[c] = grid_.table.look(line, grid_.columns[c]);
    for (std::size_t c = 0; c < looks_.size(); ++c)
        writeCell(line, c, row);
}

void XlsxCells::writeCell(std::size_t line, std::size_t index, lxw_row_t row) const {
    const auto& column = grid_.columns[index];
    const auto& look = looks_[index];
    const auto value = grid_.table.value(line, column);
    if (look.Vazio || base::EhNulo(value)) {
        grid_.blank(row, index, grid_.book.format(look, grid_.text));
        return;
    }
    if (const auto* decimal = std::get_if<base::TDecimal>(&value)) {
        writeNumber(line, index, *decimal, row);
        return;
    }
    std::optional<double> number;
    auto format = grid_.text;
    if (const auto* date = std::get_if<base::TDataHora>(&value)) {
        number = sheetDate(*date);
        format = *date == date->SemHora() ? date_ : time_;
    } else if (const auto* real = std::get_if<double>(&value); real && std::isfinite(*real)) {
        number = *real;
        format = real_;
    }
    if (number)
        grid_.number(row, index, *number, grid_.book.format(look, format));
    else
        grid_.string(row, index, column.text(value), grid_.book.format(look, format));
}

void XlsxCells::writeNumber(std::size_t line, std::size_t index, const base::TDecimal& value, lxw_row_t row) const {
    auto* format = grid_.book.format(looks_[index], grid_.numbers[index].of(value));
    const auto number = sheetNumber(value);
    if (!number)
        grid_.string(row, index, allDigits(value), format);
    else if (const auto formula = parts_.formula(index, value, grid_.rowOf(line), row, looks_); !formula.empty())
        grid_.formula(row, index, formula, *number, format);
    else
        grid_.number(row, index, *number, format);
}

} // namespace suite::exporting
