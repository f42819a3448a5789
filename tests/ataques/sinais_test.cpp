// Signals at any moment, and servers that fall silent.
#include "ataques/Processo.h"

#include <netinet/in.h>
#include <poll.h>
#include <random>
#include <sys/socket.h>

namespace ataques {

namespace {

class Sinais : public Ataque {
  protected:
    std::mt19937 sorte{7};
    void dormir(int ateMilissegundos) {
        std::this_thread::sleep_for(std::chrono::milliseconds(sorte() % static_cast<unsigned>(ateMilissegundos)));
    }
    static std::vector<std::string> totais(const fs::path& banco) {
        return {"--banco",    banco,      "consultar",   "--visualizar",   "demonstracao", "--relatorio",
                "1",          "--modo",   "3",           "--de",           "01/01/2024",   "--ate",
                "30/09/2024", "--totais", "reatualizar", "--dependencias", "todos",        "--formato",
                "json"};
    }
};

// A server of the test: hands the bytes of one client on to the real one, up to a limit in all, and then either cuts
// the connection or keeps it open in silence. Without a server behind it, it says what it is given.
class Porteiro {
  public:
    Porteiro(int porta, std::size_t limite, bool corta) : limite_(limite), corta_(corta) {
        escuta_ = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_in aqui = endereco(0);
        socklen_t tamanho = sizeof aqui;
        ::bind(escuta_, reinterpret_cast<sockaddr*>(&aqui), tamanho);
        ::listen(escuta_, 4);
        ::getsockname(escuta_, reinterpret_cast<sockaddr*>(&aqui), &tamanho);
        porta_ = ntohs(aqui.sin_port);
        trabalho_ = std::thread([this, porta] { servir(porta); });
    }
    ~Porteiro() {
        fim_ = true;
        trabalho_.join();
        ::close(escuta_);
    }
    int porta() const { return porta_; }
    std::size_t passaram() const { return passaram_; }

  private:
    static sockaddr_in endereco(int porta) {
        sockaddr_in aqui{};
        aqui.sin_family = AF_INET;
        aqui.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        aqui.sin_port = htons(static_cast<std::uint16_t>(porta));
        return aqui;
    }
    void servir(int porta) {
        while (!fim_) {
            pollfd espera{escuta_, POLLIN, 0};
            if (::poll(&espera, 1, 50) <= 0)
                continue;
            const int cliente = ::accept(escuta_, nullptr, nullptr);
            const int servidor = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
            const auto la = endereco(porta);
            if (::connect(servidor, reinterpret_cast<const sockaddr*>(&la), sizeof la) == 0)
                passar(cliente, servidor);
            ::close(cliente);
            ::close(servidor);
        }
    }
    void passar(int cliente, int servidor) {
        char bytes[4096];
        while (!fim_) {
            if (passaram_ >= limite_) {
                if (corta_)
                    return;
                std::this_thread::sleep_for(10ms);
                continue;
            }
            pollfd dois[]{{cliente, POLLIN, 0}, {servidor, POLLIN, 0}};
            ::poll(dois, 2, 50);
            for (int lado = 0; lado < 2; ++lado)
                if (dois[lado].revents != 0) {
                    const auto lidos = ::read(dois[lado].fd, bytes, std::min(sizeof bytes, limite_ - passaram_));
                    if (lidos <= 0)
                        return;
                    passaram_ += static_cast<std::size_t>(lidos);
                    static_cast<void>(!::write(dois[1 - lado].fd, bytes, static_cast<std::size_t>(lidos)));
                }
        }
    }

