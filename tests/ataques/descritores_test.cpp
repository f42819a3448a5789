// Standard streams that are closed, and paths with letters of every kind.
#include "ataques/Processo.h"

namespace ataques {

namespace {

class Descritores : public Ataque {};
class Nomes : public Ataque {};

} // namespace

TEST_F(Descritores, FechadosNaoVaoParaOMotor) {
    const auto banco = copiar(pasta / "a.fdb");
    const auto certo = rodar(consulta(banco));
    ASSERT_EQ(0, certo.codigo);
    for (unsigned quais = 1; quais < 8; ++quais) {
        const auto fechar = [quais] {
            for (unsigned numero = 0; numero < 3; ++numero)
                if (quais & 1U << numero)
                    ::close(static_cast<int>(numero));
        };
        const bool semSaida = quais & 2U;
        const auto fim = rodar(consulta(banco), fechar);
        EXPECT_EQ(semSaida ? 1 : 0, fim.codigo) << quais << ": " << fim.erro;
        EXPECT_EQ(semSaida ? "" : certo.saida, fim.saida) << quais;
        EXPECT_EQ(semSaida && !(quais & 4U), !fim.erro.empty()) << quais << ": " << fim.erro;
        const auto arquivo = rodar(consulta(banco, {"--formato", "csv", "--saida", pasta / "r.csv"}), fechar);
        EXPECT_EQ(1000U, std::min<std::uintmax_t>(1000, fs::file_size(pasta / "r.csv")));
        EXPECT_EQ(0, arquivo.codigo) << "nothing was to be written to the standard output";
        fs::remove(pasta / "r.csv");
    }
    EXPECT_EQ(certo.saida, rodar(consulta(banco)).saida);
}

// Everything that names a file, from a folder whose name has what is not a letter of ASCII.
TEST_F(Nomes, TudoFuncionaComQualquerLetra) {
    const std::pair<const char*, const char*> lugares[] = {{"C", "ação com espaço"},
                                                           {"C", "copo d'água"},
                                                           {"C", "日本"},
                                                           {"C.UTF-8", "ação"},
                                                           {"pt_BR.ISO-8859-1", "ação"}};
    for (const auto& [lingua, nome] : lugares) {
        SCOPED_TRACE(std::string(lingua) + ", " + nome);
        ::setenv("LC_ALL", lingua, 1);
        const auto aqui = raiz / lingua / nome;
        fs::create_directories(aqui);
        const auto naPasta = [&] { static_cast<void>(!::chdir(aqui.c_str())); };
        ::setenv("HOME", aqui.c_str(), 1);
        EXPECT_EQ(0, rodar({"consultar", "--modo", "2", "--de", "01/03/2024", "--ate", "31/03/2024"}).codigo)
            << "a demo below that home";
        const auto banco = copiar(aqui / "orçado.fdb").string();
        for (const char* formato : {"tabela", "csv", "json", "xlsx", "html"}) {
            const auto arquivo = aqui / (std::string("realizado é.") + formato);
            const auto fim = rodar(consulta(banco, {"--formato", formato, "--saida", arquivo}));
            EXPECT_EQ(0, fim.codigo) << fim.erro;
            EXPECT_GT(fs::file_size(arquivo), 1000U);
        }
        escrever(aqui / "opções.ini", "banco = \"" + banco + "\"\n");
        escrever(aqui / "senha é", "segredo\n");
        escrever(aqui / "próximo.roteiro", "selecionar\ndefinir DeDataIni 01/03/2024\ndefinir DeDataFim "
                                           "31/03/2024\nclicar actOK\nexportar " +
                                               (aqui / "saída.csv").string() + "\n");
        const auto roteiro = rodar({"--config", aqui / "opções.ini", "--senha-arquivo", aqui / "senha é", "--pasta-log",
                                    aqui, "roteiro", aqui / "próximo.roteiro"},
                                   naPasta);
        EXPECT_EQ(0, roteiro.codigo) << roteiro.erro;
        EXPECT_GT(fs::file_size(aqui / "saída.csv"), 1000U);
        EXPECT_EQ(0, rodar({"--banco", "orçado.fdb", "verificar"}, naPasta).codigo);
    }
    ::unsetenv("LC_ALL");
}

TEST_F(Nomes, AJanelaAbreQualquerCaminhoESaiQuandoPedem) {
    const auto banco = copiar(pasta / "orçado é.fdb");
    const auto aberto = [&] {
        const fs::path travas = pasta / ".orcreal-lock";
        return fs::exists(travas) && std::distance(fs::directory_iterator(travas), fs::directory_iterator()) > 1;
    };
    Processo janela({"--banco", banco, "janela"}, raiz, [&] {
        ::setenv("LC_ALL", "C", 1);
        ::setenv("HOME", (raiz / "joão").c_str(), 1);
        ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    });
    for (int vez = 0; vez < 1000 && !aberto(); ++vez)
        std::this_thread::sleep_for(10ms);
    EXPECT_TRUE(aberto());
    std::this_thread::sleep_for(500ms);
    const auto antes = std::chrono::steady_clock::now();
    janela.sinal(SIGTERM);
    EXPECT_EQ(4, janela.esperar().codigo);
    EXPECT_LT(std::chrono::steady_clock::now() - antes, 5s);
}

// The engine takes a colon for the end of a server's name: such a place can hold everything but the database.
TEST_F(Nomes, DoisPontosSaoExplicados) {
    const auto banco = copiar(pasta / "a.fdb");
    const auto aqui = raiz / "a:b";
    fs::create_directories(aqui);
    const auto dentro = copiar(aqui / "a.fdb");
    const auto antes = ler(dentro);
    const auto naPasta = [&] { static_cast<void>(!::chdir(aqui.c_str())); };
    for (const auto& alvo : {dentro.string(), std::string("a:b/a.fdb")}) {
        const auto fim = rodar(consulta(alvo), [&] { static_cast<void>(!::chdir(raiz.c_str())); });
        EXPECT_EQ(3, fim.codigo);
        EXPECT_NE(std::string::npos, fim.erro.find("sem dois-pontos no nome")) << fim.erro;
    }
    EXPECT_TRUE(antes == ler(dentro));
    ::setenv("HOME", aqui.c_str(), 1);
    EXPECT_EQ(0, rodar(consulta(banco, {"--formato", "csv", "--saida", "c:d.csv"}), naPasta).codigo);
    EXPECT_GT(fs::file_size(aqui / "c:d.csv"), 1000U);
    EXPECT_EQ(3, rodar({"demo", "--destino", "d.fdb"}, naPasta).codigo);
    EXPECT_FALSE(fs::exists(aqui / "d.fdb"));
}

} // namespace ataques
