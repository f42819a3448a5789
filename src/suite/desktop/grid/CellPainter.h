#pragma once

#include "suite/desktop/grid/GridModel.h"

#include <QStyledItemDelegate>

class QTableView;

namespace suite::desktop {

// Draws the cells of a grid: the looks that the rules give, numbers that are never cut, group rows with their caption
// across the columns.
class CellPainter : public QStyledItemDelegate {
    Q_OBJECT

  public:
    static constexpr int Padding = 6;

    // The view tells where the columns stand; others may share the painter.
    CellPainter(const GridModel& model, const QTableView& view);

    // Width up to which leading columns cover the others.
    void setCovered(int width) { covered_ = width; }
    static int indent(int level) { return 6 + 18 * level; }
    static int arrowRoom(const QFontMetrics& metrics) { return metrics.height(); }
    int widthOf(int row, int column) const; // that a cell's text needs

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

  private:
    void paintLine(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
    void paintGroup(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
    void paintFrame(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
    int captionEnd(int row) const;

    const GridModel& grid_;
    const QTableView& view_;
    int covered_ = 0;
};

} // namespace suite::desktop
