#pragma once

#include "suite/table/Chart.h"

#include <QPalette>
#include <QRectF>

class QPainter;

namespace suite::desktop {

// Paints the chart into the area, in the painter's font and the colours of the palette: the same for screen, picture
// and paper.
void paintChart(QPainter& painter, const QRectF& area, const table::ChartData& data, const QPalette& palette);

// Round marks of an axis that holds zero and both ends.
struct Axis {
    double from = 0;
    double to = 0;
    double step = 1;
};
Axis axisOver(double least, double most);
// "1,2 mi", "350 mil", "80".
QString shortNumber(double value);

} // namespace suite::desktop
