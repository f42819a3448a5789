// Mode 3 over a configurable statement, and the text of the block in each of its forms.
#include "banco/PeriodosFixture.h"
#include "suite/firebird/Statement.h"

using apoio::Campos;
using apoio::Lista;
using pct04618::TDetalhePercentual;
using pct04618::TDM04618;

namespace {

using PeriodosDaDemonstracao = apoio::Periodos;

} // namespace

TEST_F(PeriodosDaDemonstracao, FiltrosAlcancamSoLinhasComConta) {
    Mes(1, "01/01/2024 31/01/2024");
    Demonstracao();
    Conta("1, 101", "0, 500, 0"); // a base row: it makes the column, and is no line of a statement
    Totalizador(20, "VLRORCADO", "100");
    Totalizador(22, "VLRORCADO", "40");
    Totalizador(21, "VLRORCADO", "60");
    Totalizador(21, "IDPLANO, IDPLANOSUB, IDCENTROCUSTO, VLRORCADO", "101, 7, 5, 35");
    Totalizador(21, "IDPLANO, VLRORCADO", "102, 25");
    Totalizador(30, "VLRORCADO", "7"); // of another statement
    SoLinhas(false, true, false);
    auto& d = Dm();
    const Campos campos{"CONTA", "CLASSIF", "CLASSIFCONTAB", "NOMECONTA", "CTATITULO", "CCUSTO", "IDDEMACTOT", "VAL1"};
    const Lista todas{"10|2|2|Receita|1|0|20|100.00", "11|2.1|2.1|Produtos [10]|2|0|21|60.00",
                      "2|2.1|3.1|Vendas [Fábrica] [CC:Produção]|2|50|21|35.00", "3|2.1|3.2|Energia|2|0|21|25.00",
                      "12|2.2|2.2|Serviços [10]|2|0|22|40.00"};
    const Lista totais{todas[0], todas[1], todas[4]};
    EXPECT_EQ(totais, Abrir("1", campos));
    d.FIDsContas = "CO01_CTBORCADAVLR.IDPLANO = 101\rOR CO01_CTBORCADAVLR.IDPLANO = 103";
    EXPECT_EQ(totais, Abrir("1", campos)) << "without the accounts no filter brings them";
    d.FImprimirDetContasTotaliz = true;
    EXPECT_EQ((Lista{todas[0], todas[1], todas[2], todas[4]}), Abrir("1", campos));
    d.FIDsContas.clear();
    EXPECT_EQ(todas, Abrir("1", campos)) << "a totalizer stands before its accounts";
    d.FIDsCentroCusto = "CO01_CTBORCADAVLR.IDCENTROCUSTO = 6\rOR CO01_CTBORCADAVLR.IDCENTROCUSTO = 5";
    EXPECT_EQ((Lista{todas[0], todas[1], todas[2], todas[4]}), Abrir("1", campos));
    d.FIDsTotalizadores = "CO01_DEMACTOT.IDDEMACTOT = 22\rOR CO01_DEMACTOT.IDDEMACTOT = 30";
    EXPECT_EQ((Lista{todas[4]}), Abrir("1", campos));

    d.FImprimirOrcamentariaBal = true;
    EXPECT_EQ(Lista{}, Abrir("1", campos)) << "over accounts there is no total row to pass the filter";
    d.FIDsCentroCusto.clear();
    d.FIDsContas = "CO01_CTBORCADAVLR.IDPLANO = 101";
    EXPECT_EQ((Lista{"2||3.1|Vendas [1]|2|0||500.00"}), Abrir("1", campos));
}

