#include "suite/desktop/grid/ColumnChanges.h"
#include "suite/desktop/grid/ColumnDialog.h"
#include "suite/desktop/grid/FilterRow.h"
#include "suite/desktop/grid/GridCopy.h"
#include "suite/desktop/grid/GridMenu.h"
#include "suite/desktop/grid/GridPane.h"
#include "suite/desktop/grid/GridSearch.h"
#include "suite/desktop/grid/GridSizes.h"
#include "suite/desktop/grid/GridStatus.h"
#include "suite/desktop/grid/SearchBar.h"

#include <QScrollBar>

#include <algorithm>

namespace suite::desktop {

void GridPane::fillMenu(QMenu& menu) { GridMenu(*this).fill(menu); }

void GridPane::openMenu(const QPoint& global, int column) {
    QMenu menu(this);
    if (column >= 0)
        GridMenu(*this).fillForColumn(menu, column);
    else
        GridMenu(*this).fill(menu);
    menu.exec(global);
}

void GridPane::sortBy(int column, std::optional<bool> descending, bool together) {
    if (column < 0 || column >= model_->columnCount())
        return;
    sorts_.choose(model_->field(column), descending, together);
    arrangeRows();
}

void GridPane::unsort() {
    sorts_.clear();
    arrangeRows();
}

void GridPane::groupBy(const std::string& field, bool on) {
    const auto& all = grid_.Colunas();
    const auto found = std::find_if(all.begin(), all.end(), [&](const auto& c) { return c.Campo == field; });
    if (found != all.end())
        grid_.SetColunas(grouped(all, static_cast<std::size_t>(found - all.begin()), on));
}

void GridPane::moveColumn(int from, int to) {
    if (from < 0 || to < 0 || from >= model_->columnCount() || to >= model_->columnCount() || from == to)
        return;
    const auto field = model_->field(from);
    grid_.SetColunas(moved(grid_.Colunas(), model_->column(from).place, model_->column(to).place));
    if (view_->currentIndex().isValid())
        view_->setCurrentIndex(model_->index(view_->currentIndex().row(), model_->indexOf(field)));
}

void GridPane::showColumn(const std::string& field, bool on) {
    if (!on && model_->columnCount() == 1) // what is left would show nothing to bring the others back
        return;
    grid_.MudarColuna(field, [on](host::TColunaGrade& column) { column.Visivel = on; });
}

void GridPane::chooseColumns() {
    ColumnDialog dialog(grid_.Colunas(), this);
    if (dialog.exec() == QDialog::Accepted)
        grid_.SetColunas(dialog.columns());
    view_->setFocus();
}

void GridPane::fitColumn(int column) { sizes_->fit(column); }

void GridPane::fitColumns() { sizes_->fitAll(true); }

void GridPane::expandAll(bool open) { refresh(Rows::Same, open); } // the columns may be others by now

void GridPane::toggle(int row) {
    if (row < 0 || row >= model_->rowCount() || !model_->isGroup(row))
        return;
    const int column = currentColumn();
    const int top = view_->verticalScrollBar()->value();
    changeRows([&] { table_.rows().toggle(table_.rows().groupAt(static_cast<std::size_t>(row))); });
    view_->setCurrentIndex(model_->index(row, column));
    view_->verticalScrollBar()->setValue(top);
}

void GridPane::filterColumn(int column) { filters_->focus(column); }

void GridPane::clearFilters() {
    const bool had = status_->withoutZeros();
    const bool filtered = !filters_->texts().empty();
    {
        const QSignalBlocker quiet(status_);
        status_->setWithoutZeros(false);
    }
    filters_->clear();
    if (had && !filtered)
        arrangeRows();
}

void GridPane::hideZeros(bool on) { status_->setWithoutZeros(on); }

void GridPane::freeze(bool on) {
    model_->freeze(on);
    refresh(Rows::Same);
}

void GridPane::zoom(int steps) { sizes_->zoom(steps); }

void GridPane::search(const QString& text) { search_->open(text); }

void GridPane::findNext(bool forward, bool fromHere) { GridSearch(*this, *search_).findNext(forward, fromHere); }

void GridPane::goTo(std::size_t position, int column) {
    auto row = table_.rows().find(position);
    if (!row)
        changeRows([&] { row = table_.rows().reveal(position); });
    const auto index = model_->index(static_cast<int>(*row), column);
    view_->setCurrentIndex(index);
    view_->scrollTo(index);
}

void GridPane::copy(bool titles) { copySelection(*view_, *model_, titles); }

void GridPane::copyAll() { desktop::copyAll(*model_); }

} // namespace suite::desktop
