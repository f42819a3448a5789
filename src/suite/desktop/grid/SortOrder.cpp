#include "suite/desktop/grid/SortOrder.h"

#include <algorithm>

namespace suite::desktop {

void SortOrder::choose(const std::string& field, std::optional<bool> descending, bool together) {
    const auto found = std::find_if(list_.begin(), list_.end(), [&](const auto& s) { return s.field == field; });
    if (!together) {
        const bool was = found != list_.end();
        const bool wasDown = was && found->descending;
        list_.clear();
        if (descending || !wasDown)
            list_.push_back({field, descending.value_or(was)});
    } else if (found == list_.end()) {
        list_.push_back({field, descending.value_or(false)});
    } else if (!found->descending) {
        found->descending = true;
    } else {
        list_.erase(found);
    }
}

} // namespace suite::desktop
