#pragma once

#include "host/Controles.h"
#include "suite/export/Json.h"

namespace suite::script {

// The state of a control, as far as its kind has it: a list has its items and values, a lookup the key of its record,
// the keys of the marked ones, and whether records were chosen by marking at all.
exporting::JsonObject describeControl(const host::TControle& control);

} // namespace suite::script
