#include "suite/desktop/look/CellColours.h"

#include "suite/table/Luminance.h"

namespace suite::desktop {

namespace {

constexpr host::TCor Black = 0;

double luminance(const QColor& color) { return table::luminance(color.rgb()); }

bool dark(const QPalette& palette) {
    return luminance(palette.color(QPalette::Base)) < luminance(palette.color(QPalette::Text));
}

// What stands out from white paper by being darker stands out from a dark ground by being lighter.
QColor dimmed(const QColor& paper) {
    constexpr int Least = 48;
    return QColor::fromHsl(paper.hslHue(), paper.hslSaturation() / 2, Least + (255 - paper.lightness()) * 6 / 10);
}

} // namespace

QPalette paperPalette() {
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::Midlight, QColor(0xD0D0D0));
    return palette;
}

QColor mixed(const QColor& a, const QColor& b, double share) {
    return QColor::fromRgb(table::mixed(a.rgb() & RGB_MASK, b.rgb() & RGB_MASK, share));
}

double contrast(const QColor& a, const QColor& b) { return table::contrast(a.rgb(), b.rgb()); }

QColor legible(const QColor& wanted, const QColor& ground) {
    return QColor::fromRgb(table::legible(wanted.rgb() & RGB_MASK, ground.rgb() & RGB_MASK));
}

CellColours coloursOf(const host::TAparencia& look, const QPalette& palette) {
    CellColours colours{palette.color(QPalette::Text), palette.color(QPalette::Base)};
    if (look.Fundo)
        colours.ground = dark(palette) ? dimmed(QColor::fromRgb(*look.Fundo)) : QColor::fromRgb(*look.Fundo);
    if (look.Fonte && *look.Fonte != Black)
        colours.text = QColor::fromRgb(*look.Fonte);
    colours.text = legible(colours.text, colours.ground);
    return colours;
}

} // namespace suite::desktop
