// One result on every face: what a cell holds, how it is shown, under which heading and in which order does not depend
// on where one looks.
#include "apoio/Bases.h"
#include "apoio/Hospedeiro.h"
#include "base/Texto.h"
#include "desktop/Aplicacao.h"
#include "desktop/Modulo.h"
#include "suite/desktop/grid/GridPane.h"
#include "suite/desktop/grid/GridView.h"
#include "suite/export/Formats.h"
#include "suite/program/FillSelection.h"
#include "suite/program/Session.h"
#include "suite/terminal/Headless.h"
#include "suite/terminal/TableText.h"

#include <gtest/gtest.h>

#include <QLineEdit>

#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <unistd.h>

using suite::desktop::GridPane;
using suite::program::ConsultOptions;
using suite::table::Table;

namespace {

using Linha = std::vector<std::string>;
using Linhas = std::vector<Linha>;

std::string conteudo(const std::filesystem::path& arquivo) {
    std::ifstream entrada(arquivo, std::ios::binary);
    return {std::istreambuf_iterator<char>(entrada), {}};
}

std::string parteDaPlanilha(const std::filesystem::path& arquivo) {
    auto* saida = ::popen(("unzip -p '" + arquivo.string() + "' xl/worksheets/sheet1.xml").c_str(), "r");
    std::string texto;
    char bloco[4096];
    while (const auto lido = std::fread(bloco, 1, sizeof bloco, saida))
        texto.append(bloco, lido);
    EXPECT_EQ(0, ::pclose(saida));
    return texto;
}

std::string semMarcas(std::string texto) {
    for (const auto& [marca, sinal] :
         {std::pair{"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&#39;", "'"}, {"&amp;", "&"}})
        for (auto onde = texto.find(marca); onde != std::string::npos; onde = texto.find(marca, onde + 1))
            texto.replace(onde, std::string(marca).size(), sinal);
    return texto;
}

// What stands between each pair of marks, one behind the other.
Linha entre(const std::string& texto, const std::string& abre, const std::string& fecha) {
    Linha partes;
    for (auto inicio = texto.find(abre); inicio != std::string::npos; inicio = texto.find(abre, inicio)) {
        const auto conteudo = texto.find('>', inicio) + 1;
        const auto fim = texto.find(fecha, conteudo);
        partes.push_back(texto.substr(conteudo, fim - conteudo));
        inicio = fim;
    }
    return partes;
}

Linhas lerCsv(const std::string& texto) {
    Linhas linhas(1, Linha(1));
    bool aspas = false;
    for (std::size_t i = 0; i < texto.size(); ++i) {
        auto& celula = linhas.back().back();
        if (aspas && texto[i] == '"' && i + 1 < texto.size() && texto[i + 1] == '"')
            celula += texto[i++];
        else if (texto[i] == '"')
            aspas = !aspas;
        else if (!aspas && texto[i] == ';')
            linhas.back().emplace_back();
        else if (!aspas && texto[i] == '\n')
            linhas.emplace_back(1);
        else
            celula += texto[i];
    }
    linhas.pop_back();
    return linhas;
}

// The arrays behind "linhas", a line each; a text without its quotes.
Linhas lerJson(const std::string& texto) {
    Linhas linhas;
    std::istringstream entrada(texto.substr(texto.find("\"linhas\":[")));
    std::string linha;
    std::getline(entrada, linha);
    while (std::getline(entrada, linha) && linha.starts_with('[')) {
        Linha celulas(1);
        bool aspas = false;
        const auto fim = linha.rfind("]") - (linha.ends_with("]],") ? 1U : 0U); // the last one closes the list too
        for (std::size_t i = 1; i < fim; ++i) {
            if (aspas && linha[i] == '\\')
                celulas.back() += linha[++i];
            else if (linha[i] == '"')
                aspas = !aspas;
            else if (!aspas && linha[i] == ',')
                celulas.emplace_back();
            else
                celulas.back() += linha[i];
        }
        linhas.push_back(std::move(celulas));
    }
    return linhas;
}

// The cells of the rows that are no group's.
Linhas lerPagina(const std::string& texto) {
    Linhas linhas;
    const auto corpo = texto.substr(texto.find("<tbody>"), texto.find("</tbody>") - texto.find("<tbody>"));
    for (const auto& linha : entre(corpo, "<tr>", "</tr>")) {
        linhas.emplace_back();
        for (const auto& celula : entre(linha, "<td", "</td>"))
            linhas.back().push_back(semMarcas(celula));
    }
    return linhas;
}

// Every row of the sheet by columns from A, a formula as its value.
Linhas lerPlanilha(const std::string& folha, std::size_t colunas) {
    Linhas linhas;
    for (const auto& linha : entre(folha, "<row ", "</row>")) {
        auto& celulas = linhas.emplace_back(colunas);
        for (auto onde = linha.find("<c r=\""); onde != std::string::npos; onde = linha.find("<c r=\"", onde + 1)) {
            const auto xml = linha.substr(onde, linha.find("<c r=\"", onde + 1) - onde);
            std::size_t coluna = 0;
            for (std::size_t i = 6; xml[i] >= 'A'; ++i)
                coluna = coluna * 26 + static_cast<std::size_t>(xml[i] - 'A' + 1);
            const auto textos = entre(xml, "<t", "</t>");
            const auto valores = entre(xml, "<v>", "</v>");
            if (coluna <= colunas)
                celulas[coluna - 1] = semMarcas(!textos.empty() ? textos[0] : valores.empty() ? "" : valores[0]);
        }
    }
    return linhas;
}

// Titles and cells of a table of text, by the rule below the titles.
struct TabelaDeTexto {
    Linha titulos;
    Linhas linhas;
};

TabelaDeTexto lerTabela(const std::string& texto) {
    std::vector<std::vector<std::string>> letras; // by line
    std::istringstream entrada(texto);
    for (std::string linha; std::getline(entrada, linha);) {
        auto& sinais = letras.emplace_back();
        for (std::size_t i = 0; i < linha.size(); i += sinais.back().size())
            sinais.push_back(linha.substr(i, base::TamanhoDoCaractere(std::string_view(linha).substr(i))));
    }
    std::size_t regua = 0;
    const auto ehRegua = [&](const auto& sinais) {
        return !sinais.empty() &&
               std::all_of(sinais.begin(), sinais.end(), [](const auto& s) { return s == "─" || s == " "; });
    };
    while (!ehRegua(letras[regua]))
        ++regua;
    const auto cortar = [&](const std::vector<std::string>& sinais) {
        Linha celulas;
        for (std::size_t i = 0; i < letras[regua].size(); ++i) {
            if (letras[regua][i] == " ")
                continue;
            std::string celula;
            for (; i < letras[regua].size() && letras[regua][i] != " "; ++i)
                celula += i < sinais.size() ? sinais[i] : "";
            celulas.push_back(base::Trim(celula));
        }
        return celulas;
    };
    TabelaDeTexto tabela{cortar(letras[regua - 1]), {}};
    for (auto i = regua + 1; i < letras.size() && !letras[i].empty(); ++i)
        tabela.linhas.push_back(cortar(letras[i]));
    return tabela;
}

class Faces : public testing::Test {
  protected:
    Faces() {
        aplicacao();
        registrarModulo();
        std::filesystem::create_directories(pasta);
        janela = suite::program::Session::makeWindow();
        janela->InitializeForm();
    }
    ~Faces() override {
        janela.reset();
        std::filesystem::remove_all(pasta);
    }

