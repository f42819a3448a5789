// What a table says on paper, read back from the file.
#include "apoio/Bases.h"
#include "apoio/Grades.h"
#include "base/Falhas.h"
#include "suite/paint/grid/TablePages.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <unistd.h>

using suite::table::Table;

namespace {

namespace fs = std::filesystem;

std::string lidoDe(const std::string& comando) {
    std::string texto;
    FILE* saida = ::popen(comando.c_str(), "r");
    char parte[4096];
    for (std::size_t lidos = 0; (lidos = std::fread(parte, 1, sizeof parte, saida)) > 0;)
        texto.append(parte, lidos);
    EXPECT_EQ(0, ::pclose(saida)) << comando;
    return texto;
}

std::string bytes(const fs::path& arquivo) {
    std::ifstream entrada(arquivo, std::ios::binary);
    return {std::istreambuf_iterator<char>(entrada), {}};
}

std::size_t vezes(const std::string& texto, const std::string& parte) {
    std::size_t contadas = 0;
    for (auto onde = texto.find(parte); onde != std::string::npos; onde = texto.find(parte, onde + parte.size()))
        ++contadas;
    return contadas;
}

class NoPapel : public testing::Test {
  protected:
    NoPapel() {
        
        fs::create_directories(pasta);
    }
    ~NoPapel() override { fs::remove_all(pasta); }
    std::string escrever(const Table& tabela) {
        suite::paint::writeTablePdf(tabela, arquivo, cabecalho);
        return lidoDe("pdftotext -layout '" + arquivo.string() + "' - 2>&1");
    }

    const fs::path pasta = fs::path(ORCREAL_PASTA_TESTE) / ("papel" + std::to_string(::getpid()));
    const fs::path arquivo = pasta / "papel.pdf";
    suite::exporting::Heading cabecalho{{{"Título", "Padaria Pão & Mel"}, {"Período", "01/01/2024 a 31/12/2024"}},
                                        {"orcreal 9.9", "banco.fdb", *base::TDataHora::De(2024, 2, 29)}};
};

TEST_F(NoPapel, CadaPaginaTemTitulosECadaLinhaSeusValores) {
    apoio::GradeBalanco balanco;
    balanco.encher(300, 60);
    Table tabela(balanco.grade, {{}, {{"NOMECONTA", "a"}}});
    balanco.grade.Significados = balanco.legenda();
    tabela.rows().openAll(false);
    const auto texto = escrever(tabela);
    const auto paginas = vezes(texto, "\f");
    ASSERT_GT(paginas, 3U);
    for (std::size_t pagina = 1; pagina <= paginas; ++pagina)
        EXPECT_EQ(1U, vezes(texto, "Página " + std::to_string(pagina) + " de " + std::to_string(paginas) + "\n"));
    EXPECT_EQ(paginas, vezes(texto, "Classificação")) << "the titles stand on every page, letter by letter";
    EXPECT_EQ(paginas, vezes(texto, "Valor Orçado")) << "and the bands";
    EXPECT_EQ(1U, vezes(texto, "Período: 01/01/2024 a 31/12/2024"));
    EXPECT_EQ(1U, vezes(texto, "Sinais: "));
    EXPECT_EQ(1U, vezes(texto, "Total (contas analíticas)"));
    // Line by line: what stands between the numbers is of no account.
    std::size_t onde = 0;
    for (std::size_t linha = 0; linha < tabela.lines().size(); ++linha) {
        if (tabela.rows().opensGroup(linha))
            onde = texto.find("\n", texto.find("Filial: ", onde));
        for (const char* campo : {"CONTA", "VLRORCADO", "VLRREALIZADO", "DELTAVLR"}) {
            const auto& colunas = tabela.columns();
            const auto coluna =
                std::find_if(colunas.begin(), colunas.end(), [&](const auto& c) { return c.shown->Campo == campo; });
            const auto valor = tabela.cell(linha, *coluna).text;
            onde = texto.find(valor, onde);
            ASSERT_NE(std::string::npos, onde) << campo << " of line " << linha << ": " << valor;
            onde += valor.size();
        }
    }
    for (std::uint32_t grupo = 0; grupo < tabela.rows().groupCount(); ++grupo)
        EXPECT_GE(vezes(texto, tabela.captionOf(tabela.rows().group(grupo))), 1U);
    EXPECT_NE(std::string::npos, texto.find(" R> ")) << "the sign stands beside its value";
}

TEST_F(NoPapel, MesmosDadosEMesmaHoraDaoOsMesmosBytes) {
    apoio::GradeBalanco balanco;
    balanco.encher(50);
    const Table tabela(balanco.grade);
    escrever(tabela);
    const auto primeiro = bytes(arquivo);
    EXPECT_NE(std::string::npos, primeiro.find("/CreationDate (20240229000000)"));
    escrever(tabela);
    EXPECT_TRUE(primeiro == bytes(arquivo));
    cabecalho.origin.made = *base::TDataHora::De(2024, 3, 1);
    escrever(tabela);
    EXPECT_FALSE(primeiro == bytes(arquivo));
}

// The program itself, without a window and in a bare environment, in a zone of its own.
TEST_F(NoPapel, ProgramaSemTelaEscreveIgualEmQualquerAmbiente) {
    const apoio::Copia copia{apoio::Base::Demo};
    std::ofstream(pasta / "roteiro.txt")
        << "selecionar\ndefinir DeDataIni 01/01/2024\nsair DeDataIni\ndefinir DeDataFim 31/03/2024\nsair DeDataFim\n"
        << "definir CbSelecionar 1\nsair CbSelecionar\ndefinir CbDetalharSelecao 1\nsair CbDetalharSelecao\n"
        << "clicar actOK\nexportar " << arquivo.string() << "\n";
    const auto rodar = [&](const std::string& ambiente) {
        EXPECT_EQ("", lidoDe("env -i SOURCE_DATE_EPOCH=1700000000 " + ambiente + " '" ORCREAL_PROGRAMA "' --banco '" +
                             copia.alvo() + "' roteiro '" + (pasta / "roteiro.txt").string() + "' 2>&1 >/dev/null"));
        return bytes(arquivo);
    };
    const auto aqui = rodar("");
    EXPECT_NE(std::string::npos, aqui.find("/CreationDate (20231114221320)"));
    for (int vez = 0; vez < 3; ++vez) // the order of the fonts was a matter of chance
        EXPECT_TRUE(aqui == rodar("TZ=America/Sao_Paulo LC_ALL=C HOME=/nada"));
}

} // namespace
