#pragma once

#include "suite/table/Columns.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace suite::table {

// A number as a Brazilian types it: "1.234,5", "-10", and "12.5" too, since a point that cannot divide thousands is a
// decimal one.
std::optional<base::TDecimal> typedNumber(std::string_view text);

// What a user types to find values of one column. A text is found by a part of it, without case and accents, a whole
// one by "=". Numbers and dates are found by a part of what is displayed, or by ">", ">=", "<", "<=", "=", "<>" and
// "a..b"; a number compares as it is displayed, rounded to its decimals. A comparison that is not finished, like ">",
// finds all.
class Matcher {
  public:
    // A plain one knows no comparisons.
    Matcher(Column column, std::string_view typed, bool plain = false);

    bool operator()(std::size_t row) const;

  private:
    enum class Kind { All, Part, Whole, Compare };
    struct Bounds {
        std::optional<base::TValor> least;
        std::optional<base::TValor> most;
        bool leastIsOut = false;
        bool mostIsOut = false;
        bool inverted = false; // what lies outside
    };

    void readComparison(std::string_view typed);
    std::optional<base::TValor> typedValue(std::string_view text) const;
    bool within(std::size_t row) const;
    bool partOfText(std::size_t row) const;
    bool partOfNumber(std::size_t row) const;

    Column column_;
    const host::TColuna& values_;
    int decimals_;
    Kind kind_ = Kind::Part;
    Bounds bounds_;
    std::string part_;
    std::string plainPart_;                   // of a number, without the points of thousands unless one was typed
    std::string digits_;                      // of plainPart_
    mutable std::vector<signed char> byCode_; // texts found, not found or not yet looked at
};

} // namespace suite::table
