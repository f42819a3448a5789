// The actuals on a real engine, stopped at any point: a projection is updated whole, or as it was.
#include "banco/Adversidades.h"
#include "banco/RealizadoFixture.h"
#include "suite/firebird/Api.h"

#include <fcntl.h>
#include <future>
#include <set>

using apoio::Atualizar;
using apoio::Lista;
using apoio::Realizado;
using apoio::Segurar;
using base::TTipoFalhaBanco;
using host::TEventoProgresso;
using namespace suite::firebird;

namespace {

constexpr const char* MensagemDaReserva =
    "Não foi possível reservar a projeção para atualizar o realizado; nada foi alterado nela.\r\rErros : ";
constexpr const char* MensagemDaConfirmacao =
    "Não foi possível gravar o realizado da projeção; ela ficou como estava.\r\rErros : ";
constexpr const char* ConfirmacaoSemResposta =
    "A conexão se perdeu enquanto o realizado da projeção era gravado; não se sabe se ficou gravado. Atualize o "
    "realizado novamente.\r\rErros : ";
constexpr const char* Falha = "Falha de teste.";

// What the user reads when a write of that name fails. The failure of a read is raised.
const std::map<std::string, std::string> Mensagens{
    {"início da transação", MensagemDaReserva + std::string(Falha)},
    {"ReservarProjecao", MensagemDaReserva + std::string(Falha)},
    {"ExecuteDirect", "Por problemas com o banco de dados a última operação foi perdida.\r\rRefaça a operação."},
    {"gravação de CdsCtbOrcadaVlr", Falha},
    {"confirmação da transação", MensagemDaConfirmacao + std::string(Falha)}};

// The program over January and February; its complaints go to the file.
pid_t IniciarPrograma(const std::string& alvo, const std::filesystem::path& erros, bool totais) {
    ::setenv("ORCREAL_SENHA", apoio::credenciais().password.c_str(), 1);
    const pid_t filho = ::fork();
    if (filho != 0)
        return filho;
    ::dup2(::open("/dev/null", O_WRONLY), STDOUT_FILENO);
    ::dup2(::open(erros.c_str(), O_CREAT | O_TRUNC | O_WRONLY, 0600), STDERR_FILENO);
    if (totais)
        ::execl(ORCREAL_PROGRAMA, "orcreal", "--banco", alvo.c_str(), "consultar", "--visualizar", "demonstracao",
                "--relatorio", "50", "--modo", "3", "--de", "01/01/2024", "--ate", "29/02/2024", "--totais",
                "reatualizar", "--dependencias", "selecionado", nullptr);
    ::execl(ORCREAL_PROGRAMA, "orcreal", "--banco", alvo.c_str(), "realizado", "atualizar", "--de", "01/01/2024",
            "--ate", "29/02/2024", nullptr);
    ::_exit(127);
}

} // namespace

