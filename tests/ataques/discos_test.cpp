// Full disks: a file system of a few megabytes, seen by the program alone.
#include "ataques/Processo.h"

#include <sched.h>
#include <sys/mount.h>

namespace ataques {

namespace {

class Discos : public Ataque {
  protected:
    // In the child: a small file system over the folder, filled by the files given; then the work. Only where this user
    // may mount.
    std::function<void()> cheio(const std::string& tamanho, const fs::path& banco, const std::string& sobra) const {
        return [=, this] {
            if (::unshare(CLONE_NEWNS) != 0 || ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
                ::mount("none", pasta.c_str(), "tmpfs", 0, ("size=" + tamanho).c_str()) != 0)
                ::_exit(126);
            if (!banco.empty())
                fs::copy_file(banco, pasta / "a.fdb");
            std::ofstream enchimento(pasta / "enchimento", std::ios::binary);
            const std::string bloco(4096, 'x');
            while (enchimento << bloco << std::flush) {
            }
            enchimento.close();
            fs::resize_file(pasta / "enchimento", fs::file_size(pasta / "enchimento") - std::stoul(sobra));
            vigiar();
        };
    }
    // The file system goes with its processes: what a run has left in it is looked at from inside.
    void vigiar() const {
        const pid_t programa = ::fork();
        if (programa == 0)
            return;
        int estado = 0;
        ::waitpid(programa, &estado, 0);
        for (const auto& item : fs::directory_iterator(pasta))
            if (const auto nome = item.path().filename();
                nome != "a.fdb" && nome != "enchimento" && nome != ".orcreal-lock")
                ::_exit(125);
        ::_exit(WIFEXITED(estado) ? WEXITSTATUS(estado) : 124);
    }
    static bool podeMontar() { return ::geteuid() == 0; }
};

} // namespace

TEST_F(Discos, ConsultaEmDiscoCheioTerminaComUmaFrase) {
    if (!podeMontar())
        GTEST_SKIP() << "only root can mount";
    for (const char* sobra : {"0", "4096", "65536", "524288", "1048576", "2097152", "8388608"}) {
        const auto fim = rodar(consulta(pasta / "a.fdb"), cheio("40m", apoio::arquivoBase(apoio::Base::Demo), sobra));
        if (fim.codigo == 126)
            GTEST_SKIP() << "mounting is not allowed here";
        const bool cabe = std::string(sobra) == "8388608";
        EXPECT_EQ(cabe ? 0 : 3, fim.codigo) << sobra << ": " << fim.erro;
        EXPECT_EQ(cabe, fim.erro.find("Libere espaço") == std::string::npos) << fim.erro;
    }
}

TEST_F(Discos, ResultadoEDemoEmDiscoCheioNaoDeixamNada) {
    if (!podeMontar())
        GTEST_SKIP() << "only root can mount";
    const auto banco = copiar(raiz / "a.fdb");
    for (const char* formato : {"csv", "xlsx", "html", "json", "tabela"})
        for (const char* sobra : {"0", "4096", "12288"}) {
            const auto fim =
                rodar(consulta(banco, {"--formato", formato, "--saida", pasta / "r"}), cheio("2m", {}, sobra));
            if (fim.codigo == 126)
                GTEST_SKIP() << "mounting is not allowed here";
            EXPECT_EQ(1, fim.codigo) << formato << " " << sobra << ": " << fim.erro;
            EXPECT_NE(std::string::npos, fim.erro.find("nada foi gravado")) << fim.erro;
        }
    const auto demo = rodar({"demo", "--destino", pasta / "d.fdb"}, cheio("20m", {}, "15000000"));
    EXPECT_EQ(3, demo.codigo) << demo.erro;
    EXPECT_NE(std::string::npos, demo.erro.find("espaço")) << demo.erro;
}

} // namespace ataques
