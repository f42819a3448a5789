#include "suite/program/Interrupt.h"

#include "base/Passageiros.h"
#include "suite/firebird/Api.h"
#include "suite/program/ExitCode.h"

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <pthread.h>
#include <unistd.h>

namespace suite::program {

namespace {

using std::chrono::milliseconds;

constexpr int WakeUp = SIGUSR1;
constexpr milliseconds Grace{700}; // of a kill, for an end with clean-up
constexpr milliseconds Pulse{100};
constexpr milliseconds Movement{2}; // processor time by which work is told from a wait

constexpr const char* CancelledSentence = "A operação foi cancelada; nada ficou pela metade.\n";
constexpr const char* StandstillSentence =
    "O banco de dados parou de responder. Verifique o disco; se ele estiver bem, um arquivo do banco pode estar "
    "danificado: restaure uma cópia de segurança ou verifique-o com gfix. Nada ficou gravado pela metade.\n";

// What ends the work, but for what whoever started the program has it ignore.
sigset_t watched() {
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, WakeUp);
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction present {};
        if (::sigaction(number, nullptr, &present) == 0 && present.sa_handler != SIG_IGN)
            sigaddset(&set, number);
    }
    return set;
}

[[noreturn]] void endAtOnce(const char* sentence, ExitCode code) {
    static_cast<void>(!::write(STDERR_FILENO, sentence, std::strlen(sentence)));
    base::RemoverPassageiros();
    std::_Exit(static_cast<int>(code));
}

std::chrono::nanoseconds timeOf(clockid_t clock) {
    timespec time{};
    ::clock_gettime(clock, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

} // namespace

Interrupt::Interrupt(milliseconds patience) : patience_(patience) {
    ::pthread_getcpuclockid(::pthread_self(), &mainClock_);
    const auto set = watched();
    ::pthread_sigmask(SIG_BLOCK, &set, nullptr); // inherited by every later thread: only ours receives
    thread_ = std::thread([this] { watch(); });
}

Interrupt::~Interrupt() {
    stopping_ = true;
    ::pthread_kill(thread_.native_handle(), WakeUp);
    thread_.join();
    if (canceller_.joinable())
        canceller_.join();
}

void Interrupt::onRequest(std::function<void()> action) {
    const std::lock_guard lock(mutex_);
    action_ = std::move(action);
}

void Interrupt::watch() {
    const auto set = watched();
    while (!stopping_) {
        const timespec pulse{0, std::chrono::nanoseconds(Pulse).count()};
        const int signal = ::sigtimedwait(&set, nullptr, &pulse);
        if (stopping_)
            return;
        if (signal > 0)
            take(signal);
        if (Clock::now() >= deadline_)
            endAtOnce(CancelledSentence, ExitCode::Cancelled);
        lookForStandstill();
    }
}

void Interrupt::take(int signal) {
    if (requested_.exchange(true))
        endAtOnce(CancelledSentence, ExitCode::Cancelled);
    if (signal != SIGINT)
        deadline_ = Clock::now() + Grace;
    // Of a server that does not answer the cancel waits as the work does.
    canceller_ = std::thread([this] {
        const std::lock_guard lock(mutex_);
        if (action_)
            action_();
    });
}

void Interrupt::lookForStandstill() {
    const auto now = timeOf(mainClock_);
    if (!bounded_ || !firebird::insideLibrary() || now - mainTime_ > Movement) {
        mainTime_ = now;
        moved_ = Clock::now();
    } else if (Clock::now() - moved_ > patience_) {
        endAtOnce(StandstillSentence, ExitCode::DatabaseFailure);
    }
}

} // namespace suite::program
