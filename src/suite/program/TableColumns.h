#pragma once

#include "host/Grade.h"
#include "suite/export/Rows.h"

#include <vector>

namespace suite::program {

// The columns in view of a grid as a table for people shows them: which give way first where the room is narrow, and
// where a zero says nothing.
std::vector<exporting::ShownColumn> tableColumns(const host::TGrade& grid);

} // namespace suite::program
