#pragma once

#include "suite/table/Table.h"

#include <optional>
#include <string>
#include <vector>

namespace suite::desktop {

// The columns by which a user has a grid sorted, the first of them first.
class SortOrder {
  public:
    using List = std::vector<table::Wish::Sort>;

    // Without a direction as a click asks for it: from ascending to descending to none. Together with the others, or
    // in their place.
    void choose(const std::string& field, std::optional<bool> descending, bool together);
    void clear() { list_.clear(); }
    const List& list() const { return list_; }

  private:
    List list_;
};

} // namespace suite::desktop
