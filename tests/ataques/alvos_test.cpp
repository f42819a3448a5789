// What a result is written onto: never a database, never through a link that somebody planted, never half a file.
#include "ataques/Processo.h"

namespace ataques {

namespace {

class Alvos : public Ataque {
  protected:
    Alvos() : banco(copiar(raiz / "a.fdb")) {}
    Fim gravar(const fs::path& alvo, const std::string& formato = "csv") const {
        return rodar(consulta(banco, {"--formato", formato, "--saida", alvo}));
    }
    fs::path banco;
};

} // namespace

TEST_F(Alvos, UmBancoDeDadosNuncaESubstituido) {
    fs::create_symlink(banco, pasta / "vinculo.csv");
    fs::create_hard_link(banco, pasta / "outro nome.csv");
    const auto alheio = copiar(pasta / "alheio.fdb");
    const auto certo = rodar(consulta(banco)).saida;
    const auto comRecusa = [&](const Fim& fim, const char* frase) {
        EXPECT_EQ(1, fim.codigo);
        EXPECT_NE(std::string::npos, fim.erro.find(frase)) << fim.erro;
        EXPECT_EQ(certo, rodar(consulta(banco)).saida);
        EXPECT_EQ(certo, rodar(consulta(alheio)).saida);
        EXPECT_EQ(2U, fs::hard_link_count(banco)) << "the file itself stays, not one like it";
    };
    for (const auto& alvo : {banco, pasta / "vinculo.csv", pasta / "outro nome.csv", alheio}) {
        SCOPED_TRACE(alvo);
        comRecusa(gravar(alvo), "é um banco de dados");
        escrever(raiz / "roteiro", "selecionar\ndefinir DeDataIni 01/03/2024\ndefinir DeDataFim 31/03/2024\nclicar "
                                   "actOK\nexportar " +
                                       alvo.string() + "\n");
        if (alvo.extension() == ".csv") // others are refused for their ending
            comRecusa(rodar({"--banco", banco, "roteiro", raiz / "roteiro"}), "é um banco de dados");
        comRecusa(rodar({"demo", "--destino", alvo}), "já existe");
    }
    somente({"vinculo.csv", "outro nome.csv", "alheio.fdb", ".orcreal-lock"});
}

TEST_F(Alvos, ArquivosAoLadoSaoDoUsuario) {
    escrever(raiz / "vitima", "de outra pessoa");
    fs::create_symlink(raiz / "vitima", pasta / "r.csv.parcial");
    escrever(pasta / "d.fdb.parcial", "do usuario");
    EXPECT_EQ(0, gravar(pasta / "r.csv").codigo);
    EXPECT_EQ(0, rodar({"demo", "--destino", pasta / "d.fdb"}).codigo);
    EXPECT_EQ("de outra pessoa", ler(raiz / "vitima"));
    EXPECT_TRUE(fs::is_symlink(pasta / "r.csv.parcial"));
    EXPECT_EQ("do usuario", ler(pasta / "d.fdb.parcial"));
    somente({"r.csv", "r.csv.parcial", "d.fdb", "d.fdb.parcial", ".orcreal-lock"});
}

TEST_F(Alvos, VinculoEModoFicam) {
    escrever(pasta / "real.csv", "antigo");
    fs::permissions(pasta / "real.csv", fs::perms(0640));
    fs::create_symlink("real.csv", pasta / "a.csv");
    fs::create_symlink(pasta / "a.csv", pasta / "b.csv");
    fs::create_symlink("novo.csv", pasta / "solto.csv");
    EXPECT_EQ(0, gravar(pasta / "b.csv").codigo);
    EXPECT_EQ(0, gravar(pasta / "solto.csv").codigo);
    EXPECT_TRUE(fs::is_symlink(pasta / "a.csv") && fs::is_symlink(pasta / "b.csv"));
    EXPECT_EQ(0640U, modo(pasta / "real.csv"));
    EXPECT_GT(fs::file_size(pasta / "real.csv"), 1000U);
    EXPECT_EQ(ler(pasta / "real.csv"), ler(pasta / "novo.csv"));
    somente({"real.csv", "a.csv", "b.csv", "solto.csv", "novo.csv"});
}

TEST_F(Alvos, DispositivoECanoRecebemEFicam) {
    ASSERT_EQ(0, gravar(pasta / "certo.xlsx", "xlsx").codigo);
    ASSERT_EQ(0, gravar(pasta / "certo.csv").codigo);
    ASSERT_EQ(0, ::mkfifo((pasta / "cano").c_str(), 0600));
    std::string recebido;
    std::thread leitor([&] { recebido = ler(pasta / "cano"); });
    EXPECT_EQ(0, gravar(pasta / "cano").codigo);
    leitor.join();
    EXPECT_EQ(ler(pasta / "certo.csv"), recebido);
    for (const char* formato : {"csv", "xlsx", "html", "json"})
        EXPECT_EQ(0, gravar("/dev/null", formato).codigo) << formato;
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    EXPECT_EQ(ler(pasta / "certo.csv"), gravar("/dev/stdout").saida);
    EXPECT_EQ(1, gravar("/dev/full").codigo);
    EXPECT_EQ(1, gravar(pasta).codigo);
    somente({"certo.xlsx", "certo.csv", "cano"});
}

TEST_F(Alvos, OQueNaoSePodeGravarFicaComoEsta) {
    escrever(pasta / "fechado.csv", "antigo");
    fs::permissions(pasta / "fechado.csv", fs::perms(0444));
    if (::geteuid() != 0) { // root may
        EXPECT_EQ(1, gravar(pasta / "fechado.csv").codigo);
        EXPECT_EQ("antigo", ler(pasta / "fechado.csv"));
    }
    EXPECT_EQ(1, gravar(pasta / "nada" / "r.csv").codigo);
    const auto cheio =
        rodar(consulta(banco, {"--formato", "csv"}), [] { ::dup2(::open("/dev/full", O_WRONLY), STDOUT_FILENO); });
    EXPECT_EQ(1, cheio.codigo);
    EXPECT_NE("", cheio.erro);
    for (const std::vector<std::string>& palavras : {std::vector<std::string>{"--ajuda"}, {"--versao"}})
        EXPECT_EQ(1, rodar(palavras, [] { ::dup2(::open("/dev/full", O_WRONLY), STDOUT_FILENO); }).codigo);
}

TEST_F(Alvos, DoisAoMesmoTempoDeixamUmArquivoInteiro) {
    const auto segundo = copiar(raiz / "b.fdb");
    ASSERT_EQ(0, gravar(pasta / "certo.csv").codigo);
    fs::create_directory(raiz / "um");
    fs::create_directory(raiz / "dois");
    for (int vez = 0; vez < 5; ++vez) {
        const std::vector<std::string> fim{"--formato", "csv", "--saida", pasta / "r.csv"};
        Processo a(consulta(banco, fim), raiz / "um");
        Processo b(consulta(segundo, fim), raiz / "dois");
        EXPECT_EQ(0, a.esperar().codigo);
        EXPECT_EQ(0, b.esperar().codigo);
        EXPECT_EQ(ler(pasta / "certo.csv"), ler(pasta / "r.csv"));
        somente({"r.csv", "certo.csv"});
    }
}

} // namespace ataques
