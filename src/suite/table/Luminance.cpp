#include "suite/table/Luminance.h"

#include <algorithm>
#include <cmath>

namespace suite::table {

double luminance(host::TCor colour) {
    const auto part = [colour](unsigned shift) {
        const double value = (colour >> shift & 0xFFU) / 255.0;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(16) + 0.7152 * part(8) + 0.0722 * part(0);
}

double contrast(host::TCor a, host::TCor b) {
    const auto [low, high] = std::minmax({luminance(a), luminance(b)});
    return (high + 0.05) / (low + 0.05);
}

host::TCor mixed(host::TCor a, host::TCor b, double share) {
    host::TCor colour = 0;
    for (const unsigned shift : {16U, 8U, 0U}) {
        const auto from = static_cast<int>(a >> shift & 0xFFU);
        const auto to = static_cast<int>(b >> shift & 0xFFU);
        colour |= static_cast<host::TCor>(std::lround(from + (to - from) * share)) << shift;
    }
    return colour;
}

host::TCor legible(host::TCor wanted, host::TCor ground) {
    constexpr host::TCor White = 0xFFFFFF;
    constexpr host::TCor Black = 0;
    const auto end = contrast(White, ground) > contrast(Black, ground) ? White : Black;
    constexpr int Steps = 20;
    for (int step = 0; step < Steps; ++step)
        if (const auto colour = mixed(wanted, end, static_cast<double>(step) / Steps);
            contrast(colour, ground) >= LeastContrast)
            return colour;
    return end;
}

} // namespace suite::table
