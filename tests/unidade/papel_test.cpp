// A table on paper, before anything is painted: widths, pages side by side and below one another.
#include "apoio/Grades.h"
#include "base/Texto.h"
#include "suite/paint/grid/TableRows.h"

#include <gtest/gtest.h>

#include <numeric>
#include <set>

using namespace suite::paint;
using paper::shortened;
using paper::wrapped;
using suite::table::Rows;
using suite::table::Table;
using Kind = TableRows::Kind;

namespace {

constexpr double Largura = 785; // points of A4 across

double medir(std::string_view texto, bool negrito) {
    return static_cast<double>(base::Caracteres(texto)) * (negrito ? 0.66 : 0.6);
}

double largura(const Table& tabela, const TableColumns& colunas, const char* campo) {
    for (const auto& parte : colunas.parts)
        for (const auto& lugar : parte.places)
            if (lugar.column->shown->Campo == campo)
                return lugar.room();
    ADD_FAILURE() << campo << " of " << tabela.grid().Nome();
    return 0;
}

TEST(Papel, TextoQuebraEntrePalavrasESoEhEncurtadoComSinal) {
    using Linhas = std::vector<std::string>;
    EXPECT_EQ((Linhas{"Manutenção de", "fornos"}), wrapped(medir, "Manutenção de fornos", 8, false));
    EXPECT_EQ((Linhas{"Manut", "enção"}), wrapped(medir, "Manutenção", 3, false)) << "a word that is too long";
    EXPECT_EQ((Linhas{""}), wrapped(medir, "", 3, false));
    EXPECT_EQ((Linhas{"ç", "ã"}), wrapped(medir, "çã", 0.1, false)) << "one letter at least";
    EXPECT_EQ("Manut…", shortened(medir, "Manutenção", 3.6, false));
    EXPECT_EQ("Manutenção", shortened(medir, "Manutenção", 6, false));
}

TEST(Papel, LarguraEhADeTodasAsLinhas) {
    apoio::GradeBalanco balanco;
    balanco.encher(5000);
    const auto feita = balanco.dados.linha;
    balanco.dados.Close();
    balanco.dados.linha = [feita](std::size_t i) {
        auto linha = feita(i);
        if (i == 4321) {
            linha[16] = base::TDecimal{-987'654'321'012'345'678, 6}; // in no sum
            linha[6] = std::string("Uma conta de nome tão comprido que nenhuma coluna de papel o mostra numa linha só");
        }
        return linha;
    };
    balanco.dados.Open();
    const Table tabela(balanco.grade);
    const auto colunas = layColumns(tabela, medir, Largura);
    EXPECT_DOUBLE_EQ(medir("-987.654.321.012,3457", false), largura(tabela, colunas, "DELTAPERC"));
    EXPECT_LE(largura(tabela, colunas, "NOMECONTA"), 26);
    const auto nome = std::find_if(tabela.columns().begin(), tabela.columns().end(),
                                   [](const auto& coluna) { return coluna.shown->Campo == "NOMECONTA"; });
    std::size_t quebradas = 0;
    for (const auto& linha : layRows(tabela, colunas, medir, 60, 60).rows) {
        if (linha.kind != Kind::Line)
            continue;
        const auto celula = tabela.cell(linha.index, *nome);
        const bool cabe = medir(celula.text, celula.look.Negrito) <= largura(tabela, colunas, "NOMECONTA");
        ASSERT_EQ(cabe, linha.lines == 1) << celula.text;
        quebradas += cabe ? 0 : 1;
    }
    EXPECT_GT(quebradas, 0U);
}

TEST(Papel, ColunasQueNaoCabemContinuamAoLadoComAIdentificacao) {
    apoio::GradePeriodos periodos;
    periodos.encher(40, 12);
    const Table tabela(periodos.grade);
    const auto colunas = layColumns(tabela, medir, Largura);
    EXPECT_GE(colunas.fontSize, 6) << "it can be read";
    ASSERT_GT(colunas.parts.size(), 1U);
    std::multiset<std::string> vistas;
    for (const auto& parte : colunas.parts) {
        EXPECT_LE(parte.width * colunas.fontSize, Largura + 0.01);
        for (std::size_t i = 0; i < parte.places.size(); ++i) {
            const auto& coluna = *parte.places[i].column->shown;
            vistas.insert(coluna.Campo);
            if (coluna.Campo.starts_with("PERC")) {
                EXPECT_TRUE(i > 0 && parte.places[i - 1].column->sums()) << coluna.Campo << " has left its amount";
            }
        }
    }
    for (const auto& coluna : tabela.columns()) {
        const bool diz = coluna.shown->Identificacao || coluna.shown->Campo == "ANO";
        EXPECT_EQ(diz ? colunas.parts.size() : 1U, vistas.count(coluna.shown->Campo)) << coluna.heading;
    }

    apoio::GradePeriodos poucos;
    poucos.encher(40, 3);
    const Table menor(poucos.grade);
    const auto juntas = layColumns(menor, medir, Largura);
    EXPECT_EQ(1U, juntas.parts.size());
    EXPECT_GT(juntas.fontSize, colunas.fontSize);
    EXPECT_LE(juntas.parts[0].width * juntas.fontSize, Largura + 0.01);
}

TEST(Papel, PaginaNaoParteOQueVaiJunto) {
    apoio::GradePeriodos periodos;
    periodos.encher(100, 2);
    periodos.grade.MudarColuna("NOMECONTA", [](auto& coluna) { coluna.Grupo = 1; });
    periodos.grade.MudarColuna("FILIAL", [](auto& coluna) { coluna.Grupo = 0; });
    const Table tabela(periodos.grade);
    const auto colunas = layColumns(tabela, medir, Largura);
    for (const double altura : {20.0, 21.0, 22.0, 23.0, 24.0, 60.0}) {
        const auto papel = layRows(tabela, colunas, medir, altura - 6, altura);
        const auto& linhas = papel.rows;
        ASSERT_EQ(tabela.rows().unfolded().size() + 1, linhas.size());
        for (std::size_t p = 0; p < papel.pages.size(); ++p) {
            const auto [de, continua] = papel.pages[p];
            const auto ate = p + 1 < papel.pages.size() ? papel.pages[p + 1].first : linhas.size();
            auto alta = colunas.headHeight() + (continua == Rows::NoGroup ? 0 : TableRows::ContinuedHeight);
            for (auto i = de; i < ate; ++i)
                alta += linhas[i].height();
            EXPECT_LE(alta, altura - (p == 0 ? 6 : 0) + 1e-9) << "page " << p;
            EXPECT_TRUE(linhas[ate - 1].kind != Kind::Group) << "a group alone at the foot of page " << p;
            EXPECT_FALSE(linhas[de].kind == Kind::Total);
            EXPECT_EQ(p > 0, continua != Rows::NoGroup) << "the establishment goes on over all pages";
            if (linhas[de].kind == Kind::Line) {
                EXPECT_EQ(0U, tabela.lines()[linhas[de].index] % 3) << "base, budget and actual are parted";
                EXPECT_EQ(1U, tabela.rows().group(continua).level);
            } else if (p > 0) {
                EXPECT_EQ(tabela.rows().group(linhas[de].index).parent, continua);
            }
        }
        EXPECT_EQ(Kind::Total, linhas.back().kind);
    }
}

TEST(Papel, LegendaDeGrupoQueNaoCabeFicaAcimaDasSomas) {
    apoio::GradeBalanco balanco;
    balanco.encher(20, 20);
    balanco.grade.MudarColuna("VLRORCADO", [](auto& coluna) { coluna.Identificacao = true; });
    auto ordem = balanco.grade.Colunas();
    std::rotate(ordem.begin(), ordem.begin() + 13, ordem.begin() + 14); // the amount comes first
    balanco.grade.SetColunas(ordem);
    const Table tabela(balanco.grade);
    const auto papel = layRows(tabela, layColumns(tabela, medir, Largura), medir, 60, 60);
    EXPECT_EQ(Kind::Group, papel.rows.front().kind);
    EXPECT_EQ(2, papel.rows.front().lines);
    EXPECT_EQ(2, papel.rows.back().lines) << "the total's too";
}

} // namespace
