#pragma once

#include "base/Faixas.h"

#include <ostream>

namespace suite::paint {

// A report as a page for a browser: a table whose columns are the edges of all its rulers, a row for each line of a
// band.
void writeHtml(std::ostream& out, const base::TRelatorio& report);

} // namespace suite::paint
