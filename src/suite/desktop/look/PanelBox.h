#pragma once

#include <QWidget>

namespace suite::desktop {

// Holds together what a panel holds, with its caption, if it has one, at the top.
class PanelBox : public QWidget {
    Q_OBJECT

  public:
    explicit PanelBox(QWidget* parent = nullptr);
    void setCaption(const QString& caption);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QString caption_;
};

} // namespace suite::desktop
