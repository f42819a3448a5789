#pragma once

#include "host/Grade.h"
#include "suite/export/Rows.h"

#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace suite::exporting {

// Writes the grid to a file by its ending: .xlsx, .html, .csv, .json. Whole or not at all: it is written beside and
// renamed. The title stands above the grid of an .xlsx or .html (company, period, scenario: one line each). Columns are
// those in view, rows those of the dataset in its order; a .json has every field instead. Throws TFalha.
void exportGrid(const host::TGrade& grid, const std::filesystem::path& file, std::span<const std::string> title);

// The same in a format that the name does not tell: ".xlsx", ".html", ".csv", ".json".
void exportGrid(const host::TGrade& grid, const std::filesystem::path& file, std::string_view format,
                std::span<const std::string> title);

// The columns in view under titles that tell each apart without its band.
std::vector<ShownColumn> flatColumns(const host::TGrade& grid);

} // namespace suite::exporting
