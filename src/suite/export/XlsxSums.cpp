#include "suite/export/XlsxSums.h"

#include <algorithm>
#include <ranges>

namespace suite::exporting {

using table::Lines;

XlsxSums::XlsxSums(const XlsxGrid& grid, lxw_row_t first) : grid_(grid), first_(first) {
    const auto& table = grid.table;
    if (table.lines().empty() || std::ranges::none_of(grid.columns, &table::Column::sums))
        return;
    exact_.assign(grid.columns.size(), true);
    for (std::size_t c = 0; c < grid.columns.size(); ++c)
        for (std::size_t line = 0; grid.columns[c].sums() && exact_[c] && line < table.lines().size(); ++line) {
            const auto& values = *grid.columns[c].values;
            const auto row = grid.rowOf(line);
            exact_[c] = values.Nulo(row) || table.rows().rule().kind(row) != Lines::Kind::Analytic ||
                        sheetNumber({values.Unidades(row), values.Descricao().Escala});
        }
}

void XlsxSums::mark(std::size_t line, lxw_row_t row) const {
    if (any() && grid_.table.rows().rule().kind(grid_.rowOf(line)) == Lines::Kind::Analytic)
        grid_.number(row, marks(), 1, nullptr);
}

// Each group whose first line is not behind the line has a row above it.
lxw_row_t XlsxSums::rowOfLine(std::size_t line) const {
    const auto& rows = grid_.table.rows();
    const auto groups = std::views::iota(std::uint32_t{0}, static_cast<std::uint32_t>(rows.groupCount()));
    const auto behind = std::ranges::partition_point(groups, [&](auto i) { return rows.group(i).first <= line; });
    return first_ + static_cast<lxw_row_t>(line) + static_cast<lxw_row_t>(behind - groups.begin());
}

void XlsxSums::writeGroup(std::uint32_t index, lxw_row_t row) const {
    const auto& group = grid_.table.rows().group(index);
    const auto color = group.level == 0 ? BandColor : CaptionColor;
    writeRow(index, row, row + 1, rowOfLine(group.first + group.count - 1), grid_.table.captionOf(group),
             {true, std::nullopt, color, false});
}

void XlsxSums::writeTotal() const {
    if (any())
        writeRow(grid_.table.rows().totalSet(), last() + 2, first_, last(), grid_.table.totalCaption(grid_.columns),
                 {true, std::nullopt, BandColor, false});
}

void XlsxSums::writeRow(std::size_t set, lxw_row_t row, lxw_row_t first, lxw_row_t last, const std::string& caption,
                        const host::TAparencia& look) const {
    auto* text = grid_.book.format(look, grid_.text);
    bool captioned = false;
    for (std::size_t c = 0; c < grid_.columns.size(); ++c) {
        const auto& column = grid_.columns[c];
        const auto sum = grid_.table.rows().sums().sum(set, column.field);
        if (!column.sums() && !captioned) {
            grid_.string(row, c, caption, text);
            captioned = true;
        } else if (!sum) {
            if (const auto sign = grid_.table.sumText(set, column); sign.empty())
                grid_.blank(row, c, text);
            else
                grid_.string(row, c, sign, grid_.book.format(look, grid_.numbers[c].format));
        } else {
            auto* format = grid_.book.format(look, grid_.numbers[c].of(*sum));
            const auto number = sheetNumber(*sum);
            if (!number)
                grid_.string(row, c, allDigits(*sum), format);
            else if (exact_[c])
                grid_.formula(row, c, formula(c, first, last), *number, format);
            else
                grid_.number(row, c, *number, format);
        }
    }
}

// Rounded as the amounts are: a spreadsheet adds them in binary.
std::string XlsxSums::formula(std::size_t column, lxw_row_t first, lxw_row_t last) const {
    const auto from = std::to_string(first + 1);
    const auto to = std::to_string(last + 1);
    const auto name = columnName(column);
    const auto mark = "$" + columnName(marks());
    return "=ROUND(SUMIF(" + mark + from + ":" + mark + to + ",1," + name + from + ":" + name + to + ")," +
           std::to_string(grid_.columns[column].values->Descricao().Escala) + ")";
}

} // namespace suite::exporting
