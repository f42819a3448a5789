#include "suite/table/Luminance.h"

#include <cmath>

namespace suite::table {

double luminance(host::TCor colour) {
    const auto part = [colour](unsigned shift) {
        const double value = (colour >> shift & 0xFFU) / 255.0;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(16) + 0.7152 * part(8) + 0.0722 * part(0);
}

} // namespace suite::table
