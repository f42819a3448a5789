// Mode 3 on a real engine: which columns arise, and what stands in them.
#include "banco/PeriodosFixture.h"
#include "base/Falhas.h"

using apoio::Campos;
using apoio::Lista;
using apoio::Periodos;
using pct04618::TDetalhePercentual;

TEST_F(Periodos, DozeCabemEOSeguinteNaoApareceMasDaORotuloDoAno) {
    const char* const dias[] = {"01/01/2024 31/01/2024", "01/02/2024 29/02/2024", "01/03/2024 31/03/2024",
                                "01/04/2024 30/04/2024", "01/05/2024 31/05/2024", "01/06/2024 30/06/2024",
                                "01/07/2024 31/07/2024", "01/08/2024 31/08/2024", "01/09/2024 30/09/2024",
                                "01/10/2024 31/10/2024", "01/11/2024 30/11/2024", "01/12/2024 31/12/2024",
                                "01/01/2025 31/01/2025"};
    for (int i = 0; i < 13; ++i) {
        Mes(13 - i, dias[i]); // keys run against time
        Conta(std::to_string(13 - i) + ", 101", "0, " + std::to_string(1 << i) + ", 0");
    }
    SoLinhas(false, true, false);
    const Campos campos{"ANO",  "PER1",  "VAL1",  "PER2",  "VAL2",  "PER3",  "VAL3",  "PER4", "VAL4",
                        "PER5", "VAL5",  "PER6",  "VAL6",  "PER7",  "VAL7",  "PER8",  "VAL8", "PER9",
                        "VAL9", "PER10", "VAL10", "PER11", "VAL11", "PER12", "VAL12", "TOTAL"};
    const std::string doze = "Janeiro|1.00|Fevereiro|2.00|Março|4.00|Abril|8.00|Maio|16.00|Junho|32.00|Julho|64.00|"
                             "Agosto|128.00|Setembro|256.00|Outubro|512.00|Novembro|1024.00|Dezembro|2048.00|4095.00";
    EXPECT_EQ((Lista{"2024O|" + doze}), Abrir("2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13", campos));
    EXPECT_EQ((Lista{"2025O|" + doze}), Abrir(" 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13 ", campos));
}

TEST_F(Periodos, ColunaEhDefinidaPorDatasEPelaReferencia) {
    Projecao("1 1 11 0 01/02/2024 29/02/2024");
    Projecao("2 1 12 0 01/02/2024 29/02/2024");
    Mes(3, "01/01/2024 31/01/2024");
    Conta("1, 101", "0, 1, 0");
    Conta("2, 101", "0, 2, 0");
    Conta("3, 102", "0, 4, 0");
    SoLinhas(false, true, false);
    const Campos campos{"NOMECONTA", "PER1", "VAL1", "PER2", "VAL2", "PER3", "VAL3", "TOTAL"};
    EXPECT_EQ((Lista{"Vendas [1]|Janeiro|0.00|Fevereiro|3.00||0.00|3.00",
                     "Energia [1]|Janeiro|4.00|Fevereiro|0.00||0.00|4.00"}),
              Abrir("1, 2, 3", campos))
        << "one column for two establishments";
    copia.executar("UPDATE CO01_CTBORCADAINF SET DATAFBALANCOREF = '2021-12-31' WHERE IDCTBORCADAINF = 2;");
    EXPECT_EQ((Lista{"Vendas [1]|Janeiro|0.00|Fevereiro|3.00|Fevereiro|3.00|6.00",
                     "Energia [1]|Janeiro|4.00|Fevereiro|0.00|Fevereiro|0.00|4.00"}),
              Abrir("1, 2, 3", campos))
        << "another reference balance, another column with the same sum";
}

TEST_F(Periodos, ProjecaoLongaSeChamaPeloAnoENaoTemAnoNaLinha) {
    Projecao("1 1 - 0 01/01/2023 31/12/2023");
    Projecao("2 1 - 0 01/01/2024 31/01/2024");
    Projecao("3 1 - 0 01/01/2024 31/12/2024");
    Projecao("4 1 - 1 01/01/2025 31/12/2025"); // another scenario
    for (const char* chaves : {"1, 101", "2, 101", "3, 101", "4, 101"})
        Conta(chaves, "1, 1, 1");
    const Campos campos{"DESCTIPOLINHA", "ANO", "PER1", "PER2", "PER3", "PER4"};
    EXPECT_EQ((Lista{"B|    B|2023|Janeiro|2024|", "O|    O|2023|Janeiro|2024|", "R|    R|2023|Janeiro|2024|"}),
              Abrir("1, 2, 3, 4", campos));
    EXPECT_EQ((Lista{"B|2020B|2023|Janeiro||", "O|2024O|2023|Janeiro||", "R|2024R|2023|Janeiro||"}),
              Abrir("1, 2", campos));
    copia.executar("UPDATE CO01_CTBORCADAINF SET DATAIBALANCOREF = NULL, DATAFBALANCOREF = NULL;");
    EXPECT_EQ("B||2023|Janeiro||", Abrir("1, 2", campos)[0]);
}

