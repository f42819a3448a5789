#pragma once

#include "suite/script/Rows.h"

#include <vector>

namespace suite::program {

// The columns of a result as tables and spreadsheets show them, by the dataset's name. The periods of
// CdsMostraCtbOrcMensal take their titles from its rows; one without a title is not shown.
std::vector<script::ShownColumn> resultColumns(const host::TDataSet& rows);

} // namespace suite::program
