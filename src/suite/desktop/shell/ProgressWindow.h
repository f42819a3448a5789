#pragma once

#include "host/Interacao.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QPointer>

#include <functional>
#include <vector>

class QLabel;
class QProgressBar;
class QPushButton;
class QVBoxLayout;

namespace suite::desktop {

// The progress of a long operation: a text and a bar for each level that tells of itself, the time so far, and Cancel.
// Modal, but it stops nobody: it shows itself after a moment, and goes. Esc and closing ask first, in the window
// itself.
class ProgressWindow : public QDialog {
  public:
    static constexpr int ShowAfter = 350; // milliseconds: what is done sooner does not flash by

    explicit ProgressWindow(QWidget* parent);

    // Before that window from its next showing on, which need not outlive this one; null: in the middle of the screen.
    void standBefore(QWidget* window);
    void apply(const host::TEventoProgresso& event);
    // A single bar of unknown length, for work that tells nothing of itself.
    void showBusy(const QString& text);
    void finish();
    // Whether the user has cancelled what is in view.
    bool cancelled() const { return isVisible() && cancelled_; }
    std::function<void()> onCancel;

    void reject() override;

  protected:
    void timerEvent(QTimerEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    struct Level {
        QLabel* text;
        QProgressBar* bar;
    };
    Level& level(int index);
    void begin();
    void appear();
    void ask(bool asking);
    void cancel();
    void showTime();

    QVBoxLayout* bars_;
    std::vector<Level> levels_;
    QLabel* time_;
    QLabel* question_;
    QPushButton* goOn_;
    QPushButton* cancel_;
    QElapsedTimer clock_;
    QPointer<QWidget> before_;
    int timer_ = 0;
    int delay_ = 0;
    bool cancelled_ = false;
};

} // namespace suite::desktop
