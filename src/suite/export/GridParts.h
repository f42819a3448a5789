#pragma once

#include "host/Grade.h"

#include <filesystem>
#include <span>
#include <string>
#include <vector>

namespace suite::exporting {

using Title = std::span<const std::string>;

// A column of a grid that a file shows.
struct GridColumn {
    const host::TColunaGrade* shown;
    const host::TColuna* values;
    std::string format; // of numbers, as the cells are displayed; empty: whole numbers plain

    host::TTipoColuna type() const { return values->Descricao().Tipo; }
    bool right() const { return type() != host::TTipoColuna::Texto; } // alignment
};

// Those in view, grouped ones included; a column whose field the dataset does not have is none.
std::vector<GridColumn> gridColumns(const host::TGrade& grid);

// Columns side by side under the same caption, which may be empty.
struct GridBand {
    std::string caption;
    std::size_t first;
    std::size_t count;
};

// Nothing where no column has a band, else bands for all columns.
std::vector<GridBand> gridBands(const std::vector<GridColumn>& columns);

// The writers. What cannot be written in full is a std::system_error.
void writeXlsx(const host::TGrade& grid, const std::filesystem::path& file, Title title);
void writeHtml(const host::TGrade& grid, const std::filesystem::path& file, Title title);

} // namespace suite::exporting
