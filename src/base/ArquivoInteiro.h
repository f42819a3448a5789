#pragma once

#include "base/Exportar.h"

#include <filesystem>
#include <functional>

namespace base {

// Has a file written aside, in a folder that nobody else enters, and puts it in its place when it is whole: an earlier
// one stays until then, and its mode stays with the new one. Behind a link the file that it names is replaced, and the
// link stays; into a device or a pipe the whole is copied. AEscrever is given the name to write to; what it throws
// passes, a std::system_error as a TFalha.
//
// Throws TFalha for what must not be written over (a folder, a disk, a socket, a database), what may not be written,
// and what the folder or the disk refuses. Nothing is changed then, and nothing partial stays.
BASE_API void GravarArquivoInteiro(const std::filesystem::path& ADestino,
                                   const std::function<void(const std::filesystem::path& ACaminho)>& AEscrever);

} // namespace base
