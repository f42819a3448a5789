// The grid's picture on paper says what the screen shows.
#include "base/Falhas.h"
#include "desktop/Aplicacao.h"
#include "desktop/GradeApoio.h"
#include "suite/desktop/grid/GridPane.h"
#include "suite/desktop/grid/GridPdf.h"
#include "suite/desktop/look/Text.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <cstdio>

using suite::desktop::GridPane;
using suite::desktop::writeGridPdf;

namespace {

// Reads what a PDF says, page by page.
QString lerPdf(const QString& arquivo) {
    QString texto;
    const auto comando = "pdftotext -layout '" + suite::desktop::toUtf8(arquivo) + "' -";
    FILE* saida = popen(comando.c_str(), "r");
    char parte[4096];
    for (std::size_t lidos = 0; (lidos = fread(parte, 1, sizeof parte, saida)) > 0;)
        texto += QString::fromUtf8(parte, static_cast<qsizetype>(lidos));
    EXPECT_EQ(0, pclose(saida));
    return texto;
}

TEST(GradeNoPapel, FiguraEmPdfTemOQueATelaMostra) {
    aplicacao();
    desktop::GradeBalanco balanco;
    GridPane painel(balanco.grade);
    painel.resize(1200, 600);
    balanco.encher(120, 60);
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
    const QTemporaryDir pasta;
    const auto arquivo = pasta.filePath("figura.pdf");
    const std::string titulo[] = {"Padaria Pão & Mel", "Cenário 0"};
    writeGridPdf(painel, arquivo, titulo);
    const auto texto = lerPdf(arquivo);
    const auto paginas = texto.count(QLatin1Char('\f'));
    EXPECT_GT(paginas, 1);
    EXPECT_EQ(texto.count("Página "), paginas);
    EXPECT_EQ(texto.count("Nome da Conta/Totalizador"), paginas) << "the titles stand on every page";
    EXPECT_TRUE(texto.contains("Padaria Pão & Mel"));
    EXPECT_EQ(texto.count("Filial: "), 2) << "the groups";
    EXPECT_EQ(texto.count("Energia elétrica"), 12);
    EXPECT_TRUE(texto.contains("Total (contas analíticas)"));
    EXPECT_THROW(writeGridPdf(painel, pasta.filePath("nada/figura.pdf"), titulo), base::TFalha);
    balanco.dados.Close();
    balanco.encher(20'001, 60);
    EXPECT_THROW(writeGridPdf(painel, arquivo, titulo), base::TFalha) << "more than anyone leafs through";
    EXPECT_EQ(lerPdf(arquivo), texto) << "the one that was there stays";
}

} // namespace
