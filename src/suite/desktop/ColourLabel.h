#pragma once

#include "host/Controles.h"

#include <QLabel>

namespace suite::desktop {

// A label in its control's colours, which hold while it is enabled. One whose font and background are the same is a
// swatch: a square of that colour before its text, if it has one, in the ordinary colour of text.
class ColourLabel : public QLabel {
    Q_OBJECT

  public:
    ColourLabel(const host::TLabelColorido& label, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QColor font_;
    QColor background_; // invalid: the window's own
    bool swatch_;
};

} // namespace suite::desktop