TEST_F(PeriodosDaDemonstracao, VerticalMedeCadaTipoPelaBaseDoMesmoEstabelecimento) {
    Mes(1, "01/01/2024 31/01/2024");
    Demonstracao();
    Conta("1, 101", "0, 0, 0");
    const char* const colunas = "IDFILIAL, IDPLANO, VLRBASE, VLRORCADO, VLRREALIZADO";
    Totalizador(20, colunas, "11, NULL, 200, 400, 0");
    Totalizador(20, colunas, "NULL, NULL, 10, 10, 10"); // its establishment equals none, not even its own
    Totalizador(20, colunas, "11, 102, 7, 7, 7");       // of an account: no base to anybody
    Totalizador(21, colunas, "11, NULL, 50, 60, 70");   // without a base
    Totalizador(22, colunas, "11, NULL, 50, NULL, 30");
    Totalizador(22, colunas, "11, 101, 25, 100, 30");
    auto& d = Dm();
    d.FDetalharPercentual = TDetalhePercentual::dpVertical;
    d.FCalcularPercentualDiferenca = true; // plays no part
    d.FImprimirDetContasTotaliz = true;
    const Campos campos{"NOMECONTA", "DESCTIPOLINHA", "VAL1",      "VALVERT1", "PERC1",
                        "PERC2",     "TOTAL",         "TOTALVERT", "PERCTOT"};
    EXPECT_EQ((Lista{"Receita|B|10.00|0.00|||10.00|0.00|", "Receita|O|10.00|0.00|||10.00|0.00|",
                     "Receita|R|10.00|0.00|||10.00|0.00|", "Receita|B|200.00|200.00|100.00||200.00|200.00|100.00",
                     "Receita|O|400.00|400.00|100.00||400.00|400.00|100.00", "Receita|R|0.00|0.00|||0.00|0.00|",
                     "Energia|B|7.00|200.00|3.50||7.00|200.00|3.50", "Energia|O|7.00|400.00|1.75||7.00|400.00|1.75",
                     "Energia|R|7.00|0.00|||7.00|0.00|", "Produtos [10]|B|50.00|0.00|||50.00|0.00|",
                     "Produtos [10]|O|60.00|0.00|||60.00|0.00|", "Produtos [10]|R|70.00|0.00|||70.00|0.00|",
                     "Serviços [10]|B|50.00|200.00|25.00||50.00|200.00|25.00",
                     "Serviços [10]|O|0.00|400.00|0.00||0.00|400.00|0.00", "Serviços [10]|R|30.00|0.00|||30.00|0.00|",
                     "Vendas|B|25.00|200.00|12.50||25.00|200.00|12.50",
                     "Vendas|O|100.00|400.00|25.00||100.00|400.00|25.00", "Vendas|R|30.00|0.00|||30.00|0.00|"}),
              Abrir("1", campos));
}

TEST_F(PeriodosDaDemonstracao, BaseRepetidaNaoMultiplicaValor) {
    Mes(1, "01/01/2024 31/01/2024");
    Demonstracao();
    Conta("1, 101", "0, 0, 0");
    copia.executar("ALTER TABLE CO01_DEMACTOTVERT DROP CONSTRAINT PK_CO01_DEMACTOTVERT;"
                   "INSERT INTO CO01_DEMACTOTVERT (IDDEMACTOT, IDDEMACTOTBASE) VALUES (22, 20);"
                   "INSERT INTO CO01_DEMACTOTVERT (IDDEMACTOT, IDDEMACTOTBASE) VALUES (22, 21);");
    const char* const colunas = "IDCTBORCADAVLR, IDFILIAL, VLRORCADO, VLRREALIZADO";
    Totalizador(20, colunas, "9001, 11, 999, 999");
    Totalizador(20, colunas, "9000, 11, 200, 400");
    Totalizador(20, colunas, "9002, 12, 100, 100");
    Totalizador(22, colunas, "9003, 11, 50, 30");
    Totalizador(22, colunas, "9004, 12, 50, 30");
    SoLinhas(false, true, true);
    auto& d = Dm();
    const Lista plana{"O|50.00||50.00|", "R|30.00|60.00|30.00|60.00", "O|50.00||50.00|", "R|30.00|60.00|30.00|60.00"};
    const auto ultimas = [](const Lista& linhas) { return Lista(linhas.end() - 4, linhas.end()); };
    d.FDetalharPercentual = TDetalhePercentual::dpRealizadoXOrcado;
    EXPECT_EQ(plana, ultimas(Abrir("1", {"DESCTIPOLINHA", "VAL1", "PERC1", "TOTAL", "PERCTOT"})));
    d.FDetalharPercentual = TDetalhePercentual::dpVertical;
    EXPECT_EQ((Lista{"O|50.00|200.00|25.00", "R|30.00|400.00|7.50", "O|50.00|100.00|50.00", "R|30.00|100.00|30.00"}),
              ultimas(Abrir("1", {"DESCTIPOLINHA", "VAL1", "VALVERT1", "PERCTOT"})))
        << "the lowest base, and of its total rows the lowest key";
}

