#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>

namespace demo {

struct Opcoes {
    std::filesystem::path Destino;
    int Escala = 1; // times the accounts with movement, and with them the value rows and the journal
    // Called now and then with what is being done; may throw to stop (nothing half made stays).
    std::function<void(const std::string& ATexto, std::size_t AFeito, std::size_t ATotal)> Progresso;
};

// Makes the demo database. It is written beside its destination under another name and renamed when it is whole, so
// that a failure, a full disk or a cancel leaves nothing. Throws base::TFalha when the destination exists already or
// cannot be written (folder missing, no rights) and TFalhaBanco otherwise.
void Criar(const Opcoes& AOpcoes);

} // namespace demo
