#pragma once

#include <filesystem>

namespace demo {

// The file that grows beside its destination. It is gone again with this object unless it was delivered.
class TArquivoParcial {
  public:
    // Refuses a destination that exists or cannot be written, and a partial file that another process is writing; one
    // that a killed run left is removed. Throws host::TFalha.
    explicit TArquivoParcial(std::filesystem::path ADestino);
    TArquivoParcial(const TArquivoParcial&) = delete;
    TArquivoParcial& operator=(const TArquivoParcial&) = delete;
    ~TArquivoParcial();

    const std::filesystem::path& Caminho() const { return FParcial; }
    // Gives the whole file its name. Throws host::TFalha when a file of that name appeared meanwhile.
    void Entregar();

  private:
    bool RemoverSeLivre() const;

    std::filesystem::path FDestino;
    std::filesystem::path FParcial;
    bool FEntregue = false;
};

} // namespace demo
