#pragma once

#include "base/Falhas.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace suite::firebird {

// The name under which opening a database is reported: a connection cut then was never there to be lost.
inline constexpr std::string_view OpeningName = "abertura do banco de dados";

// A status vector of the client library as the suite's failure: the Portuguese sentence for what a user can act on,
// and the engine's codes and text for whoever looks for the cause.
base::TFalhaBanco toFailure(const std::intptr_t* status, const std::string& statement);

} // namespace suite::firebird
