#pragma once

#include "base/Decimal.h"

#include <string>
#include <string_view>

namespace base {

// A number as a Brazilian reader expects it, by a format of the suite: up to two sections divided by ";" (the second
// for negative values; absent or empty, the first with a minus sign), in each "," for thousands points, zeros for the
// least digits on either side of ".", and any other sign as it stands. ",0.00" gives "1.234,50", "(,0.00)" in the
// second section "(1.234,50)". Half rounds away from zero. An empty format shows all decimal places of the value.
BASE_API std::string FormatarNumero(const TDecimal& AValor, std::string_view AFormato);

} // namespace base
