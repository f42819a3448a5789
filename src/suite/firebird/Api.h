#pragma once

#include <firebird/Interface.h>

#include <atomic>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace suite::firebird {

struct Release {
    template <class T>
    void operator()(T* object) const noexcept {
        object->release();
    }
};
struct Dispose {
    template <class T>
    void operator()(T* object) const noexcept {
        object->dispose();
    }
};
template <class T>
using Ref = std::unique_ptr<T, Release>;
template <class T>
using Disposable = std::unique_ptr<T, Dispose>;

Firebird::IMaster* master();

// The status of one call or of a run of calls on one object; it lives no longer than they.
class Status {
  public:
    Status() : owned_(master()->getStatus()), wrapper_(owned_.get()) { ++alive; }
    ~Status() { --alive; }
    Status(const Status&) = delete;
    Status& operator=(const Status&) = delete;
    Firebird::CheckStatusWrapper* get() { return &wrapper_; }
    bool failed() const { return (wrapper_.getState() & Firebird::IStatus::STATE_ERRORS) != 0; }
    // Raises base::TFalhaBanco under the statement's name if the last call failed.
    void check(std::string_view name);

  private:
    friend bool insideLibrary() noexcept;
    static std::atomic<int> alive;
    Disposable<Firebird::IStatus> owned_;
    Firebird::CheckStatusWrapper wrapper_;
};

// Whether some thread is in a call of the client library: a crash, or a wait without an end, is then the library's.
bool insideLibrary() noexcept;

// Where set, runs before every call that can fail. Tests make the n-th call fail here.
extern std::function<void(std::string_view name)> beforeCall;

// Every call that can fail goes through here: action(status) on the client library, its failure raised as ours.
template <class Action>
auto call(std::string_view name, Action&& action) {
    if (beforeCall)
        beforeCall(name);
    Status status;
    if constexpr (std::is_void_v<decltype(action(status.get()))>) {
        action(status.get());
        status.check(name);
    } else {
        auto result = action(status.get());
        status.check(name);
        return result;
    }
}

} // namespace suite::firebird
