#pragma once

#include "base/FormatoNumerico.h"
#include "host/Grade.h"

#include <string>
#include <vector>

namespace suite::table {

// A column of a grid as every face shows it. Valid until the grid's columns or its dataset change.
struct Column {
    const host::TColunaGrade* shown;
    const host::TColuna* values;
    std::size_t place;             // among the grid's columns
    std::size_t field;             // among the dataset's
    std::string format;            // of its numbers; "" for the plain form
    base::TFormatoNumerico digits; // the same, read
    std::string heading;           // tells it from all others without its band or its neighbours

    host::TTipoColuna type() const { return values->Descricao().Tipo; }
    bool right() const { return type() != host::TTipoColuna::Texto; } // alignment
    bool sums() const;
    int decimals() const { return digits.Positiva.Decimais; } // that one sees
    std::string text(const base::TValor& value) const;        // "" for NULL
};

// A column whose field the dataset does not have is none; a closed dataset has none.
std::vector<Column> columnsInView(const host::TGrade& grid);   // and not grouped, in order
std::vector<Column> columnsOfGroups(const host::TGrade& grid); // by level
std::vector<Column> columnsOfFiles(const host::TGrade& grid);  // in view or grouped, in order

// How many of the first ones stay in view when the others scroll.
std::size_t frozenOf(const std::vector<Column>& columns);

// Columns side by side under the same caption, which may be empty.
struct Band {
    std::string caption;
    std::size_t first;
    std::size_t count;
};
// Nothing where no column has a band, else bands for all columns.
std::vector<Band> bandsOf(const std::vector<Column>& columns);

// What names a column, whether in view or not: its band, then its title as it is without neighbours.
std::string headingOf(const host::TColunaGrade& column);

// Whether a user may choose it: a technical column has no title, and a "%" that stands behind one without a title
// belongs to a period that there is not.
bool isOffered(const std::vector<host::TColunaGrade>& columns, std::size_t place);

} // namespace suite::table
