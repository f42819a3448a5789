#pragma once

#include "suite/table/Chart.h"

#include <QWidget>

class QPushButton;

namespace suite::desktop {

class GridPane;

// The chart beside a grid. It follows the selected line and the filter of the pane that it is given.
class ChartPane : public QWidget {
    Q_OBJECT

  public:
    explicit ChartPane(QWidget* parent = nullptr);

    // The pane must outlive the chart or another must take its place first. Null: nothing to show.
    void setPane(GridPane* pane);
    const table::ChartData& data() const { return data_; }
    // As a picture file by its ending (.png, .pdf). Throws base::TFalha.
    void save(const QString& file) const;
    QSize sizeHint() const override { return {420, 360}; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    class Canvas;
    void update();
    void askAndSave();
    void copy();
    QImage picture() const;
    bool writePdf(const QString& file) const;

    GridPane* pane_ = nullptr;
    table::ChartData data_;
    QWidget* canvas_;
    QPushButton* save_;
    QPushButton* copy_;
};

} // namespace suite::desktop
