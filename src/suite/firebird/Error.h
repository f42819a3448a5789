#pragma once

#include "host/Falhas.h"

#include <cstdint>
#include <string>

namespace suite::firebird {

// A status vector of the client library as the suite's failure: the Portuguese sentence for what a user can act on,
// and the engine's codes and text for whoever looks for the cause.
host::TFalhaBanco toFailure(const std::intptr_t* status, const std::string& statement);

} // namespace suite::firebird
