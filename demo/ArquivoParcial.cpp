#include "demo/ArquivoParcial.h"

#include "base/Falhas.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <random>
#include <stdio.h>
#include <unistd.h>

namespace demo {

namespace fs = std::filesystem;

namespace {

std::string Aspas(const fs::path& ACaminho) { return "\"" + ACaminho.string() + "\""; }

[[noreturn]] void JaExiste(const fs::path& ADestino) {
    throw base::TFalha("O arquivo " + Aspas(ADestino) +
                       " já existe e não será substituído. Escolha outro nome ou remova-o antes.");
}

std::string NomeSorteado() {
    std::random_device LSorte;
    std::string LNome;
    for (int I = 0; I < 10; ++I)
        LNome += "abcdefghijklmnopqrstuvwxyz234567"[LSorte() % 32];
    return LNome;
}

// Without overwriting, also where the file system knows no such rename.
int RenomearSemSubstituir(const fs::path& AOrigem, const fs::path& ADestino) {
    if (::renameat2(AT_FDCWD, AOrigem.c_str(), AT_FDCWD, ADestino.c_str(), RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS)
        return errno;
    if (::link(AOrigem.c_str(), ADestino.c_str()) != 0 || ::unlink(AOrigem.c_str()) != 0)
        return errno;
    return 0;
}

} // namespace

TArquivoParcial::TArquivoParcial(fs::path ADestino) : FDestino(fs::absolute(ADestino).lexically_normal()) {
    if (std::error_code LErro; fs::symlink_status(FDestino, LErro).type() != fs::file_type::not_found && !LErro)
        JaExiste(FDestino);
    const auto LPasta = FDestino.parent_path();
    if (std::error_code LErro; !fs::is_directory(LPasta, LErro))
        throw base::TFalha("A pasta " + Aspas(LPasta) + " não existe. Crie-a ou escolha outro destino.");
    if (::access(LPasta.c_str(), W_OK | X_OK) != 0)
        throw base::TFalha("Não há permissão para gravar na pasta " + Aspas(LPasta) + ". Escolha outro destino.");
    FParcial.emplace(FDestino.string() + "." + NomeSorteado() +
                     ".parcial"); // the engine makes it, and only if it is new
}

void TArquivoParcial::Entregar() {
    const int LErro = RenomearSemSubstituir(Caminho(), FDestino);
    if (LErro == EEXIST)
        JaExiste(FDestino);
    if (LErro != 0)
        throw base::TFalha("Não foi possível dar ao banco de demonstração o nome " + Aspas(FDestino) + ": " +
                           std::strerror(LErro) + ".");
    FParcial->Soltar();
}

} // namespace demo
