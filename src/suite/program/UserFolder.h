#pragma once

#include <filesystem>

namespace suite::program {

// The program's folder below one of the user's base folders: where the variable names it, else below the home folder.
// It is not made here.
std::filesystem::path userFolder(const char* variable, const char* belowHome);

} // namespace suite::program
