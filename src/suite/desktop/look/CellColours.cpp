#include "suite/desktop/look/CellColours.h"

#include "suite/table/Luminance.h"

#include <algorithm>
#include <cmath>

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
    const auto part = [share](int x, int y) { return static_cast<int>(std::lround(x + (y - x) * share)); };
    return {part(a.red(), b.red()), part(a.green(), b.green()), part(a.blue(), b.blue())};
}

double contrast(const QColor& a, const QColor& b) {
    const auto [low, high] = std::minmax({luminance(a), luminance(b)});
    return (high + 0.05) / (low + 0.05);
}

QColor legible(const QColor& wanted, const QColor& ground) {
    const QColor end = contrast(Qt::white, ground) > contrast(Qt::black, ground) ? Qt::white : Qt::black;
    constexpr int Steps = 20;
    for (int step = 0; step < Steps; ++step)
        if (const auto color = mixed(wanted, end, static_cast<double>(step) / Steps);
            contrast(color, ground) >= LeastContrast)
            return color;
    return end;
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