// Amounts beyond the limit, beside one that only passes through it.
TEST_F(PeriodosDaDemonstracao, AlemDoLimiteSoEsvaziaASuaLinha) {
    Mes(1, "01/01/2024 31/01/2024");
    Mes(2, "01/02/2024 29/02/2024");
    Demonstracao();
    Conta("1, 101", "0, 0, 0");
    Conta("2, 101", "0, 0, 0");
    const char* const colunas = "IDFILIAL, VLRBASE, VLRORCADO, VLRREALIZADO";
    Totalizador(20, colunas, "11, 100, 92233720368547758.07, 0.01");
    Valor("IDCTBORCADAINF, IDDEMACTOT, IDFILIAL, VLRORCADO", "2, 20, 11, 0.01");
    Totalizador(21, colunas, "11, 7, 92233720368547758.07, -92233720368547758.08");
    Totalizador(21, colunas, "11, 8, -92233720368547758.07, 0");
    Totalizador(22, colunas, "11, 50, 50, 10000000000000");
    Dm().FDetalharPercentual = TDetalhePercentual::dpVertical;
    const Campos campos{"NOMECONTA", "DESCTIPOLINHA", "VAL1", "VALVERT1", "PERC1", "TOTAL", "TOTALVERT", "PERCTOT"};
    EXPECT_EQ((Lista{"Receita|B|100.00|100.00|100.00|100.00|100.00|100.00",
                     "Receita [valor além do limite]|O|92233720368547758.07|92233720368547758.07||||",
                     "Receita|R|0.01|0.01|100.00|0.01|0.01|100.00", "Produtos [10]|B|15.00|0.00||15.00|0.00|",
                     "Produtos [10]|O|0.00|0.00||0.00|0.00|",
                     "Produtos [10]|R|-92233720368547758.08|0.00||-92233720368547758.08|0.00|",
                     "Serviços [10]|B|50.00|100.00|50.00|50.00|100.00|50.00",
                     "Serviços [10]|O|50.00|92233720368547758.07|0.00|50.00|92233720368547758.07|0.00",
                     "Serviços [10] [valor além do limite]|R|10000000000000.00|0.01||10000000000000.00|0.01|"}),
              Abrir("1, 2", campos));
    Dm().FDetalharPercentual = TDetalhePercentual::dpRealizadoXBase;
    Dm().FCalcularPercentualDiferenca = true;
    SoLinhas(true, false, true);
    EXPECT_EQ((Lista{"Receita|B||", "Receita|R|-99.99|-99.99", "Produtos [10]|B||",
                     "Produtos [10] [valor além do limite]|R||", "Serviços [10]|B||",
                     "Serviços [10]|R|19999999999900.00|19999999999900.00"}),
              Abrir("1, 2", {"NOMECONTA", "DESCTIPOLINHA", "PERC1", "PERCTOT"}));
}

TEST_F(PeriodosDaDemonstracao, NomeCompridoEhCortadoEmVezDeDerrubarAConsulta) {
    Mes(1, "01/01/2024 31/01/2024");
    Demonstracao();
    copia.executar("UPDATE CO01_PLANO SET NOME = LPAD('', 400, 'n') WHERE IDPLANO = 101;"
                   "UPDATE CO01_PLANOSUB SET DESCRICAO = LPAD('', 60, 's') WHERE IDPLANOSUB = 7;"
                   "UPDATE CO01_CENTROCUSTO SET DESCRICAO = LPAD('', 40, 'c') WHERE IDCENTROCUSTO = 5;");
    Conta("1, 101", "0, 0, 0");
    Totalizador(21, "IDPLANO, IDPLANOSUB, IDCENTROCUSTO, VLRORCADO", "101, 7, 5, 35");
    SoLinhas(false, true, false);
    Dm().FImprimirDetContasTotaliz = true;
    const auto linhas = Abrir("1", {"NOMECONTA"});
    ASSERT_EQ(1U, linhas.size());
    EXPECT_EQ(std::string(400, 'n') + " [" + std::string(60, 's') + "] [CC:" + std::string(29, 'c') + "...", linhas[0]);
}

