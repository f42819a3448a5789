// The actuals from the journal on a real engine: the rows that a run writes.
#include "banco/RealizadoFixture.h"

using apoio::Atualizar;
using apoio::Lista;
using apoio::Realizado;
using pct04618::TDestino;

namespace {

// January after a run, "establishment account/sub-account/cost centre/totalizer=actual".
const Lista Janeiro{"11 0/0/0/51=0.00",    // what totalization owns waits for it
                    "11 100/0/0/0=83.34",  // a title, its row stored before
                    "11 101/0/0/0=70.00",  // debit and credit
                    "11 101/0/0/51=0.00",  //
                    "11 102/7/0/0=12.34",  // a sub-account each,
                    "11 102/8/0/0=1.00",   // the second without a row before
                    "11 103/0/0/0=0.00",   // cancelled out, where only a detail row stood
                    "11 103/0/0/51=0.00",  //
                    "11 200/0/0/0=70.00",  // the superior account of 101 alone
                    "11 90/0/0/0=83.34",   // above the title
                    "12 100/0/0/0=-30.00", //
                    "12 101/0/0/0=-30.00", // credits alone
                    "12 103/0/0/0=0.00",   // nothing in the journal
                    "12 104/0/0/0=2.00",   // configured, and below no title
                    "12 200/0/0/0=-30.00", //
                    "12 90/0/0/0=-30.00"};

} // namespace

TEST_F(Realizado, SomaODiarioNasContasENosTitulosAcimaDelas) {
    ASSERT_TRUE(Completa(Atualizar(*conexao)));
    EXPECT_EQ(Janeiro, Realizados(1));
    EXPECT_EQ(depois, Todas());
    EXPECT_EQ(antes[3], depois[3]) << "another scenario";
    // What is not the actual value is as it was, and a new row has no more than its key.
    copia.executar("UPDATE CO01_CTBORCADAVLR SET VLRREALIZADO = NULL;");
    const auto semRealizado = Todas();
    Restaurar();
    copia.executar("UPDATE CO01_CTBORCADAVLR SET VLRREALIZADO = NULL;");
    Lista novas;
    const auto velhas = Todas();
    for (const int projecao : {1, 2})
        std::set_difference(semRealizado.at(projecao).begin(), semRealizado.at(projecao).end(),
                            velhas.at(projecao).begin(), velhas.at(projecao).end(), std::back_inserter(novas));
    EXPECT_EQ(
        (Lista{"1|1|11|102|8|||||||||||", "1|1|11|103||||||||||||", "1|1|11|200||||||||||||", "1|1|11|90||||||||||||",
               "1|1|12|100||||||||||||", "1|1|12|104||||||||||||", "1|1|12|200||||||||||||", "1|1|12|90||||||||||||",
               "2|1|11|102||||||||||||", "2|1|11|200||||||||||||", "2|1|11|90||||||||||||", "2|1|12|100||||||||||||", "2|1|12|200||||||||||||",
               "2|1|12|90||||||||||||"}),
        novas);
    EXPECT_EQ(velhas.at(1).size() + 8, semRealizado.at(1).size()) << "no row is gone";
}

TEST_F(Realizado, RepetidoDaAsMesmasLinhasTambemSobreCadastroRepetido) {
    for (int vez = 1; vez <= 2; ++vez) {
        EXPECT_TRUE(Completa(Atualizar(*conexao)));
        EXPECT_EQ(depois, Todas()) << vez;
    }
    // Two base rows of one key: the amount goes to one of them.
    copia.executar("INSERT INTO CO01_CTBORCADAVLR (IDCTBORCADAINF, IDEMPRESA, IDFILIAL, IDPLANO, TIPOGERACAO) "
                   "VALUES (1, 1, 11, 101, 2);");
    EXPECT_TRUE(Completa(Atualizar(*conexao)));
    EXPECT_EQ((Lista{"11 101/0/0/0=0.00", "11 101/0/0/0=70.00"}),
              Realizados(1, "IDPLANO = 101 AND IDFILIAL = 11 AND IDDEMACTOT IS NULL"));
    EXPECT_EQ(Lista{"11 100/0/0/0=83.34"}, Realizados(1, "IDPLANO = 100 AND IDFILIAL = 11"));
    // The journal's 0 of a key is no key, in the first run and in the second.
    copia.executar("UPDATE CO01_DIARIO SET IDPLANOSUB = 0 WHERE IDDIARIO IN (1, 5);");
    for (int vez = 1; vez <= 2; ++vez) {
        EXPECT_TRUE(Completa(Atualizar(*conexao)));
        EXPECT_EQ((Lista{"11 102/0/0/0=1.00", "11 102/7/0/0=12.34", "11 102/8/0/0=0.00"}),
                  Realizados(1, "IDPLANO = 102"));
        EXPECT_EQ((Lista{"11 101/0/0/0=0.00", "11 101/0/0/0=70.00"}),
                  Realizados(1, "IDPLANO = 101 AND IDFILIAL = 11 AND IDDEMACTOT IS NULL"));
    }
}

