#include "suite/desktop/grid/BandHeader.h"

#include "suite/desktop/look/CellColours.h"
#include "suite/desktop/look/Text.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace suite::desktop {

namespace {

constexpr int Padding = 6;
constexpr int SortRoom = 16;

} // namespace

BandHeader::BandHeader(const GridModel& model, QWidget* parent) : QHeaderView(Qt::Horizontal, parent), grid_(model) {
    setSectionsClickable(true);
    setHighlightSections(false);
    setMinimumSectionSize(28);
    setAccessibleName(QStringLiteral("Títulos das colunas"));
}

void BandHeader::setSorts(std::map<int, SortMark> sorts) {
    sorts_ = std::move(sorts);
    viewport()->update();
}

void BandHeader::setFilterHeight(int height) {
    filterHeight_ = height;
    Q_EMIT geometriesChanged();
}

void BandHeader::setCovered(int width) {
    covered_ = width;
    viewport()->update();
}

int BandHeader::lineHeight() const { return fontMetrics().height() + Padding; }

QSize BandHeader::sizeHint() const {
    return {length(), lineHeight() * (!grid_.bands().empty() ? 2 : 1) + filterHeight_ + 1};
}

int BandHeader::titleWidth(int section) const {
    return fontMetrics().horizontalAdvance(title(section)) + 2 * Padding + SortRoom;
}

const table::Band& BandHeader::bandOf(int section) const {
    const auto& bands = grid_.bands();
    const auto behind = std::upper_bound(bands.begin(), bands.end(), static_cast<std::size_t>(section),
                                         [](std::size_t column, const auto& band) { return column < band.first; });
    return *std::prev(behind);
}

QRect BandHeader::rectOf(const table::Band& band) const {
    const int first = static_cast<int>(band.first);
    int last = first + static_cast<int>(band.count) - 1;
    while (last > first && isSectionHidden(last)) // another header has the rest
        --last;
    const int left = sectionViewportPosition(first);
    return {left, 0, sectionViewportPosition(last) + sectionSize(last) - left, lineHeight()};
}

QString BandHeader::title(int section) const { return fromUtf8(grid_.column(section).shown->Titulo); }

void BandHeader::paintSort(QPainter& painter, const QRect& rect, const SortMark& mark) const {
    const int side = std::max(6, fontMetrics().height() / 2);
    const int y = rect.center().y() - side / 4;
    const int x = rect.right() - Padding - side;
    const int tip = mark.descending ? y + side / 2 : y;
    const int base = mark.descending ? y : y + side / 2;
    painter.setBrush(palette().buttonText());
    painter.setPen(Qt::NoPen);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawPolygon(QPolygon({QPoint(x, base), QPoint(x + side, base), QPoint(x + side / 2, tip)}));
    painter.setPen(palette().buttonText().color());
    if (sorts_.size() > 1)
        painter.drawText(rect.adjusted(0, 0, -Padding - side - 2, 0), Qt::AlignRight | Qt::AlignVCenter,
                         QString::number(mark.place));
}

void BandHeader::paintSection(QPainter* painter, const QRect& rect, int section) const {
    if (section >= grid_.columnCount())
        return;
    painter->save();
    painter->setClipRect(rect);
    const auto ground = palette().color(QPalette::Button);
    const auto ink = legible(palette().color(QPalette::ButtonText), ground);
    const auto line = palette().color(QPalette::Mid);
    painter->fillRect(rect, ground);
    int top = 0;
    if (!grid_.bands().empty()) {
        const auto& band = bandOf(section);
        const auto place = rectOf(band);
        painter->setPen(line);
        if (!band.caption.empty())
            painter->drawLine(rect.left(), place.bottom(), rect.right(), place.bottom());
        painter->drawLine(place.right(), 0, place.right(), rect.height());
        auto bold = font();
        bold.setBold(true);
        painter->setFont(bold);
        painter->setPen(ink);
        // The caption keeps to the part of the band that is in view.
        const auto open = viewport()->rect().adjusted(covered_, 0, 0, 0);
        const auto seen = place.intersected(open).adjusted(Padding, 0, -Padding, 0);
        painter->drawText(seen, Qt::AlignCenter,
                          QFontMetrics(bold).elidedText(fromUtf8(band.caption), Qt::ElideRight, seen.width()));
        painter->setFont(font());
        top = lineHeight();
    }
    const QRect below(rect.left(), top, rect.width(), rect.height() - top - filterHeight_);
    painter->setPen(line);
    painter->drawLine(rect.right(), top, rect.right(), rect.bottom());
    painter->drawLine(rect.left(), rect.bottom(), rect.right(), rect.bottom());
    painter->setPen(ink);
    const auto sort = sorts_.find(section);
    const int digit = sorts_.size() > 1 ? fontMetrics().horizontalAdvance(QLatin1Char('0')) : 0;
    const int right = sort == sorts_.end() ? Padding : Padding + SortRoom + digit;
    const auto room = below.adjusted(Padding, 0, -right, 0);
    const bool number = grid_.column(section).right();
    const auto text = title(section);
    const auto shown = fontMetrics().elidedText(text, Qt::ElideRight, room.width());
    painter->drawText(room, Qt::AlignVCenter | (number && shown == text ? Qt::AlignRight : Qt::AlignLeft), shown);
    if (sort != sorts_.end())
        paintSort(*painter, below, sort->second);
    painter->restore();
}

