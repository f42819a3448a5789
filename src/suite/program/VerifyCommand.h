#pragma once

#include "suite/firebird/Attachment.h"
#include "suite/program/ExitCode.h"

namespace suite::program {

// Tells whether the database suits the module, one line a finding. Reads only, and needs neither module nor login.
ExitCode runVerify(firebird::Attachment& attachment);

} // namespace suite::program