TEST_F(Realizado, CadaProjecaoPorSeusLivrosCentrosEEstabelecimentos) {
    copia.executar("UPDATE CO01_CTBORCADAINF SET TPCTB = 5, TPDETALHE = 1 WHERE IDCTBORCADAINF = 1;"
                   "UPDATE CO01_CTBORCADAVLR SET IDFILIAL = NULL WHERE IDCTBORCADAINF = 1;"
                   "UPDATE CO01_CTBORCADAINF SET TPCTB = 2, TPCCUSTO = 1 WHERE IDCTBORCADAINF = 2;"
                   "UPDATE CO01_DIARIO SET TPCTB = 1, VALOR = 10 WHERE IDDIARIO IN (14, 15);"
                   "UPDATE CO01_DIARIO SET DATA = DATE '2024-02-28' WHERE IDDIARIO = 15;"
                   "INSERT INTO CO01_DIARIOCUSTO (IDDIARIO, IDCENTROCUSTO, VALOR) VALUES (14, 5, 2.50);"
                   "INSERT INTO CO01_DIARIOCUSTO (IDDIARIO, IDCENTROCUSTO, VALOR) VALUES (14, 6, 3.50);"
                   "INSERT INTO CO01_DIARIOCUSTO (IDDIARIO, IDCENTROCUSTO, VALOR) VALUES (14, NULL, 4.00);");
    pct04618::TResultadoRealizado resultado;
    for (int vez = 1; vez <= 2; ++vez) {
        ASSERT_TRUE(Completa(Atualizar(*conexao, {}, {}, 0, &resultado)));
        // 70 of the normal book, 80 credited in the tax book, the other establishment's 30.
        EXPECT_EQ(Lista{"0 101/0/0/0=-40.00"}, Realizados(1, "IDPLANO = 101 AND VLRREALIZADO <> 0"));
        EXPECT_EQ(Lista{"0 100/0/0/0=-26.66"}, Realizados(1, "IDPLANO = 100 AND VLRREALIZADO <> 0"));
        // A share each; the entry without one does not enter.
        EXPECT_EQ((Lista{"11 100/0/0/0=10.00", "11 102/0/0/0=4.00", "11 102/0/5/0=2.50", "11 102/0/6/0=3.50",
                         "11 90/0/0/0=10.00"}),
                  Realizados(2, "VLRREALIZADO <> 0"));
    }
    ASSERT_EQ(2U, resultado.Projecoes.size());
    const auto& semQuota = resultado.Projecoes[1].Excluidos[static_cast<std::size_t>(TDestino::SemQuota)];
    EXPECT_EQ(1, semQuota.Lancamentos);
    EXPECT_EQ("10.0000", semQuota.Debitos.Decimal().Texto());
}

TEST_F(Realizado, UmEstabelecimentoMudaSomenteAsSuasLinhas) {
    ASSERT_TRUE(Completa(Atualizar(*conexao, {}, {}, 12)));
    Lista esperadas;
    for (const auto& linha : Janeiro)
        if (linha.starts_with("12 "))
            esperadas.push_back(linha);
    EXPECT_EQ(esperadas, Realizados(1, "IDFILIAL = 12"));
    const auto da11 = Realizados(1, "IDFILIAL = 11");
    Restaurar();
    EXPECT_EQ(Realizados(1, "IDFILIAL = 11"), da11);
}

TEST_F(Realizado, SemMovimentoOGuardadoFicaESomenteOsTitulosSaoSomados) {
    copia.executar("DELETE FROM CO01_DIARIO WHERE DATA < DATE '2024-02-01';");
    pct04618::TResultadoRealizado resultado;
    ASSERT_TRUE(Completa(Atualizar(*conexao, {}, {}, 0, &resultado)));
    // The detail rows stand as they did, and add nothing to the titles.
    EXPECT_EQ((Lista{"11 0/0/0/51=154.00", "11 100/0/0/0=77.00", "11 101/0/0/0=77.00", "11 101/0/0/51=77.00",
                     "11 103/0/0/51=77.00", "11 200/0/0/0=77.00", "11 90/0/0/0=77.00", "12 100/0/0/0=5.00",
                     "12 103/0/0/0=5.00", "12 90/0/0/0=5.00"}),
              Realizados(1, "VLRREALIZADO <> 0"));
    EXPECT_FALSE(resultado.Projecoes.at(0).ComMovimento);
    EXPECT_EQ(0, resultado.Projecoes.at(0).Zeradas);
    EXPECT_TRUE(resultado.Projecoes.at(1).ComMovimento);
}

