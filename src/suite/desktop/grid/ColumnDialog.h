#pragma once

#include "host/Grade.h"

#include <QDialog>

class QListWidget;
class QPushButton;

namespace suite::desktop {

// Which columns are in view and in which order. Technical columns, which have no title, are not offered and keep their
// place.
class ColumnDialog : public QDialog {
    Q_OBJECT

  public:
    ColumnDialog(std::vector<host::TColunaGrade> columns, QWidget* parent);

    std::vector<host::TColunaGrade> columns() const { return columns_; } // as chosen

  private:
    void fill(std::size_t current);
    void move(int step);
    void checked();

    std::vector<host::TColunaGrade> columns_;
    std::vector<std::size_t> offered_; // places, by row of the list
    QListWidget* list_;
    QPushButton* ok_;
};

} // namespace suite::desktop
