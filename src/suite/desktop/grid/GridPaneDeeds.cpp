#include "suite/desktop/grid/GridPane.h"

#include "host/Dialogos.h"
#include "suite/desktop/grid/ColumnDialog.h"
#include "suite/desktop/grid/ColumnMatcher.h"
#include "suite/desktop/grid/FilterRow.h"
#include "suite/desktop/grid/GridCopy.h"
#include "suite/desktop/grid/GridFooter.h"
#include "suite/desktop/grid/SearchBar.h"
#include "suite/desktop/look/Text.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QMimeData>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

namespace suite::desktop {

namespace {

constexpr int LeastZoom = -5;
constexpr int MostZoom = 10;
constexpr int SampledRows = 80;
constexpr int MostWidth = 340;
constexpr int MostTitleWidth = 200;

struct WaitCursor {
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

} // namespace

void GridPane::sortBy(int column, std::optional<bool> descending, bool together) {
    if (column < 0 || column >= model_->columnCount())
        return;
    const auto field = model_->column(column).Campo;
    const auto found = std::find_if(sorts_.begin(), sorts_.end(), [&](const auto& s) { return s.field == field; });
    if (!together) { // a click goes on from ascending to descending to none
        const bool was = found != sorts_.end();
        const bool wasDown = was && found->descending;
        sorts_.clear();
        if (descending || !wasDown)
            sorts_.push_back({field, descending.value_or(was)});
    } else if (found == sorts_.end()) {
        sorts_.push_back({field, descending.value_or(false)});
    } else if (!found->descending) {
        found->descending = true;
    } else {
        sorts_.erase(found);
    }
    arrangeRows();
}

void GridPane::unsort() {
    sorts_.clear();
    arrangeRows();
}

void GridPane::groupBy(const std::string& field, bool on) {
    if (const auto place = placeOf(field))
        grid_.SetColunas(grouped(grid_.Colunas(), *place, on));
}

void GridPane::moveColumn(int from, int to) {
    if (from < 0 || to < 0 || from >= model_->columnCount() || to >= model_->columnCount() || from == to)
        return;
    const auto& columns = model_->columns();
    const auto field = model_->column(from).Campo;
    grid_.SetColunas(moved(grid_.Colunas(), columns[static_cast<std::size_t>(from)].place,
                           columns[static_cast<std::size_t>(to)].place));
    for (int i = 0; i < model_->columnCount(); ++i)
        if (model_->column(i).Campo == field && view_->currentIndex().isValid())
            view_->setCurrentIndex(model_->index(view_->currentIndex().row(), i));
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

int GridPane::fittingWidth(int column) const {
    const auto* painter = static_cast<const CellPainter*>(view_->itemDelegate());
    int width = std::min(view_->header().titleWidth(column), static_cast<int>(MostTitleWidth * scale()));
    const auto count = static_cast<int>(rows_->size());
    // The first rows, and others spread over all.
    for (int i = 0; i < std::min(count, SampledRows); ++i) {
        const int row = i < SampledRows / 2 || count <= SampledRows
                            ? i
                            : static_cast<int>(static_cast<std::int64_t>(i) * (count - 1) / (SampledRows - 1));
        width = std::max(width, painter->widthOf(row, column));
    }
    auto bold = view_->font();
    bold.setBold(true);
    width = std::max(width, QFontMetrics(bold).horizontalAdvance(footer_->text(column)) + 2 * CellPainter::Padding);
    return std::min(width + 2, static_cast<int>(MostWidth * scale()));
}

void GridPane::applyWidths() {
    settingWidths_ = true;
    for (int i = 0; i < model_->columnCount(); ++i) {
        const auto& field = model_->column(i).Campo;
        if (!widths_.contains(field))
            widths_[field] = static_cast<int>(std::ceil(fittingWidth(i) / scale()));
        view_->setColumnWidth(i, static_cast<int>(std::lround(widths_[field] * scale())));
    }
    settingWidths_ = false;
}

void GridPane::fitColumn(int column) {
    if (column < 0 || column >= model_->columnCount())
        return;
    widths_.erase(model_->column(column).Campo);
    ownWidths_.erase(model_->column(column).Campo);
    applyWidths();
}

void GridPane::fitColumns() {
    std::erase_if(widths_, [this](const auto& entry) { return !ownWidths_.contains(entry.first); });
    applyWidths();
}

void GridPane::expandAll(bool open) { refresh(Rows::Same, open); } // the columns may be others by now

void GridPane::clearFilters() {
    const QSignalBlocker quiet(zeros_);
    const bool had = zeros_->isChecked();
    zeros_->setChecked(false);
    const auto filtered = !filters_->texts().empty();
    filters_->clear();
    if (had && !filtered)
        arrangeRows();
}

void GridPane::hideZeros(bool on) { zeros_->setChecked(on); }

void GridPane::freeze(bool on) {
    freeze_ = on;
    refresh(Rows::Same);
}

void GridPane::zoom(int steps) {
    zoom_ = steps == 0 ? 0 : std::clamp(zoom_ + steps, LeastZoom, MostZoom);
    applyZoom();
}

void GridPane::search(const QString& text) { search_->open(text); }

void GridPane::findNext(bool forward, bool fromHere) {
    const auto& lines = rows_->lines();
    const auto typed = search_->text();
    if (typed.trimmed().isEmpty() || lines.empty()) {
        search_->open({});
        return;
    }
    const auto& rows = *grid_.DataSet();
    std::vector<ColumnMatcher> matchers;
    for (const auto& column : model_->columns())
        matchers.emplace_back(rows.Colunas()[column.field], formatOf(grid_, column), typed, true);
    // Cells are counted through, line by line, from the current one around to it again.
    const auto wide = matchers.size();
    const auto count = lines.size() * wide;
    const auto current = currentLine();
    const auto line = current ? std::find(lines.begin(), lines.end(), *current) : lines.end();
    const auto column = static_cast<std::size_t>(currentColumn());
    const auto start = line == lines.end() ? (forward ? count - 1 : 0)
                                           : static_cast<std::size_t>(line - lines.begin()) * wide + column;
    for (std::size_t step = fromHere && line != lines.end() ? 0 : 1; step <= count; ++step) {
        const auto cell = (forward ? start + step : start + count - step) % count;
        const auto position = lines[cell / wide];
        if (!matchers[cell % wide](rows.LinhaDe(position)))
            continue;
        std::optional<std::size_t> row = rows_->find(position);
        if (!row) {
            model_->change([&] { row = rows_->reveal(position); });
            applyWidths();
            view_->columnsChanged();
        }
        const auto index = model_->index(static_cast<int>(*row), static_cast<int>(cell % wide));
        view_->setCurrentIndex(index);
        view_->scrollTo(index);
        search_->tell(true);
        return;
    }
    search_->tell(false);
}

void GridPane::copy(bool titles) {
    auto selection = view_->selectionModel()->selection();
    if (selection.isEmpty() && view_->currentIndex().isValid())
        selection.select(view_->currentIndex(), view_->currentIndex());
    if (selection.isEmpty())
        return;
    const bool one = selection.size() == 1 && selection.front().width() == 1 && selection.front().height() == 1;
    const WaitCursor waiting;
    QApplication::clipboard()->setMimeData(
        copyOf(*model_, selection, titles && !one ? CopyTitles::With : CopyTitles::Without).release());
}

void GridPane::copyAll() {
    const WaitCursor waiting;
    QApplication::clipboard()->setMimeData(copyOfAll(*model_).release());
}

void GridPane::attempt(const std::function<void()>& deed) {
    try {
        deed();
    } catch (const std::exception& failure) {
        host::GZTUtilsDialogs.Erro(failure.what());
    }
}

void GridPane::chooseLayout(const std::string& name) {
    attempt([&] { layouts_->Escolher(name); });
}

void GridPane::saveLayout(const std::string& name) {
    attempt([&] { layouts_->Salvar(name); });
}

void GridPane::deleteLayout(const std::string& name) {
    attempt([&] { layouts_->Excluir(name); });
}

} // namespace suite::desktop
