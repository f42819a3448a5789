#pragma once

#include "paper/TextFit.h"
#include "suite/table/Table.h"

namespace suite::paint {

// In ems: a line of text, the space between two rows, and what stands free beside a cell's text.
inline constexpr double LineHeight = 1.25;
inline constexpr double RowSpace = 0.3;
inline constexpr double Padding = 0.45;

// Where the columns of a table stand on paper, in ems. Those that do not fit beside one another in a size that can be
// read go on over several pages side by side, and the columns that say which line it is are repeated on each.
struct TableColumns {
    struct Place {
        const table::Column* column;
        double left;
        double width;

        double right() const { return left + width; }
        double room() const { return width - 2 * Padding; } // of its text
    };
    struct Part {
        std::vector<Place> places;
        std::vector<table::Band> bands; // over the places; empty, or for all of them
        double width = 0;
    };

    double fontSize = 0; // in points
    std::vector<Part> parts;
    std::size_t bandLines = 0; // of text above the titles, and of the titles
    std::size_t titleLines = 0;

    double headHeight() const;
};

// On pages of that width, in points. The widths are those of all cells: no number is ever cut, a long text is wrapped.
TableColumns layColumns(const table::Table& table, const paper::Measure& measure, double width);

// Beside a value of such a column stands the sign of its line; the room for it.
double signRoom(const table::Table& table, const table::Column& column, const paper::Measure& measure);

} // namespace suite::paint
