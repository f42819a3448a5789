#include "suite/desktop/shell/Aside.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <stdexcept>
#include <utility>

namespace suite::desktop {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr milliseconds Patience{15};   // a wait this short turns no event loop
constexpr milliseconds Beat{50};       // of the loop while a call runs
constexpr milliseconds Stillness{150}; // a row of short calls leaves the window no longer without a repaint

bool isUserInput(QEvent::Type type) {
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::Close:
    case QEvent::DragEnter:
    case QEvent::Drop:
    case QEvent::InputMethod:
    case QEvent::TabletPress:
    case QEvent::TouchBegin:
        return true;
    default:
        return false;
    }
}

// Restrains the user while it lives.
class Restraint {
  public:
    explicit Restraint(QObject& filter) : filter_(filter) { qApp->installEventFilter(&filter_); }
    ~Restraint() { qApp->removeEventFilter(&filter_); }
    Restraint(const Restraint&) = delete;
    Restraint& operator=(const Restraint&) = delete;

  private:
    QObject& filter_;
};

} // namespace

Aside::Aside() : thread_([this] { work(); }) {}

Aside::~Aside() {
    {
        const std::lock_guard lock(mutex_);
        stopping_ = true;
    }
    wake_.notify_one();
    thread_.join();
}

void Aside::work() {
    std::unique_lock lock(mutex_);
    for (;;) {
        wake_.wait(lock, [this] { return job_ || stopping_; });
        if (!job_)
            return;
        const auto job = *job_;
        lock.unlock();
        std::exception_ptr failure;
        try {
            job.call(job.context);
        } catch (...) {
            failure = std::current_exception();
        }
        lock.lock();
        failure_ = std::move(failure);
        job_.reset();
        done_.notify_one();
        if (turning_)
            QAbstractEventDispatcher::instance(thread())->wakeUp();
    }
}

bool Aside::finished() {
    const std::lock_guard lock(mutex_);
    return !job_;
}

void Aside::perform(Job job) {
    if (running_)
        throw std::logic_error("a call from within the wait for another");
    running_ = true;
    bool done = false;
    {
        std::unique_lock lock(mutex_);
        job_ = job;
        wake_.notify_one();
        done = done_.wait_for(lock, Patience, [this] { return !job_; });
        turning_ = !done;
    }
    if (!done)
        turnUntilFinished();
    turning_ = false; // the worker is idle
    auto failure = std::exchange(failure_, nullptr);
    if (done && qApp && Clock::now() - lastTurn_ > Stillness)
        turn(UserInput::Waits);
    running_ = false;
    if (failure)
        std::rethrow_exception(failure);
}

void Aside::turnUntilFinished() {
    auto* dispatcher = QAbstractEventDispatcher::instance();
    if (!dispatcher) {
        std::unique_lock lock(mutex_);
        done_.wait(lock, [this] { return !job_; });
        return;
    }
    const auto begin = Clock::now();
    const int beat = startTimer(Beat);
    std::optional<Restraint> restraint;
    while (!finished()) {
        dispatcher->processEvents(QEventLoop::WaitForMoreEvents |
                                  (restraint ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents));
        const auto since = std::chrono::duration_cast<milliseconds>(Clock::now() - begin);
        if (since < Noticeable)
            continue;
        if (!restraint)
            restraint.emplace(*this);
        if (onWaiting)
            onWaiting(since);
    }
    killTimer(beat);
    if (restraint && onWaited)
        onWaited();
    lastTurn_ = Clock::now();
}

void Aside::turn(UserInput input) {
    std::optional<Restraint> restraint;
    if (input == UserInput::Dropped)
        restraint.emplace(*this);
    QCoreApplication::processEvents(restraint ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents);
    lastTurn_ = Clock::now();
}

bool Aside::eventFilter(QObject* watched, QEvent* event) {
    // A native window passes its events on to widgets, where they come by again.
    if (!isUserInput(event->type()) || watched->isWindowType())
        return false;
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (widget && admits && admits(*widget->window()))
        return false;
    if (event->type() == QEvent::Close)
        event->ignore();
    return true;
}

} // namespace suite::desktop
