#include "suite/desktop/grid/GridPane.h"

#include "suite/desktop/grid/ColumnMatcher.h"
#include "suite/desktop/grid/FilterRow.h"
#include "suite/desktop/grid/GridFooter.h"
#include "suite/desktop/grid/GroupPanel.h"
#include "suite/desktop/grid/SearchBar.h"
#include "suite/desktop/look/Text.h"

#include <QCheckBox>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>

#include <algorithm>
#include <cmath>

namespace suite::desktop {

namespace {

constexpr int RowPadding = 7;
constexpr int FilterPadding = 9;

QString counted(std::size_t number) {
    return QLocale(QLocale::Portuguese, QLocale::Brazil).toString(static_cast<qulonglong>(number));
}

} // namespace

GridPane::GridPane(host::TGrade& grid, QWidget* parent)
    : QWidget(parent), grid_(grid), rows_(std::make_unique<GridRows>()), model_(new GridModel(grid, *rows_, this)),
      view_(new GridView(*model_, this)), filters_(new FilterRow(*view_, *model_, this)),
      footer_(new GridFooter(*view_, *model_, this)), groups_(new GroupPanel(this)), search_(new SearchBar(this, this)),
      across_(new QScrollBar(Qt::Horizontal, this)), count_(new QLabel(this)),
      zeros_(new QCheckBox(QStringLiteral("&Ocultar linhas zeradas"), this)),
      clear_(new QPushButton(QStringLiteral("Limpar &filtros"), this)),
      options_(new QPushButton(QStringLiteral("O&pções da grade"), this)) {
    setObjectName(fromUtf8(grid.Nome()));
    setAccessibleName(QStringLiteral("Grade de resultados"));
    usualSize_ = font().pointSizeF();
    build();
    connectView();
    QPointer<GridPane> self(this); // listeners of a grid are never taken off
    gridChanges_ = grid_.AoMudar([self] {
        if (self)
            self->refresh(Rows::Same);
    });
    grid_.AoExpandirTudo = [self] {
        if (self)
            self->expandAll(true);
    };
    applyZoom();
    refresh(Rows::Loaded);
}

GridPane::~GridPane() { grid_.AoExpandirTudo = nullptr; }

void GridPane::setColourMeanings(std::map<host::TCor, QString> meanings) {
    model_->setColourMeanings(std::move(meanings));
    applyWidths();
    view_->viewport()->update();
}

const std::vector<std::uint32_t>& GridPane::lines() const { return rows_->lines(); }

std::optional<std::size_t> GridPane::currentLine() const {
    const auto index = view_->currentIndex();
    if (!index.isValid() || index.row() >= model_->rowCount() || model_->isGroup(index.row()))
        return std::nullopt;
    return rows_->position(static_cast<std::size_t>(index.row()));
}

std::string GridPane::columnAt(int index) const { return model_->column(index).Campo; }

int GridPane::currentColumn() const { return view_->currentIndex().isValid() ? view_->currentIndex().column() : 0; }

std::optional<std::size_t> GridPane::placeOf(const std::string& field) const {
    const auto& all = grid_.Colunas();
    const auto found = std::find_if(all.begin(), all.end(), [&](const auto& c) { return c.Campo == field; });
    return found == all.end() ? std::nullopt : std::optional(static_cast<std::size_t>(found - all.begin()));
}

void GridPane::listen() {
    auto* rows = grid_.Fonte().DataSet;
    if (!rows || rows == heard_)
        return;
    heard_ = rows;
    rowChanges_ = rows->AoMudarEstado([self = QPointer<GridPane>(this), rows] {
        if (self && self->grid_.DataSet() == rows)
            self->refresh(Rows::Loaded);
    });
}

void GridPane::refresh(Rows rows, std::optional<bool> open) {
    const bool other = grid_.DataSet() != heard_;
    listen();
    const auto line = currentLine();
    // Another listener of the dataset may ask for all groups before this pane has heard that it is open.
    const bool active = grid_.DataSet() && grid_.DataSet()->Active();
    const bool loaded = rows == Rows::Loaded || other || active != rows_->loaded();
    model_->change([&] {
        if (loaded)
            rows_->load(grid_.DataSet());
        if (open)
            rows_->openAll(*open);
        model_->readColumns(freeze_);
        rows_->arrange(arrangement());
    });
    if (loaded)
        lastLine_.reset();
    filters_->columnsChanged();
    groups_->show(grid_);
    orderTabs();
    afterChange(loaded ? std::nullopt : line);
    if (loaded) // number formats are set behind the opening
        QTimer::singleShot(0, this, &GridPane::fitColumns);
}

GridRows::Arrangement GridPane::arrangement() const {
    GridRows::Arrangement wanted;
    const auto* rows = grid_.DataSet();
    if (!rows || !rows->Active())
        return wanted;
    for (const auto& column : columnsOfGroups(grid_))
        wanted.groups.push_back(column.field);
    for (const auto& sort : sorts_)
        if (const auto* field = rows->FindField(sort.field))
            wanted.sorts.push_back({field->Indice(), sort.descending});
    for (const auto& column : model_->columns())
        if (column.money)
            wanted.money.push_back(column.field);
    for (const auto& column : grid_.Colunas())
        if (const auto* field = column.Identificacao ? rows->FindField(column.Campo) : nullptr)
            wanted.identification.push_back(field->Indice());
    auto matchers = std::make_shared<std::vector<ColumnMatcher>>();
    for (const auto& column : model_->columns())
        if (const auto typed = filters_->texts().find(grid_.Colunas()[column.place].Campo);
            typed != filters_->texts().end())
            matchers->emplace_back(rows->Colunas()[column.field], formatOf(grid_, column), typed->second);
    const bool noZeros = zeros_->isChecked() && !wanted.money.empty();
    if (matchers->empty() && !noZeros)
        return wanted;
    wanted.keeps = [rows, matchers, noZeros, money = wanted.money](std::size_t position) {
        const auto row = rows->LinhaDe(position);
        const auto isZero = [&](std::size_t field) {
            const auto& values = rows->Colunas()[field];
            return values.Nulo(row) || values.Unidades(row) == 0;
        };
        return !(noZeros && std::all_of(money.begin(), money.end(), isZero)) &&
               std::all_of(matchers->begin(), matchers->end(), [&](const auto& matches) { return matches(row); });
    };
    return wanted;
}

void GridPane::arrangeRows() {
    const auto line = currentLine();
    model_->change([&] { rows_->arrange(arrangement()); });
    afterChange(line);
}

void GridPane::afterChange(std::optional<std::size_t> line) {
    applyWidths();
    view_->columnsChanged();
    showSorts();
    footer_->refresh();
    tellCount();
    const int column = std::min(currentColumn(), model_->columnCount() - 1);
    const auto row = line ? rows_->find(*line) : std::nullopt;
    if (model_->rowCount() > 0 && column >= 0) {
        const auto index = model_->index(static_cast<int>(row.value_or(0)), column);
        view_->selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
        view_->scrollTo(index);
    }
    tellLine();
    Q_EMIT linesChanged();
}

void GridPane::orderTabs() {
    std::vector<QWidget*> stops = groups_->buttons();
    stops.push_back(options_);
    const auto fields = filters_->inOrder();
    stops.insert(stops.end(), fields.begin(), fields.end());
    stops.insert(stops.end(), {view_, zeros_, clear_});
    for (std::size_t i = 1; i < stops.size(); ++i)
        setTabOrder(stops[i - 1], stops[i]);
}

void GridPane::tellLine() {
    if (const auto line = currentLine(); line != lastLine_) {
        lastLine_ = line;
        Q_EMIT currentLineChanged();
    }
}

void GridPane::tellCount() {
    const bool open = grid_.DataSet() && grid_.DataSet()->Active();
    const auto all = open ? grid_.DataSet()->RecordCount() : 0;
    const auto shown = rows_->lines().size();
    const bool filtered = !filters_->texts().empty() || zeros_->isChecked();
    clear_->setEnabled(filtered);
    if (!open)
        count_->clear();
    else if (filtered)
        count_->setText(QStringLiteral("Mostrando %1 de %2 linhas").arg(counted(shown), counted(all)));
    else
        count_->setText(all == 1 ? QStringLiteral("1 linha") : QStringLiteral("%1 linhas").arg(counted(all)));
}

void GridPane::showSorts() {
    std::map<int, BandHeader::SortMark> marks;
    for (int i = 0; i < model_->columnCount(); ++i)
        for (std::size_t k = 0; k < sorts_.size(); ++k)
            if (sorts_[k].field == model_->column(i).Campo)
                marks[i] = {static_cast<int>(k) + 1, sorts_[k].descending};
    view_->header().setSorts(marks);
    view_->frozen().header().setSorts(marks);
}

void GridPane::toggle(int row) {
    if (row < 0 || row >= model_->rowCount() || !model_->isGroup(row))
        return;
    const int column = currentColumn();
    const int top = view_->verticalScrollBar()->value();
    model_->change([&] { rows_->toggle(rows_->groupAt(static_cast<std::size_t>(row))); });
    applyWidths();
    view_->columnsChanged();
    view_->setCurrentIndex(model_->index(row, column));
    view_->verticalScrollBar()->setValue(top);
}

double GridPane::scale() const {
    constexpr double Step = 1.1;
    return std::pow(Step, zoom_);
}

void GridPane::applyZoom() {
    auto scaled = font();
    scaled.setPointSizeF(usualSize_ * scale());
    view_->setFont(scaled);
    const QFontMetrics metrics(scaled);
    view_->setRowHeight(metrics.height() + RowPadding);
    view_->setFilterHeight(metrics.height() + FilterPadding);
    applyWidths();
    footer_->refresh();
}

void GridPane::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        view_->viewport()->update();
}

} // namespace suite::desktop
