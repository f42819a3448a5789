#pragma once

#include "host/Grade.h"

#include <QString>

#include <vector>

namespace suite::desktop {

// A column of a grid on screen: its place among the grid's columns and its field's among the dataset's. Valid until
// either changes.
struct PaneColumn {
    std::size_t place;
    std::size_t field;
    bool number; // right aligned
    bool money;  // has a sum: a number that the grid itself shows with two decimals; percentages have none
};

// In view and not grouped, in order. A column whose field the dataset does not have is none; a closed dataset has none.
std::vector<PaneColumn> columnsInView(const host::TGrade& grid);
// Those by which the grid groups, by level.
std::vector<PaneColumn> columnsOfGroups(const host::TGrade& grid);
// How many of the first ones stay in view: the leading ones that the grid marks, or, in a grid that marks none, those
// up to the account's name.
int columnsFrozen(const host::TGrade& grid, const std::vector<PaneColumn>& columns);

// The format by which a column shows its numbers, empty for the plain form, and the decimals that one then sees.
std::string formatOf(const host::TGrade& grid, const PaneColumn& column);
int decimalsShown(const std::string& format, int scale);

// The title by which a column is told from all others.
QString fullTitle(const std::vector<host::TColunaGrade>& columns, std::size_t place);

// Whether a user may choose it: a technical column has no title, and a "%" that stands behind one without a title
// belongs to a period that there is not.
bool isOffered(const std::vector<host::TColunaGrade>& columns, std::size_t place);

// The grid's columns with one moved to where another stands. It stays inside its band: the order comes back unchanged
// if the other has another one.
std::vector<host::TColunaGrade> moved(std::vector<host::TColunaGrade> columns, std::size_t from, std::size_t to);
// With a column put at the end of the grouping or taken out of it; levels have no gaps.
std::vector<host::TColunaGrade> grouped(std::vector<host::TColunaGrade> columns, std::size_t place, bool on);

} // namespace suite::desktop
