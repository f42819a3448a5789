#include "suite/program/UserFolder.h"

#include "base/Falhas.h"

#include <cstdlib>
#include <pwd.h>
#include <unistd.h>
#include <vector>

namespace suite::program {

namespace {

bool absolute(const char* folder) { return folder && std::filesystem::path(folder).is_absolute(); }

std::filesystem::path home() {
    constexpr std::size_t Room = 1 << 14;
    std::vector<char> room(Room);
    passwd entry{};
    passwd* found = nullptr;
    ::getpwuid_r(::getuid(), &entry, room.data(), room.size(), &found);
    return chooseHome(std::getenv("HOME"), found ? found->pw_dir : nullptr);
}

} // namespace

std::filesystem::path chooseHome(const char* variable, const char* account) {
    for (const char* folder : {variable, account})
        if (absolute(folder))
            return folder;
    throw base::TFalha(
        "Não se sabe qual é a sua pasta pessoal. Defina HOME com um caminho completo, ou indique o banco "
        "de dados com --banco e a pasta de log com --pasta-log.");
}

std::filesystem::path userFolder(const char* variable, const char* belowHome) {
    const char* named = std::getenv(variable);
    return absolute(named) ? std::filesystem::path(named) / "orcreal" : home() / belowHome / "orcreal";
}

std::filesystem::path layoutFolder() { return userFolder("XDG_DATA_HOME", ".local/share") / "leiautes"; }

void makeFolder(const std::filesystem::path& folder) {
    std::error_code failure;
    std::filesystem::create_directories(folder, failure);
    if (failure || ::access(folder.c_str(), X_OK) != 0)
        throw base::TFalha("Não foi possível criar ou usar a pasta " + folder.string() +
                           ". Verifique as permissões e o que HOME indica, ou indique o banco de dados com --banco.");
}

} // namespace suite::program