    int sortear(int ate) { return std::uniform_int_distribution<int>(0, ate - 1)(acaso); }
    ConsultOptions sortearOpcoes(int modo) {
        const auto data = [](int mes, bool fim) {
            const auto dia = *base::TDataHora::De(2024, mes, 1);
            return (fim ? dia.UltimoDiaDoMes() : dia).Texto();
        };
        ConsultOptions opcoes;
        opcoes.mode = std::to_string(modo);
        const int inicio = 1 + sortear(9);
        opcoes.from = data(inicio, false);
        opcoes.to = data(modo == 2 ? inicio : inicio + sortear(4), true);
        opcoes.groupEstablishments = sortear(2) == 0;
        if (modo == 3) {
            const char* const tipos[] = {"", "O", "O,R", "B,R"};
            opcoes.lines = tipos[sortear(4)];
            if (sortear(2) == 0) {
                opcoes.view = "demonstracao";
                opcoes.statement = std::to_string(1 + sortear(3));
                opcoes.totals = "reatualizar";
                opcoes.dependencies = "todos";
                const char* const percentuais[] = {"", "base", "vertical"};
                opcoes.percentage = percentuais[sortear(3)];
                opcoes.details = sortear(2) == 0 ? "contas" : "";
            }
        }
        if (opcoes.view == "balanco" && sortear(3) == 0)
            opcoes.accounts = "31";
        return opcoes;
    }
    // The grid of the consultation, null where the rules refuse it or it finds nothing.
    const host::TGrade* consultar(const ConsultOptions& opcoes) {
        interacao.onModal = [&](host::TFormZTTandorPadraoResult& form) {
            suite::program::fillSelection(form, opcoes, interacao);
        };
        interacao.onQuestion = [](const host::TMensagem&) { return suite::terminal::Headless::Answer{7, {}}; };
        try {
            janela->Executar(janela->Acao("ActSelecionar"));
        } catch (const base::TFalha&) {
            return nullptr;
        }
        const auto* grade = janela->GradeEmVista();
        return grade && grade->DataSet()->Active() && !grade->DataSet()->IsEmpty() ? grade : nullptr;
    }

