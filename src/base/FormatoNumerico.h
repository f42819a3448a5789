#pragma once

#include "base/Decimal.h"

#include <optional>
#include <string>
#include <string_view>

namespace base {

// What a format says of the values above or below zero.
struct BASE_API TSecaoNumerica {
    std::string Antes; // signs before and behind the digits, as they stand
    std::string Depois;
    bool Milhares = false;
    int Inteiros = 0; // least digits
    int Decimais = 0;
};

// A number format that has been read.
struct BASE_API TFormatoNumerico {
    // "" is the plain form of a value of that scale: a whole number as it is, another with thousands points.
    explicit TFormatoNumerico(std::string_view ATexto = {}, int AEscala = 0);
    TSecaoNumerica Positiva;
    std::optional<TSecaoNumerica> Negativa; // absent: the first with a minus sign
};

// A number as a Brazilian reader expects it, by a format of the suite: up to two sections divided by ";" (the second
// for negative values; absent or empty, the first with a minus sign), in each "," for thousands points, zeros for the
// least digits on either side of ".", and any other sign as it stands. ",0.00" gives "1.234,50", "(,0.00)" in the
// second section "(1.234,50)". Half rounds away from zero. An empty format is the plain form.
BASE_API std::string FormatarNumero(const TDecimal& AValor, std::string_view AFormato);
BASE_API std::string FormatarNumero(const TDecimal& AValor, const TFormatoNumerico& AFormato);

} // namespace base
