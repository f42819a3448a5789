#pragma once

#include <QLabel>

namespace suite::desktop {

// One line of read-only text that shortens to its width; the whole of it is its tooltip while it is shortened.
class ElidedLabel : public QLabel {
    Q_OBJECT

  public:
    explicit ElidedLabel(QWidget* parent = nullptr);
    void setWholeText(const QString& text);
    const QString& wholeText() const { return whole_; }
    QSize minimumSizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void elide();
    QString whole_;
};

} // namespace suite::desktop
