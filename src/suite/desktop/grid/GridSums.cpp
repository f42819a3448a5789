#include "suite/desktop/grid/GridSums.h"

#include <algorithm>

namespace suite::desktop {

namespace {

// Fields by which a dataset tells what its lines are.
constexpr const char* TitleField = "CTATITULO";
constexpr const char* LineTypeField = "TIPOLINHA";
constexpr const char* AccountField = "IDPLANO";

const host::TColuna* numberColumn(const host::TDataSet& rows, const char* name) {
    const auto* field = rows.FindField(name);
    return field && field->Descricao().Tipo == host::TTipoColuna::Inteiro ? &rows.Colunas()[field->Indice()] : nullptr;
}

} // namespace

void GridSums::start(const host::TDataSet& rows, std::vector<std::size_t> fields, std::size_t sets) {
    fields_ = std::move(fields);
    columns_.clear();
    for (const auto field : fields_)
        columns_.push_back(&rows.Colunas()[field]);
    title_ = numberColumn(rows, TitleField);
    type_ = numberColumn(rows, LineTypeField);
    account_ = numberColumn(rows, AccountField);
    states_.assign(sets, {});
    units_.assign(sets * fields_.size(), 0);
    tooLarge_.assign(sets * fields_.size(), false);
}

void GridSums::note(std::size_t set, std::int64_t type) {
    auto& state = states_[set];
    if (state.type == NoType)
        state.type = type;
    else if (state.type != type && type != NoType && state.reason == NoSum::None)
        state.reason = NoSum::LineTypes;
}

void GridSums::put(std::size_t set, std::size_t k, std::int64_t units) {
    const auto at = set * fields_.size() + k;
    if (__builtin_add_overflow(units_[at], units, &units_[at]))
        tooLarge_[at] = true;
}

void GridSums::add(std::size_t set, std::size_t row) {
    const bool marked = title_ && !title_->Nulo(row);
    if (marked && base::TDecimal{title_->Unidades(row), title_->Descricao().Escala} == base::TDecimal{1, 0})
        return;
    if (account_ && account_->Nulo(row))
        states_[set].reason = NoSum::Totalizers;
    if (title_ && !marked)
        return; // neither title nor analytic
    if (type_ && !type_->Nulo(row))
        note(set, type_->Unidades(row));
    for (std::size_t k = 0; k < fields_.size(); ++k)
        if (columns_[k]->Nulo(row)) // an amount beyond what its column holds
            tooLarge_[set * fields_.size() + k] = true;
        else
            put(set, k, columns_[k]->Unidades(row));
}

void GridSums::addSet(std::size_t set, std::size_t other) {
    note(set, states_[other].type);
    states_[set].reason = std::max(states_[set].reason, states_[other].reason);
    for (std::size_t k = 0; k < fields_.size(); ++k) {
        const auto at = other * fields_.size() + k;
        put(set, k, units_[at]);
        if (tooLarge_[at])
            tooLarge_[set * fields_.size() + k] = true;
    }
}

std::optional<std::size_t> GridSums::indexOf(std::size_t field) const {
    const auto found = std::find(fields_.begin(), fields_.end(), field);
    return found == fields_.end() ? std::nullopt : std::optional(static_cast<std::size_t>(found - fields_.begin()));
}

NoSum GridSums::reason(std::size_t set, std::size_t field) const {
    const auto k = indexOf(field);
    if (!k || states_[set].reason != NoSum::None)
        return states_[set].reason;
    return tooLarge_[set * fields_.size() + *k] ? NoSum::TooLarge : NoSum::None;
}

std::optional<base::TDecimal> GridSums::sum(std::size_t set, std::size_t field) const {
    const auto k = indexOf(field);
    if (!k || reason(set, field) != NoSum::None)
        return std::nullopt;
    return base::TDecimal{units_[set * fields_.size() + *k], columns_[*k]->Descricao().Escala};
}

} // namespace suite::desktop
