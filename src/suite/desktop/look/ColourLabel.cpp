#include "suite/desktop/look/ColourLabel.h"

#include "suite/desktop/look/CellColours.h"

#include <QEvent>
#include <QPainter>

namespace suite::desktop {

ColourLabel::ColourLabel(const host::TLabelColorido& label, QWidget* parent)
    : QLabel(parent), font_(QRgb(label.Fonte())), swatch_(label.Amostra()) {
    if (swatch_) {
        const int side = fontMetrics().height();
        setFixedSize(side, side);
        return;
    }
    if (label.Fundo()) {
        background_ = QColor(QRgb(*label.Fundo()));
        setAutoFillBackground(true);
    }
    colourText();
}

void ColourLabel::colourText() {
    auto colours = palette();
    if (background_.isValid())
        colours.setColor(QPalette::Window, background_);
    const auto text = legible(font_, colours.color(QPalette::Window));
    for (const auto group : {QPalette::Active, QPalette::Inactive})
        colours.setColor(group, QPalette::WindowText, text);
    if (colours != palette()) // a change of palette is told here again
        setPalette(colours);
}

void ColourLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !swatch_)
        colourText();
}

void ColourLabel::paintEvent(QPaintEvent* event) {
    if (!swatch_)
        return QLabel::paintEvent(event);
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(isEnabled() ? QBrush(font_) : QBrush(font_, Qt::Dense4Pattern));
    painter.drawRect(rect().adjusted(1, 1, -2, -2));
}

} // namespace suite::desktop
