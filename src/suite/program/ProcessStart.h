#pragma once

namespace suite::program {

// What a process needs before anything else runs in it, first thing in main:
// the numbers 0 to 2 belong to the standard streams, or else the engine's files would be given them; names of files are
// the system's bytes in every locale; and a crash inside the client library (a damaged page, a full disk below the
// files it maps) ends with a sentence and the exit code of a database failure. A crash of our own stays one.
void prepareProcess();

} // namespace suite::program
