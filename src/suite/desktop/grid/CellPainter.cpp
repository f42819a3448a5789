#include "suite/desktop/grid/CellPainter.h"

#include "suite/desktop/look/CellColours.h"
#include "suite/desktop/look/Text.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QPainter>
#include <QTableView>

#include <algorithm>

namespace suite::desktop {

namespace {

QFont bold(QFont font, bool on = true) {
    font.setBold(on);
    return font;
}

} // namespace

CellPainter::CellPainter(const GridModel& model, const QTableView& view) : grid_(model), view_(view) {}

int CellPainter::widthOf(int row, int column) const {
    if (grid_.isGroup(row))
        return QFontMetrics(bold(view_.font()))
                   .horizontalAdvance(grid_.sumText(grid_.rows().groupAt(static_cast<std::size_t>(row)), column)) +
               2 * Padding;
    const auto cell = grid_.cell(row, column);
    const QFontMetrics metrics(bold(view_.font(), cell.look.Negrito));
    return metrics.horizontalAdvance(fromUtf8(cell.text)) + 2 * Padding +
           (grid_.table().showsSign(grid_.column(column)) ? metrics.horizontalAdvance(QStringLiteral("MM")) + Padding
                                                          : 0);
}

void CellPainter::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    painter->save();
    painter->setClipRect(option.rect);
    if (grid_.isGroup(index.row()))
        paintGroup(*painter, option, index);
    else
        paintLine(*painter, option, index);
    paintFrame(*painter, option, index);
    painter->restore();
}

void CellPainter::paintFrame(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const auto& palette = option.palette;
    const auto& r = option.rect;
    const int column = index.column();
    const bool bandEnds = column + 1 < grid_.columnCount() && !grid_.isGroup(index.row()) &&
                          grid_.column(column).shown->Faixa != grid_.column(column + 1).shown->Faixa;
    painter.setPen(mixed(palette.color(QPalette::Base), palette.color(QPalette::Text), 0.12));
    painter.drawLine(r.bottomLeft(), r.bottomRight());
    if (bandEnds) {
        painter.setPen(mixed(palette.color(QPalette::Base), palette.color(QPalette::Text), 0.3));
        painter.drawLine(r.topRight(), r.bottomRight());
    }
    if (!view_.hasFocus() || index.row() != view_.currentIndex().row())
        return;
    painter.setPen(palette.color(QPalette::Text));
    painter.setBrush(Qt::NoBrush);
    if (grid_.isGroup(index.row())) { // a group row has the focus as a whole
        painter.drawLine(r.topLeft(), r.topRight());
        painter.drawLine(r.bottomLeft(), r.bottomRight());
    } else if (index == view_.currentIndex()) {
        painter.drawRect(r.adjusted(0, 0, -1, -1));
    }
}

void CellPainter::paintLine(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const bool current = index.row() == view_.currentIndex().row();
    const auto cell = grid_.cell(index.row(), index.column(), current);
    auto colours = coloursOf(cell.look, option.palette);
    if ((option.state & QStyle::State_Selected) != 0) {
        colours.text = option.palette.color(QPalette::HighlightedText);
        colours.ground = legible(option.palette.color(QPalette::Highlight), colours.text);
    } else if (current) {
        colours.ground = mixed(colours.ground, option.palette.color(QPalette::Highlight), 0.16);
        colours.text = legible(colours.text, colours.ground);
    }
    painter.fillRect(option.rect, colours.ground);
    if (cell.look.Vazio)
        return;
    const auto font = bold(view_.font(), cell.look.Negrito);
    const QFontMetrics metrics(font);
    painter.setFont(font);
    painter.setPen(colours.text);
    auto room = option.rect.adjusted(Padding, 0, -Padding, -1);
    if (grid_.table().showsSign(grid_.column(index.column()))) {
        const auto sign = grid_.sign(index.row());
        painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter, sign);
        room.setLeft(room.left() + metrics.horizontalAdvance(sign) + Padding);
    }
    const bool number = grid_.column(index.column()).right();
    auto text = fromUtf8(cell.text);
    if (metrics.horizontalAdvance(text) > room.width()) // a number cut short is another number
        text = number
                   ? QString(std::max(1, room.width() / metrics.horizontalAdvance(QLatin1Char('#'))), QLatin1Char('#'))
                   : metrics.elidedText(text, Qt::ElideRight, room.width());
    painter.drawText(room, Qt::AlignVCenter | Qt::TextSingleLine | (number ? Qt::AlignRight : Qt::AlignLeft), text);
}

