#pragma once

#include "suite/desktop/preview/PageStore.h"

#include <QTreeWidget>

namespace suite::desktop {

// The groups of a report, by the page on which they begin.
class PageOutline : public QTreeWidget {
    Q_OBJECT

  public:
    // The store outlives the outline.
    PageOutline(PageStore& pages, QWidget* parent);

  Q_SIGNALS:
    void chosen(int page, int y); // in micrometres

  private:
    void grow();

    PageStore& pages_;
    int read_ = 0;                                     // pages
    std::vector<std::pair<int, QTreeWidgetItem*>> in_; // levels and entries around the last one, and itself
};

} // namespace suite::desktop
