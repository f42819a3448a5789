#pragma once

#include "host/Valor.h"
#include "suite/firebird/Api.h"

#include <span>
#include <string>
#include <vector>

namespace suite::firebird {

// The input message of one execution, each value brought to the type that the engine expects. A value that does not
// fit (a character, a length, a range) is a host::TFalha that names the parameter, by labels where there are any.
std::vector<unsigned char> inputMessage(Firebird::IMessageMetadata* metadata, std::span<const host::TValor> values,
                                        const std::string& statement, const std::vector<std::string>& labels);

} // namespace suite::firebird
