#pragma once

#include "suite/export/Exporter.h"
#include "suite/program/ExitCode.h"
#include "suite/program/Options.h"
#include "suite/terminal/Headless.h"

namespace suite::program {

// One consultation, driven through the module's window as a user would drive it.
ExitCode runConsult(const ConsultOptions& options, const exporting::Output& output, terminal::Headless& interaction);

} // namespace suite::program
