// What every face shows of a dataset: order, groups, blocks, sums and what a filter finds.
#include "apoio/Grades.h"
#include "suite/table/Matcher.h"
#include "suite/table/Rows.h"

#include <gtest/gtest.h>

#include <limits>

using apoio::Dados;
using apoio::numero;
using apoio::texto;
using suite::table::Matcher;
using suite::table::NoSum;
using suite::table::Rows;

namespace {

using Posicoes = std::vector<std::uint32_t>;

base::TValor d(std::int64_t unidades, int escala = 2) { return base::TDecimal{unidades, escala}; }
base::TValor t(const char* valor) { return std::string(valor); }

// NOME, VALOR, FILIAL, CTATITULO; then what a test adds.
struct Conjunto {
    Dados dados{"Cds"};
    host::TDataSource fonte{"Ds"};
    host::TGrade grade{"Dbg", fonte};
    Rows linhas;

    Conjunto(std::vector<host::TDescricaoColuna> outras, std::vector<Dados::Linha> valores) {
        dados.colunas = {texto("NOME"), numero("VALOR", 2), numero("FILIAL"), numero("CTATITULO")};
        dados.colunas.insert(dados.colunas.end(), outras.begin(), outras.end());
        dados.deLinhas(std::move(valores));
        dados.Open();
        fonte.DataSet = &dados;
        std::vector<host::TColunaGrade> colunas(2);
        colunas[0].Campo = "NOME";
        colunas[1].Campo = "VALOR";
        grade.SetColunas(colunas);
        grade.Linhas = {"CTATITULO", "TIPOLINHA", {"NOME"}, "IDPLANO", "", ""};
        linhas.load(grade);
    }
    Posicoes ordem(std::vector<Rows::Sort> ordens, std::vector<std::size_t> grupos = {}) {
        linhas.arrange({std::move(grupos), std::move(ordens), {1}, {}});
        return linhas.lines();
    }
    // "G0" for a group and its level, a number for a line.
    std::string aVista() const {
        std::string lista;
        for (std::size_t i = 0; i < linhas.size(); ++i)
            lista +=
                (i == 0 ? "" : " ") + (linhas.isGroup(i) ? "G" + std::to_string(linhas.group(linhas.groupAt(i)).level)
                                                         : std::to_string(linhas.position(i)));
        return lista;
    }
    std::string soma(std::size_t conjunto) const {
        const auto valor = linhas.sums().sum(conjunto, 1);
        return valor ? valor->Texto() : "nenhuma";
    }
    std::string total() const { return soma(linhas.totalSet()); }
    // A column as it stands in view, under a format.
    suite::table::Column coluna(std::size_t qual, const char* formato = "") {
        grade.MudarColuna(grade.Colunas()[qual].Campo, [&](auto& c) { c.Formato = formato; });
        return suite::table::columnsInView(grade)[qual];
    }
};

Dados::Linha linha(base::TValor nome, base::TValor valor, int filial = 1, int titulo = 2) {
    return {std::move(nome), std::move(valor), base::Inteiro(filial), base::Inteiro(titulo)};
}

TEST(TabelaLinhas, NumeroVaiPeloValorETextoPelaLinguaComNuloPrimeiro) {
    Conjunto c({}, {linha(t("Zinco"), d(900)), linha(t("água"), d(-1000)), linha(base::Nulo, d(10000)),
                    linha(t("Abacate"), base::Nulo), linha(t("azul"), d(900)), linha(t("Água"), d(0))});
    EXPECT_EQ((Posicoes{3, 1, 5, 0, 4, 2}), c.ordem({{1, false}})) << "and what is equal stays in order";
    EXPECT_EQ((Posicoes{2, 0, 4, 5, 1, 3}), c.ordem({{1, true}}));
    EXPECT_EQ((Posicoes{2, 3, 1, 5, 4, 0}), c.ordem({{0, false}}));
    EXPECT_EQ((Posicoes{3, 1, 5, 4, 0, 2}), c.ordem({{1, false}, {0, false}}));
    EXPECT_EQ((Posicoes{0, 1, 2, 3, 4, 5}), c.ordem({}));
    c.dados.Close();
    c.linhas.load(c.grade);
    EXPECT_EQ(Posicoes{}, c.ordem({{0, false}}));
    EXPECT_EQ(0U, c.linhas.size());
}

TEST(TabelaLinhas, GruposAbremFechamEContinuamComoFicaram) {
    Conjunto c({}, {linha(t("b"), d(1), 10), linha(t("a"), d(2), 9), linha(t("b"), d(4), 9), linha(t("a"), d(8), 10),
                    linha(t("a"), d(16), 9)});
    EXPECT_EQ((Posicoes{1, 2, 4, 0, 3}), c.ordem({}, {2})) << "9 before 10, the dataset's order inside";
    EXPECT_EQ("G0 1 2 4 G0 0 3", c.aVista());
    EXPECT_EQ("0.22 0.09 0.31", c.soma(0) + " " + c.soma(1) + " " + c.total());
    c.ordem({}, {2, 0});
    EXPECT_EQ("G0 G1 1 4 G1 2 G0 G1 3 G1 0", c.aVista());
    EXPECT_EQ("0.18", c.soma(1)) << "establishment 9, a";
    EXPECT_EQ("0.22", c.soma(0));
    c.linhas.toggle(0);
    EXPECT_EQ("G0 G0 G1 3 G1 0", c.aVista());
    EXPECT_EQ((Posicoes{4, 1, 2, 3, 0}), c.ordem({{1, true}}, {2, 0})) << "closed lines are lines too";
    EXPECT_EQ("G0 G0 G1 3 G1 0", c.aVista());
    EXPECT_EQ(1U, c.linhas.find(1).has_value() ? 0U : 1U);
    EXPECT_EQ(3U, c.linhas.reveal(1).value_or(99));
    EXPECT_EQ("G0 G1 4 1 G1 2 G0 G1 3 G1 0", c.aVista());
    c.linhas.openAll(false);
    EXPECT_EQ("G0 G0", c.aVista());
    c.ordem({}, {0});
    EXPECT_EQ("G0 G0", c.aVista()) << "another grouping starts as all were left";
    c.linhas.openAll(true);
    EXPECT_EQ("G0 1 3 4 G0 0 2", c.aVista());
}

TEST(TabelaLinhas, SomaEhExataENaoContaTitulo) {
    std::vector<Dados::Linha> valores{linha(t("título"), d(9'999'999'999), 1, 1)};
    for (int i = 0; i < 1000; ++i)
        valores.push_back(linha(t("x"), i % 2 == 0 ? d(9'007'199'254'740'993) : d(-9'007'199'254'740'990)));
    valores.push_back(linha(t("título"), base::Nulo, 1, 1));
    Conjunto c({}, valores);
    c.ordem({});
    EXPECT_EQ("15.00", c.total());
    EXPECT_FALSE(c.linhas.sums().sum(c.linhas.totalSet(), 2)) << "an establishment is no amount";

    Conjunto semMarca({}, {linha(t("a"), d(100)), Dados::Linha{t("a"), d(7), base::Inteiro(1), base::Nulo}});
    semMarca.ordem({});
    EXPECT_EQ("1.00", semMarca.total()) << "neither title nor analytic";

    Conjunto comFalta({}, {linha(t("a"), d(100)), linha(t("a"), base::Nulo), linha(t("b"), d(3))});
    comFalta.ordem({}, {0});
    EXPECT_EQ("nenhuma", comFalta.soma(0)) << "an amount beyond what its column holds is missing";
    EXPECT_EQ("0.03", comFalta.soma(1));

    const auto maximo = std::numeric_limits<std::int64_t>::max();
    Conjunto grande({}, {linha(t("a"), d(maximo)), linha(t("a"), d(1)), linha(t("b"), d(3))});
    grande.ordem({}, {0});
    EXPECT_EQ("nenhuma", grande.soma(0));
    EXPECT_EQ("0.03", grande.soma(1));
    EXPECT_EQ(NoSum::TooLarge, grande.linhas.sums().reason(grande.linhas.totalSet(), 1)) << "a part of it is";
}

TEST(TabelaLinhas, NadaEhContadoDuasVezes) {
    const auto linhaDe = [](int filial, int tipo, base::TValor conta) {
        return Dados::Linha{t("x"), d(100), base::Inteiro(filial), base::Inteiro(2), base::Inteiro(tipo), conta};
    };
    const auto conta = base::Inteiro(7);
    Conjunto c({numero("TIPOLINHA"), numero("IDPLANO")},
               {linhaDe(1, 1, conta), linhaDe(1, 2, conta), linhaDe(2, 3, conta), linhaDe(2, 3, conta),
                linhaDe(3, 3, conta), linhaDe(3, 3, base::Nulo)});
    c.ordem({}, {2});
    EXPECT_EQ("nenhuma", c.soma(0)) << "base and budget";
    EXPECT_EQ("2.00", c.soma(1)) << "actual values alone";
    EXPECT_EQ("nenhuma", c.soma(2)) << "a totalizer beside its account";
    EXPECT_EQ(NoSum::LineTypes, c.linhas.sums().reason(0, 1));
    EXPECT_EQ(NoSum::Totalizers, c.linhas.sums().reason(2, 1));
    EXPECT_EQ(NoSum::Totalizers, c.linhas.sums().reason(c.linhas.totalSet(), 1));
    c.linhas.arrange({{}, {}, {1}, [](std::size_t posicao) { return posicao == 1; }});
    EXPECT_EQ("1.00", c.total()) << "one type alone in view";
    c.linhas.arrange({{2}, {}, {1}, [](std::size_t posicao) { return posicao == 0 || posicao == 2; }});
    EXPECT_EQ("nenhuma", c.total()) << "groups of one type each, of two together";
}

TEST(TabelaLinhas, LinhasDeUmaContaFicamJuntas) {
    const auto de = [](const char* nome, int valor, int tipo) {
        return Dados::Linha{t(nome), d(valor), base::Inteiro(1), base::Inteiro(2), base::Inteiro(tipo)};
    };
    Conjunto c({numero("TIPOLINHA")}, {de("a", 5, 1), de("a", 1, 2), de("a", 9, 3), de("b", 3, 1), de("b", 8, 3),
                                       de("b", 2, 1), de("b", 7, 2)});
    EXPECT_EQ((Posicoes{5, 6, 3, 4, 0, 1, 2}), c.ordem({{1, false}})) << "two blocks of the same name";
    EXPECT_EQ((Posicoes{0, 1, 2, 3, 4, 5, 6}), c.ordem({{1, true}}));
    EXPECT_EQ(3U, c.linhas.blockOf(4));
    EXPECT_EQ(5U, c.linhas.blockOf(5));
    c.linhas.arrange({{}, {{1, false}}, {1}, [](std::size_t posicao) { return posicao % 2 == 0; }});
    EXPECT_EQ((Posicoes{0, 2, 6, 4}), c.linhas.lines()) << "by the first line that is kept";
    c.grade.Linhas.Chave.clear();
    c.linhas.load(c.grade);
    EXPECT_EQ((Posicoes{1, 5, 3, 0, 6, 4, 2}), c.ordem({{1, false}})) << "without a key each goes alone";
}

TEST(TabelaFiltro, EncontraOQueSeDigita) {
    Conjunto c({}, {linha(t("Água e Esgoto"), d(123456)), linha(t("agua"), d(-1000)), linha(base::Nulo, base::Nulo),
                    linha(t("Férias [13º]"), d(1005)), linha(t("=x"), d(0))});
    const struct {
        std::size_t coluna;
        const char* digitado;
        Posicoes achadas;
    } casos[] = {
        {0, "  ", {0, 1, 2, 3, 4}},
        {0, "AGUA", {0, 1}},
        {0, "ESGÓ", {0}},
        {0, "=água", {1}},
        {0, "13º]", {3}},
        {0, ">a", {}},
        {1, "1234,5", {0}},
        {1, "1.234", {0}},
        {1, "1234.56", {}},
        {1, "10,0", {1, 3}},
        {1, "-10", {1}},
        {1, ">10", {0, 3}},
        {1, ">=10,05", {0, 3}},
        {1, "<0", {1}},
        {1, "<= 0", {1, 4}},
        {1, "=0", {4}},
        {1, "<>0", {0, 1, 2, 3}},
        {1, "10..20", {3}},
        {1, "-10,00..0", {1, 4}},
        {1, "..0", {1, 4}},
        {1, "10.05..", {0, 3}},
        {1, ">1.000", {0}},
        {1, ">", {0, 1, 2, 3, 4}},
        {1, "abc", {}},
        {1, "> nada", {0, 1, 2, 3, 4}},
    };
    for (const auto& caso : casos) {
        const Matcher casa(c.coluna(caso.coluna, caso.coluna == 1 ? ",0.00" : ""), caso.digitado);
        Posicoes achadas;
        for (std::uint32_t i = 0; i < 5; ++i)
            if (casa(i))
                achadas.push_back(i);
        EXPECT_EQ(caso.achadas, achadas) << caso.digitado;
    }
    const Matcher busca(c.coluna(0), "=x", true);
    EXPECT_TRUE(busca(4)) << "the quick search takes signs as they are";
}

TEST(TabelaFiltro, NumeroEhComparadoComoSeVe) {
    Conjunto c({}, {linha(t("a"), d(1004)), linha(t("b"), d(1006))});
    const Matcher igual(c.coluna(1, ",0.0"), "=10");
    EXPECT_TRUE(igual(0)) << "10,04 is shown as 10,0";
    EXPECT_FALSE(igual(1));
    const Matcher parte(c.coluna(1, ",0.0"), "10,1");
    EXPECT_FALSE(parte(0));
    EXPECT_TRUE(parte(1)) << "10,06 is shown as 10,1";
    const struct {
        const char* digitado;
        const char* lido;
    } casos[] = {{"1.234", "1234"},
                 {"12.5", "12.5"},
                 {"1.234,50", "1234.50"},
                 {"-0,5", "-0.5"},
                 {"1.234.567", "1234567"},
                 {"1,2,3", ""},
                 {"", ""},
                 {"dez", ""}};
    for (const auto& caso : casos) {
        const auto lido = suite::table::typedNumber(caso.digitado);
        EXPECT_EQ(caso.lido, lido ? lido->Texto() : "") << caso.digitado;
    }
}

} // namespace
