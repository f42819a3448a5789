#pragma once

#include "suite/export/Exporter.h"
#include "suite/program/ExitCode.h"
#include "suite/program/Options.h"

#include <functional>

namespace suite::program {

// Plays a script in the module's window. JSON Lines on standard output, and nothing else there. No step begins once
// cancelled answers true.
ExitCode runScript(const ScriptOptions& options, const exporting::Output& output,
                   const std::function<bool()>& cancelled);

} // namespace suite::program
