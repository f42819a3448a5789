#pragma once

#include "base/Valor.h"
#include "suite/firebird/Api.h"

#include <span>
#include <string>
#include <vector>

namespace suite::firebird {

// The input message of one execution, each value brought to the type that the engine expects. A value that does not
// fit (a character, a length, a range) is a base::TFalha that names the parameter, by labels where there are any.
std::vector<unsigned char> inputMessage(Firebird::IMessageMetadata* metadata, std::span<const base::TValor> values,
                                        const std::string& statement, const std::vector<std::string>& labels);

} // namespace suite::firebird