    std::size_t limite_;
    bool corta_;
    int escuta_ = -1;
    int porta_ = 0;
    std::atomic<bool> fim_{false};
    std::atomic<std::size_t> passaram_{0};
    std::thread trabalho_;
};

class ServidorAtacado : public Sinais {
  protected:
    ServidorAtacado() {
        ::setenv("ORCREAL_SENHA", apoio::credenciais().password.c_str(), 1);
        const auto alvo = copia.alvo();
        porta = std::stoi(alvo.substr(alvo.find('/') + 1));
    }
    std::vector<std::string> pelo(const Porteiro& porteiro, std::vector<std::string> palavras) const {
        palavras[1] = "127.0.0.1/" + std::to_string(porteiro.porta()) + ":" + copia.arquivo().string();
        return palavras;
    }
    apoio::Copia copia{apoio::Base::Demo};
    int porta = 0;
};

} // namespace

TEST_F(Sinais, EnquantoODemoEFeitoNadaFica) {
    for (const int sinal : {SIGTERM, SIGHUP, SIGINT, SIGTERM, SIGHUP, SIGINT, SIGTERM, SIGHUP}) {
        Processo processo({"demo", "--destino", pasta / "d.fdb", "--escala", "5"}, raiz);
        dormir(1500);
        processo.sinal(sinal);
        const auto antes = std::chrono::steady_clock::now();
        const auto fim = processo.esperar();
        EXPECT_LT(std::chrono::steady_clock::now() - antes, 5s) << sinal; // a second, and what a busy machine adds
        EXPECT_TRUE(fim.codigo == 4 || fim.codigo == 128 + sinal) << fim.codigo << fim.erro; // before main it just ends
        somente({".orcreal-lock"});
    }
}

TEST_F(Sinais, DuranteOsTotaisCadaProjecaoFicaInteira) {
    const auto banco = copiar(pasta / "a.fdb");
    const auto certo = rodar(totais(banco));
    ASSERT_EQ(0, certo.codigo) << certo.erro;
    for (int vez = 0; vez < 12; ++vez) {
        Processo processo(totais(banco), raiz);
        dormir(900);
        processo.sinal(vez % 3 == 0 ? SIGKILL : SIGTERM);
        processo.esperar();
    }
    const auto depois = rodar(totais(banco));
    EXPECT_EQ(0, depois.codigo) << depois.erro;
    EXPECT_EQ(certo.saida, depois.saida);
}

TEST_F(Sinais, OTerminalFechadoNaoEncerraQuemOIgnora) {
    const auto banco = copiar(pasta / "a.fdb");
    Processo processo(totais(banco), raiz, [] { ::signal(SIGHUP, SIG_IGN); });
    std::this_thread::sleep_for(200ms);
    processo.sinal(SIGHUP);
    EXPECT_EQ(0, processo.esperar().codigo);
}

TEST_F(ServidorAtacado, CaladoNaoPrendeQuemVaiEmbora) {
    for (const int sinal : {SIGTERM, SIGHUP}) {
        Porteiro porteiro(porta, 20'000, false);
        Processo processo(pelo(porteiro, totais("")), raiz);
        while (porteiro.passaram() < 20'000)
            std::this_thread::sleep_for(5ms);
        std::this_thread::sleep_for(200ms);
        processo.sinal(sinal);
        const auto antes = std::chrono::steady_clock::now();
        EXPECT_EQ(4, processo.esperar(20s).codigo);
        EXPECT_LT(std::chrono::steady_clock::now() - antes, 5s);
    }
}

TEST_F(ServidorAtacado, CortadoEmQualquerByteNadaSePerde) {
    std::size_t todos = 0;
    std::string certo;
    {
        Porteiro porteiro(porta, std::string::npos, true);
        const auto fim = rodar(pelo(porteiro, totais("")));
        ASSERT_EQ(0, fim.codigo) << fim.erro;
        certo = fim.saida;
        todos = porteiro.passaram();
    }
    for (int vez = 0; vez < 8; ++vez) {
        Porteiro porteiro(porta, 1 + sorte() % todos, true);
        const auto fim = rodar(pelo(porteiro, totais("")));
        EXPECT_EQ(3, fim.codigo) << vez << ": " << fim.erro;
        EXPECT_NE(std::string::npos, fim.erro.find("SQLSTATE")) << fim.erro;
    }
    Porteiro porteiro(porta, std::string::npos, true);
    EXPECT_EQ(certo, rodar(pelo(porteiro, totais(""))).saida);
}

} // namespace ataques
