// The generation of totals on a real engine: the rows that it writes, and what stands when it is stopped at any point.
#include "banco/Adversidades.h"
#include "banco/TotalizacaoFixture.h"
#include "suite/firebird/Api.h"
#include "suite/firebird/Statement.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <future>
#include <set>
#include <sys/ptrace.h>
#include <thread>
#include <unistd.h>

using apoio::Esperar;
using apoio::Gerar;
using apoio::Lista;
using apoio::NomeDoComputador;
using apoio::Pasta;
using apoio::Rodada;
using apoio::Segurar;
using apoio::Servidor;
using apoio::Texto;
using apoio::Totalizacao;
using apoio::UsuarioDoSistema;
using base::TTipoFalhaBanco;
namespace fs = std::filesystem;
using host::TEventoProgresso;
using namespace suite::firebird;

namespace {

constexpr const char* Janeiro = "Gerando totalizações Relatório 50 para 01/01/2024 a 31/01/2024";
constexpr const char* Fevereiro = "Gerando totalizações Relatório 50 para 01/02/2024 a 29/02/2024";

constexpr const char* MensagemDaReserva =
    "Não foi possível reservar a projeção para gerar as totalizações; nada foi alterado nela.\r\rErros : ";
constexpr const char* MensagemDaEtapa3 =
    "Não foi possível inserir os registros de totalização dos totalizadores \ranalíticos com vinculação de outros "
    "totalizadores e contas.\r\rErros : ";
constexpr const char* MensagemDaEtapa5 =
    "Não foi possível inserir os registros de totalização dos totalizadores sintéticos.\r\rErros : ";
constexpr const char* TextoDaEtapa3 = "Gerando totalizações de totalizadores analíticos com outros tots. e contas.";

// What the user reads when a call of that name fails after the progress dialog has come up.
const std::map<std::string, std::string> Mensagens{
    {"início da transação", MensagemDaReserva},
    {"ReservarProjecao", MensagemDaReserva},
    {"ExcluirTotalizacoes",
     "Não foi possível excluir as totalizações das Configurações de \rDemonstrações Contábeis.\r\rErros : "},
    {"GerarDetalhamentosContas", "Não foi possível inserir os detalhamentos de contas por totalizadores.\r\rErros : "},
    {"GerarTotaisAnaliticosSomenteContas",
     "Não foi possível inserir os registros de totalização dos totalizadores \ranalíticos com vinculação de "
     "contas.\r\rErros : "},
    {"GerarTotaisAnaliticosComOutrosEContas", MensagemDaEtapa3},
    {"GerarTotaisAnaliticosVinculados",
     "Não foi possível inserir os registros de totalização dos totalizadores \ranalíticos com vinculação de outros "
     "totalizadores.\r\rErros : "},
    {"GerarTotaisSinteticos", MensagemDaEtapa5},
    {"GerarTotaisSinteticosVinculados",
     "Não foi possível inserir os registros de totalização dos totalizadores \rsintéticos com vinculação de outros "
     "totalizadores sintéticos.\r\rErros: "},
    {"confirmação da transação",
     "Não foi possível gravar as totalizações da projeção; ela ficou como estava.\r\rErros : "}};
constexpr const char* ConfirmacaoSemResposta =
    "A conexão se perdeu enquanto as totalizações da projeção eram gravadas; não se sabe se ficaram gravadas. Gere os "
    "totais novamente.\r\rErros : ";

bool EhTexto(const TEventoProgresso& evento, const char* texto) {
    return evento.Tipo == TEventoProgresso::TTipo::Texto && evento.Texto == texto;
}

// The program over statement 50 in projections 1 and 2, with new totals; its complaints go to the file.
pid_t IniciarPrograma(const std::string& alvo, const fs::path& pastaLog, const fs::path& erros,
                      bool observado = false) {
    ::setenv("ORCREAL_SENHA", apoio::credenciais().password.c_str(), 1);
    const pid_t filho = ::fork();
    if (filho != 0)
        return filho;
    ::dup2(::open("/dev/null", O_WRONLY), STDOUT_FILENO);
    ::dup2(::open(erros.c_str(), O_CREAT | O_TRUNC | O_WRONLY, 0600), STDERR_FILENO);
    if (observado)
        ::setenv("ASAN_OPTIONS", "detect_leaks=0", 1); // the leak checker wants to be the only one who traces
    if (observado && ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0)
        ::_exit(126);
    ::execl(ORCREAL_PROGRAMA, "orcreal", "--banco", alvo.c_str(), "--pasta-log", pastaLog.c_str(), "consultar",
            "--visualizar", "demonstracao", "--relatorio", "50", "--modo", "3", "--de", "01/01/2024", "--ate",
            "29/02/2024", "--totais", "reatualizar", "--dependencias", "selecionado", nullptr);
    ::_exit(127);
}

} // namespace

