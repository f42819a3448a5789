#pragma once

#include "base/Passageiros.h"

#include <filesystem>
#include <optional>

namespace demo {

// The file that grows beside its destination, under a name that nobody can foresee. It is gone again with this object
// unless it was delivered.
class TArquivoParcial {
  public:
    // Refuses a destination that exists or cannot be written. Throws base::TFalha.
    explicit TArquivoParcial(std::filesystem::path ADestino);

    const std::filesystem::path& Caminho() const { return FParcial->Caminho(); }
    // Gives the whole file its name. Throws base::TFalha when a file of that name appeared meanwhile.
    void Entregar();

  private:
    std::filesystem::path FDestino;
    std::optional<base::TPassageiro> FParcial;
};

} // namespace demo
