#include "exportacao_apoio.h"

#include <cmath>
#include <csignal>
#include <sys/resource.h>

using base::Inteiro;
using base::Nulo;
using base::TDecimal;
using host::TTipoColuna;
using std::filesystem::path;
using namespace exportacao;

TEST_F(Exportacao, PlanilhaTemNumerosTextosEDatasExatos) {
    const Planilha planilha(exportar("grade.xlsx"));
    EXPECT_EQ("t Orçado x realizado", planilha.celula("A1"));
    EXPECT_EQ("t 1 - Fábrica &amp; Cia", planilha.celula("A2"));
    EXPECT_EQ("t Classificação", planilha.celula("A6"));
    EXPECT_EQ("t Conta", planilha.celula("B6")) << "a grouped column is a column too";
    EXPECT_EQ("t Nome &lt;da&gt; Conta", planilha.celula("C6"));
    EXPECT_EQ("t Data", planilha.celula("G6"));
    EXPECT_EQ("(falta)", planilha.celula("H6")) << "a hidden column is none";

    EXPECT_EQ("t 3", planilha.celula("A7")) << "a code that is a text stays one";
    EXPECT_EQ("v", planilha.celula("B7"));
    EXPECT_EQ("t Receita &amp; \"ação\" &lt;b&gt;", planilha.celula("C7"));
    EXPECT_EQ("n 1234.5", planilha.celula("D7"));
    EXPECT_EQ("v", planilha.celula("E7"));
    EXPECT_EQ("n -1234.56", planilha.celula("F7"));
    EXPECT_EQ("n 45322", planilha.celula("G7"));

    EXPECT_EQ("n 4711", planilha.celula("B8"));
    EXPECT_EQ("t =1+1", planilha.celula("C8")) << "never a formula";
    EXPECT_EQ(std::string::npos, planilha.folha.find("<f>"));
    EXPECT_EQ("n 1234567890123.45", planilha.celula("D8")) << "15 digits";

    EXPECT_EQ("t 03", planilha.celula("A9"));
    EXPECT_EQ("n 999999999999999", planilha.celula("B9"));
    EXPECT_EQ("v", planilha.celula("C9"));
    EXPECT_EQ("t 12.345.678.901.234,56", planilha.celula("D9")) << "16 digits lose none";
    EXPECT_EQ("t 28/02/1900", planilha.celula("G9"));
    EXPECT_EQ("(falta)", planilha.celula("A10"));
}

TEST_F(Exportacao, PlanilhaTemAparenciaEFormatoDeCadaCelula) {
    const Planilha planilha(exportar("grade.xlsx"));
    EXPECT_EQ("negrito FF000000/FFD8E4F8 -", planilha.estilo("A7")) << "black is a colour";
    EXPECT_EQ("negrito -/FFD8E4F8 -", planilha.estilo("B7")) << "a blank keeps its background";
    EXPECT_EQ("negrito -/FFD8E4F8 #,##0.00", planilha.estilo("D7"));
    EXPECT_EQ("negrito FF0000FF/FFD8E4F8 #,##0.00;(#,##0.00)", planilha.estilo("F7"));
    EXPECT_EQ("negrito -/FFD8E4F8 dd/mm/yyyy", planilha.estilo("G7"));
    EXPECT_EQ("- -/- 0", planilha.estilo("B8")) << "no thousands in a code";
    EXPECT_EQ("- -/- #,##0.00;#,##0.00", planilha.estilo("E8")) << "what rounds to zero has no sign";
    EXPECT_EQ("- -/- #,##0.00", planilha.estilo("E9"));
    EXPECT_EQ("- FF0000FF/- #,##0.00;(#,##0.00)", planilha.estilo("F9"));
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
    EXPECT_EQ("A6:G9", entre(planilha.folha, "<autoFilter ref=\"", "\""));
    EXPECT_EQ("paperSize=\"9\" fitToHeight=\"0\" orientation=\"landscape\"",
              entre(planilha.folha, "<pageSetup ", "/>"));
    EXPECT_NE(std::string::npos, planilha.folha.find("<pageSetUpPr fitToPage=\"1\"/>"));
    EXPECT_NE(std::string::npos, parte(arquivo, "xl/workbook.xml").find(">Consulta!$5:$6</definedName>"));
    EXPECT_EQ("Orçado x realizado", entre(parte(arquivo, "docProps/core.xml"), "<dc:title>", "</dc:title>"));
}

