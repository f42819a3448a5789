#pragma once

#include "suite/desktop/grid/GridModel.h"

#include <QHeaderView>

#include <map>

namespace suite::desktop {

// A header of two levels: the bands of the columns, where there are any, above their titles; below both, room for a
// row of filters. Columns are dragged by it, inside their band or out to wherever the owner takes them.
class BandHeader : public QHeaderView {
    Q_OBJECT

  public:
    struct SortMark {
        int place; // from 1 among the columns that sort
        bool descending;
    };

    explicit BandHeader(const GridModel& model, QWidget* parent = nullptr);

    void setSorts(std::map<int, SortMark> sorts);
    void setFilterHeight(int height);
    int filterHeight() const { return filterHeight_; }
    QSize sizeHint() const override;
    // Another header lies over the first part of this one: captions and drops keep clear of it.
    void setCovered(int width);
    // Least width of a section that shows its whole title.
    int titleWidth(int section) const;

  Q_SIGNALS:
    void sortAsked(int section, bool together);
    void moveAsked(int from, int to);
    void carriedOut(int section, const QPoint& global); // dropped outside the header
    void carried(bool on);

  protected:
    void paintSection(QPainter* painter, const QRect& rect, int section) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    int lineHeight() const;
    QString title(int section) const;
    const table::Band& bandOf(int section) const;
    QRect rectOf(const table::Band& band) const; // of all of it, what is scrolled out of view too
    void paintSort(QPainter& painter, const QRect& rect, const SortMark& mark) const;
    void drop(const QPoint& position, const QPoint& global);

    const GridModel& grid_;
    std::map<int, SortMark> sorts_;
    int filterHeight_ = 0;
    int covered_ = 0;
    int pressed_ = -1;
    QPoint pressedAt_;
    bool dragging_ = false;
    int target_ = -1; // section below the pointer while dragging
};

} // namespace suite::desktop
