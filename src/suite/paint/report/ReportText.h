#pragma once

#include "paper/Page.h"

#include <ostream>

namespace suite::paint {

// A report as plain text: its pages, set with a character an em wide, a form feed between them.
void writeText(std::ostream& out, const base::TRelatorio& report);

} // namespace suite::paint