TEST_F(Exportacao, ColunasDaPlanilhaTemLugarParaOMaiorNumero) {
    for (int i = 0; i < 2000; ++i)
        conexao.linhas.push_back(conexao.linhas[1]);
    conexao.linhas[777][5] = TDecimal{-99'999'999'999, 2}; // "(999.999.999,99)", seen by no sample
    const Planilha planilha(exportar("grade.xlsx"));
    EXPECT_GE(std::stod(entre(planilha.folha, "<col min=\"6\" max=\"6\" width=\"", "\"")), 17.0);
}

TEST_F(Exportacao, PaginaEhEstaEInteira) {
    EXPECT_EQ(R"(<body>
<h1>Orçado x realizado</h1>
<p>1 - Fábrica &amp; Cia</p>
<p>Período de 01/01/2024 a 31/12/2024</p>
<table>
<thead>
<tr class="f"><th scope="colgroup" colspan="3"></th><th scope="colgroup" colspan="2">Valor Orçado</th><th scope="colgroup" colspan="1">Realizado</th><th scope="colgroup" colspan="1"></th></tr>
<tr class="t"><th scope="col">Classificação</th><th scope="col">Conta</th><th scope="col">Nome &lt;da&gt; Conta</th><th scope="col">Valor</th><th scope="col">%</th><th scope="col">Valor</th><th scope="col">Data</th></tr>
</thead>
<tbody>
<tr><td class="c1">3</td><td class="c2"></td><td class="c2">Receita &amp; &quot;ação&quot; &lt;b&gt;</td><td class="c2">1.234,50</td><td class="c2"></td><td class="c3">(1.234,56)</td><td class="c2">31/01/2024</td></tr>
<tr><td class="c4">3.01</td><td>4711</td><td>=1+1</td><td>1.234.567.890.123,45</td><td>0,00</td><td class="c5"></td><td></td></tr>
<tr><td class="c4">03</td><td>999999999999999</td><td></td><td>12.345.678.901.234,56</td><td>-0,01</td><td class="c5">0,05</td><td>28/02/1900</td></tr>
</tbody>
</table>
</body>
</html>
)",
              conteudo(exportar("grade.html")).substr(conteudo(pasta / "grade.html").find("<body>")));
}

TEST_F(Exportacao, PaginaDizCadaAparenciaUmaVezELeSeNoEscuro) {
    const auto pagina = conteudo(exportar("grade.html"));
    EXPECT_TRUE(pagina.starts_with("<!DOCTYPE html>\n<html lang=\"pt-BR\">\n<head>\n<meta charset=\"utf-8\">\n"));
    EXPECT_EQ("Orçado x realizado", entre(pagina, "<title>", "</title>"));
    EXPECT_EQ("td:nth-child(2),.t :nth-child(2),td:nth-child(4),.t :nth-child(4),td:nth-child(5),.t :nth-child(5),"
              "td:nth-child(6),.t :nth-child(6),td:nth-child(7),.t :nth-child(7){text-align:right}\n"
              ".c4{color:#000000}\n"
              ".c5{color:#0000ff}\n"
              ".c2{font-weight:700;color:#000000;background:#d8e4f8}\n"
              ".c1{font-weight:700;color:#000000;background:#d8e4f8}\n"
              ".c3{font-weight:700;color:#0000ff;background:#d8e4f8}\n"
              "@media screen and (prefers-color-scheme:dark){.c4{color:var(--tinta)}.c5{color:#9393ff}}\n",
              pagina.substr(pagina.find("td:nth-child"), pagina.find("</style>") - pagina.find("td:nth-child")));
    EXPECT_NE(std::string::npos, pagina.find("thead{position:sticky;top:0}"));
    EXPECT_EQ(std::string::npos, pagina.find("http")) << "it needs no other file";
}

TEST_F(Exportacao, ArquivosPlanosTemTitulosQueSeDistinguem) {
    EXPECT_EQ("\xEF\xBB\xBF"
              "Classificação;Conta;Nome <da> Conta;Valor Orçado;%;Valor Realizado;Data\n"
              "3;0;\"Receita & \"\"ação\"\" <b>\";1234,50;;-1234,56;31/01/2024\n"
              "3.01;4711;=1+1;1234567890123,45;-0,0049;;\n"
              "03;999999999999999;;12345678901234,56;-0,0050;0,05;28/02/1900\n",
              conteudo(exportar("grade.csv")));
    grade.SetColunas({{"VALOR", "Janeiro", "", true, "", -1, false},
                      {"PERC", "%", "", true, "", -1, false},
                      {"REAL", "Total", "", true, "", -1, false},
                      {"TITULO", "%", "", true, "", -1, false}});
    EXPECT_EQ("Janeiro;% Janeiro;Total;% Total\n1234,50;;-1234,56;1",
              entre(conteudo(exportar("GRADE.CSV")), "\xBF", "\n1234567"));
    const auto json = conteudo(exportar("grade.json"));
    EXPECT_NE(std::string::npos, json.find("\n[\"3\",0,\"Receita & \\\"ação\\\" <b>\",1234.50,null,-1234.56,"
                                           "\"2024-01-31\",1],"));
}