TEST_F(Totalizacao, GravaDetalhesETotaisComTodasAsSuasColunas) {
    Lista gravadas;
    std::set_difference(depois[1].begin(), depois[1].end(), antes[1].begin(), antes[1].end(),
                        std::back_inserter(gravadas));
    // Projection, company, establishment, account, sub-account, cost centre, totalizer | codes, index and percentage |
    // kind of generation | base, budget, actual.
    Lista esperadas{"1|1|11|101|||51|1|3|0.050000|2|3.50||101.00|112.00|124.00",
                    "1|1|12|101|||51|||||||1000.00|0.00|50.00",
                    "1|1|11|102|7||52|||||||15.00|26.00|47.00",
                    "1|1|12|102|7||52|||||||8.00|9.00|10.00",
                    "1|1|11|102|7|5|53|||||||5.00|6.00|7.00",
                    "1|1|12|102|7|5|53|||||||8.00|9.00|10.00",
                    "1|1|11|103||5|54|||||||30.00|31.00|32.00",
                    "1|1|11|101|||54|1|3|0.050000|2|3.50||101.00|112.00|124.00",
                    "1|1|12|101|||54|||||||1000.00|0.00|50.00",
                    "1|1|11|103||5|56|||||||30.00|31.00|32.00",
                    "1|1|11||||51|||||||116.00|138.00|171.00",
                    "1|1|12||||51|||||||1008.00|9.00|60.00",
                    "1|1|11||||52|||||||15.00|26.00|47.00",
                    "1|1|12||||52|||||||8.00|9.00|10.00",
                    "1|1|11||||53|||||||116.00|138.00|171.00",
                    "1|1|12||||53|||||||1008.00|9.00|60.00",
                    "1|1|11||||54|||||||101.00|112.00|124.00",
                    "1|1|12||||54|||||||1000.00|0.00|50.00",
                    "1|1|11||||56|||||||30.00|31.00|32.00",
                    "1|1|11||||50|||||||378.00|445.00|545.00",
                    "1|1|12||||50|||||||3024.00|27.00|180.00",
                    "1|1|11||||55|||||||378.00|445.00|545.00",
                    "1|1|12||||55|||||||3024.00|27.00|180.00"};
    std::sort(esperadas.begin(), esperadas.end());
    EXPECT_EQ(esperadas, gravadas);
    Lista perdidas;
    std::set_difference(antes[1].begin(), antes[1].end(), depois[1].begin(), depois[1].end(),
                        std::back_inserter(perdidas));
    EXPECT_EQ(9U, perdidas.size()) << "the totals of the earlier run, and nothing else";
    EXPECT_TRUE(std::all_of(perdidas.begin(), perdidas.end(), [](const auto& linha) {
        return linha.ends_with("|||||||7.00|7.00|7.00");
    })) << testing::PrintToString(perdidas);
    EXPECT_EQ(depois[1].size(), depois[2].size());
    EXPECT_EQ(antes[3], depois[3]) << "not of the list";
}

TEST_F(Totalizacao, GerarDeNovoDaAsMesmasLinhas) {
    conexao = copia.conectar();
    for (int vez = 1; vez <= 3; ++vez) {
        EXPECT_TRUE(Completa(Gerar(*conexao)));
        EXPECT_EQ(depois, Todas(*conexao)) << vez;
    }
}

