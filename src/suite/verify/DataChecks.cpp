#include "suite/verify/DataChecks.h"

#include "base/Grafo.h"
#include "base/Texto.h"
#include "suite/firebird/Connection.h"
#include "suite/firebird/Statement.h"

namespace suite::verify {

namespace {

using base::Format;
using base::TextoDe;
using firebird::queryRows;
using firebird::queryValue;

// What a recursive statement follows, from record to record.
struct Walk {
    const char* place;
    const char* harmed; // what a cycle would end in failure
    const char* unit;
    const char* links;
    const char* label; // of one record, by its key
};

constexpr const char* TotalizerLabel = R"(
    SELECT COALESCE(CO01_DEMAC.CODIGO || '/', '') || CO01_DEMACTOT.CODIGO
      FROM CO01_DEMACTOT
      LEFT JOIN CO01_DEMAC
        ON CO01_DEMAC.IDDEMAC = CO01_DEMACTOT.IDDEMAC
     WHERE CO01_DEMACTOT.IDDEMACTOT = ?)";

constexpr const char* ParentsOfTotalizers = R"(
    SELECT CO01_DEMACTOT.IDDEMACTOT,
           CO01_DEMACTOT.IDDEMACTOTPAI
      FROM CO01_DEMACTOT
     WHERE CO01_DEMACTOT.IDDEMACTOTPAI IS NOT NULL)";

constexpr const char* LinksOfTotalizers = R"(
    SELECT CO01_DEMACTOTREL.IDDEMACTOT,
           CO01_DEMACTOTREL.IDDEMACTOTRELAC
      FROM CO01_DEMACTOTREL
     INNER JOIN CO01_DEMACTOT
        ON CO01_DEMACTOT.IDDEMACTOT = CO01_DEMACTOTREL.IDDEMACTOT
     WHERE CO01_DEMACTOTREL.IDDEMACTOTRELAC IS NOT NULL)";

constexpr const char* ParentsOfAccounts = R"(
    SELECT CO01_PLANO.IDPLANO,
           CO01_PLANO.IDPLANOPAI
      FROM CO01_PLANO
     WHERE CO01_PLANO.IDPLANOPAI IS NOT NULL
     UNION ALL
    SELECT CO01_PLANO.IDPLANO,
           CO01_PLANO.CTASUPERIOR
      FROM CO01_PLANO
     WHERE CO01_PLANO.CTASUPERIOR IS NOT NULL)";

constexpr const char* AccountLabel = "SELECT CO01_PLANO.CONTA FROM CO01_PLANO WHERE CO01_PLANO.IDPLANO = ?";

void checkWalk(firebird::Transaction& transaction, const Walk& walk, Findings& findings) {
    base::TGrafo graph;
    const auto links = queryRows(transaction, walk.links, std::string("ligações de ") + walk.place);
    for (std::size_t row = 0; row < links[0].Tamanho(); ++row)
        graph.Ligar(links[0].Unidades(row), links[1].Unidades(row));
    for (auto cycle : graph.Ciclos()) {
        cycle.push_back(cycle.front());
        std::string path;
        for (const auto key : cycle) {
            const base::TValor parameter = base::Inteiro(key);
            const auto label = queryValue(transaction, walk.label, "código no ciclo", {&parameter, 1});
            path += (path.empty() ? "" : " → ") + TextoDe(label);
        }
        findings.push_back(Format("Ciclo em %s, e %s: %s (%s).", {walk.place, walk.harmed, path, walk.unit}));
    }
}

} // namespace

void checkGenerator(firebird::Transaction& transaction, const Schema& schema, Findings& findings) {
    const std::string table(ValueTable);
    const std::string key(ValueKey);
    if (!has(schema, table, key))
        return;
    const auto generator = firebird::findGenerator(transaction, table);
    if (generator.empty()) {
        findings.push_back(
            Format("Falta o gerador de chaves de %0:s: a atualização do realizado não poderia gravar linhas "
                   "novas. Ele é GEN_%0:s, ou o que o gatilho da tabela usa.",
                   {table}));
        return;
    }
    const auto reached =
        queryValue(transaction, "SELECT GEN_ID(\"" + generator + "\", 0) FROM RDB$DATABASE", "valor de " + generator);
    const auto largest = queryValue(transaction, "SELECT MAX(" + key + ") FROM " + table + " WHERE " + key + " > ?",
                                    "maior chave de " + table, {&reached, 1});
    if (!base::EhNulo(largest))
        findings.push_back(Format("O gerador %0:s está em %1:s, mas %2:s já tem a chave %3:s: linhas novas repetiriam "
                                  "chaves. Execute: SET GENERATOR %0:s TO %3:s;",
                                  {generator, TextoDe(reached), table, TextoDe(largest)}));
}

void checkCycles(firebird::Transaction& transaction, const Schema& schema, Findings& findings) {
    constexpr const char* Totals = "os totais falhariam";
    constexpr const char* Totalizers = "demonstração/totalizador";
    if (has(schema, "CO01_DEMACTOT", "IDDEMACTOT IDDEMACTOTPAI IDDEMAC CODIGO") &&
        has(schema, "CO01_DEMAC", "IDDEMAC CODIGO")) {
        checkWalk(transaction, {"CO01_DEMACTOT.IDDEMACTOTPAI", Totals, Totalizers, ParentsOfTotalizers, TotalizerLabel},
                  findings);
        if (has(schema, "CO01_DEMACTOTREL", "IDDEMACTOT IDDEMACTOTRELAC"))
            checkWalk(transaction,
                      {"CO01_DEMACTOTREL.IDDEMACTOTRELAC", Totals, Totalizers, LinksOfTotalizers, TotalizerLabel},
                      findings);
    }
    if (has(schema, "CO01_PLANO", "IDPLANO IDPLANOPAI CTASUPERIOR CONTA"))
        checkWalk(transaction,
                  {"CO01_PLANO.IDPLANOPAI e CTASUPERIOR", "a atualização do realizado falharia", "contas",
                   ParentsOfAccounts, AccountLabel},
                  findings);
}

void checkBooks(firebird::Transaction& transaction, const Schema& schema, Findings& findings) {
    if (!has(schema, "CO01_CTBORCADAINF", "DATAINICIO DATAFIM TPCTB"))
        return;
    const auto periods = queryRows(transaction, R"(
    SELECT CO01_CTBORCADAINF.DATAINICIO,
           CO01_CTBORCADAINF.DATAFIM,
           COUNT(*)
      FROM CO01_CTBORCADAINF
     WHERE BIN_AND(COALESCE(CO01_CTBORCADAINF.TPCTB, 0), 7) = 0
     GROUP BY 1, 2
     ORDER BY 1, 2)",
                                   "projeções sem livro");
    const auto date = [](const base::TValor& value) {
        const auto* given = std::get_if<base::TDataHora>(&value);
        return given ? given->SemHora().Texto() : "sem data";
    };
    std::int64_t count = 0;
    std::string list;
    for (std::size_t row = 0; row < periods[0].Tamanho(); ++row) {
        count += periods[2].Unidades(row);
        list += (row == 0 ? "" : ", ") + date(periods[0].Valor(row)) + " a " + date(periods[1].Valor(row));
    }
    if (count > 0)
        findings.push_back(
            Format("Projeções sem livro contábil (CO01_CTBORCADAINF.TPCTB): %d. O realizado não pode ser "
                   "atualizado em %s.",
                   {count, list}));
}

} // namespace suite::verify
