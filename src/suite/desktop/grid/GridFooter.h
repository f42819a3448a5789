#pragma once

#include "suite/desktop/grid/GridView.h"

#include <QWidget>

namespace suite::desktop {

// The sums of the lines in view, each below its column.
class GridFooter : public QWidget {
    Q_OBJECT

  public:
    // Both outlive the footer.
    GridFooter(const GridView& view, const GridModel& model, QWidget* parent);

    void refresh();
    QString text(int column) const; // the sum of a column, "" for none
    QString label() const;          // what the sums are, or why there are none
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

  private:
    QRect place(int column) const;

    const GridView& view_;
    const GridModel& grid_;
};

} // namespace suite::desktop
