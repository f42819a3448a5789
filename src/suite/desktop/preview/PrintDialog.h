#pragma once

#include "suite/desktop/preview/Spooler.h"

#include <QDialog>

class QComboBox;
class QSpinBox;

namespace suite::desktop {

// Where to print, how many copies and which pages.
class PrintDialog : public QDialog {
  public:
    PrintDialog(const QStringList& printers, int pages, int current, QWidget* parent);

    spooler::Job job() const; // without a title

  private:
    QComboBox* printer_;
    QSpinBox* copies_;
    QSpinBox* first_;
    QSpinBox* last_;
};

} // namespace suite::desktop
