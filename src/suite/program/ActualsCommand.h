#pragma once

#include "suite/program/ExitCode.h"
#include "suite/program/Options.h"
#include "suite/terminal/Headless.h"

namespace suite::program {

// Updates or removes actuals by the window's dialog, as a user would, and prints what it did to standard output.
// Throws base::TFalha.
ExitCode runActuals(const ActualsOptions& options, terminal::Headless& interaction);

} // namespace suite::program
