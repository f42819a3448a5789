#pragma once

#include "suite/program/ExitCode.h"

namespace suite::program {

// The program behind main: reads the command line, connects, loads the module and runs the command. Every failure ends
// as a sentence on standard error and an exit code.
ExitCode run(int argc, const char* const* argv);

} // namespace suite::program
