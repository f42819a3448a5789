// Bytes that nobody meant: in options, in scripts, in the pages of the database. The program ends by itself, with one
// of its own exit codes, and in time.
#include "ataques/Processo.h"

#include <random>

namespace ataques {

namespace {

class Bytes : public Ataque {
  protected:
    std::mt19937 sorte{20240301};

    unsigned ate(std::size_t limite) { return static_cast<unsigned>(sorte() % limite); }
    std::string qualquer(std::size_t maximo) {
        std::string texto;
        for (auto n = 1 + ate(maximo); n > 0; --n)
            texto += static_cast<char>(1 + ate(255));
        return texto;
    }
    static void exigirFimProprio(const Fim& fim, const std::string& causa) {
        EXPECT_TRUE(fim.codigo >= 0 && fim.codigo <= 4) << fim.codigo << " after " << causa << "\n" << fim.erro;
        EXPECT_EQ(std::string::npos, fim.erro.find("falha interna")) << causa << "\n" << fim.erro;
    }
};

} // namespace

TEST_F(Bytes, NasOpcoes) {
    const auto banco = copiar(pasta / "a.fdb");
    const std::vector<std::string> opcoes{"--modo",    "--de",      "--ate",       "--cenario",  "--contas",
                                          "--centros", "--linhas",  "--relatorio", "--formato",  "--empresa",
                                          "--filial",  "--usuario", "--saida",     "--detalhar", "--empresas"};
    const std::vector<std::string> valores{"",   "-1",    "0x10",    "1e3",
                                           "{}", "{#1}",  "1,,2",    "' OR 1=1 --",
                                           "%s", "%0:s%", "\x1b[2J", std::string(70000, '9'),
                                           "/",  "."};
    for (int vez = 0; vez < 60; ++vez) {
        auto palavras = consulta(banco);
        const auto opcao = opcoes[ate(opcoes.size())];
        const auto valor = ate(3) == 0 ? qualquer(40) : valores[ate(valores.size())];
        palavras.insert(palavras.end(), {opcao, valor});
        exigirFimProprio(rodar(palavras, [&] { static_cast<void>(!::chdir(pasta.c_str())); }), opcao + " " + valor);
    }
}

TEST_F(Bytes, NosRoteiros) {
    const auto banco = copiar(pasta / "a.fdb");
    const std::vector<std::string> linhas{"abrir",
                                          "selecionar",
                                          "definir CbSelecionar 2",
                                          "definir DeDataIni 01/01/2024",
                                          "sair DeDataIni",
                                          "clicar actOK",
                                          "definir DeDataFim 31/03/2024",
                                          "sair CbDetalharSelecao",
                                          "tecla DeDataFim Enter",
                                          "mostrar controles",
                                          "mostrar linhas",
                                          "definir LkpContas {1,2}",
                                          "responder 6",
                                          "cancelar 1",
                                          "mostrar selecao",
                                          "definir CbDetalharSelecao 3",
                                          "mostrar celulas 99999999999999999999",
                                          "definir LkpContas {}",
                                          "clicar actSair",
                                          "mostrar comando CdsMostraCtbOrcada"};
    for (int vez = 0; vez < 60; ++vez) {
        std::string roteiro;
        for (auto n = 1 + ate(12); n > 0; --n)
            roteiro += (ate(8) == 0 ? qualquer(60) : linhas[ate(linhas.size())]) + "\n";
        if (ate(4) == 0)
            roteiro[ate(roteiro.size())] = static_cast<char>(ate(256));
        escrever(raiz / "roteiro", roteiro);
        exigirFimProprio(rodar({"--banco", banco, "roteiro", raiz / "roteiro"}), roteiro);
    }
}

TEST_F(Bytes, NasPaginasDoBanco) {
    const auto inteiro = ler(apoio::arquivoBase(apoio::Base::Demo));
    constexpr std::size_t Pagina = 16384;
    const auto banco = pasta / "a.fdb";
    for (int vez = 0; vez < 20; ++vez) {
        auto bytes = inteiro;
        const auto pagina = ate(300) * Pagina;
        for (unsigned n = ate(2) == 0 ? 3 : 20; n > 0; --n)
            bytes[pagina + (ate(2) == 0 ? ate(64) : ate(Pagina))] = static_cast<char>(ate(256));
        escrever(banco, bytes);
        const auto fim =
            ate(2) == 0
                ? rodar({"--banco", banco, "verificar"})
                : rodar({"--banco", banco, "consultar", "--modo", "3", "--de", "01/01/2024", "--ate", "30/06/2024"});
        exigirFimProprio(fim, "page " + std::to_string(pagina / Pagina) + " of run " + std::to_string(vez));
        fs::remove_all(pasta / ".orcreal-lock"); // a crashed engine's
    }
}

} // namespace ataques
