#include "suite/verify/SchemaChecks.h"

#include <gtest/gtest.h>

using namespace suite::verify;

TEST(Verificar, TipoDaColuna) {
    struct Caso {
        const char* tabela;
        const char* coluna;
        FoundColumn tipo;
        bool serve;
    };
    using enum ColumnType;
    for (const auto& [tabela, coluna, tipo, serve] : std::vector<Caso>{
             {"CO01_PLANO", "IDPLANO", {.type = Whole32}, true}, // only read
             {"CO01_PLANO", "IDPLANO", {.type = Whole64, .decimals = 2}, false},
             {"CO01_PLANO", "IDPLANO", {.type = Float}, false},
             {"CO01_CTBORCADAVLR", "IDPLANO", {.type = Whole64}, true},
             {"CO01_CTBORCADAVLR", "IDPLANO", {.type = Whole32}, false},
             {"CO01_CTBORCADAVLR", "TPPROJECAO", {.type = Whole16}, true},
             {"CO01_CTBORCADAVLR", "INDICEATBASE", {.type = Whole32, .decimals = 6}, true},
             {"CO01_CTBORCADAVLR", "VLRBASE", {.type = Whole64, .decimals = 4}, true},
             {"CO01_CTBORCADAVLR", "VLRBASE", {.type = Whole64, .decimals = 1}, false},
             {"CO01_DIARIO", "VALOR", {.type = Whole32, .decimals = 2}, true},
             {"CO01_DIARIO", "DATA", {.type = Date}, true},
             {"CO01_DIARIO", "DATA", {.type = Timestamp}, true},
             {"CO01_DIARIO", "DATA", {.type = Text, .length = 10}, false},
             {"CO01_DIARIO", "HISTORICO", {.type = Blob}, true},
             {"CO01_PLANO", "NOME", {.type = Text, .length = 20}, true}, // only read
             {"TMP_CO_ORCMATRICIAL", "DESCRICAO", {.type = Text, .length = 400}, true},
             {"TMP_CO_ORCMATRICIAL", "DESCRICAO", {.type = Text, .length = 399}, false},
         }) {
        Schema esquema;
        esquema.tables[tabela].columns[coluna] = tipo;
        Findings achados;
        checkTables(esquema, achados);
        EXPECT_EQ(serve, has(esquema, tabela, coluna)) << tabela << "." << coluna;
    }
}

TEST(Verificar, ColunasDoIndice) {
    const std::vector<std::pair<std::vector<std::string>, bool>> casos{
        {{"IDCTBORCADAINF", "IDDEMACTOT", "IDPLANO"}, true},
        {{"IDCTBORCADAINF", "IDPLANO", "IDDEMACTOT", "IDFILIAL"}, true}, // free order, and more behind
        {{"IDDEMACTOT", "IDCTBORCADAINF", "IDPLANO"}, false},            // the projection comes first
        {{"IDCTBORCADAINF", "IDFILIAL", "IDDEMACTOT", "IDPLANO"}, false},
        {{"IDCTBORCADAINF", "IDDEMACTOT"}, false},
        {{}, false}};
    for (const auto& [colunas, serve] : casos) {
        Schema esquema;
        auto& tabela = esquema.tables["CO01_CTBORCADAVLR"];
        tabela.kind = TableKind::Stored;
        for (const char* coluna : {"IDCTBORCADAINF", "IDDEMACTOT", "IDPLANO"})
            tabela.columns[coluna] = {};
        esquema.indexes.push_back({.name = "X", .table = "CO01_CTBORCADAVLR", .columns = colunas, .expression = ""});
        Findings lentos;
        checkIndexes(esquema, lentos);
        EXPECT_EQ(serve ? 0 : 1, lentos.size()) << testing::PrintToString(colunas);
    }
}
