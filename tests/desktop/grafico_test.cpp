// The chart beside the grid: what it shows of which line, and that screen and picture show it.
#include "base/Falhas.h"
#include "desktop/Aplicacao.h"
#include "desktop/GradeApoio.h"
#include "suite/desktop/chart/ChartPainter.h"
#include "suite/desktop/chart/ChartPane.h"
#include "suite/desktop/grid/GridPane.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QTemporaryDir>

#include <numeric>

using namespace suite::desktop;

namespace {

std::vector<std::uint32_t> todas(const host::TGrade& grade) {
    std::vector<std::uint32_t> linhas(grade.DataSet()->RecordCount());
    std::iota(linhas.begin(), linhas.end(), 0U);
    return linhas;
}

std::string valores(const ChartCategory& categoria) {
    std::string texto = categoria.name.toStdString() + ":";
    for (const auto& valor : categoria.values)
        texto += " " + captionOf(valor.kind).toStdString() + " " + (valor.value ? valor.value->Texto() : "-");
    return texto;
}

TEST(Grafico, PeriodosDaLinhaEscolhida) {
    desktop::GradePeriodos base;
    base.encher(4, 2);
    // Position 4 is the budget line of the second account; its base line stands before it, its actual one behind.
    const auto grafico = chartOf(base.grade, todas(base.grade), 4);
    EXPECT_EQ(grafico.title.toStdString(), "Despesas com pessoal · filial 1");
    ASSERT_EQ(grafico.categories.size(), 2U);
    EXPECT_EQ(valores(grafico.categories[0]), "Jan/2024: Base 301.01 Orçado 302.01 Realizado 303.01");
    EXPECT_EQ(valores(grafico.categories[1]), "Fev/2024: Base 301.02 Orçado 302.02 Realizado 303.02");
    EXPECT_TRUE(chartOf(base.grade, todas(base.grade), {}).categories.empty()) << "no line is selected";
    EXPECT_TRUE(chartOf(base.grade, {}, 4).categories.empty()) << "the filter leaves none";
}

TEST(Grafico, MaioresVariacoesDasContasAnaliticasDoFiltro) {
    desktop::GradeBalanco base;
    base.dados.deLinhas(
        {desktop::GradeBalanco::linha("3", 1, 1, "Título", 0, 100'000'000, 900'000'000, true, true),
         desktop::GradeBalanco::linha("3.1", 2, 1, "Vendas", 0, 100'000'000, 150'000'000, true, false),
         desktop::GradeBalanco::linha("4.1", 3, 0, "Energia", 0, 100'000'000, 180'000'000, false, false),
         desktop::GradeBalanco::linha("4.2", 4, 0, "No alvo", 0, 100'000'000, 100'000'000, false, false),
         desktop::GradeBalanco::linha("4.3", 5, 0, "Água", 0, 100'000'000, 90'000'000, false, false)});
    base.dados.Open();
    const auto nomes = [](const ChartData& grafico) {
        std::vector<std::string> lista;
        for (const auto& categoria : grafico.categories)
            lista.push_back(valores(categoria));
        return lista;
    };
    using Lista = std::vector<std::string>;
    EXPECT_EQ(nomes(chartOf(base.grade, todas(base.grade), {})),
              (Lista{"Energia: Pior que o orçado 80.000000", "Vendas · filial 1: Melhor que o orçado 50.000000",
                     "Água: Melhor que o orçado -10.000000"}));
    EXPECT_EQ(nomes(chartOf(base.grade, {0, 4, 3}, {})), Lista{"Água: Melhor que o orçado -10.000000"});
}

TEST(Grafico, EixoENumeros) {
    const auto eixo = axisOver(-1'234'567, 350'000);
    EXPECT_LE(eixo.from, -1'234'567);
    EXPECT_GE(eixo.to, 350'000);
    EXPECT_EQ(eixo.step, 500'000);
    EXPECT_EQ(axisOver(0, 0).to, 1);
    EXPECT_EQ(shortNumber(-1'260'000).toStdString(), "-1,3 mi");
    EXPECT_EQ(shortNumber(350'000).toStdString(), "350 mil");
    EXPECT_EQ(shortNumber(2'000'000'000).toStdString(), "2 bi");
    EXPECT_EQ(shortNumber(80).toStdString(), "80");
}

TEST(Grafico, SegueAGradeEViraImagem) {
    aplicacao();
    desktop::GradePeriodos base;
    GridPane grade(base.grade);
    ChartPane grafico;
    grafico.setPane(&grade);
    EXPECT_TRUE(grafico.data().categories.empty());
    base.encher(4, 3); // opens behind the pane's back
    Q_EMIT grade.linesChanged();
    const QTemporaryDir pasta;
    const auto arquivo = pasta.filePath("grafico.png");
    grafico.save(arquivo);
    const auto vazia = QImage(arquivo);
    ASSERT_FALSE(vazia.isNull());
    EXPECT_THROW(grafico.save(pasta.filePath("nada/grafico.png")), base::TFalha);
    EXPECT_THROW(grafico.save(pasta.filePath("grafico.xyz")), base::TFalha);
    grafico.setPane(nullptr);
    EXPECT_TRUE(grafico.data().categories.empty());
}

} // namespace
