#pragma once

#include "suite/paint/grid/TableColumns.h"

namespace suite::paint {

// The rows of a table on pages below one another: groups, all lines, the total. Each page has room for the head of the
// columns besides.
struct TableRows {
    enum class Kind : std::uint8_t { Group, Line, Total };
    struct Row {
        std::uint32_t index; // of a group, or of a line in Table::lines
        Kind kind;
        std::uint8_t lines; // of text; a group or a total of several has its caption above its sums

        double height() const { return lines * LineHeight + RowSpace; }
    };
    struct Page {
        std::size_t first;       // row
        std::uint32_t continued; // innermost group that goes on here from the page before, or table::Rows::NoGroup
    };
    std::vector<Row> rows;
    std::vector<Page> pages;

    static constexpr double ContinuedHeight = LineHeight + RowSpace;
};

// What stands at the top of a page on which a group goes on: the captions of it and of those around it.
std::string captionOfContinued(const table::Table& table, std::uint32_t group);

// Heights of the first page and of the others, in ems. A group is not left at a page's foot without a line of it, the
// rows of one line are not parted, and the total is not alone.
TableRows layRows(const table::Table& table, const TableColumns& columns, const paper::Measure& measure, double first,
                  double others);

// Of a group or the total, and how far it is moved in.
std::string captionOf(const table::Table& table, const TableRows::Row& row);
double indentOf(const table::Table& table, const TableRows::Row& row);
// The set of sums that a group or the total shows.
std::size_t setOf(const table::Table& table, const TableRows::Row& row);

} // namespace suite::paint
