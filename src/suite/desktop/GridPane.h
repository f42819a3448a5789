#pragma once

#include "host/Grade.h"
#include "host/Leiaute.h"

#include <QWidget>

#include <cstdint>
#include <optional>
#include <vector>

class QMenu;

namespace suite::desktop {

// A grid on screen: bands, grouping, sorting, filter, frozen identification, totals, copy, zoom. It shows the dataset's
// columns as they are and copies no rows. What the user does to columns goes into the grid's columns, so that layouts
// and exports see it.
class GridPane : public QWidget {
    Q_OBJECT

  public:
    // Named after the grid. The grid must outlive the pane.
    explicit GridPane(host::TGrade& grid, QWidget* parent = nullptr);

    host::TGrade& grid() const { return grid_; }
    // Adds the choice of layouts to the grid's menu. They must outlive the pane.
    void setLayouts(host::TZTDbGridDevLeiaute& layouts);

    // Rows of the dataset, by position from 0, in the order in which they are shown. Filtered ones are left out, those
    // of collapsed groups are in.
    const std::vector<std::uint32_t>& lines() const;
    std::optional<std::size_t> currentLine() const; // position in the dataset
    // Fills a menu with what can be done to the grid.
    void fillMenu(QMenu& menu);

  Q_SIGNALS:
    void linesChanged();       // other rows, or another order of them
    void currentLineChanged(); // another row has the focus

  private:
    host::TGrade& grid_;
};

} // namespace suite::desktop
