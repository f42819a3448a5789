#pragma once

#include "apoio/Bases.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace ataques {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

inline std::string ler(const fs::path& arquivo) {
    std::stringstream texto;
    texto << std::ifstream(arquivo, std::ios::binary).rdbuf();
    return texto.str();
}

inline void escrever(const fs::path& arquivo, const std::string& texto) {
    std::ofstream(arquivo, std::ios::binary) << texto;
}

inline mode_t modo(const fs::path& caminho) {
    struct stat situacao {};
    ::lstat(caminho.c_str(), &situacao);
    return situacao.st_mode & 07777;
}

// How one run of the program ended.
struct Fim {
    int codigo = -1; // its exit code, 128 and the number for a signal, 999 for one that had to be killed
    std::string saida;
    std::string erro;
    std::chrono::milliseconds tempo{};
};

// The program in a process of its own, its output in files.
class Processo {
  public:
    // The change runs in the child, before the program: descriptors, limits, users.
    Processo(std::vector<std::string> palavras, const fs::path& pasta, const std::function<void()>& mudanca = {})
        : saida_(pasta / "saida"), erro_(pasta / "erro"), inicio_(std::chrono::steady_clock::now()) {
        palavras.insert(palavras.begin(), ORCREAL_PROGRAMA);
        std::vector<char*> argumentos;
        for (auto& palavra : palavras)
            argumentos.push_back(palavra.data());
        argumentos.push_back(nullptr);
        filho_ = ::fork();
        if (filho_ != 0)
            return;
        for (const int sinal : {SIGINT, SIGTERM, SIGHUP}) // whatever the run of the tests has ignored
            ::signal(sinal, SIG_DFL);
        ::dup2(::open("/dev/null", O_RDONLY | O_CLOEXEC), STDIN_FILENO);
        ::dup2(::open(saida_.c_str(), O_CREAT | O_TRUNC | O_WRONLY | O_CLOEXEC, 0666), STDOUT_FILENO);
        ::dup2(::open(erro_.c_str(), O_CREAT | O_TRUNC | O_WRONLY | O_CLOEXEC, 0666), STDERR_FILENO);
        if (mudanca)
            mudanca();
        ::execv(argumentos.front(), argumentos.data());
        ::_exit(127);
    }
    Processo(const Processo&) = delete;
    Processo& operator=(const Processo&) = delete;
    ~Processo() {
        if (filho_ > 0) {
            ::kill(filho_, SIGKILL);
            ::waitpid(filho_, nullptr, 0);
        }
    }

    pid_t numero() const { return filho_; }
    void sinal(int numero) const { ::kill(filho_, numero); }
    Fim esperar(std::chrono::seconds limite = 60s) {
        int estado = 0;
        while (::waitpid(filho_, &estado, WNOHANG) == 0) {
            if (std::chrono::steady_clock::now() - inicio_ > limite) {
                ::kill(filho_, SIGKILL);
                ::waitpid(filho_, &estado, 0);
                filho_ = -1;
                return {999, ler(saida_), ler(erro_), {}};
            }
            std::this_thread::sleep_for(2ms);
        }
        filho_ = -1;
        return {WIFEXITED(estado) ? WEXITSTATUS(estado) : 128 + WTERMSIG(estado), ler(saida_), ler(erro_),
                std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - inicio_)};
    }

  private:
    fs::path saida_;
    fs::path erro_;
    std::chrono::steady_clock::time_point inicio_;
    pid_t filho_ = -1;
};

// A folder of the test's own with a database in it, apart from where the program's output goes.
class Ataque : public testing::Test {
  protected:
    Ataque() {
        std::string nome = (fs::path(ORCREAL_PASTA_TESTE) / "ataque-XXXXXX").string();
        raiz = ::mkdtemp(nome.data());
        fs::permissions(raiz, fs::perms(0755));
        pasta = raiz / "dados";
        fs::create_directories(pasta);
        fs::create_directories(raiz / "casa");
        for (const char* variavel : {"DISPLAY", "WAYLAND_DISPLAY", "ORCREAL_BANCO", "XDG_DATA_HOME", "XDG_STATE_HOME"})
            ::unsetenv(variavel);
        ::setenv("HOME", (raiz / "casa").c_str(), 1);
    }
    ~Ataque() override { fs::remove_all(raiz); }

    // A copy of the demo database in that folder.
    fs::path copiar(const fs::path& destino) const {
        fs::copy_file(apoio::arquivoBase(apoio::Base::Demo), destino);
        return destino;
    }
    static std::vector<std::string> consulta(const std::string& banco, std::vector<std::string> mais = {}) {
        std::vector<std::string> palavras{"--banco", banco,        "consultar", "--modo",    "2",
                                          "--de",    "01/03/2024", "--ate",     "31/03/2024"};
        palavras.insert(palavras.end(), mais.begin(), mais.end());
        return palavras;
    }
    Fim rodar(const std::vector<std::string>& palavras, const std::function<void()>& mudanca = {}) const {
        return Processo(palavras, raiz, mudanca).esperar();
    }
    // Nothing but these names stands in the folder.
    void somente(const std::vector<std::string>& nomes) const {
        for (const auto& item : fs::directory_iterator(pasta))
            EXPECT_TRUE(std::find(nomes.begin(), nomes.end(), item.path().filename()) != nomes.end()) << item.path();
    }

    fs::path raiz;
    fs::path pasta;
};

} // namespace ataques