TEST_F(Totalizacao, FalhaEmQualquerChamadaDeixaCadaProjecaoInteira) {
    conexao = copia.conectar();
    Attachment outro{Target(copia.alvo()), apoio::credenciais()};
    for (const auto tipo : {TTipoFalhaBanco::Comando, TTipoFalhaBanco::Conexao}) {
        std::set<std::string> onde; // calls that failed once a projection had been begun
        for (int n = 1;; ++n) {
            int chamadas = 0;
            std::string aqui;
            beforeCall = [&](std::string_view nome) {
                if (++chamadas < n || (chamadas > n && tipo == TTipoFalhaBanco::Comando))
                    return; // a lost connection stays lost
                if (chamadas == n)
                    aqui = nome;
                throw base::TFalhaBanco(tipo, "Falha de teste.", "HY000", {}, "", "");
            };
            const auto rodada = Gerar(*conexao, {}, [&] {
                beforeCall = {};
                Transaction dele(outro, TransactionMode::ReadWrite);
                Segurar(dele, 1);
                Segurar(dele, 2); // throws what it cannot get: nobody waits while a message is read
            });
            beforeCall = {};
            if (aqui.empty()) {
                EXPECT_TRUE(Completa(rodada));
                EXPECT_EQ(Mensagens.size(), onde.size()) << testing::PrintToString(onde);
                break;
            }
            SCOPED_TRACE("call " + std::to_string(n) + ", " + aqui);
            if (rodada.projecoes.empty()) { // while it reads what is to be done
                EXPECT_EQ("Falha de teste.", rodada.falha);
                EXPECT_EQ(Lista{}, rodada.mensagens);
                ASSERT_EQ(antes, Todas(*conexao));
                continue;
            }
            ASSERT_TRUE(rodada.abortou) << rodada.falha;
            const bool semResposta = aqui == "confirmação da transação" && tipo == TTipoFalhaBanco::Conexao;
            EXPECT_EQ(Lista{(semResposta ? ConfirmacaoSemResposta : Mensagens.at(aqui)) + "Falha de teste."},
                      rodada.mensagens);
            ASSERT_EQ(Prontas(rodada.projecoes.size() - 1), Todas(*conexao));
            if (onde.insert(aqui).second) {
                ASSERT_TRUE(Completa(Gerar(*conexao))) << "after the failure";
                ASSERT_EQ(depois, Todas(*conexao));
                Restaurar(*conexao);
            } else if (rodada.projecoes.size() > 1) {
                Restaurar(*conexao);
            }
        }
        Restaurar(*conexao);
    }
}

TEST_F(Totalizacao, CancelarEmQualquerPassoDeixaCadaProjecaoInteira) {
    conexao = copia.conectar();
    const auto outra = copia.conectar();
    for (int k = 1;; ++k) {
        Restaurar(*conexao);
        int passos = 0;
        bool avisou = false;
        const auto cancelar = [&](auto& atual, const TEventoProgresso& evento) {
            atual.cancelado = evento.Tipo == TEventoProgresso::TTipo::Passo && ++passos == k;
        };
        const auto rodada = Gerar(*conexao, cancelar, [&] {
            avisou = true;
            const auto inicio = std::chrono::steady_clock::now();
            EXPECT_TRUE(Completa(Gerar(*outra))) << "while the message is read";
            EXPECT_LT(std::chrono::steady_clock::now() - inicio, std::chrono::seconds(5)) << "it waited for a lock";
            EXPECT_EQ(depois, Todas(*outra));
        });
        if (passos < k) {
            EXPECT_TRUE(Completa(rodada));
            EXPECT_EQ(15, k) << "a step for each of two projections, and for each of six stages in them";
            break;
        }
        SCOPED_TRACE("step " + std::to_string(k));
        ASSERT_TRUE(avisou);
        EXPECT_TRUE(rodada.abortou);
        EXPECT_EQ(Lista{"Processo Cancelado."}, rodada.mensagens);
        ASSERT_EQ(depois, Todas(*conexao)) << "what the other has stored stays";
        Restaurar(*conexao);
        passos = 0;
        Gerar(*conexao, cancelar);
        ASSERT_EQ(Prontas(rodada.projecoes.size() - 1), Todas(*conexao));
    }
}

TEST_F(Totalizacao, QuemEncontraAProjecaoReservadaEsperaESabePorQuem) {
    conexao = copia.conectar();
    Attachment outro{Target(copia.alvo()), apoio::credenciais()};
    {
        Transaction dele(outro, TransactionMode::ReadWrite);
        Segurar(dele, 2);
        const auto inicio = std::chrono::steady_clock::now();
        const auto rodada = Gerar(*conexao);
        EXPECT_GT(std::chrono::steady_clock::now() - inicio, std::chrono::seconds(5)) << "it waits";
        EXPECT_TRUE(rodada.abortou);
        // A server knows who sits at the other end, the embedded engine only the database's user.
        const auto quem = apoio::peloServidor() ? UsuarioDoSistema() + ", no computador " + NomeDoComputador()
                                                : std::string("SYSDBA");
        EXPECT_EQ(Lista{MensagemDaReserva + std::string("Outro usuário (") + quem +
                        ") está gravando os mesmos dados. Aguarde um instante e tente novamente."},
                  rodada.mensagens);
        ASSERT_TRUE(rodada.causa) << "a lock is a failure of the database as well";
        EXPECT_EQ(base::TTipoFalhaBanco::Bloqueio, rodada.causa->Tipo());
        EXPECT_EQ(Prontas(1), Todas(*conexao));
    }
    Restaurar(*conexao);
    Transaction dele(outro, TransactionMode::ReadWrite);
    Segurar(dele, 1);
    auto confirma = std::async(std::launch::async, [&] {
        std::this_thread::sleep_for(std::chrono::seconds(1));
        dele.commit();
    });
    const auto inicio = std::chrono::steady_clock::now();
    EXPECT_TRUE(Completa(Gerar(*conexao)));
    EXPECT_GT(std::chrono::steady_clock::now() - inicio, std::chrono::milliseconds(900));
    confirma.get();
    EXPECT_EQ(depois, Todas(*conexao));
}