    void conferir(const Table& tabela, const GridPane& painel);
    void conferirTexto(const Table& tabela, const Linhas& exibidas);
    void conferirPlanilha(const Table& tabela, const Linhas& guardadas, const Linhas& exibidas);

    const std::filesystem::path pasta =
        std::filesystem::path(ORCREAL_PASTA_TESTE) / ("faces" + std::to_string(::getpid()));
    apoio::Copia copia{apoio::Base::Demo};
    std::ostringstream mensagens;
    suite::terminal::Headless interacao{mensagens, false};
    std::unique_ptr<suite::firebird::Connection> conexao = copia.conectar();
    suite::program::Session sessao{{1, {}, {}, {}}, *conexao, interacao};
    std::unique_ptr<host::TFormZTTandorPadraoSelecao> janela;
    suite::exporting::Exporter exportador;
    std::mt19937 acaso{20240131};
};

// The terminal shows a part of the columns, in order, and nothing else than the others.
void Faces::conferirTexto(const Table& tabela, const Linhas& exibidas) {
    std::ostringstream saida;
    suite::terminal::writeTable(saida, tabela, 10'000, false);
    const auto texto = lerTabela(saida.str());
    ASSERT_GE(texto.linhas.size(), exibidas.size()) << "and the line of sums";
    std::size_t vista = 0;
    const auto& colunas = tabela.columnsOfFiles();
    for (std::size_t c = 0; c < colunas.size(); ++c) {
        bool igual = vista < texto.titulos.size() &&
                     (texto.titulos[vista] == colunas[c].shown->Titulo || texto.titulos[vista] == colunas[c].heading);
        for (std::size_t i = 0; igual && i < exibidas.size(); ++i)
            igual = texto.linhas[i][vista] == base::Trim(exibidas[i][c]);
        if (igual) {
            ++vista;
        } else {
            ASSERT_FALSE(colunas[c].sums()) << colunas[c].heading << " has sums and is not shown as it is";
        }
    }
    EXPECT_EQ(texto.titulos.size(), vista) << "columns of the terminal that no other face has so:\n" << saida.str();
}

void Faces::conferirPlanilha(const Table& tabela, const Linhas& guardadas, const Linhas& exibidas) {
    const auto arquivo = pasta / "face.xlsx";
    exportador.write(tabela, arquivo, {});
    const auto& colunas = tabela.columnsOfFiles();
    const auto planilha = lerPlanilha(parteDaPlanilha(arquivo), colunas.size());
    Linha titulos;
    for (const auto& coluna : colunas)
        titulos.push_back(coluna.shown->Titulo);
    auto linha = std::find(planilha.begin(), planilha.end(), titulos);
    ASSERT_NE(planilha.end(), linha);
    for (const auto& faixa : suite::table::bandsOf(colunas))
        EXPECT_EQ(faixa.caption, (*std::prev(linha))[faixa.first]);
    for (const auto entrada : tabela.rows().unfolded()) {
        ++linha;
        ASSERT_NE(planilha.end(), linha);
        if ((entrada & suite::table::Rows::GroupBit) != 0)
            continue;
        for (std::size_t c = 0; c < colunas.size(); ++c) {
            const auto& lida = (*linha)[c];
            if (exibidas[entrada][c].empty()) {
                ASSERT_EQ("", lida) << colunas[c].heading;
                continue;
            }
            if (colunas[c].type() == host::TTipoColuna::Texto) {
                ASSERT_EQ(exibidas[entrada][c], lida) << colunas[c].heading;
                continue;
            }
            auto digitos = guardadas[entrada][c];
            std::replace(digitos.begin(), digitos.end(), ',', '.');
            const auto esperado = std::stod(digitos);
            ASSERT_NEAR(esperado, std::stod(lida), std::abs(esperado) * 1e-15) << colunas[c].heading;
        }
    }
}

void Faces::conferir(const Table& tabela, const GridPane& painel) {
    const auto& colunas = tabela.columnsOfFiles();
    exportador.write(tabela, pasta / "face.csv", {});
    const auto csv = lerCsv(conteudo(pasta / "face.csv").substr(3));
    Linha titulos;
    for (const auto& coluna : colunas)
        titulos.push_back(coluna.heading);
    ASSERT_EQ(titulos, csv.front());
    EXPECT_EQ(titulos.size(), std::set<std::string>(titulos.begin(), titulos.end()).size()) << "headings repeat";
    const Linhas guardadas(csv.begin() + 1, csv.end());
    ASSERT_EQ(tabela.lines().size(), guardadas.size());

    exportador.write(tabela, pasta / "face.json", {});
    const auto json = lerJson(conteudo(pasta / "face.json"));
    ASSERT_EQ(guardadas.size(), json.size());
    exportador.write(tabela, pasta / "face.html", {});
    const auto exibidas = lerPagina(conteudo(pasta / "face.html"));
    ASSERT_EQ(guardadas.size(), exibidas.size());

    for (std::size_t i = 0; i < guardadas.size(); ++i)
        for (std::size_t c = 0; c < colunas.size(); ++c) {
            const auto valor =
                tabela.dataSet().Colunas()[colunas[c].field].Valor(tabela.dataSet().LinhaDe(tabela.lines()[i]));
            auto cru = json[i][colunas[c].field];
            if (const auto* numero = std::get_if<base::TDecimal>(&valor)) {
                ASSERT_EQ(numero->Texto(), cru) << colunas[c].heading;
                std::replace(cru.begin(), cru.end(), '.', ',');
                if (!exibidas[i][c].empty()) {
                    ASSERT_EQ(base::FormatarNumero(*numero, tabela.grid().FormatoDe(*colunas[c].shown)), exibidas[i][c])
                        << colunas[c].heading;
                }
            } else if (cru == "null") {
                cru.clear();
            }
            ASSERT_EQ(cru, guardadas[i][c]) << colunas[c].heading << " of line " << i;
        }
    conferirTexto(tabela, exibidas);
    conferirPlanilha(tabela, guardadas, exibidas);

    // The window: the same lines in the same order, without the columns that group.
    const auto& modelo = *painel.view().model();
    ASSERT_EQ(tabela.lines(), painel.lines());
    std::size_t linha = 0;
    for (const auto entrada : tabela.rows().unfolded()) {
        if ((entrada & suite::table::Rows::GroupBit) == 0)
            for (int c = 0; c < modelo.columnCount(); ++c) {
                const auto& campo = painel.columnAt(c);
                const auto coluna = std::find_if(colunas.begin(), colunas.end(),
                                                 [&](const auto& k) { return k.shown->Campo == campo; });
                ASSERT_EQ(exibidas[entrada][static_cast<std::size_t>(coluna - colunas.begin())],
                          modelo.index(static_cast<int>(linha), c).data().toString().toStdString())
                    << campo;
                ASSERT_EQ(coluna->heading,
                          modelo.headerData(c, Qt::Horizontal, Qt::AccessibleTextRole).toString().toStdString());
            }
        ++linha;
    }
    ASSERT_EQ(linha, static_cast<std::size_t>(modelo.rowCount()));
}

} // namespace

TEST_F(Faces, DizemOMesmoDeConsultasAoAcaso) {
    constexpr int PorModo = 4;
    for (int modo = 1; modo <= 3; ++modo)
        for (int feitas = 0, tentadas = 0; feitas < PorModo; ++tentadas) {
            ASSERT_LT(tentadas, 10 * PorModo) << mensagens.str();
            const auto* grade = consultar(sortearOpcoes(modo));
            if (!grade)
                continue;
            ++feitas;
            SCOPED_TRACE("mode " + std::to_string(modo) + ", consultation " + std::to_string(tentadas));
            GridPane painel(const_cast<host::TGrade&>(*grade));
            painel.expandAll(true);
            conferir(Table(*grade), painel);
            if (HasFatalFailure())
                return;
            // The same with an order and a filter of the user's.
            suite::table::Wish pedido;
            const Table inicial(*grade);
            const auto& colunas = inicial.columns();
            const int ordem = sortear(static_cast<int>(colunas.size()));
            pedido.sorts = {{colunas[static_cast<std::size_t>(ordem)].shown->Campo, true}};
            pedido.filters = {{"NOMECONTA", "a"}};
            painel.sortBy(ordem, true, false);
            painel.findChild<QLineEdit*>("FiltroNOMECONTA")->setText("a");
            painel.expandAll(true);
            conferir(Table(*grade, pedido), painel);
            if (HasFatalFailure())
                return;
        }
}
