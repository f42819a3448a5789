#pragma once

#include "base/Exportar.h"

#include <filesystem>

namespace base {

// A file or an empty folder that must not outlive the process, whatever ends it: gone with this object, or before an
// end without clean-up by RemoverPassageiros.
class BASE_API TPassageiro {
  public:
    explicit TPassageiro(std::filesystem::path ACaminho);
    TPassageiro(const TPassageiro&) = delete;
    TPassageiro& operator=(const TPassageiro&) = delete;
    ~TPassageiro();

    const std::filesystem::path& Caminho() const { return FCaminho; }
    // It has a name of its own by now, or is gone: nothing is removed any more.
    void Soltar();

  private:
    std::filesystem::path FCaminho;
};

// Removes all of them, the newest first. May be called from a signal's handler.
BASE_API void RemoverPassageiros() noexcept;

} // namespace base
