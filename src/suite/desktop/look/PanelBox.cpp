#include "suite/desktop/look/PanelBox.h"

#include <QPainter>
#include <QStyle>

namespace suite::desktop {

namespace {

constexpr int Margin = 6;

} // namespace

PanelBox::PanelBox(QWidget* parent) : QWidget(parent) {}

void PanelBox::setCaption(const QString& caption) {
    caption_ = caption;
    setContentsMargins(0, caption.isEmpty() ? 0 : fontMetrics().height() + Margin, 0, 0);
    update();
}

void PanelBox::paintEvent(QPaintEvent* event) {
    QWidget::paintEvent(event);
    if (caption_.isEmpty())
        return;
    QPainter painter(this);
    const QRect line(Margin, Margin, width() - 2 * Margin, fontMetrics().height());
    style()->drawItemText(&painter, line, Qt::AlignLeft, palette(), isEnabled(),
                          fontMetrics().elidedText(caption_, Qt::ElideRight, line.width()), QPalette::WindowText);
}

} // namespace suite::desktop
