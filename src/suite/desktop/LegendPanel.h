#pragma once

#include "host/Formularios.h"

#include <QColor>
#include <QWidget>

#include <string_view>
#include <utility>
#include <vector>

class QLabel;

namespace suite::desktop {

// A legend in one row: labels of the form in their order, a label in one colour alone as a swatch before its text.
class LegendPanel : public QWidget {
  public:
    LegendPanel(host::TForm& form, std::string_view panel, const std::vector<std::string>& labels, QWidget* parent);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void colourTexts();

    std::vector<std::pair<QLabel*, QColor>> texts_; // in a colour of their own
};

} // namespace suite::desktop
