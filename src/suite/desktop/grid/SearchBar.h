#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;

namespace suite::desktop {

// The quick search of a grid: what is typed is looked for in all columns. Hidden until it is asked for.
class SearchBar : public QWidget {
    Q_OBJECT

  public:
    // The watcher sees the keys of its field first.
    SearchBar(QWidget* parent, QObject* watcher);

    void open(const QString& text);
    QString text() const;
    void tell(bool found);

  Q_SIGNALS:
    void sought(bool forward, bool fromHere); // from here: the current cell may be the one
    void closed();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QLineEdit* edit_;
    QLabel* result_;
};

} // namespace suite::desktop
