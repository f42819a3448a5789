#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <mutex>
#include <thread>

namespace suite::program {

// Ctrl-C, a polite kill and a closed terminal, as a cancel of the work under way instead of an end without clean-up.
// Made by the main thread before any other. The process ends at once, without clean-up but with nothing left behind, on
// a second signal, on a wait that outlives a kill by most of a second, and on a call of the client library in which the
// main thread has stood still for longer than any lock is waited for.
class Interrupt {
  public:
    static constexpr std::chrono::seconds DefaultPatience{30};

    explicit Interrupt(std::chrono::milliseconds patience = DefaultPatience);
    ~Interrupt();
    Interrupt(const Interrupt&) = delete;
    Interrupt& operator=(const Interrupt&) = delete;

    bool requested() const { return requested_; }
    // What cancels the work under way; called from another thread, while it is set.
    void onRequest(std::function<void()> action);
    // Whether waits in the library are bounded, as they are for a database in this process. A server may take its time.
    void boundWaits(bool bound) { bounded_ = bound; }

  private:
    using Clock = std::chrono::steady_clock;

    void watch();
    void take(int signal);
    void lookForStandstill();

    std::atomic<bool> requested_{false};
    std::atomic<bool> bounded_{false};
    std::atomic<bool> stopping_{false};
    std::mutex mutex_;
    std::function<void()> action_;
    std::chrono::milliseconds patience_;
    clockid_t mainClock_{};
    std::chrono::nanoseconds mainTime_{};
    Clock::time_point moved_ = Clock::now();
    Clock::time_point deadline_ = Clock::time_point::max();
    std::thread thread_;
    std::thread canceller_;
};

} // namespace suite::program
