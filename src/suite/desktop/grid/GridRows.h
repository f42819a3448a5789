#pragma once

#include "suite/desktop/grid/GridSums.h"
#include "suite/desktop/grid/SortKeys.h"

#include <functional>
#include <limits>
#include <set>
#include <string>
#include <vector>

namespace suite::desktop {

// What one sees of a dataset, as one flat list: lines and, where it is grouped, a row above each group. Lines are
// positions in the dataset's order; no value is copied.
class GridRows {
  public:
    struct Sort {
        std::size_t field;
        bool descending;
        friend bool operator==(const Sort&, const Sort&) = default;
    };
    struct Arrangement {
        std::vector<std::size_t> groups; // fields by level; their values ascend
        std::vector<Sort> sorts;         // inside the groups; none: the dataset's order
        std::vector<std::size_t> money;  // fields that are summed
        // Lines that follow one another with the same values in these fields, each of a higher line type, are a block:
        // sorting goes by its first line and keeps it together.
        std::vector<std::size_t> identification;
        std::function<bool(std::size_t position)> keeps; // absent: all lines
    };
    struct Group {
        std::size_t level;
        std::uint32_t first; // of lines()
        std::uint32_t count;
        std::uint32_t parent; // NoGroup at the top
        bool open = true;
    };
    static constexpr std::uint32_t NoGroup = std::numeric_limits<std::uint32_t>::max();

    // The dataset has opened, closed or changed. Null or closed: there is nothing to see.
    void load(const host::TDataSet* rows);
    bool loaded() const { return rows_ != nullptr; }
    void arrange(Arrangement arrangement);

    // All lines that are kept, in the order in which they are shown, those of closed groups too.
    const std::vector<std::uint32_t>& lines() const { return lines_; }
    std::size_t size() const { return visible_.size(); }
    bool isGroup(std::size_t row) const { return (visible_[row] & GroupBit) != 0; }
    std::uint32_t groupAt(std::size_t row) const { return visible_[row] & ~GroupBit; }
    std::size_t position(std::size_t row) const { return lines_[visible_[row]]; } // of a row that is no group
    const Group& group(std::uint32_t index) const { return groups_[index]; }
    std::size_t groupCount() const { return groups_.size(); }
    std::size_t field(const Group& group) const { return arrangement_.groups[group.level]; }
    base::TValor value(const Group& group) const; // that its lines share

    void toggle(std::uint32_t group);
    void openAll(bool open);
    // The row of a line, its groups opened; nothing for one that is not kept.
    std::optional<std::size_t> reveal(std::size_t position);
    std::optional<std::size_t> find(std::size_t position) const; // as it stands
    // First line of the block of a line in the dataset's order; itself where there are no blocks.
    std::size_t blockOf(std::size_t position) const;

    const GridSums& sums() const { return sums_; } // a set a group, and one over all lines behind them
    std::size_t totalSet() const { return groups_.size(); }

  private:
    static constexpr std::uint32_t GroupBit = std::uint32_t{1} << 31;

    bool follows(std::size_t position) const; // the line above belongs to the same block
    void sortLines();
    void makeGroups();
    void sumUp();
    void show();
    std::string path(const Group& group) const;

    const host::TDataSet* rows_ = nullptr;
    const host::TColuna* lineType_ = nullptr;
    Arrangement arrangement_;
    SortKeys keys_;
    std::vector<std::uint32_t> lines_;
    std::vector<Group> groups_;
    std::vector<std::uint32_t> visible_; // group or index of lines_
    GridSums sums_;
    bool openByDefault_ = true;
    std::set<std::string> toggled_; // groups that are not as the default says
};

} // namespace suite::desktop
