#pragma once

#include <QObject>

namespace suite::desktop {

class GridPane;

// The keys of a grid: those that hold wherever the focus is in its pane, and those of its cells. It filters the events
// of the cells and of the fields around them.
class GridKeys : public QObject {
  public:
    explicit GridKeys(GridPane& pane);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool handle(int key, Qt::KeyboardModifiers modifiers, bool inCells);
    bool handleInCells(int key, Qt::KeyboardModifiers modifiers);
    bool handleOnGroup(int row, int key);

    GridPane& pane_;
};

} // namespace suite::desktop
