#include "suite/desktop/grid/GridPane.h"

#include "suite/desktop/grid/FilterRow.h"
#include "suite/desktop/grid/GridFooter.h"
#include "suite/desktop/grid/GridKeys.h"
#include "suite/desktop/grid/GridLayouts.h"
#include "suite/desktop/grid/GridSizes.h"
#include "suite/desktop/grid/GridStatus.h"
#include "suite/desktop/grid/GroupPanel.h"
#include "suite/desktop/grid/SearchBar.h"
#include "suite/desktop/look/Text.h"

#include <QEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>

#include <algorithm>

namespace suite::desktop {

GridPane::GridPane(host::TGrade& grid, QWidget* parent)
    : QWidget(parent), grid_(grid), table_(grid), model_(new GridModel(table_, this)), keys_(new GridKeys(*this)),
      view_(new GridView(*model_, this)), filters_(new FilterRow(*view_, *model_, keys_)),
      footer_(new GridFooter(*view_, *model_, this)), sizes_(new GridSizes(*model_, *view_, *footer_)),
      groups_(new GroupPanel(this)), search_(new SearchBar(this, keys_)), across_(new QScrollBar(Qt::Horizontal, this)),
      status_(new GridStatus(this)), options_(new QPushButton(QStringLiteral("O&pções da grade"), this)) {
    setObjectName(fromUtf8(grid.Nome()));
    setAccessibleName(QStringLiteral("Grade de resultados"));
    build();
    connectParts();
    gridChanges_ = grid_.AoMudar([this] { refresh(Rows::Same); });
    grid_.AoExpandirTudo = [this] { expandAll(true); };
    listen();
    model_->change([] {});
    columnsChanged();
    afterChange({});
}

GridPane::~GridPane() { grid_.AoExpandirTudo = nullptr; }

void GridPane::setLayouts(host::TZTDbGridDevLeiaute& layouts) {
    layouts_ = std::make_unique<GridLayouts>(layouts, *this);
}

std::optional<std::size_t> GridPane::currentLine() const {
    const auto index = view_->currentIndex();
    if (!index.isValid() || index.row() >= model_->rowCount() || model_->isGroup(index.row()))
        return std::nullopt;
    return table_.rows().position(static_cast<std::size_t>(index.row()));
}

int GridPane::currentColumn() const { return view_->currentIndex().isValid() ? view_->currentIndex().column() : 0; }

std::string GridPane::columnAt(int index) const { return model_->field(index); }

bool GridPane::hidesZeros() const { return status_->withoutZeros(); }

void GridPane::listen() {
    auto* rows = grid_.Fonte().DataSet;
    if (!rows || rows == heard_)
        return;
    heard_ = rows;
    rowChanges_ = rows->AoMudarEstado([this] { refresh(Rows::Loaded); });
}

void GridPane::refresh(Rows rows, std::optional<bool> open) {
    const bool other = grid_.DataSet() != heard_;
    listen();
    const auto line = currentLine();
    // Another listener of the dataset may ask for all groups before this pane has heard that it is open.
    const bool active = grid_.DataSet() && grid_.DataSet()->Active();
    const bool loaded = rows == Rows::Loaded || other || active != table_.active();
    model_->change([&] {
        if (loaded)
            table_.load();
        if (open)
            table_.rows().openAll(*open);
        table_.readColumns();
        table_.arrange(wish());
    });
    if (loaded)
        lastLine_.reset();
    columnsChanged();
    afterChange(loaded ? std::nullopt : line);
    if (loaded) // number formats are set behind the opening
        QTimer::singleShot(0, this, &GridPane::readFormats);
}

table::Wish GridPane::wish() const { return {sorts_.list(), filters_->texts(), status_->withoutZeros()}; }

// The rows stay as they are unless they are filtered by what is displayed.
void GridPane::readFormats() {
    table_.readColumns();
    if (!filters_->texts().empty())
        arrangeRows();
    sizes_->fitAll(false);
    footer_->refresh();
    view_->viewport()->update();
    view_->frozen().viewport()->update();
}

void GridPane::columnsChanged() {
    filters_->columnsChanged();
    groups_->show(grid_);
    orderTabs();
}

void GridPane::arrangeRows() {
    const auto line = currentLine();
    model_->change([&] { table_.arrange(wish()); });
    afterChange(line);
}

void GridPane::changeRows(const std::function<void()>& deed) {
    model_->change(deed);
    sizes_->apply();
    view_->columnsChanged();
}

void GridPane::afterChange(std::optional<std::size_t> line) {
    sizes_->apply();
    view_->columnsChanged();
    showSorts();
    footer_->refresh();
    tellCount();
    const int column = std::min(currentColumn(), model_->columnCount() - 1);
    const auto row = line ? table_.rows().find(*line) : std::nullopt;
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
    const auto add = [&](const std::vector<QWidget*>& more) { stops.insert(stops.end(), more.begin(), more.end()); };
    add({options_});
    add(filters_->inOrder());
    add({view_});
    add(status_->stops());
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
    const auto all = table_.active() ? std::optional(table_.dataSet().RecordCount()) : std::nullopt;
    status_->tell(all, lines().size(), !filters_->texts().empty());
}

void GridPane::showSorts() {
    std::map<int, BandHeader::SortMark> marks;
    const auto& sorts = sorts_.list();
    for (std::size_t k = 0; k < sorts.size(); ++k)
        if (const int column = model_->indexOf(sorts[k].field); column >= 0)
            marks[column] = {static_cast<int>(k) + 1, sorts[k].descending};
    view_->header().setSorts(marks);
    view_->frozen().header().setSorts(marks);
}

void GridPane::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        view_->viewport()->update();
}

} // namespace suite::desktop
