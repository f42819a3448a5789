#include "suite/desktop/grid/GridFooter.h"

#include "suite/desktop/look/CellColours.h"
#include "suite/desktop/look/Text.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace suite::desktop {

namespace {

QFont strong(QFont font) {
    font.setBold(true);
    return font;
}

} // namespace

GridFooter::GridFooter(const GridView& view, const GridModel& model, QWidget* parent)
    : QWidget(parent), view_(view), grid_(model) {
    setObjectName(QStringLiteral("TotaisDaGrade"));
    setAccessibleName(QStringLiteral("Totais"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(&view, &GridView::arranged, this, qOverload<>(&QWidget::update));
}

QSize GridFooter::sizeHint() const { return {100, QFontMetrics(strong(view_.font())).height() + 10}; }

QString GridFooter::text(int column) const { return grid_.sumText(grid_.rows().totalSet(), column); }

QString GridFooter::label() const { return fromUtf8(grid_.table().totalCaption(grid_.table().columns())); }

void GridFooter::refresh() {
    bool any = false;
    QString all;
    for (int i = 0; i < grid_.columnCount(); ++i) {
        any = any || grid_.column(i).sums();
        if (!text(i).isEmpty())
            all += fromUtf8(grid_.column(i).heading) + QStringLiteral(": ") + text(i) + QStringLiteral("; ");
    }
    setVisible(any);
    if (any)
        setAccessibleDescription(label() + QStringLiteral(". ") + all);
    updateGeometry();
    update();
}

QRect GridFooter::place(int column) const {
    return {view_.columnViewportPosition(column), 0, view_.columnWidth(column), height()};
}

void GridFooter::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const auto ground = palette().color(QPalette::Button);
    painter.fillRect(rect(), ground);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawLine(0, 0, width(), 0);
    const auto font = strong(view_.font());
    const QFontMetrics metrics(font);
    painter.setFont(font);
    painter.setPen(legible(palette().color(QPalette::ButtonText), ground));
    const int covered = view_.frozen().isVisibleTo(&view_) ? view_.covered() : 0;
    const int seen = view_.viewport()->width();
    int labelEnd = seen;
    for (int i = 0; i < grid_.columnCount(); ++i) {
        const auto sum = text(i);
        if (sum.isEmpty())
            continue;
        const auto cell = place(i);
        const bool scrolls = i >= grid_.frozen();
        labelEnd = std::min(labelEnd, scrolls ? std::max(covered, cell.left()) : cell.left());
        painter.setClipRect(QRect(scrolls ? covered : 0, 0, seen - (scrolls ? covered : 0), height()));
        const auto room = cell.adjusted(CellPainter::Padding, 0, -CellPainter::Padding, 0);
        const bool fits = metrics.horizontalAdvance(sum) <= room.width();
        painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter, fits ? sum : QStringLiteral("###"));
    }
    painter.setClipping(false);
    const QRect room(CellPainter::Padding, 0, labelEnd - 2 * CellPainter::Padding, height());
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter, metrics.elidedText(label(), Qt::ElideRight, room.width()));
}

bool GridFooter::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    auto tip = label();
    for (int i = 0; i < grid_.columnCount(); ++i)
        if (place(i).contains(help->pos()) && !text(i).isEmpty())
            tip = text(i);
    QToolTip::showText(help->globalPos(), tip, this);
    return true;
}

} // namespace suite::desktop