TEST_F(Exportacao, PlanilhaTemReaisEHoras) {
    conexao.colunas = {{"FATOR", TTipoColuna::Real, 0, 0, ""}, {"HORA", TTipoColuna::DataHora, 0, 0, ""}};
    const auto meio_dia = base::TDataHora::De(2024, 1, 31)->Decimos() + base::TDataHora::DecimosPorDia / 2;
    conexao.linhas = {{1.5, base::TDataHora::DeDecimos(meio_dia)}, {std::nan(""), Nulo}};
    grade.SetColunas({{"FATOR", "Fator", "", true, "", -1, false}, {"HORA", "Hora", "", true, "", -1, false}});
    grade.RegraDaCelula = nullptr;
    titulo.clear();
    const Planilha planilha(exportar("grade.xlsx"));
    EXPECT_EQ("t Fator", planilha.celula("A1")) << "neither title nor bands";
    EXPECT_EQ("n 1.5", planilha.celula("A2"));
    EXPECT_EQ("n 45322.5", planilha.celula("B2"));
    EXPECT_EQ("- -/- dd/mm/yyyy hh:mm:ss", planilha.estilo("B2"));
    EXPECT_EQ("t nan", planilha.celula("A3"));
}

TEST_F(Exportacao, SemLinhasSobraOCabecalho) {
    conexao.linhas.clear();
    const Planilha planilha(exportar("grade.xlsx"));
    EXPECT_EQ("t Classificação", planilha.celula("A6"));
    EXPECT_EQ("(falta)", planilha.celula("A7"));
    EXPECT_NE(std::string::npos, conteudo(exportar("grade.html")).find("<tbody>\n</tbody>"));
}

TEST_F(Exportacao, RecusaComFraseQueDizOQueFazer) {
    EXPECT_EQ("Não é possível exportar para " + (pasta / "grade.doc").string() +
                  ": o nome do arquivo deve terminar em .xlsx, .html, .csv ou .json.",
              falha(pasta / "grade.doc"));
    for (const auto* nome : {"grade.xlsx", "grade.html", "grade.csv", "grade.json"}) {
        EXPECT_EQ("A pasta " + (pasta / "ausente").string() + " não existe. Crie-a ou escolha outra.",
                  falha(pasta / "ausente" / nome));
        if (std::filesystem::exists("/sys/kernel")) { // a folder that refuses even the superuser
            EXPECT_EQ("Não há permissão para gravar na pasta /sys. Escolha outra.", falha(path("/sys") / nome));
        }
    }
    std::filesystem::create_directories(pasta / "cheia.csv" / "x");
    EXPECT_EQ((pasta / "cheia.csv").string() + " é uma pasta. Indique um arquivo.", falha(pasta / "cheia.csv"));
    conexao.linhas[2][2] = std::string(40'000, 'x');
    cds.Close();
    EXPECT_TRUE(falha(pasta / "grade.xlsx").starts_with("Um texto tem mais de 32.767 caracteres"));
    EXPECT_EQ(std::vector<std::string>{"cheia.csv"}, arquivos());
    for (auto coluna : grade.Colunas())
        grade.MudarColuna(coluna.Campo, [](auto& c) { c.Visivel = false, c.Grupo = -1; });
    EXPECT_TRUE(falha(pasta / "grade.csv").starts_with("Nenhuma coluna está à vista"));
    fonte.DataSet = nullptr;
    EXPECT_EQ("Não há dados para exportar. Faça antes uma seleção.", falha(pasta / "grade.csv"));
}

// A limit on the size of a file fails writes as a full disk does, each file of the library's at its own point.
TEST_F(Exportacao, DiscoCheioEmQualquerPontoNaoDeixaMeioArquivo) {
    for (int i = 0; i < 40; ++i)
        conexao.linhas.push_back(conexao.linhas[static_cast<std::size_t>(i % 3)]);
    const auto sinal = std::signal(SIGXFSZ, SIG_IGN);
    for (const auto* nome : {"grade.xlsx", "grade.html", "grade.csv", "grade.json"}) {
        const auto arquivo = exportar(nome);
        const auto inteiro = nome[6] == 'x' ? parte(arquivo, "xl/worksheets/sheet1.xml") : conteudo(arquivo);
        std::ofstream(arquivo, std::ios::binary) << "antes";
        int falhas = 0;
        std::string frase;
        for (rlim_t limite = 100; limite < 40'000; limite += 211) {
            rlimit antes{};
            ::getrlimit(RLIMIT_FSIZE, &antes);
            const rlimit menor{limite, antes.rlim_max};
            ::setrlimit(RLIMIT_FSIZE, &menor);
            frase = falha(arquivo);
            ::setrlimit(RLIMIT_FSIZE, &antes);
            if (frase == "(sem falha)")
                break;
            ++falhas;
            ASSERT_EQ("Não foi possível gravar " + arquivo.string() +
                          ". Verifique o espaço em disco e as permissões; nada foi gravado.",
                      frase);
            ASSERT_EQ("antes", conteudo(arquivo)) << limite;
            ASSERT_EQ(std::vector<std::string>{nome}, arquivos()) << limite;
        }
        EXPECT_GT(falhas, 5) << nome;
        EXPECT_EQ("(sem falha)", frase);
        EXPECT_EQ(inteiro, nome[6] == 'x' ? parte(arquivo, "xl/worksheets/sheet1.xml") : conteudo(arquivo)) << nome;
        std::filesystem::remove(arquivo);
    }
    std::signal(SIGXFSZ, sinal);
}
