#pragma once

#include "paper/Page.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <exception>
#include <functional>
#include <memory>
#include <vector>

namespace suite::desktop {

// The pages of a preview: the first at once, the others in slices of time while the window is idle.
class PageStore : public QObject {
    Q_OBJECT

  public:
    explicit PageStore(std::unique_ptr<paper::PageSource> source, QObject* parent = nullptr);

    paper::Sheet sheet() const { return sheet_; }
    int count() const { return static_cast<int>(pages_.size()); } // made so far
    bool complete() const { return !source_; }
    const paper::Page& page(int index) const { return pages_[static_cast<std::size_t>(index)]; }
    std::exception_ptr failure() const { return failure_; } // that ended the making

  Q_SIGNALS:
    void grown(); // by a page or more, or complete now

  private:
    void make(int milliseconds);

    std::unique_ptr<paper::PageSource> source_; // null behind the last page
    paper::Sheet sheet_;
    std::vector<paper::Page> pages_;
    std::exception_ptr failure_;
    QTimer timer_;
};

} // namespace suite::desktop
