#pragma once

#include <string>
#include <string_view>

namespace pct04618 {

// That the column, a whole number, is one of a list like "1, 2, 3". More than an IN holds becomes few terms all the
// same, as long as most of the numbers lie close together, which keys of a table do; TFalha where they do not.
std::string EstaNaLista(const std::string& AColuna, std::string_view ALista);

// The same of a condition field of the selection, a chain of "column = id" terms: as it is, unless it has more terms
// than an IN holds.
std::string EstaEntreMarcados(const std::string& ACadeia);

} // namespace pct04618
