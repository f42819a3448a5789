#include "suite/desktop/LegendPanel.h"

#include "suite/desktop/Text.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>

namespace suite::desktop {

namespace {

constexpr int SwatchSize = 12;

QColor colourOf(host::TCor colour) { return QColor::fromRgb(static_cast<QRgb>(colour)); }

} // namespace

LegendPanel::LegendPanel(host::TForm& form, std::string_view panel, const std::vector<std::string>& labels,
                         QWidget* parent)
    : QWidget(parent) {
    setObjectName(fromUtf8(panel));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(12, 5, 12, 5);
    row->setSpacing(6);
    for (const auto& name : labels) {
        auto& control = form.Controle(name);
        auto* label = new QLabel(this);
        label->setObjectName(fromUtf8(name));
        const auto* coloured = dynamic_cast<host::TLabelColorido*>(&control);
        if (coloured && coloured->Fundo() == coloured->Fonte()) {
            label->setFixedSize(SwatchSize, SwatchSize);
            label->setStyleSheet(
                QStringLiteral("background:%1;border-radius:3px").arg(colourOf(coloured->Fonte()).name()));
            row->addWidget(label);
            continue;
        }
        label->setText(fromMessage(control.Caption()));
        if (coloured)
            texts_.emplace_back(label, colourOf(coloured->Fonte()));
        row->addWidget(label);
        row->addSpacing(14);
    }
    row->addStretch(1);
    colourTexts();
}

// A colour chosen for paper is hard to read on a dark window: there the text takes the window's own.
void LegendPanel::colourTexts() {
    constexpr int Dark = 128;
    const bool dark = palette().color(QPalette::Window).lightness() < Dark;
    for (const auto& [label, colour] : texts_)
        label->setStyleSheet(dark ? QString() : QStringLiteral("color:%1").arg(colour.name()));
}

void LegendPanel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange)
        colourTexts();
    QWidget::changeEvent(event);
}

} // namespace suite::desktop
