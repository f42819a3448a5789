#include "suite/desktop/look/ElidedLabel.h"

namespace suite::desktop {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void ElidedLabel::setWholeText(const QString& text) {
    whole_ = text;
    elide();
}

QSize ElidedLabel::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * 4, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    elide();
}

void ElidedLabel::elide() {
    const auto shown = fontMetrics().elidedText(whole_, Qt::ElideRight, contentsRect().width() - 2 * margin());
    setText(shown);
    setToolTip(shown == whole_ ? QString() : whole_);
    setAccessibleName(whole_);
}

} // namespace suite::desktop
