#pragma once

#include "host/DataSet.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace suite::desktop {

// Why a sum is not shown. Amounts are never counted twice: lines of base, budget and actual values do not add up to
// anything, and a totalizer already holds the accounts that stand beside it.
enum class NoSum : std::uint8_t { None, LineTypes, Totalizers, TooLarge };

// Exact sums of columns over sets of lines. Title accounts do not count.
class GridSums {
  public:
    // For that many sets, each empty at first.
    void start(const host::TDataSet& rows, std::vector<std::size_t> fields, std::size_t sets);
    void stop() { *this = {}; }
    void add(std::size_t set, std::size_t row); // row of the dataset's columns
    void addSet(std::size_t set, std::size_t other);

    bool onlyAnalytic() const { return title_ != nullptr; } // whether the dataset tells title accounts apart
    // Nothing for a field that is not summed, or where a reason stands against it.
    std::optional<base::TDecimal> sum(std::size_t set, std::size_t field) const;
    NoSum reason(std::size_t set, std::size_t field) const;

  private:
    static constexpr std::int64_t NoType = -1;
    struct State {
        std::int64_t type = NoType;
        NoSum reason = NoSum::None;
    };
    void put(std::size_t set, std::size_t k, std::int64_t units);
    void note(std::size_t set, std::int64_t type);
    std::optional<std::size_t> indexOf(std::size_t field) const;

    std::vector<std::size_t> fields_;
    std::vector<const host::TColuna*> columns_;
    const host::TColuna* title_ = nullptr;
    const host::TColuna* type_ = nullptr;
    const host::TColuna* account_ = nullptr;
    std::vector<State> states_;
    std::vector<std::int64_t> units_; // by set, then by field
    std::vector<bool> tooLarge_;
};

} // namespace suite::desktop
