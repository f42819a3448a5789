#include "suite/table/Sums.h"

#include <algorithm>

namespace suite::table {

void Sums::start(const host::TDataSet& rows, const Lines& lines, std::vector<std::size_t> fields, std::size_t sets) {
    fields_ = std::move(fields);
    columns_.clear();
    for (const auto field : fields_)
        columns_.push_back(&rows.Colunas()[field]);
    lines_ = &lines;
    states_.assign(sets, {});
    units_.assign(sets * fields_.size(), 0);
    tooLarge_.assign(sets * fields_.size(), false);
}

void Sums::note(std::size_t set, int type) {
    auto& state = states_[set];
    if (state.type == 0)
        state.type = type;
    else if (state.type != type && type != 0 && state.reason == NoSum::None)
        state.reason = NoSum::LineTypes;
}

void Sums::put(std::size_t set, std::size_t k, std::int64_t units) {
    const auto at = set * fields_.size() + k;
    if (__builtin_add_overflow(units_[at], units, &units_[at]))
        tooLarge_[at] = true;
}

void Sums::add(std::size_t set, std::size_t row) {
    const auto kind = lines_->kind(row);
    if (kind == Lines::Kind::Title)
        return;
    if (lines_->holdsOthers(row))
        states_[set].reason = NoSum::Totalizers;
    if (kind == Lines::Kind::Unmarked)
        return;
    note(set, lines_->type(row));
    for (std::size_t k = 0; k < fields_.size(); ++k)
        if (columns_[k]->Nulo(row)) // an amount beyond what its column holds
            tooLarge_[set * fields_.size() + k] = true;
        else
            put(set, k, columns_[k]->Unidades(row));
}

void Sums::addSet(std::size_t set, std::size_t other) {
    note(set, states_[other].type);
    states_[set].reason = std::max(states_[set].reason, states_[other].reason);
    for (std::size_t k = 0; k < fields_.size(); ++k) {
        const auto at = other * fields_.size() + k;
        put(set, k, units_[at]);
        if (tooLarge_[at])
            tooLarge_[set * fields_.size() + k] = true;
    }
}

std::optional<std::size_t> Sums::indexOf(std::size_t field) const {
    const auto found = std::find(fields_.begin(), fields_.end(), field);
    return found == fields_.end() ? std::nullopt : std::optional(static_cast<std::size_t>(found - fields_.begin()));
}

NoSum Sums::reason(std::size_t set, std::size_t field) const {
    const auto k = indexOf(field);
    if (!k || states_[set].reason != NoSum::None)
        return states_[set].reason;
    return tooLarge_[set * fields_.size() + *k] ? NoSum::TooLarge : NoSum::None;
}

std::optional<base::TDecimal> Sums::sum(std::size_t set, std::size_t field) const {
    const auto k = indexOf(field);
    if (!k || reason(set, field) != NoSum::None)
        return std::nullopt;
    return base::TDecimal{units_[set * fields_.size() + *k], columns_[*k]->Descricao().Escala};
}

} // namespace suite::table