int CellPainter::captionEnd(int row) const {
    const auto set = grid_.rows().groupAt(static_cast<std::size_t>(row));
    for (int column = 0; column < grid_.columnCount(); ++column)
        if (!grid_.sumText(set, column).isEmpty())
            return std::max(column < grid_.frozen() ? 0 : covered_, view_.columnViewportPosition(column));
    return view_.viewport()->width();
}

void CellPainter::paintGroup(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const auto& palette = option.palette;
    const double shade = 0.14 - 0.03 * std::min(3, grid_.level(index.row()));
    auto ground = mixed(palette.color(QPalette::Base), palette.color(QPalette::Text), shade);
    if (index.row() == view_.currentIndex().row() || (option.state & QStyle::State_Selected) != 0)
        ground = mixed(ground, palette.color(QPalette::Highlight), 0.3);
    const auto ink = legible(palette.color(QPalette::Text), ground);
    painter.fillRect(option.rect, ground);
    const auto font = bold(view_.font());
    const QFontMetrics metrics(font);
    painter.setFont(font);
    painter.setPen(ink);
    const auto set = grid_.rows().groupAt(static_cast<std::size_t>(index.row()));
    if (const auto sum = grid_.sumText(set, index.column()); !sum.isEmpty()) {
        const auto room = option.rect.adjusted(Padding, 0, -Padding, -1);
        const bool fits = metrics.horizontalAdvance(sum) <= room.width();
        painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter, fits ? sum : QStringLiteral("###"));
        return;
    }
    // The caption starts at the left of the view, scrolled or not, and goes on over the cells to the first sum. Each
    // cell draws its own piece of it.
    const int end = captionEnd(index.row());
    const int left = indent(grid_.level(index.row()));
    if (option.rect.left() >= end)
        return;
    const int side = metrics.height() * 2 / 3;
    const QPoint middle(left + side / 2, option.rect.center().y());
    painter.setBrush(ink);
    painter.setPen(Qt::NoPen);
    painter.setRenderHint(QPainter::Antialiasing);
    if (grid_.isOpen(index.row()))
        painter.drawPolygon(QPolygon({middle + QPoint(-side / 2, -side / 4), middle + QPoint(side / 2, -side / 4),
                                      middle + QPoint(0, side / 3)}));
    else
        painter.drawPolygon(QPolygon({middle + QPoint(-side / 4, -side / 2), middle + QPoint(-side / 4, side / 2),
                                      middle + QPoint(side / 3, 0)}));
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(ink);
    const int start = left + arrowRoom(metrics);
    const QRect room(start, option.rect.top(), end - start - Padding, option.rect.height() - 1);
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                     metrics.elidedText(grid_.caption(index.row()), Qt::ElideRight, room.width()));
}

bool CellPainter::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                            const QModelIndex& index) {
    // A text that is seen in full needs no second telling.
    const bool plain = index.isValid() && !grid_.isGroup(index.row()) && grid_.meaning(index.row()).isEmpty();
    if (event->type() == QEvent::ToolTip && plain && widthOf(index.row(), index.column()) <= option.rect.width()) {
        event->ignore();
        return false;
    }
    return QStyledItemDelegate::helpEvent(event, view, option, index);
}

} // namespace suite::desktop
