#pragma once

#include "host/Grade.h"

#include <QWidget>

class QHBoxLayout;
class QLabel;

namespace suite::desktop {

// The columns by which a grid is grouped, outermost first. A column's title may be dropped on it; a click on one of its
// buttons takes that column out again.
class GroupPanel : public QWidget {
    Q_OBJECT

  public:
    explicit GroupPanel(QWidget* parent);

    void show(const host::TGrade& grid);
    const std::vector<QWidget*>& buttons() const { return buttons_; } // outermost first
    void setInviting(bool on);                                        // a title is being dragged

  Q_SIGNALS:
    void removeAsked(const std::string& field);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QHBoxLayout* row_;
    QLabel* hint_;
    std::vector<QWidget*> buttons_;
    bool inviting_ = false;
};

} // namespace suite::desktop
