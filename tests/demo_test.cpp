// The demo database on its own: what it promises to whoever checks a figure by hand.

#include "base/Falhas.h"
#include "demo/Demo.h"
#include "suite/firebird/Attachment.h"
#include "suite/firebird/Cursor.h"
#include "suite/firebird/Statement.h"
#include "suite/firebird/Target.h"
#include "suite/firebird/Transaction.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <string>

namespace {

namespace fs = std::filesystem;
namespace fb = suite::firebird;

class Demo : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        std::string name = (fs::temp_directory_path() / "orcreal-demo-XXXXXX").string();
        ASSERT_NE(::mkdtemp(name.data()), nullptr);
        folder = name;
        demo::Criar({folder / "primeira.fdb", 1, {}});
        demo::Criar({folder / "segunda.fdb", 1, {}});
    }
    static void TearDownTestSuite() {
        std::error_code ignored;
        fs::remove_all(folder, ignored);
    }

    static std::string value(const std::string& sql, const std::string& file = "primeira.fdb") {
        fb::Attachment attachment(fb::Target((folder / file).string()), {});
        fb::Transaction transaction(attachment, fb::TransactionMode::ReadOnly);
        return base::TextoDe(fb::queryValue(transaction, sql, "demo_test"));
    }
    static std::int64_t number(const std::string& sql) { return std::stoll(value(sql)); }

    static std::ptrdiff_t FilesNamed(const std::string& beginning) {
        return std::count_if(fs::directory_iterator(folder), fs::directory_iterator(),
                             [&](const auto& item) { return item.path().filename().string().starts_with(beginning); });
    }

    // One sum over every column of every row of a table.
    static std::string checksum(const std::string& table, const std::string& file) {
        const auto row = value("SELECT LIST('COALESCE(CAST(' || TRIM(RDB$FIELD_NAME) || ' AS VARCHAR(1000)), ''~'')', "
                               "' || ''|'' || ') FROM RDB$RELATION_FIELDS WHERE RDB$RELATION_NAME = '" +
                                   table + "'",
                               file);
        return value("SELECT COUNT(*) || ' ' || SUM(MOD(HASH(" + row + "), 1000000007)) FROM " + table, file);
    }

    static inline fs::path folder;
};

TEST_F(Demo, IsTheSameAtEveryMaking) {
    for (const std::string table :
         {"SC00_EMPRESA", "SC00_FILIAL", "US09_USUARIO", "US09_ATRIBUICAO", "US09_USUARIOATRIB", "CO01_PLANO",
          "CO01_PLANOSUB", "CO01_PLANOCFG", "CO01_CENTROCUSTO", "CO01_DEMAC", "CO01_DEMACTOT", "CO01_DEMACTOTREL",
          "CO01_DEMACTOTVERT", "CO01_DEMACTOTUSUATRIB", "CO01_CTBORCADAINF", "CO01_CTBORCADAVLR", "CO01_DIARIO",
          "CO01_DIARIOCUSTO"}) {
        const auto first = checksum(table, "primeira.fdb");
        EXPECT_FALSE(first.starts_with("0 ")) << table << " is empty";
        EXPECT_EQ(first, checksum(table, "segunda.fdb")) << table;
    }
}

// Value rows less journal, by the key of a base row, for every header of the holding company: months, quarters and
// years, each with the books it confronts. A key that only one side knows would not cancel out either.
const std::string ActualsAgainstJournal = R"(
    SELECT V.IDCTBORCADAINF, V.IDFILIAL, V.IDPLANO, V.IDPLANOSUB, V.IDCENTROCUSTO, V.VLRREALIZADO AS DIFERENCA
    FROM CO01_CTBORCADAVLR V
    INNER JOIN CO01_CTBORCADAINF H ON (H.IDCTBORCADAINF = V.IDCTBORCADAINF AND H.IDEMPRESA = 10)
    INNER JOIN CO01_PLANO P ON (P.IDPLANO = V.IDPLANO AND P.CTATITULO = 2)
    UNION ALL
    SELECT H.IDCTBORCADAINF, D.IDFILIAL, D.IDPLANO, D.IDPLANOSUB, C.IDCENTROCUSTO, -C.VALOR * D.TPLANCTO
    FROM CO01_DIARIO D
    INNER JOIN SC00_FILIAL F ON (F.IDFILIAL = D.IDFILIAL AND F.IDEMPRESA = 10)
    INNER JOIN CO01_PLANO P ON (P.IDPLANO = D.IDPLANO)
    INNER JOIN CO01_DIARIOCUSTO C ON (C.IDDIARIO = D.IDDIARIO)
    INNER JOIN CO01_CTBORCADAINF H ON (H.IDEMPRESA = F.IDEMPRESA AND D.DATA BETWEEN H.DATAINICIO AND H.DATAFIM)
    WHERE D.ORIGEM <> 5
    AND (COALESCE(D.TPCTB, 0) = 0 OR (D.TPCTB = 1 AND H.TPCTB = 3))
    AND (P.TPCONTA = 3
        OR EXISTS (SELECT 1 FROM CO01_PLANOCFG G
                   WHERE G.IDPLANO IN (P.IDPLANO, P.IDPLANOPAI) AND G.ORIGEM = 21 AND G.ESPECIE = 50)))";

