#include "exportacao_apoio.h"

#include <csignal>
#include <sys/resource.h>

using std::filesystem::path;
using namespace exportacao;

TEST_F(Exportacao, PaginaEhEstaEInteira) {
    grade.MudarColuna("VALOR", [](auto& coluna) { coluna.Papel = host::TPapelColuna::Dinheiro; });
    grade.Linhas.Titulo = "TITULO";
    EXPECT_EQ(R"(<body>
<h1>Orçado x realizado</h1>
<p>Empresa: 1 - Fábrica &amp; Cia</p>
<p>Período: 01/01/2024 a 31/12/2024</p>
<table>
<thead>
<tr class="f"><th scope="colgroup" colspan="3"></th><th scope="colgroup" colspan="2">Valor Orçado</th><th scope="colgroup" colspan="1">Realizado</th><th scope="colgroup" colspan="1"></th></tr>
<tr class="t"><th scope="col">Classificação</th><th scope="col">Conta</th><th scope="col">Nome &lt;da&gt; Conta</th><th scope="col">Valor</th><th scope="col">%</th><th scope="col">Valor</th><th scope="col">Data</th></tr>
</thead>
<tbody>
<tr class="g"><td colspan="3" style="text-align:left">Conta: 0 (1 linha)</td><td style="text-align:right">0,00</td><td style="text-align:right"></td><td style="text-align:right"></td><td style="text-align:right"></td></tr>
<tr><td class="c1">3</td><td class="c2"></td><td class="c2">Receita &amp; &quot;ação&quot; &lt;b&gt;</td><td class="c2">1.234,50</td><td class="c2"></td><td class="c3">(1.234,56)</td><td class="c2">31/01/2024</td></tr>
<tr class="g"><td colspan="3" style="text-align:left">Conta: 4711 (1 linha)</td><td style="text-align:right">1.234.567.890.123,45</td><td style="text-align:right"></td><td style="text-align:right"></td><td style="text-align:right"></td></tr>
<tr><td class="c4">3.01</td><td>4711</td><td>=1+1</td><td>1.234.567.890.123,45</td><td>0,00</td><td class="c5"></td><td></td></tr>
<tr class="g"><td colspan="3" style="text-align:left">Conta: 999999999999999 (1 linha)</td><td style="text-align:right">12.345.678.901.234,56</td><td style="text-align:right"></td><td style="text-align:right"></td><td style="text-align:right"></td></tr>
<tr><td class="c4">03</td><td>999999999999999</td><td></td><td>12.345.678.901.234,56</td><td>-0,01</td><td class="c5">0,05</td><td>28/02/1900</td></tr>
</tbody>
<tfoot><tr><td colspan="3" style="text-align:left">Total (contas analíticas)</td><td style="text-align:right">13.580.246.791.358,01</td><td style="text-align:right"></td><td style="text-align:right"></td><td style="text-align:right"></td></tr>
</tfoot>
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
              "Classificação;Conta;Nome <da> Conta;Valor Orçado;Valor Orçado %;Realizado Valor;Data\n"
              "3;0;\"Receita & \"\"ação\"\" <b>\";1234,50;;-1234,56;31/01/2024\n"
              "3.01;4711;'=1+1;1234567890123,45;-0,0049;;\n"
              "03;999999999999999;;12345678901234,56;-0,0050;0,05;28/02/1900\n",
              conteudo(exportar("grade.csv")));
    grade.SetColunas({{"VALOR", "Janeiro", "", true, "", -1, false},
                      {"PERC", "%", "", true, "", -1, false},
                      {"REAL", "Total", "", true, "", -1, false},
                      {"TITULO", "%", "", true, "", -1, false}});
    EXPECT_EQ("Janeiro;%;Total;% (2)\n1234,50;;-1234,56;1",
              entre(conteudo(exportar("GRADE.CSV")), "\xBF", "\n1234567"));
    titulo.inCsv = true;
    EXPECT_EQ("Consulta;Orçado x realizado\nEmpresa;1 - Fábrica & Cia\nPeríodo;01/01/2024 a 31/12/2024\n\nJaneiro;%",
              entre(conteudo(exportar("grade.csv")), "\xBF", ";Total"));
    const auto json = conteudo(exportar("grade.json"));
    EXPECT_NE(std::string::npos, json.find("\n[\"3\",0,\"Receita & \\\"ação\\\" <b>\",1234.50,null,-1234.56,"
                                           "\"2024-01-31\",1],"));
    EXPECT_NE(std::string::npos, json.find("]],\n\"criterios\":{\"Consulta\":\"Orçado x realizado\","));
}

TEST_F(Exportacao, SemLinhasSobraOCabecalho) {
    conexao.linhas.clear();
    EXPECT_NE(std::string::npos, conteudo(exportar("grade.html")).find("<tbody>\n</tbody>"));
}

TEST_F(Exportacao, RecusaComFraseQueDizOQueFazer) {
    EXPECT_EQ("Não é possível exportar para " + (pasta / "grade.doc").string() +
                  ": o nome do arquivo deve terminar em .csv, .html, .json ou .xlsx.",
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
