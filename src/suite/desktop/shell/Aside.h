#pragma once

#include <QObject>

#include <chrono>
#include <condition_variable>
#include <exception>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <type_traits>

class QWidget;

namespace suite::desktop {

// One worker thread beside the window's. A call runs there while the window's thread waits for it; when the wait grows
// long, it turns the event loop, so that windows repaint and the progress window lives. What the user does meanwhile
// waits in the queue at first, and is then dropped, but for the windows that are admitted.
class Aside : public QObject {
  public:
    static constexpr std::chrono::milliseconds Noticeable{300}; // from here on the user is told to wait

    Aside();
    ~Aside() override;

    // Runs the deed in the worker and returns what it returns; its exception comes to the caller unchanged. A call from
    // within a wait is a fault of the program: std::logic_error.
    template <class F>
    std::invoke_result_t<F&> run(F&& deed) {
        if constexpr (std::is_void_v<std::invoke_result_t<F&>>) {
            auto call = [&deed] { deed(); };
            perform({[](void* context) { (*static_cast<decltype(call)*>(context))(); }, &call});
        } else {
            std::optional<std::invoke_result_t<F&>> result;
            run([&] { result.emplace(deed()); });
            return std::move(*result);
        }
    }
    bool running() const { return running_; }

    // Lets what waits in the queue happen. What the user does stays there, or is dropped but for the admitted windows.
    enum class UserInput { Waits, Dropped };
    void turn(UserInput input);
    // Whether the user may act in that window during a wait.
    std::function<bool(const QWidget& window)> admits;
    // Told again and again from Noticeable on, and once at the end of such a wait.
    std::function<void(std::chrono::milliseconds since)> onWaiting;
    std::function<void()> onWaited;

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct Job {
        void (*call)(void*);
        void* context;
    };
    void perform(Job job);
    void work();
    bool finished();
    void turnUntilFinished();

    std::mutex mutex_;
    std::condition_variable wake_;
    std::condition_variable done_;
    std::optional<Job> job_;
    std::exception_ptr failure_;
    bool stopping_ = false;
    bool turning_ = false;
    bool running_ = false; // of the window's thread alone
    std::chrono::steady_clock::time_point lastTurn_ = std::chrono::steady_clock::now();
    std::thread thread_;
};

} // namespace suite::desktop
