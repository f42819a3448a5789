#include "demo/ArquivoParcial.h"

#include "host/Falhas.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <stdio.h>
#include <sys/file.h>
#include <unistd.h>

namespace demo {

namespace fs = std::filesystem;

namespace {

std::string Aspas(const fs::path& ACaminho) { return "\"" + ACaminho.string() + "\""; }

[[noreturn]] void JaExiste(const fs::path& ADestino) {
    throw host::TFalha("O arquivo " + Aspas(ADestino) +
                       " já existe e não será substituído. Escolha outro nome ou remova-o antes.");
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
    FParcial = FDestino;
    FParcial += ".parcial";
    if (std::error_code LErro; fs::symlink_status(FDestino, LErro).type() != fs::file_type::not_found && !LErro)
        JaExiste(FDestino);
    const auto LPasta = FDestino.parent_path();
    if (std::error_code LErro; !fs::is_directory(LPasta, LErro))
        throw host::TFalha("A pasta " + Aspas(LPasta) + " não existe. Crie-a ou escolha outro destino.");
    if (::access(LPasta.c_str(), W_OK | X_OK) != 0)
        throw host::TFalha("Não há permissão para gravar na pasta " + Aspas(LPasta) + ". Escolha outro destino.");
    if (!RemoverSeLivre())
        throw host::TFalha("O arquivo " + Aspas(FParcial) +
                           " está sendo gravado por outro programa ou não pode ser removido. Aguarde ou remova-o.");
}

TArquivoParcial::~TArquivoParcial() {
    if (!FEntregue)
        RemoverSeLivre();
}

// The engine holds a lock on a file that it has open: one without a lock is nobody's. True when no file is left.
bool TArquivoParcial::RemoverSeLivre() const {
    const int LArquivo = ::open(FParcial.c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW);
    if (LArquivo < 0)
        return errno == ENOENT;
    const bool LRemovido = ::flock(LArquivo, LOCK_EX | LOCK_NB) == 0 && ::unlink(FParcial.c_str()) == 0;
    ::close(LArquivo);
    return LRemovido;
}

void TArquivoParcial::Entregar() {
    const int LErro = RenomearSemSubstituir(FParcial, FDestino);
    if (LErro == EEXIST)
        JaExiste(FDestino);
    if (LErro != 0)
        throw host::TFalha("Não foi possível dar ao banco de demonstração o nome " + Aspas(FDestino) + ": " +
                           std::strerror(LErro) + ".");
    FEntregue = true;
}

} // namespace demo
