#pragma once

#include "core/Un04618Types.h"

namespace pct04618 {

// Names of columns, those that are the same made unique by what tells their periods apart: the year, the dates, the
// reference balance. Names beyond the periods stay as they are.
std::vector<std::string> NomesUnicos(std::vector<std::string> ANomes, const std::vector<TPeriodoEmColuna>& APeriodos);

} // namespace pct04618
