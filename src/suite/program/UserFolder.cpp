#include "suite/program/UserFolder.h"

#include <cstdlib>

namespace suite::program {

std::filesystem::path userFolder(const char* variable, const char* belowHome) {
    const char* named = std::getenv(variable);
    if (named && std::filesystem::path(named).is_absolute())
        return std::filesystem::path(named) / "orcreal";
    const char* home = std::getenv("HOME");
    return std::filesystem::path(home ? home : "/tmp") / belowHome / "orcreal";
}

} // namespace suite::program
