#pragma once

#include "suite/desktop/grid/BandHeader.h"
#include "suite/desktop/grid/CellPainter.h"

#include <QTableView>

namespace suite::desktop {

// A table as a grid shows it: rows of one height, scrolled by the pixel, groups that open and close by the mouse.
class GridTable : public QTableView {
    Q_OBJECT

  public:
    GridTable(GridModel& model, QWidget* parent);
    BandHeader& header() const { return *header_; }

  Q_SIGNALS:
    void toggleAsked(int row);

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

    GridModel& grid_;

  private:
    BandHeader* header_;
};

// The grid itself. Leading columns stay in view: a second table over the same model and selection covers the first.
class GridView : public GridTable {
    Q_OBJECT

  public:
    explicit GridView(GridModel& model, QWidget* parent = nullptr);

    GridTable& frozen() const { return *frozen_; }
    BandHeader& headerOf(int column) const; // which shows it
    int covered() const;                    // width of the columns that stay
    void columnsChanged();                  // the model's columns are others
    void setRowHeight(int height);
    void setFilterHeight(int height);
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    void keyboardSearch(const QString& text) override { Q_EMIT typed(text); }

  Q_SIGNALS:
    void typed(const QString& text);
    void zoomAsked(int steps);
    void arranged(); // columns have another place or width

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void updateGeometries() override;
    void changeEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

  private:
    void placeFrozen();

    GridTable* frozen_ = nullptr; // the base's events come before them
    CellPainter* painter_ = nullptr;
};

} // namespace suite::desktop
