#pragma once

#include "suite/program/ExitCode.h"
#include "suite/program/Options.h"

namespace suite::program {

// Plays a script in the module's window. JSON Lines on standard output, and nothing else there.
ExitCode runScript(const ScriptOptions& options);

} // namespace suite::program
