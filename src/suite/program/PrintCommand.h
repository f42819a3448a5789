#pragma once

#include "suite/export/Exporter.h"
#include "suite/program/ExitCode.h"
#include "suite/program/Options.h"
#include "suite/terminal/Headless.h"

#include <functional>

namespace suite::program {

// One consultation and its report, driven through the module's window as a user would drive it. Once cancelled answers
// true, no further page is made, and no file is left.
ExitCode runPrint(const ConsultOptions& options, const std::function<exporting::Origin()>& origin,
                  const std::function<bool()>& cancelled, terminal::Headless& interaction);

} // namespace suite::program
