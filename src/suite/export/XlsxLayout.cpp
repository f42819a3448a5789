#include "suite/export/XlsxLayout.h"

#include "base/Texto.h"

#include <algorithm>

namespace suite::exporting {

namespace {

// Numbers: their least and greatest, since one that does not fit shows as a row of "#", and the total. Texts: a sample.
double width(const XlsxGrid& grid, const table::Column& column) {
    constexpr std::size_t Sample = 500;
    constexpr double Widest = 60;
    auto longest = base::Caracteres(column.shown->Titulo) + 3; // the filter's button
    const auto see = [&](const std::string& text) { longest = std::max(longest, base::Caracteres(text)); };
    const auto textOf = [&](std::size_t line) { return column.text(grid.table.value(line, column)); };
    const auto count = grid.table.lines().size();
    if (column.type() == host::TTipoColuna::Inteiro) {
        const auto before = [&](std::size_t a, std::size_t b) {
            return column.values->Comparar(grid.rowOf(a), grid.rowOf(b)) < 0;
        };
        std::size_t least = 0;
        std::size_t greatest = 0;
        for (std::size_t i = 0; i < count; ++i) {
            const bool none = column.values->Nulo(grid.rowOf(least));
            least = none || (!column.values->Nulo(grid.rowOf(i)) && before(i, least)) ? i : least;
            greatest = before(greatest, i) ? i : greatest;
        }
        for (const auto i : {least, greatest})
            if (count > 0)
                see(textOf(i));
        see(grid.table.sumText(grid.table.rows().totalSet(), column));
    } else {
        for (std::size_t i = 0; i < count; i += std::max<std::size_t>(count / Sample, 1))
            see(textOf(i));
    }
    return std::min(static_cast<double>(longest) * 1.1 + 2, Widest); // some are bold
}

// "&" begins a command of a header. The library takes any before a "G" or a "[" for a picture, even a doubled one: an
// underline that begins and ends parts them.
std::string pageHeader(const std::string& title) {
    constexpr std::size_t Longest = 200; // of the 255 signs, commands included
    std::string header = "&L";
    std::size_t signs = 2;
    for (const char c : title) {
        const bool follows = (static_cast<unsigned char>(c) & 0xC0U) == 0x80;
        if (!follows && ++signs > Longest)
            break;
        header += c;
        if (c == '&') {
            header += "&&U&U";
            signs += 5;
        }
    }
    return header;
}

void setUpPrint(const XlsxGrid& grid, const XlsxHead& head, const std::string& title) {
    worksheet_set_landscape(grid.sheet);
    worksheet_set_paper(grid.sheet, 9); // A4
    worksheet_set_margins(grid.sheet, 0.4, 0.4, 0.6, 0.6);
    worksheet_fit_to_pages(grid.sheet, 1, 0);
    grid.book.check(worksheet_repeat_rows(grid.sheet, head.top, head.caption));
    if (const auto names = table::frozenOf(grid.columns); names > 0)
        grid.book.check(worksheet_repeat_columns(grid.sheet, 0, static_cast<lxw_col_t>(names - 1)));
    grid.book.check(worksheet_set_header(grid.sheet, pageHeader(title).c_str()));
    grid.book.check(worksheet_set_footer(grid.sheet, "&RPágina &P de &N"));
}

} // namespace

void layOut(const XlsxGrid& grid, const XlsxHead& head, const XlsxSums& sums, const std::string& title) {
    worksheet_freeze_panes(grid.sheet, head.caption + 1, static_cast<lxw_col_t>(table::frozenOf(grid.columns)));
    for (std::size_t c = 0; c < grid.columns.size(); ++c)
        grid.book.check(worksheet_set_column(grid.sheet, static_cast<lxw_col_t>(c), static_cast<lxw_col_t>(c),
                                             width(grid, grid.columns[c]), nullptr));
    const auto last = grid.table.lines().empty() ? head.caption : sums.last();
    auto end = static_cast<lxw_col_t>(grid.columns.size() - 1);
    if (sums.any()) { // the marks go with their rows when the user sorts
        lxw_row_col_options hidden{LXW_TRUE, 0, LXW_FALSE};
        end = static_cast<lxw_col_t>(sums.marks());
        grid.book.check(worksheet_set_column_opt(grid.sheet, end, end, LXW_DEF_COL_WIDTH, nullptr, &hidden));
        grid.string(head.caption, sums.marks(), "Entra na soma", nullptr);
    }
    grid.book.check(worksheet_autofilter(grid.sheet, head.caption, 0, last, end));
    char range[LXW_MAX_CELL_RANGE_LENGTH];
    lxw_rowcol_to_range(range, head.caption, 0, last + 2, end);
    // Codes such as "0101" are meant to be texts, and need no warning in their corner; nor does a formula that others
    // beside it are not like.
    for (const auto warning : {LXW_IGNORE_NUMBER_STORED_AS_TEXT, LXW_IGNORE_FORMULA_DIFFERS, LXW_IGNORE_FORMULA_RANGE})
        grid.book.check(worksheet_ignore_errors(grid.sheet, static_cast<std::uint8_t>(warning), range));
    setUpPrint(grid, head, title);
}

} // namespace suite::exporting
