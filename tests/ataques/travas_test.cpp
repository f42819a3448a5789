// The folder of the engine's locks: what another user of the machine may have planted there, and who may share it.
#include "ataques/Processo.h"

#include <grp.h>

namespace ataques {

namespace {

constexpr uid_t Dono = 61001;
constexpr uid_t Colega = 61002;
constexpr gid_t Grupo = 61003;

std::function<void()> como(uid_t usuario, gid_t grupo) {
    return [=] {
        static_cast<void>(!::setgroups(0, nullptr));
        if (::setgid(grupo) != 0 || ::setuid(usuario) != 0)
            ::_exit(126);
    };
}

class Travas : public Ataque {
  protected:
    Travas() : banco(copiar(pasta / "a.fdb")), travas(pasta / ".orcreal-lock"), vitima(raiz / "vitima") {
        escrever(vitima, "de outra pessoa");
        fs::permissions(vitima, fs::perms(0600));
    }
    void exigirRecusa() const {
        const auto fim = rodar(consulta(banco));
        EXPECT_EQ(3, fim.codigo) << fim.erro;
        EXPECT_NE(std::string::npos, fim.erro.find("emova")) << fim.erro;
        EXPECT_EQ("de outra pessoa", ler(vitima));
        EXPECT_EQ(0600U, modo(vitima));
    }
    // Needs the rights of root, which may become anybody.
    static bool podeMudarDeUsuario() { return ::geteuid() == 0; }
    void dar(uid_t usuario, gid_t grupo) const {
        for (const auto& caminho : {raiz, pasta, banco, raiz / "casa"})
            ASSERT_EQ(0, ::chown(caminho.c_str(), usuario, grupo));
    }

    fs::path banco;
    fs::path travas;
    fs::path vitima;
};

} // namespace

TEST_F(Travas, UmVinculoPlantadoNaoESeguido) {
    for (const char* nome : {"fb12_trace", "fb_init", "qualquer"}) {
        fs::create_directory(travas);
        fs::create_symlink(vitima, travas / nome);
        exigirRecusa();
        fs::remove_all(travas);
        fs::create_directory(travas);
        fs::create_hard_link(vitima, travas / nome);
        exigirRecusa();
        fs::remove_all(travas);
    }
    const auto pastaAlheia = raiz / "privada";
    fs::create_directory(pastaAlheia);
    fs::permissions(pastaAlheia, fs::perms(0700));
    fs::create_directory_symlink(pastaAlheia, travas);
    exigirRecusa();
    EXPECT_EQ(0700U, modo(pastaAlheia));
    EXPECT_TRUE(fs::is_empty(pastaAlheia));
    fs::remove(travas);
    escrever(travas, "um arquivo");
    exigirRecusa();
    EXPECT_EQ("um arquivo", ler(travas));
}

TEST_F(Travas, AberturaDeUmaVersaoAnteriorEFechada) {
    fs::create_directory(travas);
    fs::permissions(travas, fs::perms::all);
    EXPECT_EQ(0, rodar(consulta(banco)).codigo);
    EXPECT_EQ(0700U, modo(travas));
}

TEST_F(Travas, TodosOsCaminhosDoBancoTemAsMesmas) {
    fs::create_directory(raiz / "outra");
    fs::create_symlink(banco, raiz / "outra" / "apelido.fdb");
    EXPECT_EQ(0, rodar(consulta(raiz / "outra" / "apelido.fdb")).codigo);
    EXPECT_TRUE(fs::exists(travas));
    EXPECT_FALSE(fs::exists(raiz / "outra" / ".orcreal-lock"));
}

TEST_F(Travas, CadaBancoDeUmProcessoTemAsSuas) {
    const suite::firebird::Attachment primeiro(suite::firebird::Target(banco.string()), {});
    fs::create_directory(raiz / "outra");
    const auto outro = copiar(raiz / "outra" / "b.fdb");
    const auto arquivos = [](const fs::path& onde) {
        return std::distance(fs::directory_iterator(onde / ".orcreal-lock"), fs::directory_iterator());
    };
    {
        const suite::firebird::Attachment segundo(suite::firebird::Target(outro.string()), {});
        EXPECT_GE(arquivos(pasta), 2) << "locks and monitor of the first";
        EXPECT_GE(arquivos(raiz / "outra"), 2) << "and of the second";
        EXPECT_EQ(3, rodar(consulta(outro)).codigo) << "opened here";
    }
    EXPECT_EQ(3, rodar(consulta(banco)).codigo) << "still opened here";
    EXPECT_EQ(0, rodar(consulta(outro)).codigo);
}

TEST_F(Travas, OAdministradorNaoDeixaODonoDeFora) {
    if (!podeMudarDeUsuario())
        GTEST_SKIP() << "only root can become another user";
    dar(Dono, Dono);
    ASSERT_EQ(0, rodar(consulta(banco)).codigo);
    const auto fim = rodar(consulta(banco), como(Dono, Dono));
    EXPECT_EQ(0, fim.codigo) << fim.erro;
    struct stat situacao {};
    for (const auto& item : fs::directory_iterator(travas)) {
        ::lstat(item.path().c_str(), &situacao);
        EXPECT_EQ(Dono, situacao.st_uid) << item.path();
    }
}

TEST_F(Travas, OutroUsuarioSoEntraPeloGrupoComum) {
    if (!podeMudarDeUsuario())
        GTEST_SKIP() << "only root can become another user";
    dar(Dono, Grupo);
    fs::permissions(pasta, fs::perms(0777));
    fs::permissions(banco, fs::perms(0666));
    const auto fora = rodar(consulta(banco), como(Colega, Colega));
    EXPECT_EQ(3, fora.codigo);
    EXPECT_NE(std::string::npos, fora.erro.find("g+ws")) << fora.erro;
    somente({"a.fdb", ".orcreal-lock"});
    fs::remove_all(travas);
    fs::permissions(pasta, fs::perms(02770));
    fs::permissions(banco, fs::perms(0660));
    for (const auto usuario : {Colega, Dono, Colega, uid_t{0}, Dono, Colega}) {
        const auto fim = rodar(consulta(banco), como(usuario, usuario == 0 ? 0 : Grupo));
        EXPECT_EQ(0, fim.codigo) << usuario << ": " << fim.erro;
        EXPECT_EQ(02770U, modo(travas));
    }
}

} // namespace ataques
