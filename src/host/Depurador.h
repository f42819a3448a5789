#pragma once

#include "host/Exportar.h"

#include <string>

namespace host {

// Whether a debugger follows the process.
HOST_API bool ProcessoSobDepurador();
// Under a debugger: writes the text over the file of that name, which is put behind the log folder's name as it is.
// Throws TFalha when it cannot.
HOST_API void GravarParaDepuracao(const std::string& ANome, const std::string& ATexto);

} // namespace host
