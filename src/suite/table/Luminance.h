#pragma once

#include "host/Controles.h"

namespace suite::table {

// Relative luminance of a colour, from 0 to 1: by it a face chooses what can be read on what.
double luminance(host::TCor colour);
double contrast(host::TCor a, host::TCor b); // from 1 to 21
inline constexpr double LeastContrast = 4.5; // of what is to be read
// Between two colours, by a share from 0 to 1 of the second.
host::TCor mixed(host::TCor a, host::TCor b, double share);
// The colour, moved as far to white or black as it takes to be read on that ground.
host::TCor legible(host::TCor wanted, host::TCor ground);

} // namespace suite::table
