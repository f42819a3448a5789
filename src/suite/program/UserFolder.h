#pragma once

#include <filesystem>
#include <string>

namespace suite::program {

// The program's folder below one of the user's base folders: where the variable names it, else below the home folder.
// It is not made here. Throws base::TFalha for a user without a home.
std::filesystem::path userFolder(const char* variable, const char* belowHome);
// Where the user's grid layouts are kept.
std::filesystem::path layoutFolder();
// Makes a folder and what lies above it. Throws base::TFalha when that, or going into it, is not possible.
void makeFolder(const std::filesystem::path& folder);

// The home folder: what the variable HOME says, else what the system knows of the account. Either may be missing (null)
// or relative, and then does not count. Throws base::TFalha when nothing is left.
std::filesystem::path chooseHome(const char* variable, const char* account);

} // namespace suite::program