TEST_F(Realizado, FalhaEmQualquerChamadaDeixaCadaProjecaoInteira) {
    Attachment outro{Target(copia.alvo()), apoio::credenciais()};
    // Calls of one name come in runs, rows of a cursor above all: the first and the last of each run tell all.
    std::vector<std::string> nomes{""};
    beforeCall = [&](std::string_view nome) { nomes.emplace_back(nome); };
    EXPECT_TRUE(Completa(Atualizar(*conexao)));
    beforeCall = {};
    Restaurar();
    nomes.emplace_back();
    for (const auto tipo : {TTipoFalhaBanco::Comando, TTipoFalhaBanco::Conexao}) {
        std::set<std::string> ditas;
        for (int n = 1;; ++n) {
            const auto i = static_cast<std::size_t>(n);
            if (i + 1 < nomes.size() && nomes[i] == nomes[i - 1] && nomes[i] == nomes[i + 1])
                continue;
            int chamadas = 0;
            std::string aqui;
            beforeCall = [&](std::string_view nome) {
                if (++chamadas < n || (chamadas > n && tipo == TTipoFalhaBanco::Comando))
                    return; // a lost connection stays lost
                if (chamadas == n)
                    aqui = nome;
                throw base::TFalhaBanco(tipo, Falha, "HY000", {}, "", "");
            };
            const auto rodada = Atualizar(*conexao, {}, [&] {
                beforeCall = {};
                Transaction dele(outro, TransactionMode::ReadWrite);
                Segurar(dele, 1);
                Segurar(dele, 2); // throws what it cannot get: nobody waits while a message is read
            });
            beforeCall = {};
            if (aqui.empty()) {
                EXPECT_TRUE(Completa(rodada));
                EXPECT_EQ(Mensagens.size(), ditas.size()) << testing::PrintToString(ditas);
                break;
            }
            SCOPED_TRACE("call " + std::to_string(n) + ", " + aqui);
            const bool comecou = !rodada.projecoes.empty();
            if (const auto dita = Mensagens.find(aqui); dita != Mensagens.end() && comecou && rodada.abortou) {
                ditas.insert(aqui);
                const bool semResposta = aqui == "confirmação da transação" && tipo == TTipoFalhaBanco::Conexao;
                EXPECT_EQ(Lista{semResposta ? ConfirmacaoSemResposta + std::string(Falha) : dita->second},
                          rodada.mensagens);
            } else { // of a read, or of its own transaction
                EXPECT_EQ(Falha, rodada.falha);
                EXPECT_EQ(Lista{}, rodada.mensagens);
            }
            const auto prontas = rodada.projecoes.size() < 2 ? 0U : 1U;
            const auto agora = Todas();
            ASSERT_TRUE(agora == Prontas(prontas) || (prontas == 1 && agora == Prontas(2) && rodada.mensagens.empty()))
                << testing::PrintToString(agora);
            if (prontas > 0 || agora != antes)
                Restaurar();
        }
        Restaurar();
    }
    EXPECT_TRUE(Completa(Atualizar(*conexao))) << "after all of them";
    EXPECT_EQ(depois, Todas());
}

TEST_F(Realizado, CancelarEmQualquerPassoDeixaCadaProjecaoInteira) {
    const auto outra = copia.conectar();
    for (int k = 1;; ++k) {
        Restaurar();
        int passos = 0;
        bool avisou = false;
        const auto cancelar = [&](auto& atual, const TEventoProgresso& evento) {
            atual.cancelado = evento.Tipo == TEventoProgresso::TTipo::Passo && ++passos == k;
        };
        const auto rodada = Atualizar(*conexao, cancelar, [&] {
            avisou = true;
            const auto inicio = std::chrono::steady_clock::now();
            EXPECT_TRUE(Completa(Atualizar(*outra))) << "while the message is read";
            EXPECT_LT(std::chrono::steady_clock::now() - inicio, std::chrono::seconds(5)) << "it waited for a lock";
        });
        if (passos < k) {
            EXPECT_TRUE(Completa(rodada));
            EXPECT_EQ(21, k) << "two for each of seven sums, and three for each of two projections";
            break;
        }
        SCOPED_TRACE("step " + std::to_string(k));
        ASSERT_TRUE(avisou);
        EXPECT_TRUE(rodada.abortou);
        EXPECT_EQ(Lista{"Processo cancelado."}, rodada.mensagens);
        ASSERT_EQ(depois, Todas()) << "what the other has stored stays";
        Restaurar();
        passos = 0;
        Atualizar(*conexao, cancelar);
        ASSERT_EQ(Prontas(rodada.projecoes.size() - 1), Todas());
    }
}