TEST_F(Periodos, SemMovimentoTemColunaSoQuandoPedida) {
    Mes(1, "01/01/2024 31/01/2024");
    Mes(2, "01/02/2024 29/02/2024");
    Valor("IDCTBORCADAINF, IDPLANO, IDFILIAL, VLRORCADO", "2, 101, 11, 5");
    SoLinhas(false, true, false);
    const Campos campos{"PER1", "VAL1", "PER2", "VAL2", "TOTAL"};
    EXPECT_EQ(Lista{"Fevereiro|5.00||0.00|5.00"}, Abrir("1, 2", campos));
    EXPECT_EQ(Lista{"Janeiro|0.00|Fevereiro|5.00|5.00"}, Abrir("1, 2", campos, true));
    Dm().FIDFilial = 11;
    EXPECT_EQ(Lista{"Fevereiro|5.00||0.00|5.00"}, Abrir("1, 2", campos, true)) << "no row, no establishment";
    EXPECT_EQ(Lista{}, Abrir("1", campos, true));
    Dm().FIDFilial = 0;
    EXPECT_EQ(Lista{}, Abrir("1", campos, true)) << "a column, but no line";
    Dm().FCenario = 2;
    EXPECT_EQ(Lista{}, Abrir("1, 2", campos, true)) << "no header, no scenario";
    EXPECT_TRUE(Dm().CdsMostraCtbOrcMensal.Active());
}

TEST_F(Periodos, PercentualDeCadaLinhaETotal) {
    Mes(1, "01/01/2024 31/01/2024");
    Mes(2, "01/02/2024 29/02/2024");
    const char* const colunas = "IDCTBORCADAINF, IDPLANO, IDFILIAL, VLRBASE, VLRORCADO, PERCORCADO, VLRREALIZADO";
    Valor(colunas, "1, 101, 11, 50, 100, 1.25, 50");
    Valor(colunas, "1, 101, 12, 30, 100, 2, 150");
    Valor(colunas, "2, 101, 11, NULL, 0, NULL, 9");
    Valor(colunas, "1, 102, 11, 3, NULL, NULL, NULL");
    auto& d = Dm();
    d.FAgruparValFiliais = true;
    const Campos campos{"DESCTIPOLINHA", "VAL1", "PERC1", "VAL2", "PERC2", "PERC3", "TOTAL", "PERCTOT"};
    EXPECT_EQ(
        (Lista{"B|80.00||0.00|||80.00|", "O|200.00|3.25|0.00|||200.00|", "R|200.00|200.00|9.00|0.00|0.00|209.00|104.50",
               "B|3.00||0.00|||3.00|", "O|0.00||0.00|||0.00|", "R|0.00|0.00|0.00|0.00|0.00|0.00|0.00"}),
        Abrir("1, 2", campos))
        << "percentages of rows add up; that of the total does not come from them";
    d.FCalcularPercentualDiferenca = true;
    EXPECT_EQ("R|200.00|0.00|9.00|0.00|0.00|209.00|4.50", Abrir("1, 2", campos)[2]) << "100 off each row";
    EXPECT_EQ("R|0.00|0.00|0.00|0.00|0.00|0.00|0.00", Abrir("1, 2", campos)[5]) << "without a divisor nothing is off";
    d.FDetalharPercentual = TDetalhePercentual::dpRealizadoXBase;
    EXPECT_EQ("R|200.00|400.00|9.00|0.00|0.00|209.00|161.25", Abrir("1, 2", campos)[2]);
    EXPECT_EQ("R|0.00|-100.00|0.00|0.00|0.00|0.00|-100.00", Abrir("1, 2", campos)[5]);
    d.FCalcularPercentualDiferenca = false;
    EXPECT_EQ("R|200.00|600.00|9.00|0.00|0.00|209.00|261.25", Abrir("1, 2", campos)[2]);
}

TEST_F(Periodos, TipoDeLinhaDesligadoNaoEmprestaTotais) {
    Mes(1, "01/01/2024 31/01/2024");
    Conta("1, 101", "50, 100, 25");
    Conta("1, 102", "20, 40, 10");
    auto& d = Dm();
    const Campos campos{"ANO", "PERC1", "PERCTOT"};
    EXPECT_EQ((Lista{"2020B||", "2024O||", "2024R|25.00|25.00", "2020B||", "2024O||", "2024R|25.00|25.00"}),
              Abrir("1", campos));
    SoLinhas(false, true, true);
    EXPECT_EQ((Lista{"2024O||", "2024R|25.00|25.00", "2024O||", "2024R|25.00|25.00"}), Abrir("1", campos));
    SoLinhas(true, false, true);
    EXPECT_EQ((Lista{"2020B||", "2024R|25.00|0.00", "2020B||", "2024R|25.00|0.00"}), Abrir("1", campos));
    SoLinhas(true, false, false);
    EXPECT_EQ((Lista{"2020B||", "2020B||"}), Abrir("1", campos));
    SoLinhas(false, false, true);
    EXPECT_EQ((Lista{"2024R|25.00|0.00", "2024R|25.00|0.00"}), Abrir("1", campos));
    d.FDetalharPercentual = TDetalhePercentual::dpRealizadoXBase;
    SoLinhas(false, true, true);
    EXPECT_EQ((Lista{"2024O||", "2024R|50.00|0.00", "2024O||", "2024R|50.00|0.00"}), Abrir("1", campos));
    SoLinhas(true, false, true);
    EXPECT_EQ((Lista{"2020B||", "2024R|50.00|50.00", "2020B||", "2024R|50.00|50.00"}), Abrir("1", campos));
}

