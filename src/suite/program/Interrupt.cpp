#include "suite/program/Interrupt.h"

#include "suite/program/ExitCode.h"

#include <csignal>
#include <cstdlib>
#include <pthread.h>

namespace suite::program {

namespace {

sigset_t watched() {
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGINT);
    sigaddset(&set, SIGTERM);
    return set;
}

} // namespace

Interrupt::Interrupt() {
    const auto set = watched();
    pthread_sigmask(SIG_BLOCK, &set, nullptr); // inherited by every later thread: only ours receives
    thread_ = std::thread([this] { wait(); });
}

Interrupt::~Interrupt() {
    stopping_ = true;
    pthread_kill(thread_.native_handle(), SIGINT);
    thread_.join();
}

void Interrupt::onRequest(std::function<void()> action) {
    const std::lock_guard lock(mutex_);
    action_ = std::move(action);
}

void Interrupt::wait() {
    const auto set = watched();
    int signal = 0;
    while (sigwait(&set, &signal) == 0 && !stopping_) {
        if (requested_.exchange(true))
            std::_Exit(static_cast<int>(ExitCode::Cancelled));
        const std::lock_guard lock(mutex_);
        if (action_)
            action_();
    }
}

} // namespace suite::program
