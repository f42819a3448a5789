#include "suite/desktop/grid/GridModel.h"

#include "suite/desktop/look/Text.h"

namespace suite::desktop {

GridModel::GridModel(table::Table& table, QObject* parent) : QAbstractTableModel(parent), table_(table) {}

void GridModel::change(const std::function<void()>& deed) {
    beginResetModel();
    deed();
    bands_ = table::bandsOf(table_.columns());
    frozen_ = freeze_ ? static_cast<int>(table::frozenOf(table_.columns())) : 0;
    shown_ = true;
    endResetModel();
}

int GridModel::indexOf(const std::string& wanted) const {
    for (int i = 0; i < columnCount(); ++i)
        if (field(i) == wanted)
            return i;
    return -1;
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() || !shown_ ? 0 : static_cast<int>(rows().size());
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() || !shown_ ? 0 : static_cast<int>(table_.columns().size());
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren : Qt::NoItemFlags;
}

table::Table::Cell GridModel::cell(int row, int index, bool selected) const {
    return table_.cell(rows().lineAt(at(row)), column(index), selected);
}

QString GridModel::caption(int row) const { return fromUtf8(table_.captionOf(group(row))); }

QString GridModel::sumText(std::size_t set, int index) const { return fromUtf8(table_.sumText(set, column(index))); }

QString GridModel::reasonText(std::size_t set, int index) const {
    return fromUtf8(table_.reasonText(set, column(index)));
}

std::string GridModel::lineMeaning(int row) const {
    return isGroup(row) ? std::string() : table_.meaning(rows().lineAt(at(row)));
}

QString GridModel::meaning(int row) const { return fromUtf8(lineMeaning(row)); }

QString GridModel::sign(int row) const { return fromUtf8(table::Table::signOf(lineMeaning(row))); }

QVariant GridModel::groupData(int row, int index, int role) const {
    const auto set = rows().groupAt(at(row));
    switch (role) {
    case Qt::DisplayRole:
        return index == 0 ? caption(row) : sumText(set, index);
    case Qt::ToolTipRole: {
        const auto reason = reasonText(set, index);
        return reason.isEmpty() ? caption(row) : reason;
    }
    case Qt::AccessibleTextRole:
        return index == 0 ? caption(row) + (isOpen(row) ? QStringLiteral(", aberto") : QStringLiteral(", fechado"))
                          : sumText(set, index);
    default:
        return {};
    }
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole && role != Qt::AccessibleTextRole &&
        role != Qt::TextAlignmentRole)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignVCenter | (column(index.column()).right() ? Qt::AlignRight : Qt::AlignLeft));
    if (isGroup(index.row()))
        return groupData(index.row(), index.column(), role);
    auto text = fromUtf8(cell(index.row(), index.column()).text);
    if (role == Qt::DisplayRole)
        return text;
    const auto said = meaning(index.row());
    return text.isEmpty() || said.isEmpty()
               ? text + said
               : text + (role == Qt::ToolTipRole ? QLatin1String("\n") : QLatin1String(", ")) + said;
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    // Headers hear of a reset one after the other, and one that has not yet still asks for sections that were.
    if (orientation == Qt::Vertical || section >= columnCount())
        return {};
    if (role == Qt::DisplayRole)
        return fromUtf8(column(section).shown->Titulo);
    const auto heading = fromUtf8(column(section).heading);
    if (role == Qt::AccessibleTextRole)
        return heading;
    if (role != Qt::ToolTipRole)
        return {};
    return heading + QStringLiteral("\nClique ordena; com Ctrl, junta à ordem das outras colunas.") +
           (rows().rule().tellsTypes()
                ? QStringLiteral("\nAs linhas B, O e R de uma conta ficam juntas: vale a primeira delas.")
                : QString());
}

} // namespace suite::desktop
