#include "suite/desktop/form/LookupRows.h"

#include "host/Grade.h"
#include "suite/desktop/look/Text.h"

#include <algorithm>
#include <unordered_set>

namespace suite::desktop {

namespace {

std::string keyOf(const host::TDataSet& rows, const std::string& key, std::size_t position) {
    return TextoDe(rows.Colunas()[rows.FindField(key)->Indice()].Valor(rows.LinhaDe(position)));
}

} // namespace

LookupRows::LookupRows(const host::TZTLookupEx& lookup, const host::TDataSet& search, QObject* parent)
    : QAbstractTableModel(parent), lookup_(lookup), search_(search), marks_(lookup.Definicao().MultiSelecao),
      shown_(lookup.Filtrar(search, "")), marked_(search.RecordCount(), 0) {
    for (const auto& column : lookup.Definicao().Colunas)
        fields_.push_back(search.FindField(column.Campo));
    const auto& before = lookup.GetResultSetMultiSelecao();
    if (!marks_ || !before.Active())
        return;
    const auto& key = lookup.Definicao().CampoChave;
    std::unordered_set<std::string> keys;
    for (std::size_t i = 0; i < before.RecordCount(); ++i)
        keys.insert(keyOf(before, key, i));
    for (std::size_t i = 0; i < marked_.size(); ++i)
        marked_[i] = keys.contains(keyOf(search, key, i));
}

const host::TField* LookupRows::field(int column) const {
    return fields_[static_cast<std::size_t>(column - (marks_ ? 1 : 0))];
}

void LookupRows::setFilter(const QString& text) {
    beginResetModel();
    shown_ = lookup_.Filtrar(search_, toUtf8(text));
    endResetModel();
}

void LookupRows::tellMarks() {
    if (!shown_.empty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, 0), {Qt::CheckStateRole});
    Q_EMIT marksChanged();
}

void LookupRows::toggle(int row) {
    auto& mark = marked_[position(row) - 1];
    mark = mark ? 0 : 1;
    tellMarks();
}

void LookupRows::markShown(bool marked) {
    for (const auto position : shown_)
        marked_[position - 1] = marked ? 1 : 0;
    tellMarks();
}

std::vector<std::size_t> LookupRows::marked() const {
    std::vector<std::size_t> positions;
    for (std::size_t i = 0; i < marked_.size(); ++i)
        if (marked_[i])
            positions.push_back(i + 1);
    return positions;
}

int LookupRows::rowOf(std::size_t position) const {
    const auto found = std::lower_bound(shown_.begin(), shown_.end(), position);
    return found != shown_.end() && *found == position ? static_cast<int>(found - shown_.begin()) : -1;
}

int LookupRows::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

int LookupRows::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(fields_.size()) + (marks_ ? 1 : 0);
}

QVariant LookupRows::data(const QModelIndex& index, int role) const {
    const auto place = position(index.row()) - 1;
    if (isMark(index)) {
        if (role == Qt::CheckStateRole)
            return marked_[place] ? Qt::Checked : Qt::Unchecked;
        return role == Qt::AccessibleTextRole ? QVariant(marked_[place] ? "Marcado" : "Não marcado") : QVariant();
    }
    const auto* shown = field(index.column());
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
        return fromUtf8(host::TextoExibido(search_.Colunas()[shown->Indice()].Valor(search_.LinhaDe(place)),
                                           shown->FormatoExibicao));
    return {};
}

bool LookupRows::setData(const QModelIndex& index, const QVariant&, int role) {
    if (!isMark(index) || role != Qt::CheckStateRole)
        return false;
    toggle(index.row());
    return true;
}

QVariant LookupRows::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    const bool mark = marks_ && section == 0;
    if (role == Qt::DisplayRole)
        return mark
                   ? QString()
                   : fromUtf8(lookup_.Definicao().Colunas[static_cast<std::size_t>(section - (marks_ ? 1 : 0))].Titulo);
    if (role == Qt::TextAlignmentRole) // codes and names, no amounts
        return QVariant::fromValue(Qt::Alignment(Qt::AlignLeft | Qt::AlignVCenter));
    return {};
}

Qt::ItemFlags LookupRows::flags(const QModelIndex& index) const {
    const auto plain = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
    return isMark(index) ? plain | Qt::ItemIsUserCheckable : plain;
}

} // namespace suite::desktop