TEST_F(Totalizacao, VariosUsuariosAoMesmoTempoDeixamAsLinhasDeUm) {
    if (!apoio::peloServidor())
        GTEST_SKIP() << "the embedded engine lets one process in";
    const Pasta pasta;
    conexao = copia.conectar();
    constexpr int Usuarios = 4;
    for (int vez = 1; vez <= 3; ++vez) {
        Restaurar(*conexao);
        std::vector<pid_t> filhos;
        for (int i = 0; i < Usuarios; ++i)
            filhos.push_back(
                IniciarPrograma(copia.alvo(), pasta.caminho, pasta.caminho / ("erros" + std::to_string(i))));
        for (int i = 0; i < Usuarios; ++i)
            EXPECT_EQ(0, Esperar(filhos[static_cast<std::size_t>(i)]))
                << Texto(pasta.caminho / ("erros" + std::to_string(i)));
        EXPECT_EQ(depois, Todas(*conexao));
    }
}

TEST_F(Totalizacao, RegraDoBancoRecusaAEtapaEAProjecaoFicaComoEstava) {
    copia.executar("ALTER TABLE CO01_CTBORCADAVLR ADD CONSTRAINT SEM_SINTETICO CHECK (IDDEMACTOT IS NULL OR "
                   "IDDEMACTOT <> 50 OR IDCTBORCADAINF <> 2 OR VLRBASE < 1000);");
    conexao = copia.conectar();
    const auto rodada = Gerar(*conexao);
    EXPECT_TRUE(rodada.abortou);
    EXPECT_EQ(Lista{std::string(MensagemDaEtapa5) + "Os valores não atendem a uma regra deste banco de dados "
                                                    "(SEM_SINTETICO); nada foi gravado."},
              rodada.mensagens);
    ASSERT_TRUE(rodada.causa);
    EXPECT_EQ("GerarTotaisSinteticos", rodada.causa->Instrucao());
    EXPECT_EQ(Prontas(1), Todas(*conexao));
}

TEST_F(Totalizacao, ServidorMortoNoMeioDeixaCadaProjecaoInteira) {
    if (!apoio::peloServidor())
        GTEST_SKIP() << "the embedded engine has no server";
    Servidor servidor;
    const auto ligacao = servidor.Conectar(copia.arquivo());
    int vezes = 0;
    const auto rodada = Gerar(*ligacao, [&](auto&, const TEventoProgresso& evento) {
        if (EhTexto(evento, TextoDaEtapa3) && ++vezes == 2)
            servidor.Matar();
    });
    EXPECT_TRUE(rodada.abortou);
    EXPECT_EQ(Lista{std::string(MensagemDaEtapa3) + "A conexão com o banco de dados foi perdida. Conecte-se novamente; "
                                                    "o que já estava confirmado permanece gravado."},
              rodada.mensagens);
    servidor.Reiniciar();
    const auto nova = servidor.Conectar(copia.arquivo());
    EXPECT_EQ(Prontas(1), Todas(*nova));
    EXPECT_TRUE(Completa(Gerar(*nova)));
    EXPECT_EQ(depois, Todas(*nova));
}

TEST_F(Totalizacao, SobUmDepuradorOUltimoRoteiroDosDetalhesFicaGravado) {
    const Pasta com;
    const auto erros = com.caminho / "erros";
    const auto arquivo = com.caminho / "\\3073_DetContaPorTotalizadorAnaliticos.txt";
    ASSERT_EQ(0, Esperar(IniciarPrograma(copia.alvo(), com.caminho, erros))) << Texto(erros);
    EXPECT_FALSE(fs::exists(arquivo));
    const int codigo = Esperar(IniciarPrograma(copia.alvo(), com.caminho, erros, true));
    if (codigo == 126)
        GTEST_SKIP() << "this system lets no process be traced";
    ASSERT_EQ(0, codigo) << Texto(erros);
    const auto roteiro = Texto(arquivo);
    EXPECT_NE(std::string::npos, roteiro.find("EXECUTE BLOCK"));
    EXPECT_NE(std::string::npos, roteiro.find("CO01_CTBORCADAVLR.IDCTBORCADAINF = 2\n")) << roteiro;
    EXPECT_EQ(std::string::npos, roteiro.find("CO01_CTBORCADAVLR.IDCTBORCADAINF = 1\n"));
    EXPECT_EQ(roteiro.find("EXECUTE BLOCK"), roteiro.rfind("EXECUTE BLOCK")) << "written over, not behind";
}
