#include "suite/export/XlsxHead.h"

namespace suite::exporting {

namespace {

lxw_row_t writeTitle(const XlsxGrid& grid, const Heading& heading) {
    auto* large = grid.book.newFormat();
    format_set_bold(large);
    format_set_font_size(large, 14);
    lxw_row_t row = 0;
    grid.string(row, 0, heading.title(), large);
    for (const auto& line : heading.lines())
        grid.string(++row, 0, line, nullptr);
    return row + 2;
}

lxw_format* headerFormat(const XlsxGrid& grid, lxw_color_t color, std::uint8_t align) {
    auto* format = grid.book.newFormat();
    format_set_bold(format);
    format_set_pattern(format, LXW_PATTERN_SOLID);
    format_set_bg_color(format, color);
    format_set_border(format, LXW_BORDER_THIN);
    format_set_border_color(format, 0xBFBFBF);
    format_set_align(format, align);
    if (align != LXW_ALIGN_CENTER)
        format_set_indent(format, align == LXW_ALIGN_LEFT ? 1 : 2); // the filter's button stands on the right
    return format;
}

// Whether there are any.
bool writeBands(const XlsxGrid& grid, lxw_row_t row) {
    const auto bands = table::bandsOf(grid.columns);
    auto* format = bands.empty() ? nullptr : headerFormat(grid, BandColor, LXW_ALIGN_CENTER);
    for (const auto& band : bands)
        if (band.count == 1) // the library merges two cells or more
            grid.string(row, band.first, band.caption, format);
        else
            grid.book.check(worksheet_merge_range(grid.sheet, row, static_cast<lxw_col_t>(band.first), row,
                                                  static_cast<lxw_col_t>(band.first + band.count - 1),
                                                  band.caption.c_str(), format));
    return !bands.empty();
}

} // namespace

XlsxHead writeHead(const XlsxGrid& grid, const Heading& heading) {
    const auto top = writeTitle(grid, heading);
    const auto caption = writeBands(grid, top) ? top + 1 : top;
    auto* left = headerFormat(grid, CaptionColor, LXW_ALIGN_LEFT);
    auto* right = headerFormat(grid, CaptionColor, LXW_ALIGN_RIGHT);
    for (std::size_t c = 0; c < grid.columns.size(); ++c)
        grid.string(caption, c, grid.columns[c].shown->Titulo, grid.columns[c].right() ? right : left);
    return {top, caption};
}

} // namespace suite::exporting
