#include "suite/desktop/grid/GridSizes.h"

#include "suite/desktop/grid/GridFooter.h"
#include "suite/desktop/grid/GridView.h"

#include <algorithm>
#include <cmath>

namespace suite::desktop {

namespace {

constexpr int LeastZoom = -5;
constexpr int MostZoom = 10;
constexpr double ZoomStep = 1.1;
constexpr int SampledRows = 80;
constexpr int MostWidth = 340;
constexpr int MostTitleWidth = 200;
constexpr int RowPadding = 7;
constexpr int FilterPadding = 9;

} // namespace

GridSizes::GridSizes(const GridModel& model, GridView& view, GridFooter& footer)
    : QObject(&view), model_(model), view_(view), footer_(footer),
      usualSize_(view.parentWidget()->font().pointSizeF()) {
    connect(&view.header(), &QHeaderView::sectionResized, this,
            [this](int column, int, int width) { resized(column, width); });
    applyZoom();
}

double GridSizes::scale() const { return std::pow(ZoomStep, zoom_); }

void GridSizes::zoom(int steps) {
    zoom_ = steps == 0 ? 0 : std::clamp(zoom_ + steps, LeastZoom, MostZoom);
    applyZoom();
}

void GridSizes::applyZoom() {
    auto scaled = view_.parentWidget()->font();
    scaled.setPointSizeF(usualSize_ * scale());
    view_.setFont(scaled);
    const QFontMetrics metrics(scaled);
    view_.setRowHeight(metrics.height() + RowPadding);
    view_.setFilterHeight(metrics.height() + FilterPadding);
    apply();
    footer_.refresh();
}

int GridSizes::fittingWidth(int column) const {
    const auto* painter = static_cast<const CellPainter*>(view_.itemDelegate());
    int width = std::min(view_.header().titleWidth(column), static_cast<int>(MostTitleWidth * scale()));
    const auto count = model_.rowCount();
    // The first rows, and others spread over all.
    for (int i = 0; i < std::min(count, SampledRows); ++i) {
        const int row = i < SampledRows / 2 || count <= SampledRows
                            ? i
                            : static_cast<int>(static_cast<std::int64_t>(i) * (count - 1) / (SampledRows - 1));
        width = std::max(width, painter->widthOf(row, column));
    }
    auto bold = view_.font();
    bold.setBold(true);
    width = std::max(width, QFontMetrics(bold).horizontalAdvance(footer_.text(column)) + 2 * CellPainter::Padding);
    return std::min(width + 2, static_cast<int>(MostWidth * scale()));
}

void GridSizes::apply() {
    applying_ = true;
    for (int i = 0; i < model_.columnCount(); ++i) {
        const auto& field = model_.field(i);
        if (!widths_.contains(field))
            widths_[field] = static_cast<int>(std::ceil(fittingWidth(i) / scale()));
        view_.setColumnWidth(i, static_cast<int>(std::lround(widths_[field] * scale())));
    }
    applying_ = false;
}

void GridSizes::resized(int column, int width) {
    if (applying_ || column >= model_.columnCount() || width == 0)
        return;
    const auto& field = model_.field(column);
    widths_[field] = static_cast<int>(std::lround(width / scale()));
    chosen_.insert(field);
}

void GridSizes::fit(int column) {
    if (column < 0 || column >= model_.columnCount())
        return;
    widths_.erase(model_.field(column));
    chosen_.erase(model_.field(column));
    apply();
}

void GridSizes::fitAll(bool chosen) {
    if (chosen)
        chosen_.clear();
    std::erase_if(widths_, [this](const auto& entry) { return !chosen_.contains(entry.first); });
    apply();
}

} // namespace suite::desktop
