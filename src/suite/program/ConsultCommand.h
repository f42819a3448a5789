#pragma once

#include "suite/program/ExitCode.h"
#include "suite/program/Login.h"
#include "suite/program/Options.h"
#include "suite/terminal/Headless.h"

namespace suite::program {

// One consultation, driven through the module's window as a user would drive it.
ExitCode runConsult(const ConsultOptions& options, const Login& login, terminal::Headless& interaction);

} // namespace suite::program
