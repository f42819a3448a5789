#pragma once

#include "suite/table/Table.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace suite::table {

// What a series stands for. It decides colour and pattern: no series is told by colour alone.
enum class ChartKind { Base, Budget, Actual, Better, Worse };

std::string captionOf(ChartKind kind);

struct ChartValue {
    ChartKind kind;
    std::optional<base::TDecimal> value; // nothing for NULL
};

// The values of one category stand side by side.
struct ChartCategory {
    std::string name;
    std::vector<ChartValue> values;
};

struct ChartData {
    std::string title;
    std::vector<ChartCategory> categories; // empty: there is nothing to show, and the title says why
    bool byRows = false;                   // categories below one another, bars to the side
};

// Base, budget and actual of a line by period, where the grid has periods in columns: of the rows around the given
// position that are the same line. Otherwise the analytic accounts among the lines that deviate most from their budget,
// the largest first. The position is that of the selected line, if any.
ChartData chartOf(const Table& table, std::optional<std::size_t> position);

} // namespace suite::table
