#pragma once

#include "base/DataHora.h"
#include "base/Decimal.h"

#include <string>
#include <variant>

namespace base {

// One value of a row, NULL included. It serves parameters, edits and comparisons; stored rows are columns (Colunas.h).
using TValor = std::variant<std::monostate, TDecimal, double, TDataHora, std::string>;

inline const TValor Nulo{};
inline bool EhNulo(const TValor& AValor) { return std::holds_alternative<std::monostate>(AValor); }
inline TValor Inteiro(std::int64_t AValor) { return TDecimal{AValor, 0}; }

// Locale-free text: NULL is empty, a decimal exact with its scale, a date in ISO form.
BASE_API std::string TextoDe(const TValor& AValor);

} // namespace base
