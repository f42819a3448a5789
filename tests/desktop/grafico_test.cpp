// The chart beside the grid: what it shows of which line, and that screen and picture show it.
#include "apoio/Grades.h"
#include "base/Falhas.h"
#include "desktop/Aplicacao.h"
#include "suite/desktop/chart/ChartPainter.h"
#include "suite/desktop/chart/ChartPane.h"
#include "suite/desktop/grid/GridPane.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QTemporaryDir>

using namespace suite::desktop;

namespace {

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
    apoio::GradePeriodos base;
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
