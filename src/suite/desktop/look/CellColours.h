#pragma once

#include "host/Grade.h"
#include "suite/table/Luminance.h"

#include <QColor>
#include <QPalette>

namespace suite::desktop {

using table::LeastContrast; // of text that everyone can read

// The colours of paper.
QPalette paperPalette();
// A part of the way from one colour to the other.
QColor mixed(const QColor& a, const QColor& b, double share);
// From 1 to 21.
double contrast(const QColor& a, const QColor& b);
// The wanted colour, as far towards black or white as it takes to be read on the ground.
QColor legible(const QColor& wanted, const QColor& ground);

struct CellColours {
    QColor text;
    QColor ground;
};

// A cell's colours in a palette. The rules choose theirs for white paper: black text is the palette's own, and on a
// dark palette a ground keeps its hue and turns dark. The text can always be read.
CellColours coloursOf(const host::TAparencia& look, const QPalette& palette);

} // namespace suite::desktop
