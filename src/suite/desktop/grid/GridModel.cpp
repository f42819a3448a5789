#include "suite/desktop/grid/GridModel.h"

#include "base/FormatoNumerico.h"
#include "suite/desktop/look/Text.h"

#include <QLocale>

#include <algorithm>

namespace suite::desktop {

namespace {

constexpr const char* MarkedField = "DELTAVARIACAO";
constexpr const char* LineTypeField = "TIPOLINHA";

} // namespace

GridModel::GridModel(const host::TGrade& grid, GridRows& rows, QObject* parent)
    : QAbstractTableModel(parent), grid_(grid), rows_(rows) {}

void GridModel::change(const std::function<void()>& deed) {
    beginResetModel();
    deed();
    endResetModel();
}

void GridModel::readColumns(bool freeze) {
    columns_ = columnsInView(grid_);
    frozen_ = freeze ? columnsFrozen(grid_, columns_) : 0;
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren : Qt::NoItemFlags;
}

bool GridModel::repeatsAbove(int row, int index) const {
    if (!column(index).Identificacao)
        return true;
    const auto position = rows_.position(at(row));
    const auto block = rows_.blockOf(position);
    if (block == position)
        return true;
    if (row > 0 && !isGroup(row - 1) && rows_.blockOf(rows_.position(at(row - 1))) == block)
        return true;
    return grid_.Aparencia(grid_.Celula(block, column(index))).Vazio;
}

GridModel::Cell GridModel::cell(int row, int index, bool selected) const {
    const auto cell = grid_.Celula(rows_.position(at(row)), column(index), selected);
    Cell shown{{}, grid_.Aparencia(cell)};
    if (shown.look.Vazio && !repeatsAbove(row, index))
        shown.look.Vazio = false;
    if (!shown.look.Vazio)
        shown.text = fromUtf8(cell.Texto());
    return shown;
}

QString GridModel::caption(int row) const {
    const auto& group = rows_.group(rows_.groupAt(at(row)));
    const auto field = rows_.field(group);
    const auto& columns = grid_.Colunas();
    const auto& name = grid_.DataSet()->Fields()[field].Nome();
    const auto column = std::find_if(columns.begin(), columns.end(), [&](const auto& c) { return c.Campo == name; });
    const auto title = column == columns.end() ? fromUtf8(name)
                                               : fullTitle(columns, static_cast<std::size_t>(column - columns.begin()));
    const auto format = column == columns.end() ? std::string() : column->Formato;
    auto value = fromUtf8(host::TextoExibido(rows_.value(group), format));
    if (value.isEmpty())
        value = QStringLiteral("(vazio)");
    const QLocale brazil(QLocale::Portuguese, QLocale::Brazil);
    return QStringLiteral("%1: %2 (%3 %4)")
        .arg(title, value, brazil.toString(group.count),
             group.count == 1 ? QStringLiteral("linha") : QStringLiteral("linhas"));
}

QString GridModel::sumText(std::size_t set, int index) const {
    const auto& column = columns_[at(index)];
    if (!column.money)
        return {};
    if (const auto sum = rows_.sums().sum(set, column.field))
        return fromUtf8(base::FormatarNumero(*sum, formatOf(grid_, column)));
    return rows_.sums().reason(set, column.field) == NoSum::TooLarge ? QStringLiteral("—") : QString();
}

QString GridModel::reasonText(std::size_t set, int index) const {
    if (!columns_[at(index)].money)
        return {};
    switch (rows_.sums().reason(set, columns_[at(index)].field)) {
    case NoSum::LineTypes:
        return QStringLiteral("Sem soma: há linhas de base, de orçado ou de realizado juntas. Filtre um só tipo de "
                              "linha para somar.");
    case NoSum::Totalizers:
        return QStringLiteral("Sem soma: os totalizadores já contêm as contas e seriam contados duas vezes.");
    case NoSum::TooLarge:
        return QStringLiteral("Sem soma: ela, ou um dos valores, passa do que se pode mostrar com exatidão.");
    case NoSum::None:
        break;
    }
    return {};
}

QString GridModel::meaning(int row) const {
    if (meanings_.empty() || isGroup(row) || columns_.empty())
        return {};
    const auto look = grid_.Aparencia(grid_.Celula(rows_.position(at(row)), column(0)));
    const auto found = look.Fonte ? meanings_.find(*look.Fonte) : meanings_.end();
    return found == meanings_.end() ? QString() : found->second;
}

QString GridModel::mark(const QString& meaning) {
    if (meaning.isEmpty())
        return {};
    const auto sign = std::find_if(meaning.begin(), meaning.end(), [](QChar c) {
        return c == QLatin1Char('<') || c == QLatin1Char('>') || c == QLatin1Char('=');
    });
    return sign == meaning.end() ? meaning.left(2) : QString(meaning.front()).toUpper() + *sign;
}

bool GridModel::showsMark(int index) const { return !meanings_.empty() && column(index).Campo == MarkedField; }

QVariant GridModel::groupData(int row, int column, int role) const {
    const auto set = rows_.groupAt(at(row));
    switch (role) {
    case Qt::DisplayRole:
        return column == 0 ? caption(row) : sumText(set, column);
    case Qt::ToolTipRole: {
        const auto reason = reasonText(set, column);
        return reason.isEmpty() ? caption(row) : reason;
    }
    case Qt::AccessibleTextRole:
        return column == 0 ? caption(row) + (isOpen(row) ? QStringLiteral(", aberto") : QStringLiteral(", fechado"))
                           : sumText(set, column);
    default:
        return {};
    }
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole && role != Qt::AccessibleTextRole &&
        role != Qt::TextAlignmentRole)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignVCenter | (columns_[at(index.column())].number ? Qt::AlignRight : Qt::AlignLeft));
    if (isGroup(index.row()))
        return groupData(index.row(), index.column(), role);
    auto text = cell(index.row(), index.column(), false).text;
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
        return fromUtf8(column(section).Titulo);
    if (role == Qt::AccessibleTextRole)
        return fullTitle(grid_.Colunas(), columns_[at(section)].place);
    if (role != Qt::ToolTipRole)
        return {};
    auto text = fullTitle(grid_.Colunas(), columns_[at(section)].place) +
                QStringLiteral("\nClique ordena; com Ctrl, junta à ordem das outras colunas.");
    if (grid_.DataSet()->FindField(LineTypeField))
        text += QStringLiteral("\nAs linhas B, O e R de uma conta ficam juntas: vale a primeira delas.");
    return text;
}

} // namespace suite::desktop
