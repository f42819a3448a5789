// A year of actuals: 200 analytic accounts below 20 titles, twelve monthly projections, a journal over some years.
//   preparar FILE ENTRIES YEARS   entries of the whole journal, the last of the years being that of the projections
//   medir TARGET MONTHS [RUNS]    password in ORCREAL_SENHA
#include "Medicao.h"
#include "actuals/AtualizadorRealizado.h"
#include "base/Texto.h"
#include "host/Interacao.h"

namespace {

using namespace bench;

constexpr int Accounts = 200;
constexpr int Titles = 20;
constexpr int Year = 2024;

void prepareActuals(const std::string& file, int entries, int years) {
    auto database = Attachment::create(Target(file));
    runScript(database, demo::EsquemaDasTabelas());
    Transaction t(database, TransactionMode::ReadWrite);
    load(t, "SC00_EMPRESA", {"IDEMPRESA", "EMPRESA", "NOME"}, 1, [](int) {
        return std::vector<TValor>{Inteiro(1), Inteiro(1), std::string("Medição")};
    });
    load(t, "SC00_FILIAL", {"IDFILIAL", "IDEMPRESA", "FILIAL", "NOME"}, 1, [](int) {
        return std::vector<TValor>{Inteiro(1), Inteiro(1), Inteiro(1), std::string("Matriz")};
    });
    load(t, "CO01_PLANO",
         {"IDPLANO", "IDEMPRESA", "IDPLANOPAI", "CONTA", "CLASSIFCONTAB", "NOME", "CTATITULO", "TPCONTA"},
         Titles + Accounts, [](int i) {
             const bool title = i < Titles;
             return std::vector<TValor>{Inteiro(i + 1),
                                        Inteiro(1),
                                        title ? base::Nulo : Inteiro(i % Titles + 1),
                                        Inteiro(i + 1),
                                        std::to_string(1000 + i),
                                        "Conta " + std::to_string(i + 1),
                                        Inteiro(title ? 1 : 2),
                                        Inteiro(3)};
         });
    load(t, "CO01_CTBORCADAINF",
         {"IDCTBORCADAINF", "IDEMPRESA", "TPCENARIO", "DATAINICIO", "DATAFIM", "TPDETALHE", "TPCTB"}, 12, [](int i) {
             const auto first = *base::TDataHora::De(Year, i + 1, 1);
             return std::vector<TValor>{Inteiro(i + 1),         Inteiro(1), Inteiro(0), first,
                                        first.UltimoDiaDoMes(), Inteiro(1), Inteiro(1)};
         });
    load(t, "CO01_CTBORCADAVLR", {"IDCTBORCADAVLR", "IDCTBORCADAINF", "IDEMPRESA", "IDPLANO", "VLRORCADO"},
         12 * Accounts, [](int i) {
             return std::vector<TValor>{Inteiro(i + 1), Inteiro(i / Accounts + 1), Inteiro(1),
                                        Inteiro(Titles + i % Accounts + 1), Inteiro(1000)};
         });
    const auto begin = *base::TDataHora::De(Year - years + 1, 1, 1);
    const auto days =
        (base::TDataHora::De(Year, 12, 31)->Decimos() - begin.Decimos()) / base::TDataHora::DecimosPorDia + 1;
    load(t, "CO01_DIARIO", {"IDDIARIO", "IDFILIAL", "IDPLANO", "DATA", "VALOR", "TPLANCTO", "ORIGEM", "HISTORICO"},
         entries, [&](int i) {
             const auto day = static_cast<std::int64_t>(i) * days / entries; // as they are booked
             return std::vector<TValor>{
                 Inteiro(i + 1),
                 Inteiro(1),
                 Inteiro(Titles + (i * 7919LL) % Accounts + 1),
                 base::TDataHora::DeDecimos(begin.Decimos() + day * base::TDataHora::DecimosPorDia),
                 base::TDecimal{100 + i % 100'000, 2},
                 Inteiro(i % 3 == 0 ? -1 : 1),
                 Inteiro(i % 50 == 0 ? 5 : 1),
                 std::string("Lançamento do movimento do dia, conforme documento")};
         });
    t.commit();
    runScript(database, demo::EsquemaDasChaves());
    runScript(database, "SET GENERATOR GEN_CO01_CTBORCADAVLR TO 100000;");
    database.detach();
}

class Silence final : public host::TInteracao {
  public:
    int Mensagem(const host::TMensagem& message) override { throw std::runtime_error(message.Texto); }
    void Progresso(const host::TEventoProgresso&) override {}
    bool ProgressoCancelado() override { return false; }
    void MostrarModal(host::TFormZTTandorPadraoResult&) override {}
    bool Falha(const base::TFalha&) override { return false; }
    void Focar(host::TControle&) override {}
    void Pesquisar(host::TZTLookupEx&) override {}
    void ProcessarMensagens() override {}
};

pct04618::TConfronto monthOf(int month) {
    pct04618::TConfronto month_;
    month_.IDCtbOrcadaInf = month;
    month_.DataInicio = *base::TDataHora::De(Year, month, 1);
    month_.DataFim = month_.DataInicio.UltimoDiaDoMes();
    month_.Livros = pct04618::LivroNormal;
    month_.Filiais = "1";
    return month_;
}

// The sums of a month with every lookup joined to each entry, as a statement would be written that leaves the order of
// work to the engine: %0:d projection, %1:s first day, %2:s last day.
constexpr const char* JoinedByEntry = R"(
SELECT NULL AS IDFILIAL,
       CO01_DIARIO.IDPLANO,
       CO01_DIARIO.IDPLANOSUB,
       CO01_CTBORCADAVLR.TIPOGERACAO,
       NULL AS IDCENTROCUSTO,
       CASE CAST(CO01_PLANOCFG.INFORMACAO1 AS NUMERIC(2,0)) WHEN 1 THEN 1 ELSE 2 END AS RECDESP,
       SUM(COALESCE(CASE WHEN CO01_DIARIO.TPLANCTO = 1 THEN COALESCE(CO01_DIARIO.VALOR, 0) ELSE 0 END, 0)) AS DEBITOS,
       SUM(COALESCE(CASE WHEN CO01_DIARIO.TPLANCTO = -1 THEN COALESCE(CO01_DIARIO.VALOR, 0) * CO01_DIARIO.TPLANCTO ELSE 0 END, 0)) AS CREDITOS
  FROM CO01_DIARIO
 INNER JOIN SC00_FILIAL
    ON SC00_FILIAL.IDFILIAL = CO01_DIARIO.IDFILIAL
 INNER JOIN (SELECT CO01_PLANO.IDPLANO, CO01_PLANO.TPCONTA
               FROM CO01_PLANO
              INNER JOIN CO01_PLANOCFG
                 ON CO01_PLANOCFG.IDPLANO = CO01_PLANO.IDPLANOPAI
              WHERE CO01_PLANOCFG.ORIGEM = 21 AND CO01_PLANOCFG.ESPECIE = 50
              UNION
             SELECT CO01_PLANO.IDPLANO, CO01_PLANO.TPCONTA
               FROM CO01_PLANO
              WHERE CO01_PLANO.IDEMPRESA = 1 AND CO01_PLANO.TPCONTA = 3 AND CO01_PLANO.CTATITULO <> 1) PLANO2
    ON PLANO2.IDPLANO = CO01_DIARIO.IDPLANO
  LEFT JOIN CO01_PLANOCFG
    ON CO01_PLANOCFG.IDPLANO = PLANO2.IDPLANO AND CO01_PLANOCFG.ORIGEM = 20 AND CO01_PLANOCFG.ESPECIE = 1
  LEFT JOIN CO01_CTBORCADAVLR
    ON (CO01_DIARIO.IDPLANO = CO01_CTBORCADAVLR.IDPLANO
        AND COALESCE(CO01_DIARIO.IDPLANOSUB, 0) = COALESCE(CO01_CTBORCADAVLR.IDPLANOSUB, 0)
        AND CO01_CTBORCADAVLR.IDCTBORCADAINF = %0:d
        AND CO01_CTBORCADAVLR.IDDEMACTOT IS NULL)
 WHERE SC00_FILIAL.IDEMPRESA = 1
   AND CO01_DIARIO.DATA BETWEEN %1:s AND %2:s
   AND CO01_DIARIO.ORIGEM <> 5
   AND COALESCE(CO01_DIARIO.TPCTB, 0) IN (0)
 GROUP BY 1, 2, 3, 4, 5, 6)";

void joinedStatements(Attachment& attachment, int months) {
    const auto literal = [](base::TDataHora day) { return base::QuotedStr(day.TextoIso()); };
    for (int month = 1; month <= months; ++month)
        bareLoop(attachment, base::Format(JoinedByEntry, {std::int64_t{month}, literal(monthOf(month).DataInicio),
                                                          literal(monthOf(month).DataFim)}));
}

// The statements of the months, read and dropped.
void bareStatements(Attachment& attachment, const pct04618::TSelecao& selection, int months) {
    for (int month = 1; month <= months; ++month)
        bareLoop(attachment, pct04618::InstrucaoSomasDoDiario(selection, monthOf(month)));
}

// What a run has stored, written once more by one statement in one transaction.
void bareWrites(Attachment& attachment, int months) {
    Transaction t(attachment, TransactionMode::ReadWrite);
    const auto rows = queryRows(t,
                                "SELECT IDCTBORCADAVLR, VLRREALIZADO FROM CO01_CTBORCADAVLR WHERE IDCTBORCADAINF <= " +
                                    std::to_string(months),
                                "rows");
    Statement write(t, "UPDATE CO01_CTBORCADAVLR SET VLRREALIZADO = ? WHERE IDCTBORCADAVLR = ?", "write");
    for (std::size_t i = 0; i < rows[0].Tamanho(); ++i) {
        const std::vector<TValor> values{rows[1].Valor(i), rows[0].Valor(i)};
        write.execute(t, values);
    }
    t.commit();
}

void measureActuals(const std::string& targetText, int months, int runs) {
    const Target target(targetText);
    const char* password = std::getenv("ORCREAL_SENHA");
    Connection connection(target, {"", password ? password : ""});
    Silence silence;
    host::TServicos services;
    services.Conexao = &connection;
    services.Interacao = &silence;
    const host::TInstalacaoServicos installed(services);
    pct04618::TDM04618 dm;
    dm.FIDEmpresa = dm.FIDEmpresaPlano = dm.FIDEmpresaHolding = 1;
    pct04618::TResultadoRealizado result;
    const auto update = [&] {
        pct04618::TAtualizadorRealizado(dm,
                                        {.DataInicial = monthOf(1).DataInicio,
                                         .DataFinal = monthOf(months).DataFim,
                                         .Periodicidade = pct04618::TPeriodicidadeRealizado::prMensais,
                                         .Cenarios = 1},
                                        result)
            .AtualizarValoresRealizadosNoPeriodo();
    };
    const double first = seconds(update); // it makes the rows of the titles, and warms the cache
    std::vector<double> joined, statements, writes, whole;
    for (int run = 0; run < runs; ++run) {
        joined.push_back(seconds([&] { joinedStatements(connection.attachment(), months); }));
        statements.push_back(seconds([&] { bareStatements(connection.attachment(), dm, months); }));
        writes.push_back(seconds([&] { bareWrites(connection.attachment(), months); }));
        whole.push_back(seconds(update));
    }
    std::int64_t read = 0;
    for (const auto& projection : result.Projecoes)
        read += projection.Lidos;
    const auto ratio = [&](const std::vector<double>& bare) { return median(whole) / (median(bare) + median(writes)); };
    std::printf("%-9s %lld entries, %d months, %d runs: first %.3f s; statements joined by entry %.3f s, ours %.3f s, "
                "writes %.3f s, run %.3f s: %.2f and %.2f times statements and writes; heap %.1f MB\n",
                target.embedded() ? "embedded" : "server", static_cast<long long>(read), months, runs, first,
                median(joined), median(statements), median(writes), median(whole), ratio(joined), ratio(statements),
                static_cast<double>(heapInUse()) / 1e6);
}

} // namespace

int main(int argc, char** argv) {
    const std::string action = argc > 2 ? argv[1] : "";
    try {
        if (action == "preparar" && argc > 4)
            prepareActuals(argv[2], std::atoi(argv[3]), std::atoi(argv[4]));
        else if (action == "medir" && argc > 3)
            measureActuals(argv[2], std::atoi(argv[3]), argc > 4 ? std::atoi(argv[4]) : 5);
        else
            return 2;
        return 0;
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << "\n";
        return 1;
    }
}
