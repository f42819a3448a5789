#pragma once

#include "apoio/Bases.h"
#include "suite/firebird/Statement.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <pwd.h>
#include <sstream>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

// What a run may meet: somebody who holds its rows, other processes, a server that dies.
namespace apoio {

namespace fs = std::filesystem;

inline std::string UsuarioDoSistema() { return ::getpwuid(::geteuid())->pw_name; }

inline std::string NomeDoComputador() {
    char nome[256] = "";
    ::gethostname(nome, sizeof nome - 1);
    return nome;
}

// Holds the header row of the projection, as a rebuild does, until the transaction ends.
inline void Segurar(suite::firebird::Transaction& transacao, int projecao) {
    suite::firebird::queryValue(transacao,
                                "SELECT IDCTBORCADAINF FROM CO01_CTBORCADAINF WHERE IDCTBORCADAINF = " +
                                    std::to_string(projecao) + " WITH LOCK",
                                "dele");
}

// Lets a followed process go on wherever it stops.
inline int Esperar(pid_t filho) {
    int estado = 0;
    while (::waitpid(filho, &estado, 0) == filho && WIFSTOPPED(estado)) {
        const int sinal = WSTOPSIG(estado);
        ::ptrace(PTRACE_CONT, filho, nullptr, reinterpret_cast<void*>(sinal == SIGTRAP ? 0L : long{sinal}));
    }
    return WIFEXITED(estado) ? WEXITSTATUS(estado) : 128 + WTERMSIG(estado);
}

inline std::string Texto(const fs::path& arquivo) {
    std::stringstream texto;
    texto << std::ifstream(arquivo, std::ios::binary).rdbuf();
    return texto.str();
}

// A folder of one test, gone with it.
class Pasta {
  public:
    Pasta() {
        std::string nome = (fs::temp_directory_path() / "orcreal-XXXXXX").string();
        caminho = ::mkdtemp(nome.data());
    }
    ~Pasta() {
        std::error_code ignorado;
        fs::remove_all(caminho, ignorado);
    }
    Pasta(const Pasta&) = delete;
    Pasta& operator=(const Pasta&) = delete;
    fs::path caminho;
};

// A server of one test's own, which it may kill.
class Servidor {
  public:
    Servidor() { Comandar("iniciar"); }
    ~Servidor() { Comandar("parar"); }
    Servidor(const Servidor&) = delete;
    Servidor& operator=(const Servidor&) = delete;

    void Reiniciar() { Comandar("iniciar"); }
    void Matar() const {
        const auto pid = std::stoi(Texto(raiz() / "pid"));
        ::kill(pid, SIGKILL);
        const auto situacao = fs::path("/proc") / std::to_string(pid) / "stat"; // a zombie until it is collected
        while (fs::exists(situacao) && Texto(situacao).find(") Z ") == std::string::npos)
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    std::unique_ptr<suite::firebird::Connection> Conectar(const fs::path& arquivo) const {
        return std::make_unique<suite::firebird::Connection>(
            suite::firebird::Target("127.0.0.1/" + Ambiente("ORCREAL_TESTE_PORTA") + ":" + arquivo.string()),
            suite::firebird::Credentials{"SYSDBA", Ambiente("ORCREAL_SENHA")});
    }

  private:
    fs::path raiz() const { return pasta_.caminho / "servidor"; }
    void Comandar(const std::string& acao) {
        const auto comando = std::string(ORCREAL_SERVIDOR_TESTE " ") + acao + " '" + raiz().string() + "'";
        EXPECT_EQ(0, std::system(comando.c_str()));
    }
    std::string Ambiente(const std::string& nome) const {
        const auto texto = Texto(raiz() / "ambiente");
        const auto inicio = texto.find(nome + "=") + nome.size() + 1;
        return texto.substr(inicio, texto.find('\n', inicio) - inicio);
    }
    Pasta pasta_;
};

} // namespace apoio
