// What stops the making of the demo from outside: a full disk, a user who presses Ctrl-C.
#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

class Programa : public testing::Test {
  protected:
    Programa() {
        std::string nome = (fs::temp_directory_path() / "orcreal-XXXXXX").string();
        pasta_ = ::mkdtemp(nome.data());
    }
    ~Programa() override { fs::remove_all(pasta_); }

    // Starts "orcreal demo" into the folder; no file may grow beyond the limit (0: none).
    pid_t Demo(const char* escala, rlim_t limite) const {
        const auto destino = (pasta_ / "demo.fdb").string();
        const auto erro = (pasta_ / "erro").string();
        const pid_t filho = ::fork();
        if (filho != 0)
            return filho;
        if (limite > 0) {
            const rlimit tamanho{limite, limite};
            ::setrlimit(RLIMIT_FSIZE, &tamanho);
            ::signal(SIGXFSZ, SIG_IGN); // the write fails, as on a full disk
        }
        ::signal(SIGINT, SIG_DFL); // also where the run of the tests has it ignored
        static_cast<void>(::freopen(erro.c_str(), "w", stderr));
        ::execl(ORCREAL_PROGRAMA, "orcreal", "demo", "--destino", destino.c_str(), "--escala", escala, nullptr);
        ::_exit(127);
    }
    static int Esperar(pid_t filho) {
        int estado = 0;
        ::waitpid(filho, &estado, 0);
        return WIFEXITED(estado) ? WEXITSTATUS(estado) : -1;
    }
    std::string Erro() const {
        std::stringstream texto;
        texto << std::ifstream(pasta_ / "erro").rdbuf();
        return texto.str();
    }
    void EsperarPastaSemBanco() const {
        for (const auto& item : fs::directory_iterator(pasta_))
            EXPECT_TRUE(item.path().filename() == "erro" || item.path().filename() == ".orcreal-lock") << item.path();
    }
    fs::path pasta_;
};

} // namespace

TEST_F(Programa, DiscoCheioNaoDeixaNadaPelaMetade) {
    for (const rlim_t limite : {rlim_t{2'000'000}, rlim_t{20'000'000}}) {
        EXPECT_EQ(3, Esperar(Demo("1", limite))) << limite;
        EXPECT_NE(std::string::npos, Erro().find("espaço")) << Erro();
        EsperarPastaSemBanco();
    }
}

TEST_F(Programa, InterromperCancelaENaoDeixaNadaPelaMetade) {
    const pid_t filho = Demo("10", 0);
    while (std::none_of(fs::directory_iterator(pasta_), fs::directory_iterator(),
                        [](const auto& item) { return item.path().extension() == ".parcial"; }))
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    ::kill(filho, SIGINT);
    EXPECT_EQ(4, Esperar(filho));
    EXPECT_EQ("A operação foi cancelada; nada ficou pela metade.\n", Erro());
    EsperarPastaSemBanco();
}
