#pragma once

namespace suite::program {

enum class ExitCode { Done = 0, Refused = 1, WrongUse = 2, DatabaseFailure = 3, Cancelled = 4 };

} // namespace suite::program
