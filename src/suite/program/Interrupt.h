#pragma once

#include <atomic>
#include <functional>
#include <mutex>
#include <thread>

namespace suite::program {

// Ctrl-C and a polite kill, as a cancel of the work under way instead of an end without clean-up. Made before any other
// thread. A second signal while the first is still at work ends the program at once.
class Interrupt {
  public:
    Interrupt();
    ~Interrupt();
    Interrupt(const Interrupt&) = delete;
    Interrupt& operator=(const Interrupt&) = delete;

    bool requested() const { return requested_; }
    // What cancels the work under way; called from another thread, while it is set.
    void onRequest(std::function<void()> action);

  private:
    void wait();

    std::atomic<bool> requested_{false};
    std::atomic<bool> stopping_{false};
    std::mutex mutex_;
    std::function<void()> action_;
    std::thread thread_;
};

} // namespace suite::program
