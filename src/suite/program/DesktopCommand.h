#pragma once

#include "suite/desktop/shell/Desktop.h"
#include "suite/program/ExitCode.h"
#include "suite/program/Interrupt.h"
#include "suite/program/Options.h"

namespace suite::program {

// Opens the window on the desktop and returns when the user has left it. Throws base::TFalha without a screen, and what
// kept the database of the command line from being opened.
ExitCode runDesktopCommand(const Options& options, Interrupt& interrupt);

// What the window is given of this program. The module must be loaded when a login begins.
desktop::DesktopProgram desktopProgram(const Options& options, const std::string& version);

} // namespace suite::program
