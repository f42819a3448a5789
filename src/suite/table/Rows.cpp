#include "suite/table/Rows.h"

#include <algorithm>
#include <numeric>

namespace suite::table {

namespace {

using Keyed = std::vector<std::pair<std::uint64_t, std::uint32_t>>; // key, line

void sortBy(std::vector<std::uint32_t>& lines, Keyed& keyed, const std::function<std::uint64_t(std::uint32_t)>& key) {
    keyed.clear();
    for (const auto line : lines)
        keyed.emplace_back(key(line), line);
    const auto before = [](const auto& a, const auto& b) { return a.first < b.first; };
    if (std::is_sorted(keyed.begin(), keyed.end(), before))
        return;
    std::stable_sort(keyed.begin(), keyed.end(), before);
    for (std::size_t i = 0; i < lines.size(); ++i)
        lines[i] = keyed[i].second;
}

} // namespace

void Rows::load(const host::TGrade& grid) {
    rows_ = grid.DataSet() && grid.DataSet()->Active() ? grid.DataSet() : nullptr;
    keys_.forget();
    rule_ = rows_ ? Lines(grid) : Lines();
    arrangement_ = {};
    lines_.clear();
    groups_.clear();
    opens_.clear();
    visible_.clear();
    sums_.stop();
}

void Rows::arrange(Arrangement arrangement) {
    if (arrangement.groups != arrangement_.groups)
        toggled_.clear();
    arrangement_ = std::move(arrangement);
    lines_.clear();
    groups_.clear();
    opens_.clear();
    if (rows_) {
        const auto count = static_cast<std::uint32_t>(rows_->RecordCount());
        lines_.reserve(count);
        for (std::uint32_t i = 0; i < count; ++i)
            if (!arrangement_.keeps || arrangement_.keeps(i))
                lines_.push_back(i);
        sortLines();
        makeGroups();
        sumUp();
    }
    show();
}

bool Rows::follows(std::size_t position) const {
    return position > 0 && rule_.follows(rows_->LinhaDe(position - 1), rows_->LinhaDe(position));
}

std::size_t Rows::blockOf(std::size_t position) const {
    while (follows(position))
        --position;
    return position;
}

void Rows::sortLines() {
    if (arrangement_.sorts.empty() && arrangement_.groups.empty())
        return;
    Keyed keyed;
    keyed.reserve(lines_.size());
    if (!arrangement_.sorts.empty()) {
        // The lines are still in the dataset's order: the first of a block that is kept comes before the others.
        std::vector<std::uint32_t> heads(rows_->RecordCount());
        std::uint32_t head = 0;
        std::size_t end = 0;
        for (const auto line : lines_) {
            bool same = end != 0;
            for (; same && end <= line; ++end)
                same = follows(end);
            if (!same)
                head = line;
            end = line + std::size_t{1};
            heads[line] = head;
        }
        for (auto sort = arrangement_.sorts.rbegin(); sort != arrangement_.sorts.rend(); ++sort) {
            const auto key = keys_.of(rows_->Colunas(), sort->field);
            const std::uint64_t flip = sort->descending ? ~std::uint64_t{0} : 0;
            sortBy(lines_, keyed, [&](std::uint32_t line) { return key(rows_->LinhaDe(heads[line])) ^ flip; });
        }
    }
    for (auto field = arrangement_.groups.rbegin(); field != arrangement_.groups.rend(); ++field) {
        const auto key = keys_.of(rows_->Colunas(), *field);
        sortBy(lines_, keyed, [&](std::uint32_t line) { return key(rows_->LinhaDe(line)); });
    }
}

void Rows::makeGroups() {
    const auto levels = arrangement_.groups.size();
    if (levels == 0)
        return;
    std::vector<SortKeys::Column> keys;
    for (const auto field : arrangement_.groups)
        keys.push_back(keys_.of(rows_->Colunas(), field));
    std::vector<std::uint64_t> last(levels);
    std::vector<std::uint32_t> current(levels, NoGroup);
    opens_.resize(lines_.size());
    for (std::uint32_t i = 0; i < lines_.size(); ++i) {
        const auto row = rows_->LinhaDe(lines_[i]);
        bool opens = i == 0;
        for (std::size_t level = 0; level < levels; ++level) {
            const auto key = keys[level](row);
            opens = opens || key != last[level];
            last[level] = key;
            if (opens) {
                const auto parent = level == 0 ? NoGroup : current[level - 1];
                current[level] = static_cast<std::uint32_t>(groups_.size());
                groups_.push_back({level, i, 0, parent, openByDefault_});
            }
            ++groups_[current[level]].count;
        }
        opens_[i] = opens;
    }
    if (!toggled_.empty())
        for (auto& group : groups_)
            if (toggled_.contains(path(group)))
                group.open = !group.open;
}

void Rows::sumUp() {
    sums_.start(*rows_, rule_, arrangement_.money, groups_.size() + 1);
    const auto levels = arrangement_.groups.size();
    if (levels == 0) {
        for (const auto line : lines_)
            sums_.add(totalSet(), rows_->LinhaDe(line));
        return;
    }
    // Children stand behind their parents.
    for (auto i = static_cast<std::uint32_t>(groups_.size()); i-- > 0;) {
        const auto& group = groups_[i];
        if (group.level + 1 == levels)
            for (auto line = group.first; line < group.first + group.count; ++line)
                sums_.add(i, rows_->LinhaDe(lines_[line]));
        sums_.addSet(group.parent == NoGroup ? totalSet() : group.parent, i);
    }
}

std::vector<std::uint32_t> Rows::list(bool all) const {
    if (groups_.empty()) {
        std::vector<std::uint32_t> listed(lines_.size());
        std::iota(listed.begin(), listed.end(), 0U);
        return listed;
    }
    std::vector<std::uint32_t> listed;
    listed.reserve(lines_.size() + groups_.size());
    const auto last = arrangement_.groups.size() - 1;
    for (std::uint32_t i = 0; i < groups_.size();) {
        const auto& group = groups_[i];
        listed.push_back(i | GroupBit);
        if (!group.open && !all) {
            const auto end = group.first + group.count;
            for (++i; i < groups_.size() && groups_[i].first < end; ++i)
                continue;
            continue;
        }
        if (group.level == last)
            for (auto line = group.first; line < group.first + group.count; ++line)
                listed.push_back(line);
        ++i;
    }
    return listed;
}

void Rows::show() { visible_ = list(false); }

std::vector<std::uint32_t> Rows::unfolded() const { return list(true); }

bool Rows::opensGroup(std::size_t line) const { return line == 0 || (!opens_.empty() && opens_[line]); }

base::TValor Rows::value(const Group& group) const {
    return rows_->Colunas()[field(group)].Valor(rows_->LinhaDe(lines_[group.first]));
}

std::string Rows::path(const Group& group) const {
    const auto own = base::TextoDe(value(group));
    return group.parent == NoGroup ? own : path(groups_[group.parent]) + '\x1F' + own;
}

void Rows::toggle(std::uint32_t index) {
    auto& group = groups_[index];
    group.open = !group.open;
    if (const auto key = path(group); !toggled_.erase(key))
        toggled_.insert(key);
    show();
}

void Rows::openAll(bool open) {
    openByDefault_ = open;
    toggled_.clear();
    for (auto& group : groups_)
        group.open = open;
    show();
}

std::optional<std::size_t> Rows::find(std::size_t position) const {
    for (std::size_t row = 0; row < visible_.size(); ++row)
        if (!isGroup(row) && this->position(row) == position)
            return row;
    return std::nullopt;
}

std::optional<std::size_t> Rows::reveal(std::size_t position) {
    const auto line = std::find(lines_.begin(), lines_.end(), position);
    if (line == lines_.end())
        return std::nullopt;
    const auto at = static_cast<std::uint32_t>(line - lines_.begin());
    for (std::uint32_t i = 0; i < groups_.size(); ++i)
        if (!groups_[i].open && groups_[i].first <= at && at - groups_[i].first < groups_[i].count)
            toggle(i);
    return find(position);
}

} // namespace suite::table
