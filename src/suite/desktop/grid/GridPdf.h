#pragma once

#include <QString>

#include <span>
#include <string>

namespace suite::desktop {

class GridPane;

// The picture of a grid on paper, A4 across: columns in view, order, groups, sums and looks as on screen, in light
// colours, made as small as the width needs. Under the title come the pages, each with the column titles. The file is
// whole or not there. Throws base::TFalha, also for more lines than anyone would leaf through.
void writeGridPdf(const GridPane& pane, const QString& file, std::span<const std::string> title);

} // namespace suite::desktop
