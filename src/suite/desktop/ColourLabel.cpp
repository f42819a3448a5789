#include "suite/desktop/ColourLabel.h"

#include <QPainter>

namespace suite::desktop {

ColourLabel::ColourLabel(const host::TLabelColorido& label, QWidget* parent)
    : QLabel(parent), font_(QRgb(label.Fonte())), swatch_(label.Fundo() == label.Fonte()) {
    if (label.Fundo())
        background_ = QColor(QRgb(*label.Fundo()));
    if (swatch_) {
        const int side = fontMetrics().height();
        setIndent(side + side / 2);
        setMinimumSize(side, side);
        return;
    }
    // Both colours of a pair are set together: the module's are made for a light background.
    auto colours = palette();
    colours.setColor(QPalette::Active, QPalette::WindowText, font_);
    colours.setColor(QPalette::Inactive, QPalette::WindowText, font_);
    const bool dark = colours.color(QPalette::Window).lightness() < font_.lightness() + 64;
    if (background_.isValid() || dark) {
        colours.setColor(QPalette::Window, background_.isValid() ? background_ : QColor(Qt::white));
        setAutoFillBackground(true);
    }
    setPalette(colours);
}

void ColourLabel::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (!swatch_)
        return;
    QPainter painter(this);
    const int side = fontMetrics().height() - 2;
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(isEnabled() ? QBrush(font_) : QBrush(font_, Qt::Dense4Pattern));
    painter.drawRect(1, (height() - side) / 2, side, side - 1);
}

} // namespace suite::desktop
