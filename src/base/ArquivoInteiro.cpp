#include "base/ArquivoInteiro.h"

#include "base/Falhas.h"
#include "base/Passageiros.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace base {

namespace {

using std::filesystem::path;

[[noreturn]] void FalhaDoSistema() { throw std::system_error(errno, std::generic_category()); }

class TDescritor {
  public:
    TDescritor(const path& ACaminho, int AModo) : FNumero(::open(ACaminho.c_str(), AModo | O_CLOEXEC)) {}
    TDescritor(const TDescritor&) = delete;
    TDescritor& operator=(const TDescritor&) = delete;
    ~TDescritor() {
        if (FNumero >= 0)
            ::close(FNumero);
    }
    bool Aberto() const { return FNumero >= 0; }
    int Numero() const { return FNumero; }
    const TDescritor& Exigir() const {
        if (!Aberto())
            FalhaDoSistema();
        return *this;
    }
    struct stat Situacao() const {
        struct stat LSituacao {};
        ::fstat(FNumero, &LSituacao);
        return LSituacao;
    }

  private:
    int FNumero;
};

// Where the result goes: a file that is there or not, or something that only takes bytes.
struct TDestino {
    path Caminho;
    std::optional<struct stat> Antes;
    bool Fluxo = false;
};

bool EstaEmProc(const path& ACaminho) {
    constexpr long LTipoProc = 0x9fa0; // PROC_SUPER_MAGIC
    struct statfs LSistema {};
    return ::statfs(ACaminho.parent_path().c_str(), &LSistema) == 0 && LSistema.f_type == LTipoProc;
}

// A header page of type 1, with a size of page and a version of the engine's own.
bool EhBancoDeDados(const path& AArquivo) {
    std::array<std::uint8_t, 20> LInicio{};
    const TDescritor LArquivo(AArquivo, O_RDONLY | O_NONBLOCK);
    if (!LArquivo.Aberto() || ::read(LArquivo.Numero(), LInicio.data(), LInicio.size()) != ssize_t{LInicio.size()})
        return false;
    const unsigned LPagina = LInicio[16] | LInicio[17] << 8;
    constexpr unsigned LMenor = 1024;
    constexpr unsigned LMaior = 32768;
    return LInicio[0] == 1 && LPagina >= LMenor && LPagina <= LMaior && (LPagina & (LPagina - 1)) == 0 &&
           (LInicio[19] & 0x80) != 0;
}

void RecusarSeIntocavel(const TDestino& ADestino) {
    const auto LModo = ADestino.Antes->st_mode;
    const auto LNome = ADestino.Caminho.string();
    if (S_ISDIR(LModo))
        throw TFalha(LNome + " é uma pasta. Indique um arquivo.");
    if (S_ISSOCK(LModo) || S_ISBLK(LModo))
        throw TFalha(LNome + " não é um arquivo em que se possa gravar o resultado. Indique outro.");
    if (::faccessat(AT_FDCWD, ADestino.Caminho.c_str(), W_OK, AT_EACCESS) != 0)
        throw TFalha("Não há permissão para gravar em " + LNome + ". Escolha outro arquivo.");
    if (S_ISREG(LModo) && EhBancoDeDados(ADestino.Caminho))
        throw TFalha(LNome + " é um banco de dados e não será substituído. Escolha outro arquivo.");
}

TDestino Resolver(const path& ADestino) {
    TDestino LDestino{std::filesystem::absolute(ADestino), {}, false};
    // Links of others in folders like the temporary one are not followed where the system says so.
    const TDescritor LSeguido(LDestino.Caminho, O_PATH);
    if (!LSeguido.Aberto() && (errno == EACCES || errno == ELOOP))
        throw TFalha("Não há permissão para gravar em " + LDestino.Caminho.string() + ". Escolha outro arquivo.");
    struct stat LSituacao {};
    while (::lstat(LDestino.Caminho.c_str(), &LSituacao) == 0) {
        if (!S_ISLNK(LSituacao.st_mode) || (LDestino.Fluxo = EstaEmProc(LDestino.Caminho))) {
            ::stat(LDestino.Caminho.c_str(), &LSituacao);
            LDestino.Antes = LSituacao;
            break;
        }
        LDestino.Caminho = LDestino.Caminho.parent_path() / std::filesystem::read_symlink(LDestino.Caminho);
    }
    if (LDestino.Antes) {
        LDestino.Fluxo |= !S_ISREG(LSituacao.st_mode);
        RecusarSeIntocavel(LDestino);
    }
    return LDestino;
}

// A folder of this process alone inside another. It is reached by its descriptor, so that nobody can put another one,
// or a link, in its place meanwhile.
class TPastaPrivada {
  public:
    explicit TPastaPrivada(const path& APasta)
        : FPasta(Criar(APasta)), FDescritor(FPasta.Caminho(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW),
          FArquivo("/proc/self/fd/" + std::to_string(FDescritor.Exigir().Numero()) + "/saida") {
        if (FDescritor.Situacao().st_uid != ::geteuid())
            throw std::system_error(EACCES, std::generic_category());
    }
    const path& Arquivo() const { return FArquivo.Caminho(); }
    void Entregar(const path& ADestino) {
        if (::rename(Arquivo().c_str(), ADestino.c_str()) != 0)
            FalhaDoSistema();
        FArquivo.Soltar();
    }

  private:
    static path Criar(const path& APasta) {
        auto LNome = (APasta / ".orcreal-XXXXXX").string();
        if (::mkdtemp(LNome.data()))
            return LNome;
        if (errno == ENOENT || errno == ENOTDIR)
            throw TFalha("A pasta " + APasta.string() + " não existe. Crie-a ou escolha outra.");
        if (errno == EACCES || errno == EPERM || errno == EROFS)
            throw TFalha("Não há permissão para gravar na pasta " + APasta.string() + ". Escolha outra.");
        FalhaDoSistema();
    }

    TPassageiro FPasta;
    TDescritor FDescritor;
    TPassageiro FArquivo;
};

void Substituir(const TDestino& ADestino, TPastaPrivada& APasta) {
    {
        const TDescritor LArquivo(APasta.Arquivo(), O_RDWR);
        const int LNumero = LArquivo.Exigir().Numero();
        if (ADestino.Antes) {
            // Group and owner as far as this user may give them; the mode afterwards, since a change of owner narrows
            // it.
            static_cast<void>(!::fchown(LNumero, static_cast<uid_t>(-1), ADestino.Antes->st_gid));
            static_cast<void>(!::fchown(LNumero, ADestino.Antes->st_uid, static_cast<gid_t>(-1)));
            if (::fchmod(LNumero, ADestino.Antes->st_mode & 07777) != 0)
                FalhaDoSistema();
        }
        if (::fsync(LNumero) != 0)
            FalhaDoSistema();
    }
    APasta.Entregar(ADestino.Caminho);
}

void Copiar(const path& AArquivo, const path& AFluxo) {
    const TDescritor LDe(AArquivo, O_RDONLY);
    const TDescritor LPara(AFluxo, O_WRONLY | O_APPEND | O_NOCTTY);
    LDe.Exigir();
    LPara.Exigir();
    std::array<char, 65536> LParte{};
    for (;;) {
        const auto LLidos = ::read(LDe.Numero(), LParte.data(), LParte.size());
        if (LLidos < 0)
            FalhaDoSistema();
        if (LLidos == 0)
            return;
        for (ssize_t LEscritos = 0; LEscritos < LLidos;) {
            const auto LAgora =
                ::write(LPara.Numero(), LParte.data() + LEscritos, static_cast<std::size_t>(LLidos - LEscritos));
            if (LAgora < 0)
                FalhaDoSistema();
            LEscritos += LAgora;
        }
    }
}

} // namespace

void GravarArquivoInteiro(const path& ADestino, const std::function<void(const path&)>& AEscrever) {
    try {
        const auto LDestino = Resolver(ADestino);
        TPastaPrivada LPasta(LDestino.Fluxo ? std::filesystem::temp_directory_path() : LDestino.Caminho.parent_path());
        AEscrever(LPasta.Arquivo());
        if (LDestino.Fluxo)
            Copiar(LPasta.Arquivo(), LDestino.Caminho);
        else
            Substituir(LDestino, LPasta);
    } catch (const std::system_error&) {
        throw TFalha("Não foi possível gravar " + ADestino.string() +
                     ". Verifique o espaço em disco e as permissões; nada foi gravado.");
    }
}

} // namespace base
