#pragma once

#include <QWidget>

class QAction;
class QLabel;

namespace suite::desktop {

// What stands in the place of the grids while none is in view: what to do next, and the button to do it.
class EmptyState : public QWidget {
  public:
    EmptyState(QAction& select, QWidget* parent);
    // Before the first selection an invitation, after it what may be wrong with a selection that shows nothing.
    void setSelected(bool selected);

  private:
    QLabel* heading_;
    QLabel* text_;
};

} // namespace suite::desktop
