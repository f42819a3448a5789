#include "suite/export/XlsxOutline.h"

#include <algorithm>

namespace suite::exporting {

XlsxOutline::XlsxOutline(const XlsxGrid& grid) : grid_(grid) {
    worksheet_outline_settings(grid.sheet, LXW_TRUE, LXW_FALSE, LXW_TRUE, LXW_FALSE); // what sums up stands above
}

void XlsxOutline::setGroup(const table::Rows::Group& group, lxw_row_t row) {
    above_.clear();
    set(group.level, row);
}

void XlsxOutline::setLine(std::size_t line, lxw_row_t row) {
    const auto own = grid_.rowOf(line);
    while (!above_.empty() && !grid_.table.rows().rule().isBelow(above_.back(), own))
        above_.pop_back();
    set(grid_.table.groups().size() + above_.size(), row);
    above_.push_back(own);
}

void XlsxOutline::set(std::size_t level, lxw_row_t row) const {
    constexpr std::size_t Deepest = 7; // that the file can say
    if (level == 0)
        return;
    lxw_row_col_options options{LXW_FALSE, static_cast<std::uint8_t>(std::min(level, Deepest)), LXW_FALSE};
    grid_.book.check(worksheet_set_row_opt(grid_.sheet, row, LXW_DEF_ROW_HEIGHT, nullptr, &options));
}

} // namespace suite::exporting
