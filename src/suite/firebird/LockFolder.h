#pragma once

#include <filesystem>

namespace suite::firebird {

// The database's file itself, behind links: all roads to it must meet.
std::filesystem::path realFile(const std::filesystem::path& database);

// The embedded engine keeps its locks in files, in a folder that all who open a database must share: it stands beside
// the database's own file. Whoever can write there can have the engine write where he likes, so it is nobody's but the
// owner's of the database, or where the database's folder is kept by a group (setgid, written by the group) that
// group's.

// Makes that folder, or checks the one that is there, and points the engine at it, to be called before each attach.
// Throws base::TFalhaBanco with the sentence that says what is wrong.
void useLockFolder(const std::filesystem::path& database);

// After it: gives the engine's files to whom the database belongs, whoever runs this, and takes their whole size from
// the disk: the engine maps them, and a page that finds no place on a full disk ends the process.
void settleLockFiles();

} // namespace suite::firebird
