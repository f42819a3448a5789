#pragma once

#include "suite/desktop/grid/GridView.h"

#include <QLineEdit>

#include <map>

namespace suite::desktop {

// A field below the title of each column that takes what its values must match.
class FilterRow : public QObject {
    Q_OBJECT

  public:
    // Both outlive the row.
    FilterRow(GridView& view, const GridModel& model, QObject* keys);

    void columnsChanged();
    const std::map<std::string, std::string>& texts() const { return texts_; } // by field, none of them empty
    void clear();
    void focus(int column);
    std::vector<QWidget*> inOrder() const { return {byColumn_.begin(), byColumn_.end()}; }

  Q_SIGNALS:
    void changed();
    void left(int column); // back to the cells

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QLineEdit* make(const std::string& field);
    void place();
    int columnOf(const QObject* edit) const;
    bool key(QLineEdit& edit, int key, Qt::KeyboardModifiers modifiers);

    GridView& view_;
    const GridModel& grid_;
    QObject* keys_; // sees what is typed before the row does
    std::map<std::string, QLineEdit*> edits_;
    std::vector<QLineEdit*> byColumn_;
    std::map<std::string, std::string> texts_;
};

} // namespace suite::desktop
