#pragma once

#include "host/Controles.h"

namespace suite::table {

// Relative luminance of a colour, from 0 to 1: by it a face chooses what can be read on what.
double luminance(host::TCor colour);

} // namespace suite::table