void BandHeader::paintEvent(QPaintEvent* event) {
    QHeaderView::paintEvent(event);
    if (!dragging_ || target_ < 0)
        return;
    const bool after = target_ > pressed_;
    const int x = sectionViewportPosition(target_) + (after ? sectionSize(target_) - 2 : 0);
    QPainter painter(viewport());
    const bool allowed = grid_.column(target_).shown->Faixa == grid_.column(pressed_).shown->Faixa;
    painter.fillRect(x, 0, 3, height(), palette().color(allowed ? QPalette::Highlight : QPalette::Mid));
}

void BandHeader::mousePressEvent(QMouseEvent* event) {
    // Near an edge the pointer resizes.
    const bool resizing = viewport()->cursor().shape() == Qt::SplitHCursor || cursor().shape() == Qt::SplitHCursor;
    pressed_ = event->button() == Qt::LeftButton && !resizing ? logicalIndexAt(event->pos()) : -1;
    pressedAt_ = event->pos();
    dragging_ = false;
    // A table would select the column and scroll to it.
    const QSignalBlocker quiet(pressed_ >= 0 ? this : nullptr);
    QHeaderView::mousePressEvent(event);
}

void BandHeader::mouseMoveEvent(QMouseEvent* event) {
    if (pressed_ < 0 || (event->buttons() & Qt::LeftButton) == 0) {
        QHeaderView::mouseMoveEvent(event);
        return;
    }
    if (!dragging_ && (event->pos() - pressedAt_).manhattanLength() < QApplication::startDragDistance())
        return;
    if (!dragging_) {
        dragging_ = true;
        Q_EMIT carried(true);
        viewport()->setCursor(Qt::ClosedHandCursor);
    }
    const bool here = rect().contains(event->pos()) && event->pos().x() >= covered_;
    const auto target = here ? logicalIndexAt(event->pos()) : -1;
    target_ = target == pressed_ ? -1 : target;
    viewport()->update();
}

void BandHeader::mouseReleaseEvent(QMouseEvent* event) {
    const auto pressed = pressed_;
    const bool dragged = dragging_;
    // The base has only to leave its pressed state: the click is ours.
    {
        const QSignalBlocker quiet(pressed >= 0 ? this : nullptr);
        QHeaderView::mouseReleaseEvent(event);
    }
    viewport()->unsetCursor();
    dragging_ = false;
    target_ = -1;
    viewport()->update();
    if (dragged) {
        Q_EMIT carried(false);
        drop(event->pos(), event->globalPosition().toPoint());
    } else if (pressed >= 0 && logicalIndexAt(event->pos()) == pressed) {
        Q_EMIT sortAsked(pressed, (event->modifiers() & Qt::ControlModifier) != 0);
    }
    pressed_ = -1;
}

void BandHeader::drop(const QPoint& position, const QPoint& global) {
    const int from = pressed_;
    if (!rect().contains(position) || position.x() < covered_) {
        Q_EMIT carriedOut(from, global);
        return;
    }
    const int to = logicalIndexAt(position);
    if (to >= 0 && to != from)
        Q_EMIT moveAsked(from, to);
}

} // namespace suite::desktop
