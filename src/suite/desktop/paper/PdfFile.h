#pragma once

#include "suite/export/Exporter.h"

namespace suite::desktop {

// What a table says on paper, A4 across: all its rows, closed groups too. It needs no window and no screen. The same
// table, heading and fonts give the same bytes. For Exporter::add: throws TFalha or std::system_error.
void writePdf(const table::Table& table, const std::filesystem::path& file, const exporting::Heading& heading);

} // namespace suite::desktop