TEST_F(Realizado, OsTitulosRecebemPorCadaCaminho) {
    // 101 reaches 90 over 100 and by its superior account, too; 102 names 100 by both links, which is one way.
    copia.executar("UPDATE CO01_PLANO SET CTASUPERIOR = 90 WHERE IDPLANO = 101;"
                   "UPDATE CO01_PLANO SET CTASUPERIOR = 100 WHERE IDPLANO = 102;"
                   // the only row of the title is one of a sub-account: it becomes the title's
                   "UPDATE CO01_CTBORCADAVLR SET IDPLANOSUB = 7 WHERE IDPLANO = 100;");
    ASSERT_TRUE(Completa(Atualizar(*conexao)));
    EXPECT_EQ((Lista{"11 100/0/0/0=83.34", "11 90/0/0/0=153.34", "12 100/0/0/0=-30.00", "12 90/0/0/0=-60.00"}),
              Realizados(1, "IDPLANO IN (90, 100)"));
}

TEST_F(Realizado, ArredondaUmaVezAQuatroCasasEOEmpateVaiAoPar) {
    copia.executar("ALTER TABLE CO01_DIARIO ALTER VALOR TYPE NUMERIC(18,5);"
                   "ALTER TABLE CO01_DIARIO ALTER DATA TYPE TIMESTAMP;"
                   "ALTER TABLE CO01_CTBORCADAVLR ALTER VLRREALIZADO TYPE NUMERIC(18,5);"
                   "DELETE FROM CO01_DIARIO WHERE IDDIARIO NOT IN (2, 3, 4, 5, 14);"
                   "UPDATE CO01_DIARIO SET TPLANCTO = 1, IDFILIAL = 11;"
                   "UPDATE CO01_DIARIO SET VALOR = 0.03125, IDPLANO = 101 WHERE IDDIARIO = 2;"
                   "UPDATE CO01_DIARIO SET VALOR = 0.09375, IDPLANO = 103 WHERE IDDIARIO = 3;"
                   // half a unit each, 0.0001 together
                   "UPDATE CO01_DIARIO SET VALOR = 0.00005, IDPLANO = 102, IDPLANOSUB = 7 WHERE IDDIARIO IN (4, 5);"
                   "UPDATE CO01_DIARIO SET TPLANCTO = -1, VALOR = 0.00015 WHERE IDDIARIO = 5;"
                   // at the last second of the month, and of February
                   "UPDATE CO01_DIARIO SET DATA = TIMESTAMP '2024-01-31 23:59:59.9999' WHERE IDDIARIO IN (2, 3, 4, 5);"
                   "UPDATE CO01_DIARIO SET DATA = TIMESTAMP '2024-02-29 23:59:59' WHERE IDDIARIO = 14;");
    conexao = copia.conectar();
    ASSERT_TRUE(Completa(Atualizar(*conexao)));
    EXPECT_EQ((Lista{"11 101/0/0/0=0.03120", "11 102/7/0/0=-0.00010", "11 103/0/0/0=0.09380"}),
              Realizados(1, "IDPLANO IN (101, 102, 103) AND VLRREALIZADO <> 0"));
    EXPECT_EQ(Lista{"11 102/0/0/0=200.00000"}, Realizados(2, "IDPLANO = 102 AND VLRREALIZADO <> 0"));
    // Stored with five decimals, a title's sum is rounded as well.
    copia.executar("DELETE FROM CO01_DIARIO WHERE IDDIARIO < 14;"
                   "UPDATE CO01_CTBORCADAVLR SET VLRREALIZADO = 0 WHERE IDCTBORCADAINF = 1;"
                   "UPDATE CO01_CTBORCADAVLR SET VLRREALIZADO = 0.03125 WHERE IDCTBORCADAINF = 1 AND IDPLANO = 101 AND "
                   "IDDEMACTOT IS NULL AND IDFILIAL = 11;");
    ASSERT_TRUE(Completa(Atualizar(*conexao)));
    EXPECT_EQ(Lista{"11 100/0/0/0=0.03120"}, Realizados(1, "IDPLANO = 100 AND VLRREALIZADO <> 0"));
}

