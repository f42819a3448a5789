#pragma once

#include "suite/table/SortKeys.h"
#include "suite/table/Sums.h"

#include <functional>
#include <limits>
#include <set>
#include <string>
#include <vector>

namespace suite::table {

// What one sees of a dataset, as one flat list: lines and, where it is grouped, a row above each group. Lines are
// positions in the dataset's order; no value is copied.
class Rows {
  public:
    struct Sort {
        std::size_t field;
        bool descending;
        friend bool operator==(const Sort&, const Sort&) = default;
    };
    struct Arrangement {
        std::vector<std::size_t> groups; // fields by level; their values ascend
        // Inside the groups; none: the dataset's order. Rows of one line that follow one another stay together, and go
        // by the first of them.
        std::vector<Sort> sorts;
        std::vector<std::size_t> money;                  // fields that are summed
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
    static constexpr std::uint32_t GroupBit = std::uint32_t{1} << 31;

    // The grid's dataset has opened, closed or changed. None or a closed one: there is nothing to see. The grid
    // outlives the rows.
    void load(const host::TGrade& grid);
    bool loaded() const { return rows_ != nullptr; }
    void arrange(Arrangement arrangement);

    // All lines that are kept, in the order in which they are shown, those of closed groups too.
    const std::vector<std::uint32_t>& lines() const { return lines_; }
    std::size_t size() const { return visible_.size(); }
    bool isGroup(std::size_t row) const { return (visible_[row] & GroupBit) != 0; }
    std::uint32_t groupAt(std::size_t row) const { return visible_[row] & ~GroupBit; }
    // Of a row that is no group: its place in lines(), and its position in the dataset.
    std::size_t lineAt(std::size_t row) const { return visible_[row]; }
    std::size_t position(std::size_t row) const { return lines_[visible_[row]]; }
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

    const Lines& rule() const { return rule_; }
    // Whether a line of lines() is the first one of its innermost group, or of all.
    bool opensGroup(std::size_t line) const;
    // Every group and every line below one another, closed groups open: a group has GroupBit.
    std::vector<std::uint32_t> unfolded() const;

    const Sums& sums() const { return sums_; } // a set a group, and one over all lines behind them
    std::size_t totalSet() const { return groups_.size(); }

  private:
    bool follows(std::size_t position) const; // the line above belongs to the same block
    std::vector<std::uint32_t> list(bool all) const;
    void sortLines();
    void makeGroups();
    void sumUp();
    void show();
    std::string path(const Group& group) const;

    const host::TDataSet* rows_ = nullptr;
    Lines rule_;
    Arrangement arrangement_;
    SortKeys keys_;
    std::vector<std::uint32_t> lines_;
    std::vector<Group> groups_;
    std::vector<std::uint32_t> visible_; // group or index of lines_
    std::vector<bool> opens_;            // by line; empty without groups
    Sums sums_;
    bool openByDefault_ = true;
    std::set<std::string> toggled_; // groups that are not as the default says
};

} // namespace suite::table
