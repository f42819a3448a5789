#pragma once

#include "suite/desktop/grid/GridModel.h"

#include <QItemSelection>

#include <memory>

class QMimeData;

namespace suite::desktop {

enum class CopyTitles { With, Without };

// Cells as text with tabs and as a table of HTML, for spreadsheets and for letters, as they are displayed. What lies
// between selected cells and is not selected stays empty. More than MostHtmlRows rows go as text alone.
inline constexpr int MostHtmlRows = 5000;
std::unique_ptr<QMimeData> copyOf(const GridModel& model, const QItemSelection& selection, CopyTitles titles);
std::unique_ptr<QMimeData> copyOfAll(const GridModel& model);

} // namespace suite::desktop
