#pragma once

#include "suite/table/Lines.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace suite::table {

// Why a sum is not shown. Amounts are never counted twice: lines of base, budget and actual values do not add up to
// anything, and a totalizer already holds the accounts that stand beside it.
enum class NoSum : std::uint8_t { None, LineTypes, Totalizers, TooLarge };

// Exact sums of columns over sets of lines. Title accounts do not count.
class Sums {
  public:
    // For that many sets, each empty at first. What it is given outlives it.
    void start(const host::TDataSet& rows, const Lines& lines, std::vector<std::size_t> fields, std::size_t sets);
    void stop() { *this = {}; }
    void add(std::size_t set, std::size_t row); // row of the dataset's columns
    void addSet(std::size_t set, std::size_t other);

    // Nothing for a field that is not summed, or where a reason stands against it.
    std::optional<base::TDecimal> sum(std::size_t set, std::size_t field) const;
    NoSum reason(std::size_t set, std::size_t field) const;

  private:
    struct State {
        int type = 0; // of its lines
        NoSum reason = NoSum::None;
    };
    void put(std::size_t set, std::size_t k, std::int64_t units);
    void note(std::size_t set, int type);
    std::optional<std::size_t> indexOf(std::size_t field) const;

    std::vector<std::size_t> fields_;
    std::vector<const host::TColuna*> columns_;
    const Lines* lines_ = nullptr;
    std::vector<State> states_;
    std::vector<std::int64_t> units_; // by set, then by field
    std::vector<bool> tooLarge_;
};

} // namespace suite::table
