#include "planilha_apoio.h"

#include <cmath>

using base::Inteiro;
using base::Nulo;
using base::TDecimal;
using host::TTipoColuna;
using namespace exportacao;

TEST_F(Exportacao, PlanilhaTemNumerosTextosEDatasExatos) {
    const Planilha planilha(exportar("grade.xlsx"));
    EXPECT_EQ("t Orçado x realizado", planilha.celula("A1"));
    EXPECT_EQ("t Empresa: 1 - Fábrica &amp; Cia", planilha.celula("A2"));
    EXPECT_EQ("t Classificação", planilha.celula("A6"));
    EXPECT_EQ("t Conta", planilha.celula("B6")) << "a grouped column is a column too";
    EXPECT_EQ("t Nome &lt;da&gt; Conta", planilha.celula("C6"));
    EXPECT_EQ("t Data", planilha.celula("G6"));
    EXPECT_EQ("(falta)", planilha.celula("H6")) << "a hidden column is none";

    EXPECT_EQ("t 3", planilha.celula("A8")) << "a code that is a text stays one";
    EXPECT_EQ("v", planilha.celula("B8"));
    EXPECT_EQ("t Receita &amp; \"ação\" &lt;b&gt;", planilha.celula("C8"));
    EXPECT_EQ("n 1234.5", planilha.celula("D8"));
    EXPECT_EQ("v", planilha.celula("E8"));
    EXPECT_EQ("n -1234.56", planilha.celula("F8"));
    EXPECT_EQ("n 45322", planilha.celula("G8"));

    EXPECT_EQ("n 4711", planilha.celula("B10"));
    EXPECT_EQ("t =1+1", planilha.celula("C10")) << "never a formula";
    EXPECT_EQ(std::string::npos, planilha.folha.find("<f>"));
    EXPECT_EQ("n 1234567890123.45", planilha.celula("D10")) << "15 digits";

    EXPECT_EQ("t 03", planilha.celula("A12"));
    EXPECT_EQ("n 999999999999999", planilha.celula("B12"));
    EXPECT_EQ("v", planilha.celula("C12"));
    EXPECT_EQ("t 12.345.678.901.234,56", planilha.celula("D12")) << "16 digits lose none";
    EXPECT_EQ("t 28/02/1900", planilha.celula("G12"));
    EXPECT_EQ("(falta)", planilha.celula("A13"));
}

TEST_F(Exportacao, PlanilhaTemAparenciaEFormatoDeCadaCelula) {
    const Planilha planilha(exportar("grade.xlsx"));
    EXPECT_EQ("negrito FF000000/FFD8E4F8 -", planilha.estilo("A8")) << "black is a colour";
    EXPECT_EQ("negrito -/FFD8E4F8 -", planilha.estilo("B8")) << "a blank keeps its background";
    EXPECT_EQ("negrito -/FFD8E4F8 #,##0.00", planilha.estilo("D8"));
    EXPECT_EQ("negrito FF0000FF/FFD8E4F8 #,##0.00;(#,##0.00)", planilha.estilo("F8"));
    EXPECT_EQ("negrito -/FFD8E4F8 dd/mm/yyyy", planilha.estilo("G8"));
    EXPECT_EQ("- -/- 0", planilha.estilo("B10")) << "no thousands in a code";
    EXPECT_EQ("- -/- #,##0.00;#,##0.00", planilha.estilo("E10")) << "what rounds to zero has no sign";
    EXPECT_EQ("- -/- #,##0.00", planilha.estilo("E12"));
    EXPECT_EQ("- FF0000FF/- #,##0.00;(#,##0.00)", planilha.estilo("F12"));
}

TEST_F(Exportacao, PlanilhaTemFaixasPaineisFiltroEImpressao) {
    const auto arquivo = exportar("grade.xlsx");
    const Planilha planilha(arquivo);
    EXPECT_EQ("v", planilha.celula("A5"));
    EXPECT_EQ("t Valor Orçado", planilha.celula("D5"));
    EXPECT_EQ("t Realizado", planilha.celula("F5"));
    EXPECT_EQ("<mergeCell ref=\"A5:C5\"/><mergeCell ref=\"D5:E5\"/>",
              entre(planilha.folha, "<mergeCells count=\"2\">", "</mergeCells>"));
    EXPECT_EQ(" xSplit=\"2\" ySplit=\"6\" topLeftCell=\"C7\" activePane=\"bottomRight\" state=\"frozen\"",
              entre(planilha.folha, "<pane", "/>"))
        << "the identification columns that lead, not those behind others";
    EXPECT_EQ("A6:G12", entre(planilha.folha, "<autoFilter ref=\"", "\""));
    EXPECT_EQ("paperSize=\"9\" fitToHeight=\"0\" orientation=\"landscape\"",
              entre(planilha.folha, "<pageSetup ", "/>"));
    EXPECT_NE(std::string::npos, planilha.folha.find("<pageSetUpPr fitToPage=\"1\"/>"));
    EXPECT_NE(std::string::npos,
              parte(arquivo, "xl/workbook.xml").find(">Consulta!$A:$B,Consulta!$5:$6</definedName>"));
    EXPECT_EQ("Orçado x realizado", entre(parte(arquivo, "docProps/core.xml"), "<dc:title>", "</dc:title>"));
}

TEST_F(Exportacao, ColunasDaPlanilhaTemLugarParaOMaiorNumero) {
    for (int i = 0; i < 2000; ++i)
        conexao.linhas.push_back(conexao.linhas[1]);
    conexao.linhas[777][5] = TDecimal{-99'999'999'999, 2}; // "(999.999.999,99)", seen by no sample
    const Planilha planilha(exportar("grade.xlsx"));
    EXPECT_GE(std::stod(entre(planilha.folha, "<col min=\"6\" max=\"6\" width=\"", "\"")), 17.0);
}

TEST_F(Exportacao, PlanilhaSemLinhasTemOCabecalho) {
    conexao.linhas.clear();
    const Planilha planilha(exportar("grade.xlsx"));
    EXPECT_EQ("t Classificação", planilha.celula("A6"));
    EXPECT_EQ("(falta)", planilha.celula("A7"));
}

TEST_F(Exportacao, PlanilhaTemReaisEHoras) {
    conexao.colunas = {{"FATOR", TTipoColuna::Real, 0, 0, ""}, {"HORA", TTipoColuna::DataHora, 0, 0, ""}};
    const auto meio_dia = base::TDataHora::De(2024, 1, 31)->Decimos() + base::TDataHora::DecimosPorDia / 2;
    conexao.linhas = {{1.5, base::TDataHora::DeDecimos(meio_dia)}, {std::nan(""), Nulo}};
    grade.SetColunas({{"FATOR", "Fator", "", true, "", -1, false}, {"HORA", "Hora", "", true, "", -1, false}});
    grade.RegraDaCelula = nullptr;
    titulo = {};
    const Planilha planilha(exportar("grade.xlsx"));
    EXPECT_EQ("t Consulta", planilha.celula("A1"));
    EXPECT_EQ("t Fator", planilha.celula("A3")) << "neither criteria nor bands";
    EXPECT_EQ("n 1.5", planilha.celula("A4"));
    EXPECT_EQ("n 45322.5", planilha.celula("B4"));
    EXPECT_EQ("- -/- dd/mm/yyyy hh:mm:ss", planilha.estilo("B4"));
    EXPECT_EQ("t nan", planilha.celula("A5"));
}
