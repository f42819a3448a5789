#pragma once

#include "host/Colunas.h"

#include <cstdint>
#include <map>
#include <vector>

namespace suite::table {

// Values of typed columns as whole numbers that stand in the values' order: NULL is 0 and first, numbers and dates go
// by value, texts by the collation of Brazilian Portuguese. Different values have different keys. Equal texts of a
// column are one, so a column is collated once for each text that it has, when it is first asked for.
class SortKeys {
  public:
    void forget() { ranks_.clear(); } // the columns have changed

    class Column {
      public:
        std::uint64_t operator()(std::size_t row) const;

      private:
        friend class SortKeys;
        const host::TColuna* values_ = nullptr;
        const std::vector<std::uint32_t>* ranks_ = nullptr; // by code; null unless text
    };
    // Valid until forget.
    Column of(const host::TColunas& columns, std::size_t field);

  private:
    std::map<std::size_t, std::vector<std::uint32_t>> ranks_;
};

} // namespace suite::table
