// What the chart beside a grid shows of which line.
#include "apoio/Grades.h"
#include "suite/table/Chart.h"

#include <gtest/gtest.h>

using namespace suite::table;

namespace {

std::string valores(const ChartCategory& categoria) {
    std::string texto = categoria.name + ":";
    for (const auto& valor : categoria.values)
        texto += " " + captionOf(valor.kind) + " " + (valor.value ? valor.value->Texto() : "-");
    return texto;
}

TEST(Grafico, PeriodosDaLinhaEscolhida) {
    apoio::GradePeriodos base;
    base.encher(4, 2);
    // Position 4 is the budget line of the second account; its base line stands before it, its actual one behind.
    const Table tabela(base.grade);
    const auto grafico = chartOf(tabela, 4);
    EXPECT_EQ(grafico.title, "Despesas com pessoal · Filial 1");
    ASSERT_EQ(grafico.categories.size(), 2U);
    EXPECT_EQ(valores(grafico.categories[0]), "Jan/2024: Base 301.01 Orçado 302.01 Realizado 303.01");
    EXPECT_EQ(valores(grafico.categories[1]), "Fev/2024: Base 301.02 Orçado 302.02 Realizado 303.02");
    EXPECT_TRUE(chartOf(tabela, {}).categories.empty()) << "no line is selected";
    EXPECT_TRUE(chartOf(Table(base.grade, {{}, {{"ANO", "X"}}}), 4).categories.empty()) << "the filter leaves none";
}

TEST(Grafico, MaioresVariacoesDasContasAnaliticasDoFiltro) {
    apoio::GradeBalanco base;
    base.dados.deLinhas({apoio::GradeBalanco::linha("3", 1, 1, "Título", 0, 100'000'000, 900'000'000, true, true),
                         apoio::GradeBalanco::linha("3.1", 2, 1, "Vendas", 0, 100'000'000, 150'000'000, true, false),
                         apoio::GradeBalanco::linha("4.1", 3, 0, "Energia", 0, 100'000'000, 180'000'000, false, false),
                         apoio::GradeBalanco::linha("4.2", 4, 0, "No alvo", 0, 100'000'000, 100'000'000, false, false),
                         apoio::GradeBalanco::linha("4.3", 5, 0, "Água", 0, 100'000'000, 90'000'000, false, false)});
    base.dados.Open();
    const auto nomes = [](const ChartData& grafico) {
        std::vector<std::string> lista;
        for (const auto& categoria : grafico.categories)
            lista.push_back(valores(categoria));
        return lista;
    };
    using Lista = std::vector<std::string>;
    EXPECT_EQ(nomes(chartOf(Table(base.grade), {})),
              (Lista{"Energia: Pior que o orçado 80.000000", "Vendas · Filial 1: Melhor que o orçado 50.000000",
                     "Água: Melhor que o orçado -10.000000"}));
    EXPECT_EQ(nomes(chartOf(Table(base.grade, {{}, {{"VLRREALIZADO", "<=100"}}}), {})),
              Lista{"Água: Melhor que o orçado -10.000000"});
}

} // namespace
