#include "suite/desktop/FieldIcons.h"

#include <QPainter>
#include <QPixmap>
#include <QWidget>

namespace suite::desktop {

namespace {

// Draws on a square of 16 units, once for each mode that a button shows.
template <class TDraw>
QIcon drawn(const QWidget& widget, TDraw draw) {
    QIcon icon;
    constexpr int Pixels = 64;
    for (const auto& [group, mode] :
         {std::pair{QPalette::Active, QIcon::Normal}, std::pair{QPalette::Disabled, QIcon::Disabled}}) {
        QPixmap picture(Pixels, Pixels);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(Pixels / 16.0, Pixels / 16.0);
        painter.setPen(QPen(widget.palette().color(group, QPalette::ButtonText), 1.5, Qt::SolidLine, Qt::RoundCap));
        draw(painter);
        painter.end();
        icon.addPixmap(picture, mode);
    }
    return icon;
}

} // namespace

QIcon searchIcon(const QWidget& widget) {
    return drawn(widget, [](QPainter& painter) {
        painter.drawEllipse(QPointF(6.5, 6.5), 4.5, 4.5);
        painter.drawLine(QPointF(10, 10), QPointF(14, 14));
    });
}

QIcon calendarIcon(const QWidget& widget) {
    return drawn(widget, [](QPainter& painter) {
        painter.drawRoundedRect(QRectF(1.5, 3, 13, 11.5), 1.5, 1.5);
        painter.drawLine(QPointF(1.5, 6.5), QPointF(14.5, 6.5));
        painter.drawLine(QPointF(5, 1.5), QPointF(5, 4));
        painter.drawLine(QPointF(11, 1.5), QPointF(11, 4));
        for (const qreal y : {9.0, 12.0})
            for (const qreal x : {4.5, 8.0, 11.5})
                painter.drawPoint(QPointF(x, y));
    });
}

} // namespace suite::desktop
