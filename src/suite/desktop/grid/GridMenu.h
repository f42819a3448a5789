#pragma once

#include <QMenu>

namespace suite::desktop {

class GridPane;

// What can be done to a grid and to one of its columns, as menus.
class GridMenu {
  public:
    explicit GridMenu(GridPane& pane) : pane_(pane) {}

    void fill(QMenu& menu);
    void fillForColumn(QMenu& menu, int column);

  private:
    void addColumn(QMenu& menu, int column);
    void addChoice(QMenu& menu, bool groups); // of columns: to group by, or to show

    GridPane& pane_;
};

} // namespace suite::desktop
