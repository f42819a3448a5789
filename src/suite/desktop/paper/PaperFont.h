#pragma once

#include "suite/desktop/paper/PaperText.h"

#include <QFont>

namespace suite::desktop::paper {

// The letters of paper. No pair of them is drawn together, so that a text is as wide as its letters.
QFont paperFont(bool bold);

// Widths in it.
Measure paperMeasure();

} // namespace suite::desktop::paper