TEST_F(Demo, ActualsOfTheHoldingAreTheJournal) {
    const auto grouped = "SELECT COUNT(*) FROM (SELECT 1 AS UM FROM (" + ActualsAgainstJournal +
                         ") GROUP BY "
                         "IDCTBORCADAINF, IDFILIAL, IDPLANO, IDPLANOSUB, IDCENTROCUSTO";
    EXPECT_GT(number(grouped + ")"), 40'000);
    EXPECT_EQ(number(grouped + " HAVING SUM(DIFERENCA) <> 0)"), 0);
    EXPECT_GT(number("SELECT COUNT(*) FROM CO01_DIARIO WHERE TPCTB IN (1, 2) OR ORIGEM = 5"), 0);
}

// Analytic rows carried up both links of the chart, less the synthetic rows that are stored.
TEST_F(Demo, SyntheticRowsAreTheSumOfTheirAccounts) {
    const std::string grouped = R"(
        WITH RECURSIVE SUBIDA AS (
            SELECT V.IDCTBORCADAINF, V.IDFILIAL, P.IDPLANO, P.IDPLANOPAI, P.CTASUPERIOR, P.CTATITULO,
                V.VLRBASE, V.VLRORCADO, V.VLRREALIZADO
            FROM CO01_CTBORCADAVLR V
            INNER JOIN CO01_PLANO P ON (P.IDPLANO = V.IDPLANO AND P.CTATITULO = 2)
            UNION ALL
            SELECT S.IDCTBORCADAINF, S.IDFILIAL, P.IDPLANO, P.IDPLANOPAI, P.CTASUPERIOR, P.CTATITULO,
                S.VLRBASE, S.VLRORCADO, S.VLRREALIZADO
            FROM SUBIDA S
            INNER JOIN CO01_PLANO P ON (P.IDPLANO = S.IDPLANOPAI OR P.IDPLANO = S.CTASUPERIOR))
        SELECT COUNT(*) FROM (
            SELECT 1 AS UM FROM (
                SELECT IDCTBORCADAINF, IDFILIAL, IDPLANO, VLRBASE, VLRORCADO, VLRREALIZADO
                FROM SUBIDA WHERE CTATITULO = 1
                UNION ALL
                SELECT V.IDCTBORCADAINF, V.IDFILIAL, V.IDPLANO, -V.VLRBASE, -V.VLRORCADO, -V.VLRREALIZADO
                FROM CO01_CTBORCADAVLR V
                INNER JOIN CO01_PLANO P ON (P.IDPLANO = V.IDPLANO AND P.CTATITULO = 1))
            GROUP BY IDCTBORCADAINF, IDFILIAL, IDPLANO )";
    EXPECT_GT(number(grouped + ")"), 10'000);
    EXPECT_EQ(number(grouped + " HAVING SUM(VLRBASE) <> 0 OR SUM(VLRORCADO) <> 0 OR SUM(VLRREALIZADO) <> 0)"), 0);
}

TEST_F(Demo, SharesAddUpToTheirEntryAndTheJournalBalances) {
    const std::string entries =
        "SELECT COUNT(*) FROM (SELECT D.IDDIARIO FROM CO01_DIARIO D INNER JOIN CO01_DIARIOCUSTO "
        "C ON (C.IDDIARIO = D.IDDIARIO) GROUP BY D.IDDIARIO, D.VALOR HAVING ";
    EXPECT_GT(number(entries + "COUNT(*) > 1)"), 5'000);
    EXPECT_EQ(number(entries + "SUM(C.VALOR) <> D.VALOR)"), 0);
    EXPECT_GE(number("SELECT COUNT(*) FROM CO01_DIARIO"), 20'000);
    EXPECT_EQ(value("SELECT SUM(VALOR * TPLANCTO) FROM CO01_DIARIO"), "0.00");
    EXPECT_EQ(number("SELECT COUNT(*) FROM CO01_DIARIO D INNER JOIN CO01_PLANO P ON (P.IDPLANO = D.IDPLANO) WHERE "
                     "P.CTATITULO = 1 OR D.VALOR <= 0"),
              0);
}

TEST_F(Demo, TextIsFoundWithoutCaseAndAccents) {
    EXPECT_EQ(value("SELECT DESCRICAO FROM CO01_CENTROCUSTO WHERE DESCRICAO = 'producao'"), "PRODUÇÃO");
    EXPECT_EQ(number("SELECT COUNT(*) FROM CO01_PLANO WHERE NOME LIKE '%CAIXA D''AGUA%'"), 1);
}

TEST_F(Demo, TheNextValueRowTakesAFreeKey) {
    fb::Attachment attachment(fb::Target((folder / "segunda.fdb").string()), {});
    fb::Transaction transaction(attachment, fb::TransactionMode::ReadWrite); // rolled back at the end
    const auto last = std::stoll(
        base::TextoDe(fb::queryValue(transaction, "SELECT MAX(IDCTBORCADAVLR) FROM CO01_CTBORCADAVLR", "last key")));
    fb::execute(transaction, "INSERT INTO CO01_CTBORCADAVLR (IDCTBORCADAINF) VALUES (1)", "a row without key");
    EXPECT_EQ(
        std::to_string(last + 1),
        base::TextoDe(fb::queryValue(transaction, "SELECT MAX(IDCTBORCADAVLR) FROM CO01_CTBORCADAVLR", "new key")));
}

TEST_F(Demo, AnExistingFileIsRefusedAndStaysAsItIs) {
    const auto target = folder / "ocupado.fdb";
    std::ofstream(target) << "de outro";
    EXPECT_THROW(demo::Criar({target, 1, {}}), base::TFalha);
    std::string content;
    std::getline(std::ifstream(target), content);
    EXPECT_EQ(content, "de outro");
    EXPECT_EQ(1, FilesNamed("ocupado"));
    EXPECT_THROW(demo::Criar({folder / "pasta-ausente" / "demo.fdb", 1, {}}), base::TFalha);
}

TEST_F(Demo, AStopAnywhereLeavesNoFile) {
    int steps = 0;
    demo::Criar({folder / "contada.fdb", 1, [&](const std::string&, std::size_t, std::size_t) { ++steps; }});
    ASSERT_GT(steps, 10);
    for (const int last : {1, steps / 2, steps}) {
        int step = 0;
        const auto stop = [&](const std::string&, std::size_t, std::size_t) {
            if (++step == last)
                throw base::Abort();
        };
        EXPECT_THROW(demo::Criar({folder / "parada.fdb", 1, stop}), base::Abort);
        EXPECT_EQ(0, FilesNamed("parada"));
    }
}

// Each run writes a file of its own; who is done first wins, and a file that stood there is nobody's business.
TEST_F(Demo, TwoRunsNeverWriteOneFile) {
    std::ofstream(folder / "disputada.fdb.parcial") << "do usuario";
    bool first = true;
    const auto second = [&](const std::string&, std::size_t, std::size_t) {
        if (std::exchange(first, false)) {
            EXPECT_NO_THROW(demo::Criar({folder / "disputada.fdb", 1, {}}));
        }
    };
    EXPECT_THROW(demo::Criar({folder / "disputada.fdb", 1, second}), base::TFalha);
    EXPECT_EQ(2, FilesNamed("disputada"));
    EXPECT_EQ(10U, fs::file_size(folder / "disputada.fdb.parcial"));
    EXPECT_NO_THROW(fb::Attachment(fb::Target((folder / "disputada.fdb").string()), {}));
}

} // namespace