TEST_F(Realizado, DizOQueLeuOQueNaoEntrouEOQueFicouDefasado) {
    pct04618::TResultadoRealizado resultado;
    ASSERT_TRUE(Completa(Atualizar(*conexao, {}, {}, 0, &resultado)));
    ASSERT_EQ(2U, resultado.Projecoes.size());
    const auto& janeiro = resultado.Projecoes[0];
    EXPECT_EQ(12, janeiro.Lidos);
    const auto destino = [&](TDestino qual) {
        const auto& movimento = janeiro.Excluidos[static_cast<std::size_t>(qual)];
        return std::to_string(movimento.Lancamentos) + " " + movimento.Debitos.Decimal().Texto() + " " +
               movimento.Creditos.Decimal().Texto();
    };
    EXPECT_EQ(8, janeiro.Confrontados());
    EXPECT_EQ("1 500.0000 0.0000", destino(TDestino::OrigemExcluida));
    EXPECT_EQ("2 40.0000 80.0000", destino(TDestino::OutroLivro));
    EXPECT_EQ("1 900.0000 0.0000", destino(TDestino::ContaDeFora));
    EXPECT_EQ(6, janeiro.Zeradas) << "rows of every kind";
    EXPECT_EQ(4, janeiro.Alteradas) << "two of 101, 102 and the title";
    EXPECT_EQ(8, janeiro.Novas);
    EXPECT_EQ("82.0000", janeiro.Antes.Decimal().Texto());
    EXPECT_EQ("55.3400", janeiro.Depois.Decimal().Texto());
    ASSERT_EQ(1U, resultado.Defasadas.size());
    EXPECT_EQ(50, resultado.Defasadas[0].Codigo);
}

TEST_F(Realizado, SemLivroOuComCicloNadaComeca) {
    copia.executar("UPDATE CO01_CTBORCADAINF SET TPCTB = 8 WHERE IDCTBORCADAINF = 2;");
    auto rodada = Atualizar(*conexao);
    EXPECT_TRUE(rodada.abortou);
    EXPECT_EQ(Lista{"Há projeções que não dizem com que livro do diário são confrontadas; nada foi alterado.\r\r"
                    "01/02/2024 a 29/02/2024 - Normal\r\rIndique o tipo de contabilidade na projeção e tente "
                    "novamente."},
              rodada.mensagens);
    EXPECT_EQ(antes, Todas());
    // A cycle that nothing with a value can reach hinders nobody.
    copia.executar("UPDATE CO01_CTBORCADAINF SET TPCTB = 1;"
                   "UPDATE CO01_PLANO SET IDPLANOPAI = 105 WHERE IDPLANO = 105;");
    EXPECT_TRUE(Completa(Atualizar(*conexao)));
    Restaurar();
    copia.executar("UPDATE CO01_PLANO SET CTASUPERIOR = 100 WHERE IDPLANO = 90;");
    rodada = Atualizar(*conexao);
    EXPECT_TRUE(rodada.abortou);
    ASSERT_EQ(1U, rodada.mensagens.size());
    EXPECT_NE(std::string::npos, rodada.mensagens[0].find("3 → 0 → 3\r")) << rodada.mensagens[0];
    EXPECT_EQ(antes, Todas());
    // The account of a journal entry reaches one as well, though no row of the projections does yet.
    copia.executar("UPDATE CO01_PLANO SET CTASUPERIOR = NULL WHERE IDPLANO = 90;"
                   "UPDATE CO01_PLANO SET IDPLANOPAI = 104 WHERE IDPLANO = 104;");
    EXPECT_TRUE(Atualizar(*conexao).abortou);
    EXPECT_EQ(antes, Todas());
}

TEST_F(Realizado, PlanoDaHoldingEContasConfiguradasNela) {
    // Company 2 books on the chart of company 1, which heads its holding.
    copia.executar(
        "INSERT INTO CO01_CTBORCADAINF (IDCTBORCADAINF, IDEMPRESA, TPCENARIO, DATAINICIO, DATAFIM, TPDETALHE, "
        "TPCTB) VALUES (4, 2, 0, '2024-01-01', '2024-01-31', 1, 1);"
        "INSERT INTO CO01_DIARIO (IDDIARIO, IDFILIAL, IDPLANO, DATA, VALOR, TPLANCTO, ORIGEM) "
        "VALUES (99, 21, 104, DATE '2024-01-05', 3.00, 1, 1);");
    servicos.Conexao = conexao.get();
    servicos.Interacao = &interacao;
    const host::TInstalacaoServicos aqui(servicos);
    pct04618::TDM04618 modulo;
    modulo.FIDEmpresa = 2;
    modulo.FIDEmpresaPlano = modulo.FIDEmpresaHolding = 1;
    pct04618::TResultadoRealizado resultado;
    pct04618::TAtualizadorRealizado(
        modulo, {.DataInicial = apoio::Dia("01/01/2024"), .DataFinal = apoio::Dia("31/01/2024"), .Cenarios = 1},
        resultado)
        .AtualizarValoresRealizadosNoPeriodo();
    EXPECT_EQ(
        (Lista{"0 100/0/0/0=7.00", "0 101/0/0/0=7.00", "0 104/0/0/0=3.00", "0 200/0/0/0=7.00", "0 90/0/0/0=7.00"}),
        Realizados(4));
}
