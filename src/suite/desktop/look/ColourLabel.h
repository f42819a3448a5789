#pragma once

#include "host/Controles.h"

#include <QLabel>

namespace suite::desktop {

// A label in its control's colours. Without a background of its own the text is made legible on the window's, whatever
// that becomes. A swatch is a square of its colour alone.
class ColourLabel : public QLabel {
    Q_OBJECT

  public:
    ColourLabel(const host::TLabelColorido& label, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void colourText();

    QColor font_;
    QColor background_; // invalid: the window's own
    bool swatch_;
};

} // namespace suite::desktop
