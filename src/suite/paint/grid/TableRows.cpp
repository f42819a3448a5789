#include "suite/paint/grid/TableRows.h"

#include <algorithm>

namespace suite::paint {

namespace {

constexpr double Indent = 1.2;
constexpr std::size_t MostLines = 20; // of a row, far below a page

using Kind = TableRows::Kind;
using Row = TableRows::Row;

std::size_t captionLines(const table::Table& table, const TableColumns& columns, const paper::Measure& measure,
                         const Row& row) {
    const auto caption = captionOf(table, row);
    const auto used = indentOf(table, row) + 2 * Padding;
    std::size_t lines = 1;
    for (const auto& part : columns.parts) {
        const auto summed = std::find_if(part.places.begin(), part.places.end(), [&](const auto& place) {
            return !table.sumText(setOf(table, row), *place.column).empty();
        });
        const bool sums = summed != part.places.end();
        if (used + measure(caption, true) > (sums ? summed->left : part.width))
            lines = std::max(lines, (sums ? 1 : 0) + paper::wrapped(measure, caption, part.width - used, true).size());
    }
    return lines;
}

std::size_t textLines(const table::Table& table, const TableColumns& columns, const paper::Measure& measure,
                      std::size_t line) {
    std::size_t lines = 1;
    for (const auto& part : columns.parts)
        for (const auto& place : part.places) {
            if (place.column->right())
                continue;
            const auto text = place.column->text(table.value(line, *place.column));
            if (measure(text, true) <= place.room())
                continue;
            const auto cell = table.cell(line, *place.column);
            lines = std::max(lines, paper::wrapped(measure, cell.text, place.room(), cell.look.Negrito).size());
        }
    return lines;
}

std::vector<Row> rowsOf(const table::Table& table, const TableColumns& columns, const paper::Measure& measure) {
    std::vector<Row> rows;
    const auto add = [&](std::uint32_t index, Kind kind) {
        Row row{index, kind, 1};
        const auto lines =
            kind == Kind::Line ? textLines(table, columns, measure, index) : captionLines(table, columns, measure, row);
        row.lines = static_cast<std::uint8_t>(std::min(lines, MostLines));
        rows.push_back(row);
    };
    for (const auto entry : table.rows().unfolded())
        add(entry & ~table::Rows::GroupBit, (entry & table::Rows::GroupBit) != 0 ? Kind::Group : Kind::Line);
    const auto& shown = table.columns();
    if (!rows.empty() && std::any_of(shown.begin(), shown.end(), [](const auto& column) { return column.sums(); }))
        add(0, Kind::Total);
    return rows;
}

// Whether a row and the one below it are on the same page.
bool keeps(const table::Table& table, const Row& row, const Row& below) {
    if (row.kind != Kind::Line || below.kind == Kind::Total)
        return true;
    const auto block = [&](const Row& r) { return table.rows().blockOf(table.lines()[r.index]); };
    return below.kind == Kind::Line && block(row) == block(below);
}

} // namespace

std::string captionOfContinued(const table::Table& table, std::uint32_t index) {
    const auto& group = table.rows().group(index);
    const auto own = table.captionOf(group);
    return group.parent == table::Rows::NoGroup ? "(continuação) " + own
                                                : captionOfContinued(table, group.parent) + " › " + own;
}

std::string captionOf(const table::Table& table, const Row& row) {
    return row.kind == Kind::Total ? table.totalCaption(table.columns())
                                   : table.captionOf(table.rows().group(row.index));
}

double indentOf(const table::Table& table, const Row& row) {
    return row.kind == Kind::Total ? 0 : Indent * static_cast<double>(table.rows().group(row.index).level);
}

std::size_t setOf(const table::Table& table, const Row& row) {
    return row.kind == Kind::Total ? table.rows().totalSet() : row.index;
}

TableRows layRows(const table::Table& table, const TableColumns& columns, const paper::Measure& measure, double first,
                  double others) {
    constexpr auto None = table::Rows::NoGroup;
    TableRows laid{rowsOf(table, columns, measure), {{0, None}}};
    const auto& rows = laid.rows;
    const auto whole = others - columns.headHeight();
    double room = first - columns.headHeight();
    auto group = None; // of the row above
    for (std::size_t from = 0; from < rows.size();) {
        auto end = from;
        double height = 0;
        do
            height += rows[end].height();
        while (++end < rows.size() && keeps(table, rows[end - 1], rows[end]));
        if (height > whole - TableRows::ContinuedHeight) { // more than a page: it is parted all the same
            end = from + 1;
            height = rows[from].height();
        }
        if (height > room && room < whole) {
            const auto kind = rows[from].kind;
            const auto continued = kind == Kind::Line    ? group
                                   : kind == Kind::Group ? table.rows().group(rows[from].index).parent
                                                         : None;
            laid.pages.push_back({from, continued});
            room = continued == None ? whole : whole - TableRows::ContinuedHeight;
        }
        for (; from < end; ++from)
            if (rows[from].kind == Kind::Group)
                group = rows[from].index;
        room -= height;
    }
    return laid;
}

} // namespace suite::paint
