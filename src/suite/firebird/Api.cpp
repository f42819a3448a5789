#include "suite/firebird/Api.h"

#include "suite/firebird/Error.h"

namespace suite::firebird {

std::function<void(std::string_view name)> beforeCall;
std::atomic<int> Status::alive{0};

bool insideLibrary() noexcept { return Status::alive > 0; }

Firebird::IMaster* master() {
    static Firebird::IMaster* const instance = Firebird::fb_get_master_interface();
    return instance;
}

void Status::check(std::string_view name) {
    if (failed())
        throw toFailure(wrapper_.getErrors(), std::string(name));
}

} // namespace suite::firebird
