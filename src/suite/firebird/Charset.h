#pragma once

#include <string>
#include <string_view>

namespace suite::firebird {

// UTF-8 inside, ISO8859_1 at the border.
std::string toUtf8(std::string_view latin1);
// Throws base::TFalha, which names the place, on a character that ISO8859_1 lacks or on broken UTF-8.
std::string toLatin1(std::string_view utf8, std::string_view place);

} // namespace suite::firebird