TEST_F(Realizado, QuemEncontraAProjecaoReservadaEsperaESabePorQuem) {
    Attachment outro{Target(copia.alvo()), apoio::credenciais()};
    {
        Transaction dele(outro, TransactionMode::ReadWrite);
        Segurar(dele, 2);
        const auto rodada = Atualizar(*conexao);
        EXPECT_TRUE(rodada.abortou);
        ASSERT_EQ(1U, rodada.mensagens.size());
        EXPECT_TRUE(rodada.mensagens[0].starts_with(MensagemDaReserva + std::string("Outro usuário (")))
            << rodada.mensagens[0];
        EXPECT_EQ(Prontas(1), Todas());
    }
    Restaurar();
    Transaction dele(outro, TransactionMode::ReadWrite);
    Segurar(dele, 1);
    auto confirma = std::async(std::launch::async, [&] {
        std::this_thread::sleep_for(std::chrono::seconds(1));
        dele.commit();
    });
    EXPECT_TRUE(Completa(Atualizar(*conexao)));
    confirma.get();
    EXPECT_EQ(depois, Todas());
}

TEST_F(Realizado, RegraDoBancoRecusaEAProjecaoFicaComoEstava) {
    copia.executar("ALTER TABLE CO01_CTBORCADAVLR ADD CONSTRAINT SEM_TITULO CHECK (IDPLANO IS NULL OR IDPLANO <> 90 OR "
                   "IDCTBORCADAINF <> 2);");
    conexao = copia.conectar();
    const auto rodada = Atualizar(*conexao);
    EXPECT_TRUE(rodada.abortou);
    EXPECT_EQ(Lista{"Os valores não atendem a uma regra deste banco de dados (SEM_TITULO); nada foi gravado."},
              rodada.mensagens);
    EXPECT_EQ(Prontas(1), Todas());
}

TEST_F(Realizado, VariosAoMesmoTempoTambemComTotaisDeixamAsLinhasDeTodos) {
    if (!apoio::peloServidor())
        GTEST_SKIP() << "the embedded engine lets one process in";
    const apoio::Pasta pasta;
    ASSERT_TRUE(Completa(Atualizar(*conexao)));
    ASSERT_EQ(0, apoio::Esperar(IniciarPrograma(copia.alvo(), pasta.caminho / "totais", true)))
        << apoio::Texto(pasta.caminho / "totais");
    const auto comTotais = Todas();
    for (int vez = 1; vez <= 2; ++vez) {
        Restaurar();
        std::vector<pid_t> filhos;
        for (int i = 0; i < 4; ++i)
            filhos.push_back(IniciarPrograma(copia.alvo(), pasta.caminho / std::to_string(i), i % 2 == 1));
        for (int i = 0; i < 4; ++i)
            EXPECT_EQ(0, apoio::Esperar(filhos[static_cast<std::size_t>(i)]))
                << apoio::Texto(pasta.caminho / std::to_string(i));
        // Whoever came last, the accounts are those of the journal, and totals made from them once more are whole.
        EXPECT_EQ(0, apoio::Esperar(IniciarPrograma(copia.alvo(), pasta.caminho / "totais", true)));
        EXPECT_EQ(comTotais, Todas());
    }
}

TEST_F(Realizado, ServidorMortoNoMeioDeixaCadaProjecaoInteira) {
    if (!apoio::peloServidor())
        GTEST_SKIP() << "the embedded engine has no server";
    apoio::Servidor servidor;
    conexao.reset();
    const auto ligacao = servidor.Conectar(copia.arquivo());
    int vezes = 0;
    const auto rodada = Atualizar(*ligacao, [&](auto&, const TEventoProgresso& evento) {
        if (evento.Texto == "Gerando os totalizadores... " && ++vezes == 2)
            servidor.Matar();
    });
    EXPECT_NE("", rodada.falha);
    servidor.Reiniciar();
    const auto nova = servidor.Conectar(copia.arquivo());
    EXPECT_EQ(Prontas(1), Todas(*nova));
    EXPECT_TRUE(Completa(Atualizar(*nova)));
    EXPECT_EQ(depois, Todas(*nova));
}