TEST(InstrucaoDosPeriodos, CadaFormaDevolveAsColunasCombinadas) {
    const apoio::Copia copia(apoio::Base::Demo);
    const auto conexao = copia.conectar();
    host::TServicos servicos;
    servicos.Conexao = conexao.get();
    const host::TInstalacaoServicos instalados(servicos);
    TDM04618 d;
    d.FInformacoesCtbOrcadaInf.LListaIDs = " 31, 32 ";
    d.FIDDemac = 501;
    for (unsigned forma = 0; forma < 128; ++forma) {
        const auto ligado = [&](unsigned bit) { return (forma >> bit & 1U) != 0; };
        d.FImprimirOrcamentariaBal = ligado(0);
        const bool vertical = ligado(1) && !ligado(0);
        d.FDetalharPercentual = vertical    ? TDetalhePercentual::dpVertical
                                : ligado(1) ? TDetalhePercentual::dpRealizadoXBase
                                            : TDetalhePercentual::dpRealizadoXOrcado;
        d.FDetalharLinhaVlrBase = ligado(2);
        d.FDetalharLinhaVlrOrcado = ligado(3);
        d.FDetalharLinhaVlrRealizado = ligado(4) || (!ligado(2) && !ligado(3));
        d.FImprimirDetContasTotaliz = ligado(5);
        d.FIDsTotalizadores = ligado(5) ? "CO01_DEMACTOT.IDDEMACTOT = 7001" : "";
        d.FAgruparValFiliais = d.FCalcularPercentualDiferenca = ligado(6);
        d.FIDFilial = ligado(6) ? 1 : 0;
        d.FIDsContas = ligado(6) ? "CO01_CTBORCADAVLR.IDPLANO = 5001\rOR CO01_CTBORCADAVLR.IDPLANO = 5086" : "";
        d.FIDsCentroCusto = ligado(6) ? "CO01_CTBORCADAVLR.IDCENTROCUSTO = 1" : "";
        ASSERT_NO_THROW(d.BuscarDadosOrcamentariaBalancoOuDemonstConfigDemonstPeriodosEmColunas(
            d.CdsMostraCtbOrcMensal, d.SdsMostraCtbOrcMensal, ligado(6)))
            << forma;
        std::string colunas;
        for (const auto& campo : d.CdsMostraCtbOrcMensal.Fields())
            colunas += campo.Nome() + ":" + std::to_string(campo.Descricao().Escala) + " ";
        std::string esperadas =
            "IDCTBORCADAINF:0 TIPOLINHA:0 DESCTIPOLINHA:0 CONTA:0 CLASSIF:0 CLASSIFCONTAB:0 NOMECONTA:0 CTATITULO:0 "
            "SUBCONTA:0 CCUSTO:0 NOMECCUSTO:0 IDPLANO:0 IDPLANOSUB:0 IDDEMACTOT:0 FILIAL:0 ANO:0 ";
        for (int i = 1; i <= 12; ++i) {
            const auto n = std::to_string(i);
            esperadas +=
                "PER" + n + ":0 VAL" + n + ":2 " + (vertical ? "VALVERT" + n + ":2 " : "") + "PERC" + n + ":2 ";
        }
        ASSERT_EQ(esperadas + "TOTAL:2 " + (vertical ? "TOTALVERT:2 " : "") + "PERCTOT:2 ", colunas) << forma;
    }
    // The headers drive, and the value rows are found by the index made for them.
    suite::firebird::Transaction leitura(conexao->attachment(), suite::firebird::TransactionMode::ReadOnly);
    const auto plano = suite::firebird::Statement(leitura, d.CdsMostraCtbOrcMensal.CommandText, "plano").plan();
    EXPECT_NE(std::string::npos, plano.find("IX_ORCVLR_LINHA")) << plano;
    EXPECT_EQ(std::string::npos, plano.find("NATURAL")) << plano;
}
