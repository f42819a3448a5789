#pragma once

#include "suite/desktop/form/LookupRows.h"

#include <QDialog>

class QKeyEvent;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableView;

namespace suite::desktop {

// The window of a search. Typing filters; arrows go through the rows; Enter or a double click picks. Where several may
// be chosen, Space marks (Ctrl+Space while a filter is being typed), Ctrl+A marks all that is shown, and with any mark,
// or where there were marks at first, Enter confirms them.
class SearchDialog : public QDialog {
    Q_OBJECT

  public:
    SearchDialog(const host::TZTLookupEx& lookup, const host::TDataSet& search, QWidget* parent);

    const LookupRows& rows() const { return rows_; }
    bool byMarks() const; // otherwise the current row was picked
    std::size_t currentPosition() const;
    void accept() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void arrange(const host::TZTLookupEx& lookup);
    void sizeColumns();
    void filter(const QString& text);
    bool keyPressed(bool inFilter, const QKeyEvent& event);
    void toggleCurrent();
    void count();

    LookupRows rows_;
    QLineEdit* filter_;
    QTableView* table_;
    QLabel* count_;
    QPushButton* ok_;
    std::size_t total_;
    bool hadMarks_;
};

} // namespace suite::desktop
