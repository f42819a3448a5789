#include "suite/verify/NoticeChecks.h"

#include "base/Texto.h"
#include "suite/firebird/Statement.h"

namespace suite::verify {

namespace {

using base::Format;
using base::TextoDe;
using firebird::queryRows;
using firebird::queryValue;

// Records that should stand once.
struct Repeat {
    const char* name;
    const char* meaning;                                                         // what happens with the others
    std::initializer_list<std::pair<std::string_view, std::string_view>> needed; // tables and columns of the query
    const char* query; // the code of each that stands more than once
};

// Group by takes NULL as equal to NULL.
const Repeat Repeats[] = {
    {"Configurações de receita ou despesa repetidas (CO01_PLANOCFG, ORIGEM 20 e ESPECIE 1), por conta",
     "Vale a de menor chave.",
     {{"CO01_PLANOCFG", "IDPLANO ORIGEM ESPECIE"}, {"CO01_PLANO", "IDPLANO CONTA"}},
     R"(
    SELECT CO01_PLANO.CONTA
      FROM CO01_PLANOCFG
     INNER JOIN CO01_PLANO
        ON CO01_PLANO.IDPLANO = CO01_PLANOCFG.IDPLANO
     WHERE CO01_PLANOCFG.ORIGEM = 20
       AND CO01_PLANOCFG.ESPECIE = 1
     GROUP BY CO01_PLANO.CONTA, CO01_PLANOCFG.IDPLANO
    HAVING COUNT(*) > 1
     ORDER BY 1)"},
    {"Linhas de valor repetidas (CO01_CTBORCADAVLR, mesma projeção, estabelecimento, conta, subconta e centro de "
     "custo), "
     "por conta",
     "As consultas somam todas.",
     {{"CO01_CTBORCADAVLR", "IDCTBORCADAINF IDFILIAL IDPLANO IDPLANOSUB IDCENTROCUSTO IDDEMACTOT"},
      {"CO01_PLANO", "IDPLANO CONTA"}},
     R"(
    SELECT DISTINCT CO01_PLANO.CONTA
      FROM (SELECT CO01_CTBORCADAVLR.IDCTBORCADAINF,
                   CO01_CTBORCADAVLR.IDFILIAL,
                   CO01_CTBORCADAVLR.IDPLANO,
                   CO01_CTBORCADAVLR.IDPLANOSUB,
                   CO01_CTBORCADAVLR.IDCENTROCUSTO
              FROM CO01_CTBORCADAVLR
             WHERE CO01_CTBORCADAVLR.IDDEMACTOT IS NULL
             GROUP BY 1, 2, 3, 4, 5
            HAVING COUNT(*) > 1) REPETIDA
     INNER JOIN CO01_PLANO
        ON CO01_PLANO.IDPLANO = REPETIDA.IDPLANO
     ORDER BY 1)"},
    {"Códigos de conta repetidos numa empresa (CO01_PLANO.CONTA)",
     "Quem digita o código recebe uma delas.",
     {{"CO01_PLANO", "IDEMPRESA CONTA"}},
     R"(
    SELECT CO01_PLANO.CONTA
      FROM CO01_PLANO
     WHERE CO01_PLANO.CONTA IS NOT NULL
     GROUP BY CO01_PLANO.CONTA, CO01_PLANO.IDEMPRESA
    HAVING COUNT(*) > 1
     ORDER BY 1)"},
    {"Códigos de totalizador repetidos numa demonstração (CO01_DEMACTOT.CODIGO), como demonstração/totalizador",
     "Quem digita o código recebe um deles.",
     {{"CO01_DEMACTOT", "IDDEMAC CODIGO"}, {"CO01_DEMAC", "IDDEMAC CODIGO"}},
     R"(
    SELECT CO01_DEMAC.CODIGO || '/' || CO01_DEMACTOT.CODIGO
      FROM CO01_DEMACTOT
     INNER JOIN CO01_DEMAC
        ON CO01_DEMAC.IDDEMAC = CO01_DEMACTOT.IDDEMAC
     WHERE CO01_DEMACTOT.CODIGO IS NOT NULL
     GROUP BY CO01_DEMAC.CODIGO, CO01_DEMACTOT.CODIGO, CO01_DEMACTOT.IDDEMAC
    HAVING COUNT(*) > 1
     ORDER BY CO01_DEMAC.CODIGO, CO01_DEMACTOT.CODIGO)"},
    {"Códigos de demonstração repetidos (CO01_DEMAC.CODIGO)",
     "Quem digita o código recebe uma delas.",
     {{"CO01_DEMAC", "CODIGO"}},
     R"(
    SELECT CO01_DEMAC.CODIGO
      FROM CO01_DEMAC
     WHERE CO01_DEMAC.CODIGO IS NOT NULL
     GROUP BY CO01_DEMAC.CODIGO
    HAVING COUNT(*) > 1
     ORDER BY 1)"},
    {"Bases verticais repetidas (CO01_DEMACTOTVERT), como demonstração/totalizador",
     "Vale a base de menor chave.",
     {{"CO01_DEMACTOTVERT", "IDDEMACTOT"},
      {"CO01_DEMACTOT", "IDDEMACTOT IDDEMAC CODIGO"},
      {"CO01_DEMAC", "IDDEMAC CODIGO"}},
     R"(
    SELECT CO01_DEMAC.CODIGO || '/' || CO01_DEMACTOT.CODIGO
      FROM CO01_DEMACTOTVERT
     INNER JOIN CO01_DEMACTOT
        ON CO01_DEMACTOT.IDDEMACTOT = CO01_DEMACTOTVERT.IDDEMACTOT
     INNER JOIN CO01_DEMAC
        ON CO01_DEMAC.IDDEMAC = CO01_DEMACTOT.IDDEMAC
     GROUP BY CO01_DEMAC.CODIGO, CO01_DEMACTOT.CODIGO, CO01_DEMACTOT.IDDEMACTOT
    HAVING COUNT(*) > 1
     ORDER BY CO01_DEMAC.CODIGO, CO01_DEMACTOT.CODIGO)"},
    {"Códigos de empresa repetidos (SC00_EMPRESA.EMPRESA)",
     "Quem digita o código recebe uma delas.",
     {{"SC00_EMPRESA", "EMPRESA"}},
     R"(
    SELECT SC00_EMPRESA.EMPRESA
      FROM SC00_EMPRESA
     WHERE SC00_EMPRESA.EMPRESA IS NOT NULL
     GROUP BY SC00_EMPRESA.EMPRESA
    HAVING COUNT(*) > 1
     ORDER BY 1)"},
    {"Números de estabelecimento repetidos numa empresa (SC00_FILIAL.FILIAL), como empresa/estabelecimento",
     "As consultas os juntam numa linha.",
     {{"SC00_FILIAL", "IDEMPRESA FILIAL"}, {"SC00_EMPRESA", "IDEMPRESA EMPRESA"}},
     R"(
    SELECT SC00_EMPRESA.EMPRESA || '/' || SC00_FILIAL.FILIAL
      FROM SC00_FILIAL
     INNER JOIN SC00_EMPRESA
        ON SC00_EMPRESA.IDEMPRESA = SC00_FILIAL.IDEMPRESA
     WHERE SC00_FILIAL.FILIAL IS NOT NULL
     GROUP BY SC00_EMPRESA.EMPRESA, SC00_FILIAL.FILIAL, SC00_FILIAL.IDEMPRESA
    HAVING COUNT(*) > 1
     ORDER BY SC00_EMPRESA.EMPRESA, SC00_FILIAL.FILIAL)"},
    {"Códigos de centro de custo repetidos numa empresa (CO01_CENTROCUSTO.CODIGO)",
     "Quem digita o código recebe um deles.",
     {{"CO01_CENTROCUSTO", "IDEMPRESA CODIGO"}},
     R"(
    SELECT CO01_CENTROCUSTO.CODIGO
      FROM CO01_CENTROCUSTO
     WHERE CO01_CENTROCUSTO.CODIGO IS NOT NULL
     GROUP BY CO01_CENTROCUSTO.CODIGO, CO01_CENTROCUSTO.IDEMPRESA
    HAVING COUNT(*) > 1
     ORDER BY 1)"},
};

// What a consultation holds of a column: characters of a text, or the largest number.
struct Limit {
    const char* table;
    const char* column;
    const char* holds;
    const char* place; // where
};

constexpr const char* Periods = "nos períodos em colunas";
constexpr const char* Accounts = "nas consultas agrupada e de período exato";

constexpr Limit Texts[] = {
    {"CO01_PLANO", "NOME", "500", Periods},           {"CO01_PLANO", "CLASSIFCONTAB", "50", Periods},
    {"CO01_DEMACTOT", "DESCRICAO", "500", Periods},   {"CO01_DEMACTOT", "CLASSIF", "50", Periods},
    {"CO01_CENTROCUSTO", "DESCRICAO", "40", Periods},
};

constexpr Limit Numbers[] = {
    {"CO01_PLANOSUB", "CODIGO", "2147483647", Periods},
    {"CO01_CENTROCUSTO", "CODIGO", "2147483647", Periods},
    {"SC00_FILIAL", "FILIAL", "2147483647", Periods},
    {"CO01_CTBORCADAVLR", "VLRBASE", "9223372036854.77", Accounts},
    {"CO01_CTBORCADAVLR", "VLRORCADO", "9223372036854.77", Accounts},
    {"CO01_CTBORCADAVLR", "VLRREALIZADO", "9223372036854.77", Accounts},
};

const FoundColumn* columnOf(const Schema& schema, const Limit& limit) {
    return has(schema, limit.table, limit.column)
               ? &schema.tables.find(limit.table)->second.columns.find(limit.column)->second
               : nullptr;
}

} // namespace

void checkRepeats(firebird::Transaction& transaction, const Schema& schema, Findings& findings) {
    constexpr std::size_t Shown = 5;
    for (const auto& repeat : Repeats) {
        bool readable = true;
        for (const auto& [table, columns] : repeat.needed)
            readable = readable && has(schema, table, columns);
        if (!readable)
            continue;
        const auto codes = queryRows(transaction, repeat.query, repeat.name);
        const auto count = codes[0].Tamanho();
        if (count == 0)
            continue;
        std::string list;
        for (std::size_t row = 0; row < count && row < Shown; ++row)
            list += (row == 0 ? "" : ", ") + TextoDe(codes[0].Valor(row));
        findings.push_back(Format("%s: %d (%s%s). %s", {repeat.name, static_cast<std::int64_t>(count), list,
                                                        count > Shown ? ", ..." : "", repeat.meaning}));
    }
}

void checkLimits(firebird::Transaction& transaction, const Schema& schema, Findings& findings) {
    for (const auto& limit : Texts) {
        const auto* column = columnOf(schema, limit);
        if (!column || column->length <= std::stoi(limit.holds))
            continue;
        const auto longest = queryValue(transaction,
                                        Format("SELECT MAX(CHAR_LENGTH(TRIM(TRAILING FROM %0:s))) FROM %1:s HAVING "
                                               "MAX(CHAR_LENGTH(TRIM(TRAILING FROM %0:s))) > %2:s",
                                               {limit.column, limit.table, limit.holds}),
                                        std::string("maior texto de ") + limit.table);
        if (!base::EhNulo(longest))
            findings.push_back(
                Format("%s.%s tem textos de até %s caracteres: o que passa de %s será cortado, com \"...\" no fim, %s.",
                       {limit.table, limit.column, TextoDe(longest), limit.holds, limit.place}));
    }
    for (const auto& limit : Numbers) {
        if (!columnOf(schema, limit))
            continue;
        const auto largest = queryRows(transaction,
                                       Format("SELECT MIN(%0:s), MAX(%0:s) FROM %1:s HAVING MIN(%0:s) < -%2:sE0 OR "
                                              "MAX(%0:s) > %2:sE0",
                                              {limit.column, limit.table, limit.holds}),
                                       std::string("maior número de ") + limit.table);
        if (largest[0].Tamanho() > 0)
            findings.push_back(Format("%s.%s vai de %s a %s: o que passa de %s não cabe %s, e sai em branco "
                                      "numa linha marcada com \"[valor além do limite]\".",
                                      {limit.table, limit.column, TextoDe(largest[0].Valor(0)),
                                       TextoDe(largest[1].Valor(0)), limit.holds, limit.place}));
    }
}

} // namespace suite::verify
