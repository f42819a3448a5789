#include "planilha_apoio.h"

#include <chrono>
#include <cmath>
#include <random>
#include <thread>

using base::Inteiro;
using base::Nulo;
using base::TDecimal;
using host::TPapelColuna;
using host::TTipoColuna;
using suite::table::Rows;
using suite::table::Table;
using namespace exportacao;

namespace {

TDecimal reais(std::int64_t centavos) { return {centavos, 2}; }

// A statement of accounts below titles: classification, establishment, name, budget, actual and their difference, from
// which another amount that is not in view is taken away.
class PlanilhaDeContas : public Exportacao {
  protected:
    PlanilhaDeContas() {
        conexao.colunas = {{"CLASSE", TTipoColuna::Texto, 0, 20, ""},   {"FILIAL", TTipoColuna::Inteiro, 0, 0, ""},
                           {"NOME", TTipoColuna::Texto, 0, 60, ""},     {"ORC", TTipoColuna::Inteiro, 2, 0, ""},
                           {"REAL", TTipoColuna::Inteiro, 2, 0, ""},    {"DELTA", TTipoColuna::Inteiro, 4, 0, ""},
                           {"OUTRO", TTipoColuna::Inteiro, 2, 0, ""},   {"TITULO", TTipoColuna::Inteiro, 0, 0, ""},
                           {"IDPLANO", TTipoColuna::Inteiro, 0, 0, ""}, {"TIPO", TTipoColuna::Inteiro, 0, 0, ""}};
        conexao.linhas = {conta("3", 1, 1, 60'00, 50'25),       conta("3.01", 1, 1, 60'00, 50'25),
                          conta("3.01.001", 1, 0, 10'00, 3'25), conta("3.01.002", 1, 0, 50'00, 50'00),
                          conta("4", 1, 0, 7'00, 8'00),         conta("3", 2, 1, 5'00, 0),
                          conta("3.01.001", 2, 0, 5'00, 0),     conta("9", 2, {}, 90'00, 90'00)};
        std::vector<host::TColunaGrade> colunas{
            {"CLASSE", "Classificação", "", true, "", -1, true}, {"FILIAL", "Filial", "", true, "", 0, true},
            {"NOME", "Nome", "", true, "", -1, false},           {"ORC", "Orçado", "", true, ",0.00", -1, false},
            {"REAL", "Realizado", "", true, ",0.00", -1, false}, {"DELTA", "Variação", "", true, ",0.00", -1, false}};
        colunas[3].Papel = colunas[4].Papel = TPapelColuna::Dinheiro;
        colunas[5].Papel = TPapelColuna::Desvio;
        colunas[5].Parcelas = {"REAL", "-ORC", "-OUTRO", "-AUSENTE"};
        grade.SetColunas(colunas);
        grade.RegraDaCelula = nullptr;
        grade.Linhas.Titulo = "TITULO";
        grade.Linhas.Nivel = "CLASSE";
        titulo.criteria.resize(1); // the captions in row 3
    }
    static std::vector<base::TValor> conta(const std::string& classe, int filial, std::optional<int> marca,
                                           std::int64_t orcado, std::int64_t realizado) {
        return {classe,
                Inteiro(filial),
                "Conta " + classe,
                reais(orcado),
                reais(realizado),
                TDecimal{(realizado - orcado) * 100, 4},
                Nulo,
                marca ? Inteiro(*marca) : Nulo,
                Inteiro(1),
                Nulo};
    }
    void desagrupar() {
        grade.MudarColuna("FILIAL", [](auto& coluna) { coluna.Grupo = -1; });
    }
};

} // namespace

TEST_F(PlanilhaDeContas, GruposEContasFormamNiveisESomasContamOQueATabelaConta) {
    const Planilha planilha(exportar("grade.xlsx"));
    EXPECT_EQ("t Filial: 1 (5 linhas)", planilha.celula("A4"));
    EXPECT_EQ("negrito -/FFD6DCE4 #,##0.00", planilha.estilo("D4"));
    EXPECT_EQ("v", planilha.celula("B4")) << "what a filter of the column does not find";
    EXPECT_EQ("f ROUND(SUMIF($G5:$G9,1,D5:D9),2) = 67", planilha.celula("D4"));
    EXPECT_EQ("f ROUND(SUMIF($G5:$G9,1,E5:E9),2) = 61.25", planilha.celula("E4"));
    EXPECT_EQ("f ROUND(SUMIF($G5:$G9,1,F5:F9),4) = -5.75", planilha.celula("F4"));
    EXPECT_EQ("n 1", planilha.celula("B5")) << "a grouped column is a column too";
    std::string niveis;
    std::string marcas;
    for (std::size_t linha = 4; linha <= 15; ++linha) {
        niveis += linha == 14 ? "-" : planilha.nivel(linha);
        marcas += planilha.celula("G" + std::to_string(linha)) == "n 1" ? "1" : "-";
    }
    EXPECT_EQ("0123310121-0", niveis) << "groups, titles, accounts; an empty row; the total";
    EXPECT_EQ("---111--1---", marcas) << "neither titles nor what is not marked";
    EXPECT_NE(std::string::npos, planilha.folha.find("<outlinePr summaryBelow=\"0\"/>"));
    EXPECT_NE(std::string::npos, entre(planilha.folha, "<col min=\"7\" max=\"7\"", "/>").find("hidden=\"1\""));
    EXPECT_EQ("A3:G13", entre(planilha.folha, "<autoFilter ref=\"", "\"")) << "the marks, not the total";
    EXPECT_EQ("(falta)", planilha.celula("A14"));
    EXPECT_EQ("t Total (contas analíticas)", planilha.celula("A15"));
    EXPECT_EQ("f ROUND(SUMIF($G4:$G13,1,D4:D13),2) = 72", planilha.celula("D15"));
}

TEST_F(PlanilhaDeContas, NiveisSaoDasContasQueEstaoAcimaESeteNoMaximo) {
    desagrupar();
    conexao.linhas = {conta("1.1", 1, 0, 1, 0), conta("1.10", 1, 0, 2, 0), conta("1", 1, 1, 3, 0)};
    std::string classe = "1";
    for (int i = 1; i <= 9; ++i)
        conexao.linhas.push_back(conta(classe += ".1", 1, i < 9 ? 1 : 0, 3 + i, 0));
    conexao.linhas.push_back(conta("1.2.1", 1, 0, 20, 0));
    const auto niveis = [&](const Table& tabela) {
        suite::exporting::Exporter().write(tabela, pasta / "niveis.xlsx", titulo);
        const Planilha planilha(pasta / "niveis.xlsx");
        std::string todos;
        for (std::size_t i = 0; i < tabela.lines().size(); ++i)
            todos += planilha.nivel(4 + i);
        return todos;
    };
    cds.Open();
    EXPECT_EQ("0001234567771", niveis(Table(grade)));
    EXPECT_EQ("0000000000011", niveis(Table(grade, {{{"ORC", true}}, {}, false}))) << "most stand above their titles";
    EXPECT_EQ("012345670", niveis(Table(grade, {{}, {{"ORC", ">=0,05"}}, false}))) << "what is left out holds none";
}

TEST_F(PlanilhaDeContas, OndeATabelaNaoSomaNaoHaFormula) {
    conexao.linhas[2][3] = Nulo; // beyond what its column holds
    EXPECT_EQ("t —", Planilha(exportar("grade.xlsx")).celula("D15"));
    EXPECT_EQ("t —", Planilha(exportar("grade.xlsx")).celula("D4"));
    EXPECT_EQ("f ROUND(SUMIF($G11:$G13,1,D11:D13),2) = 5", Planilha(exportar("grade.xlsx")).celula("D10"))
        << "the other group";
    grade.Linhas.Conta = "IDPLANO";
    conexao.linhas[4][8] = Nulo;
    cds.Close();
    const Planilha planilha(exportar("grade.xlsx"));
    EXPECT_EQ("t Sem soma: os totalizadores já contêm as contas e seriam contados duas vezes.", planilha.celula("A15"));
    EXPECT_EQ("v", planilha.celula("D15"));
    EXPECT_EQ("v", planilha.celula("D4"));
}

// 16 digits are a text to a spreadsheet, which no formula counts.
TEST_F(PlanilhaDeContas, SomasQueAPlanilhaNaoFariaSaoValores) {
    desagrupar();
    constexpr std::int64_t Grande = 1'000'000'000'000'001; // cents
    conexao.linhas = {conta("1", 1, 0, Grande, Grande), conta("2", 1, 0, 1'00 - Grande, 0),
                      conta("3", 1, 1, 0, Grande)};
    conexao.linhas[0][5] = conexao.linhas[1][5] = conexao.linhas[2][5] = TDecimal{0, 4};
    const Planilha planilha(exportar("grade.xlsx"));
    EXPECT_EQ("n 1", planilha.celula("D8"));
    EXPECT_EQ("t 10.000.000.000.000,01", planilha.celula("E8"));
    EXPECT_EQ("f ROUND(SUMIF($G4:$G6,1,F4:F6),4) = 0", planilha.celula("F8"));
    EXPECT_EQ("n 0", planilha.celula("F4")) << "its parts are texts";
}

TEST_F(PlanilhaDeContas, DiferencaEhFormulaOndeSuasParcelasADaoExata) {
    desagrupar();
    conexao.linhas.assign(6, conta("4", 1, 0, 10'10, 12'35));
    conexao.linhas[1][6] = reais(0);
    conexao.linhas[2][6] = reais(1); // not in view
    conexao.linhas[3][5] = TDecimal{2'2501, 4};
    conexao.linhas[4][5] = Nulo;
    conexao.linhas[5][3] = Nulo;
    conexao.linhas[5][5] = TDecimal{12'3500, 4};
    const auto arquivo = exportar("grade.xlsx");
    EXPECT_EQ("f E4-D4 = 2.25", Planilha(arquivo).celula("F4"));
    EXPECT_EQ("f E5-D5 = 2.25", Planilha(arquivo).celula("F5"));
    EXPECT_EQ("n 2.25", Planilha(arquivo).celula("F6"));
    EXPECT_EQ("n 2.2501", Planilha(arquivo).celula("F7"));
    EXPECT_EQ("v", Planilha(arquivo).celula("F8"));
    EXPECT_EQ("f E9-D9 = 12.35", Planilha(arquivo).celula("F9"));
    grade.MudarColuna("ORC", [](auto& coluna) { coluna.Visivel = false; });
    EXPECT_EQ("n 2.25", Planilha(exportar("grade.xlsx")).celula("E4"));
}

TEST_F(PlanilhaDeContas, CriteriosEMomentoEstaoNoLivro) {
    const auto momento = base::TDataHora::De(2024, 1, 31)->Decimos() + base::TDataHora::DecimosPorDia / 2;
    titulo = {{{"Consulta", "P&G [x] 100%"}, {"Empresa", "=1+1"}},
              {"orcreal 1.0", "servidor:banco", base::TDataHora::DeDecimos(momento)}};
    const auto arquivo = exportar("grade.xlsx");
    const auto bytes = conteudo(arquivo);
    const Planilha criterios(arquivo, 2);
    std::string texto;
    for (const auto* linha : {"1", "2", "3", "4", "5", "6"})
        texto += criterios.celula(std::string("A") + linha) + "=" + criterios.celula(std::string("B") + linha) + "\n";
    EXPECT_EQ("t Consulta=t P&amp;G [x] 100%\nt Empresa=t =1+1\nt Programa=t orcreal 1.0\n"
              "t Banco de dados=t servidor:banco\nt Gerado em=t 31/01/2024 12:00:00\n(falta)=(falta)\n",
              texto);
    EXPECT_NE(std::string::npos, parte(arquivo, "xl/workbook.xml").find("<sheet name=\"Critérios\""));
    EXPECT_EQ("&amp;LP&amp;&amp;&amp;U&amp;UG [x] 100%", entre(Planilha(arquivo).folha, "<oddHeader>", "</oddHeader>"));
    EXPECT_EQ("2024-01-31T12:00:00Z", entre(parte(arquivo, "docProps/core.xml"), "W3CDTF\">", "<"));
    std::this_thread::sleep_for(std::chrono::milliseconds(2100)); // the times of an archive are even seconds
    EXPECT_EQ(bytes, conteudo(exportar("de_novo.xlsx")));
}

namespace {

double numero(const std::string& celula) {
    const auto valor = celula.starts_with("n ")   ? celula.substr(2)
                       : celula.starts_with("f ") ? celula.substr(celula.find(" = ") + 3)
                                                  : "0";
    return std::stod(valor);
}

// What a spreadsheet makes of the formulas that we write.
double calcular(const Planilha& planilha, const std::string& formula) {
    double soma = 0;
    int de = 0;
    int ate = 0;
    char marca = 0;
    char coluna = 0;
    if (std::sscanf(formula.c_str(), "ROUND(SUMIF($%c%d:$%*c%d,1,%c", &marca, &de, &ate, &coluna) == 4) {
        for (; de <= ate; ++de)
            if (planilha.celula(marca + std::to_string(de)) == "n 1")
                soma += numero(planilha.celula(coluna + std::to_string(de)));
        return soma;
    }
    for (std::size_t i = 0; i < formula.size();) {
        const auto fim = std::min(formula.find_first_of("+-", i + 1), formula.size());
        const bool sinal = formula[i] == '-' || formula[i] == '+';
        const auto celula = formula.substr(i + (sinal ? 1 : 0), fim - i - (sinal ? 1 : 0));
        soma += (formula[i] == '-' ? -1 : 1) * numero(planilha.celula(celula));
        i = fim;
    }
    return soma;
}

} // namespace

TEST_F(PlanilhaDeContas, CadaCelulaEhADaTabelaECadaFormulaDaOSeuValor) {
    std::mt19937 acaso{20240131};
    const auto sortear = [&](int de, int ate) { return std::uniform_int_distribution(de, ate)(acaso); };
    grade.MudarColuna("NOME", [](auto& coluna) { coluna.Grupo = 1; });
    for (int vez = 0; vez < 12; ++vez) {
        conexao.linhas.clear();
        for (int i = sortear(1, 60); i > 0; --i) {
            std::string classe = std::to_string(sortear(1, 2));
            for (int fundo = sortear(0, 8); fundo > 0; --fundo)
                classe += ".1";
            conexao.linhas.push_back(conta(classe, sortear(1, 3), sortear(0, 1), sortear(-9'999'99, 9'999'99),
                                           sortear(-9'999'99, 9'999'99)));
            conexao.linhas.back()[2] = std::string(sortear(0, 1) == 0 ? "=A1" : "Conta & outra");
            conexao.linhas.back()[6] = sortear(0, 3) == 0 ? base::TValor(reais(sortear(0, 5))) : Nulo;
        }
        cds.Close();
        cds.Open();
        const Table tabela(grade, {{{"REAL", vez % 2 == 0}}, {{"ORC", ">0"}}, false});
        if (tabela.lines().empty())
            continue;
        const auto arquivo = pasta / "acaso.xlsx";
        suite::exporting::Exporter().write(tabela, arquivo, titulo);
        const Planilha planilha(arquivo);
        const auto lugares = tabela.rows().unfolded();
        int formulas = 0;
        for (std::size_t i = 0; i < lugares.size() + 2; ++i) {
            const auto linha = std::to_string(4 + i);
            const bool total = i > lugares.size();
            for (std::size_t c = 0; c < 6 && i != lugares.size(); ++c) {
                const auto& coluna = tabela.columnsOfFiles()[c];
                const auto celula = planilha.celula(static_cast<char>('A' + c) + linha);
                base::TValor esperado;
                if (!total && (lugares[i] & Rows::GroupBit) == 0) {
                    esperado = tabela.value(lugares[i], coluna);
                } else if (coluna.sums()) {
                    const auto grupo = total ? tabela.rows().totalSet() : lugares[i] & ~Rows::GroupBit;
                    esperado = *tabela.rows().sums().sum(grupo, coluna.field);
                    EXPECT_TRUE(celula.starts_with("f ROUND(SUMIF("));
                } else {
                    EXPECT_EQ(c == 0 ? "t " : "v", celula.substr(0, c == 0 ? 2 : 1));
                    continue;
                }
                if (const auto* decimal = std::get_if<TDecimal>(&esperado)) {
                    const auto valor = static_cast<double>(decimal->Unidades) / std::pow(10.0, decimal->Escala);
                    ASSERT_NEAR(valor, numero(celula), 1e-9) << celula;
                    if (celula.starts_with("f ")) {
                        ++formulas;
                        ASSERT_NEAR(valor, calcular(planilha, entre(celula, "f ", " = ")), 1e-6) << celula;
                    }
                } else {
                    const auto texto = base::TextoDe(esperado);
                    ASSERT_EQ("t " + (texto == "Conta & outra" ? "Conta &amp; outra" : texto), celula);
                }
            }
        }
        EXPECT_GT(formulas, 3);
    }
}
