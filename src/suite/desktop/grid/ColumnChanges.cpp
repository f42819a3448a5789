#include "suite/desktop/grid/ColumnChanges.h"

#include <algorithm>

namespace suite::desktop {

std::vector<host::TColunaGrade> moved(std::vector<host::TColunaGrade> columns, std::size_t from, std::size_t to) {
    if (columns[from].Faixa != columns[to].Faixa)
        return columns;
    const auto at = [&](std::size_t place) { return columns.begin() + static_cast<std::ptrdiff_t>(place); };
    if (from < to)
        std::rotate(at(from), at(from + 1), at(to + 1));
    else
        std::rotate(at(to), at(from), at(from + 1));
    return columns;
}

std::vector<host::TColunaGrade> grouped(std::vector<host::TColunaGrade> columns, std::size_t place, bool on) {
    const int before = columns[place].Grupo;
    int levels = 0;
    for (const auto& column : columns)
        levels = std::max(levels, column.Grupo + 1);
    if (on == (before >= 0))
        return columns;
    columns[place].Grupo = on ? levels : -1;
    if (!on)
        for (auto& column : columns)
            column.Grupo -= column.Grupo > before ? 1 : 0;
    return columns;
}

} // namespace suite::desktop
