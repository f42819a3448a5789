#include "suite/desktop/look/Icons.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace suite::desktop {

namespace {

const QColor Blue(0x2f, 0x6f, 0xb5);
const QColor Teal(0x1f, 0x9d, 0x8b);
const QColor Amber(0xe0, 0x8a, 0x1e);

// Each is drawn on a square of 24 units, in outlines of the text's colour with one touch of colour.
void drawSelect(QPainter& p, const QColor&) {
    p.drawPolygon(QPolygonF{{3, 4}, {21, 4}, {14, 12.5}, {14, 19}, {10, 21}, {10, 12.5}});
}

void drawPrint(QPainter& p, const QColor& line) {
    p.drawRect(QRectF(7, 3, 10, 5));
    p.drawRoundedRect(QRectF(3, 8, 18, 8.5), 1.5, 1.5);
    p.setBrush(QApplication::palette().color(QPalette::Base));
    p.drawRect(QRectF(7, 13, 10, 8));
    p.setPen(QPen(line, 1.2));
    p.drawLine(QPointF(9, 16), QPointF(15, 16));
    p.drawLine(QPointF(9, 18.5), QPointF(13, 18.5));
}

void drawExport(QPainter& p, const QColor&) {
    p.drawPolyline(QPolygonF{{4, 13}, {4, 20.5}, {20, 20.5}, {20, 13}});
    p.setPen(QPen(Teal, 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawLine(QPointF(12, 3), QPointF(12, 15.5));
    p.drawPolyline(QPolygonF{{7.5, 11}, {12, 15.5}, {16.5, 11}});
}

void drawActual(QPainter& p, const QColor&) {
    p.drawRoundedRect(QRectF(4, 3, 12.5, 18), 1.5, 1.5);
    p.drawLine(QPointF(7, 8), QPointF(13.5, 8));
    p.drawLine(QPointF(7, 12), QPointF(11, 12));
    p.setPen(QPen(Teal, 2.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawPolyline(QPolygonF{{11.5, 16}, {15, 19.5}, {21.5, 11.5}});
}

void drawRepeat(QPainter& p, const QColor&) {
    p.drawArc(QRectF(4, 4, 16, 16), 60 * 16, 270 * 16);
    p.drawPolyline(QPolygonF{{12, 1.8}, {16.2, 5}, {12.6, 8.8}});
}

void drawBars(QPainter& p, const QColor& line) {
    p.setPen(Qt::NoPen);
    p.setBrush(Blue);
    p.drawRoundedRect(QRectF(4, 10, 3.6, 9.5), 0.8, 0.8);
    p.drawRoundedRect(QRectF(14, 4, 3.6, 15.5), 0.8, 0.8);
    p.setBrush(Amber);
    p.drawRoundedRect(QRectF(8, 7, 3.6, 12.5), 0.8, 0.8);
    p.drawRoundedRect(QRectF(18, 9, 3.6, 10.5), 0.8, 0.8);
    p.setPen(QPen(line, 1.6, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(2.5, 21), QPointF(22.5, 21));
}

void drawFile(QPainter& p, const QColor&) {
    QPainterPath side;
    side.moveTo(4, 6);
    side.lineTo(4, 18.5);
    side.arcTo(QRectF(4, 15.5, 16, 6), 180, 180);
    side.lineTo(20, 6);
    p.drawPath(side);
    p.drawEllipse(QRectF(4, 3, 16, 6));
    p.drawArc(QRectF(4, 9.3, 16, 6), 180 * 16, 180 * 16);
}

void drawServer(QPainter& p, const QColor&) {
    for (const double top : {3.5, 13.5}) {
        p.drawRoundedRect(QRectF(3, top, 18, 7), 1.5, 1.5);
        p.drawLine(QPointF(11, top + 3.5), QPointF(17.5, top + 3.5));
        p.drawPoint(QPointF(6.5, top + 3.5));
    }
}

void drawSearch(QPainter& p, const QColor&) {
    p.drawEllipse(QPointF(9.8, 9.8), 6.8, 6.8);
    p.drawLine(QPointF(15, 15), QPointF(21, 21));
}

void drawCalendar(QPainter& p, const QColor&) {
    p.drawRoundedRect(QRectF(2.3, 4.5, 19.5, 17.2), 2, 2);
    p.drawLine(QPointF(2.3, 9.8), QPointF(21.8, 9.8));
    for (const double x : {7.5, 16.5})
        p.drawLine(QPointF(x, 2.3), QPointF(x, 6));
    for (const double y : {13.5, 18.0})
        for (const double x : {6.8, 12.0, 17.2})
            p.drawPoint(QPointF(x, y));
}

using Draw = void (*)(QPainter&, const QColor&);

class DrawnIcon : public QIconEngine {
  public:
    explicit DrawnIcon(Draw draw) : draw_(draw) {}
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const auto line = QApplication::palette().color(group, QPalette::ButtonText);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setOpacity(mode == QIcon::Disabled ? 0.45 : 1);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / 24.0, rect.height() / 24.0);
        painter->setPen(QPen(line, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->setBrush(Qt::NoBrush);
        draw_(*painter, line);
        painter->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap drawn(size);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return drawn;
    }
    QIconEngine* clone() const override { return new DrawnIcon(draw_); }

  private:
    Draw draw_;
};

Draw drawingOf(Symbol symbol) {
    switch (symbol) {
    case Symbol::Select:
        return drawSelect;
    case Symbol::Print:
        return drawPrint;
    case Symbol::Export:
        return drawExport;
    case Symbol::Actual:
        return drawActual;
    case Symbol::Repeat:
        return drawRepeat;
    case Symbol::File:
        return drawFile;
    case Symbol::Server:
        return drawServer;
    case Symbol::Search:
        return drawSearch;
    case Symbol::Calendar:
        return drawCalendar;
    case Symbol::Demo:
        break;
    }
    return drawBars;
}

} // namespace

QIcon icon(Symbol symbol) { return QIcon(new DrawnIcon(drawingOf(symbol))); }

QIcon programIcon() { return icon(Symbol::Demo); }

} // namespace suite::desktop
