#pragma once

#include "host/Grade.h"
#include "suite/export/Json.h"

namespace suite::script {

// [{"campo":...,"titulo":...,"faixa":...,"visivel":...,"formato":...,"grupo":...},...]
std::string describeColumns(const host::TGrade& grid);
// Of each column, by its field, how the cell of that row is shown. The row is a position from 0 in the dataset's order.
exporting::JsonObject describeCells(const host::TGrade& grid, std::size_t row, bool selected);
// "#RRGGBB", or null.
std::string jsonColour(const std::optional<base::TCor>& value);

} // namespace suite::script
