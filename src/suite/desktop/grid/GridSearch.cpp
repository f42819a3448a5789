#include "suite/desktop/grid/GridSearch.h"

#include "suite/desktop/grid/GridPane.h"
#include "suite/desktop/grid/GridView.h"
#include "suite/desktop/grid/SearchBar.h"
#include "suite/desktop/look/Text.h"
#include "suite/table/Matcher.h"

#include <algorithm>

namespace suite::desktop {

void GridSearch::findNext(bool forward, bool fromHere) {
    const auto& table = pane_.table();
    const auto& lines = table.lines();
    const auto typed = bar_.text();
    if (typed.trimmed().isEmpty() || lines.empty()) {
        bar_.open({});
        return;
    }
    std::vector<table::Matcher> matchers;
    for (const auto& column : table.columns())
        matchers.emplace_back(column, toUtf8(typed), true);
    const auto wide = matchers.size();
    const auto count = lines.size() * wide;
    const auto current = pane_.currentLine();
    const auto line = current ? std::find(lines.begin(), lines.end(), *current) : lines.end();
    const auto column = static_cast<std::size_t>(pane_.currentColumn());
    const auto start = line == lines.end() ? (forward ? count - 1 : 0)
                                           : static_cast<std::size_t>(line - lines.begin()) * wide + column;
    for (std::size_t step = fromHere && line != lines.end() ? 0 : 1; step <= count; ++step) {
        const auto cell = (forward ? start + step : start + count - step) % count;
        const auto position = lines[cell / wide];
        if (!matchers[cell % wide](table.dataSet().LinhaDe(position)))
            continue;
        pane_.goTo(position, static_cast<int>(cell % wide));
        bar_.tell(true);
        return;
    }
    bar_.tell(false);
}

} // namespace suite::desktop