TEST_F(Periodos, NomeDizDeQueContaADescende) {
    copia.executar("INSERT INTO CO01_PLANO (IDPLANO, IDEMPRESA, CTASUPERIOR, CONTA, CLASSIFCONTAB, NOME, CTATITULO, "
                   "TPCONTA) VALUES (104, 1, 100, 5, '4', 'Apurado', 2, 3);"
                   "UPDATE CO01_PLANO SET CTASUPERIOR = 102 WHERE IDPLANO = 101;");
    Mes(1, "01/01/2024 31/01/2024");
    const char* const colunas = "IDCTBORCADAINF, IDPLANO, IDPLANOSUB, IDCENTROCUSTO, IDFILIAL, VLRORCADO";
    for (const char* valores : {"1, 100, NULL, NULL, NULL, 1", "1, 100, 7, NULL, 11, 1", "1, 101, NULL, 5, 12, 1",
                                "1, 101, 8, NULL, NULL, 1", "1, 104, NULL, NULL, NULL, 1", "1, 104, 7, NULL, NULL, 1"})
        Valor(colunas, valores);
    SoLinhas(false, true, false);
    const Campos campos{"CONTA",      "CLASSIF", "CLASSIFCONTAB", "NOMECONTA",  "CTATITULO", "SUBCONTA",      "CCUSTO",
                        "NOMECCUSTO", "IDPLANO", "IDPLANOSUB",    "IDDEMACTOT", "FILIAL",    "IDCTBORCADAINF"};
    EXPECT_EQ((Lista{"1||3|Resultado|1|0|0||100|||0|0", "1||3|Resultado [Fábrica]|1|1|0||100|7||1|0",
                     "2||3.1|Vendas [1]|2|0|50|Produção|101|||2|0", "2||3.1|Vendas [Loja] [1]|2|2|0||101|8||0|0",
                     "5||4|Apurado [Fábrica] [1]|2|1|0||104|7||0|0", "5||4|Apurado [[1]]|2|0|0||104|||0|0"}),
              Abrir("1", campos));
}

TEST_F(Periodos, EstabelecimentosSeparadosSomadosEEscolhidos) {
    Mes(1, "01/01/2024 31/01/2024");
    for (const char* valores : {"1, 101, 11, 1", "1, 101, 12, 2", "1, 101, NULL, 4"})
        Valor("IDCTBORCADAINF, IDPLANO, IDFILIAL, VLRORCADO", valores);
    SoLinhas(false, true, false);
    auto& d = Dm();
    const Campos campos{"FILIAL", "VAL1"};
    const Lista separados{"0|4.00", "1|1.00", "2|2.00"};
    EXPECT_EQ(separados, Abrir("1", campos));
    d.FEhConsolidadoHolding = true;
    EXPECT_EQ(Lista{"0|7.00"}, Abrir("1", campos));
    d.FEhConsolidadoHolding = false;
    d.FAgruparValFiliais = true;
    EXPECT_EQ(Lista{"0|7.00"}, Abrir("1", campos));
    d.FAgruparValFiliais = false;
    d.FIDFilial = 12;
    EXPECT_EQ(Lista{separados[2]}, Abrir("1", campos));
    d.FListaIDsFilial = pct04618::TStringList{"11", "12"};
    EXPECT_EQ((Lista{separados[1], separados[2]}), Abrir("1", campos));
    d.FListaIDsFilial->clear();
    EXPECT_EQ(Lista{separados[2]}, Abrir("1", campos));
}

TEST_F(Periodos, ConjuntoFicaComOTextoEOsFormatos) {
    Mes(1, "01/01/2024 31/01/2024");
    Conta("1, 101", "1, 2, 3");
    auto& d = Dm();
    d.SdsMostraCtbOrcMensal.ParamCheck = true;
    for (int vez = 0; vez < 2; ++vez) {
        EXPECT_EQ(3U, Abrir("1", {"TOTAL"}).size());
        EXPECT_FALSE(d.SdsMostraCtbOrcMensal.ParamCheck);
        for (const char* campo : {"VAL1", "PERC1", "VAL12", "PERC12", "TOTAL", "PERCTOT"})
            EXPECT_EQ(",0.00", d.CdsMostraCtbOrcMensal.FieldByName(campo).FormatoExibicao) << campo;
    }
    EXPECT_NE(std::string::npos, d.CdsMostraCtbOrcMensal.CommandText.find("EXECUTE BLOCK"));
    EXPECT_THROW(Abrir("x", {"TOTAL"}), base::TFalhaBanco);
    EXPECT_FALSE(d.CdsMostraCtbOrcMensal.Active()) << "the earlier result is gone before the text is made";
}
