// Rebuilding the totals of a statement of 300 totalizers with 2,000 links, stage by stage.
//   preparar FILE ROWS PROJECTIONS   base rows a projection: a multiple of 20,000
//   medir TARGET [RUNS]              password in ORCREAL_SENHA
#include "Medicao.h"
#include "host/Interacao.h"

#include <map>

namespace {

using namespace bench;

constexpr int Accounts = 2000;
constexpr int Establishments = 10;
constexpr int Synthetic = 60; // the first twelve have four of the others below each
constexpr int Totalizers = 300;
constexpr int LinkedAnalytic = 40; // of the analytic ones, with two totalizer links each
constexpr int AccountLinks = 1900;
constexpr int Links = 2000;

void loadStatement(Transaction& t, int centres) {
    load(t, "CO01_DEMAC", {"IDDEMAC", "CODIGO", "TITULO"}, 1, [](int) {
        return std::vector<TValor>{Inteiro(1), Inteiro(1), std::string("Medição")};
    });
    load(t, "CO01_DEMACTOT", {"IDDEMACTOT", "IDDEMAC", "IDDEMACTOTPAI", "CODIGO", "CLASSIF", "DESCRICAO", "TITULO"},
         Totalizers, [](int i) {
             const bool synthetic = i < Synthetic;
             const auto parent = i < 12 ? base::Nulo : Inteiro(synthetic ? (i - 12) / 4 + 1 : i % 48 + 13);
             return std::vector<TValor>{Inteiro(i + 1),
                                        Inteiro(1),
                                        parent,
                                        Inteiro(i + 1),
                                        std::to_string(1000 + i),
                                        "Totalizador " + std::to_string(i + 1),
                                        Inteiro(synthetic ? 1 : 2)};
         });
    // Account links on all analytic totalizers, one in ten narrowed to a cost centre; then links from analytic to plain
    // analytic totalizers, and from the top to the titles below it.
    load(t, "CO01_DEMACTOTREL", {"IDDEMACTOT", "IDPLANO", "IDCENTROCUSTO", "IDDEMACTOTRELAC"}, Links, [&](int i) {
        const int analytic = Totalizers - Synthetic;
        if (i < AccountLinks)
            return std::vector<TValor>{Inteiro(Synthetic + i % analytic + 1), Inteiro(i % Accounts + 1),
                                       i % 10 == 0 ? Inteiro(i / 10 % centres + 1) : base::Nulo, base::Nulo};
        const int link = i - AccountLinks;
        const bool fromAnalytic = link < 2 * LinkedAnalytic;
        const int owner = fromAnalytic ? Synthetic + link / 2 : link % 12;
        const int related = fromAnalytic ? Synthetic + LinkedAnalytic + link : 12 + link % 48;
        return std::vector<TValor>{Inteiro(owner + 1), base::Nulo, base::Nulo, Inteiro(related + 1)};
    });
}

void prepareTotals(const std::string& file, int rows, int projections) {
    const Chart chart{Accounts, rows / (Accounts * Establishments), Establishments};
    auto database = Attachment::create(Target(file));
    runScript(database, demo::EsquemaDasTabelas());
    Transaction t(database, TransactionMode::ReadWrite);
    loadChart(t, chart);
    loadProjections(t, chart, projections);
    loadStatement(t, chart.centres);
    t.commit();
    runScript(database, demo::EsquemaDasChaves());
    database.detach();
}

// Times what lies between one text of the stages' level and the next.
class Stopwatch final : public host::TInteracao {
  public:
    int Mensagem(const host::TMensagem& message) override { throw std::runtime_error(message.Texto); }
    void Progresso(const host::TEventoProgresso& event) override {
        if (event.Nivel == 0 && event.Tipo != host::TEventoProgresso::TTipo::Fechar)
            return;
        const auto now = std::chrono::steady_clock::now();
        if (!text_.empty())
            spent[text_] += std::chrono::duration<double>(now - since_).count();
        since_ = now;
        if (event.Tipo == host::TEventoProgresso::TTipo::Texto)
            text_ = event.Texto.substr(0, event.Texto.find(" orçamentária"));
        if (event.Tipo == host::TEventoProgresso::TTipo::Fechar)
            text_.clear();
    }
    bool ProgressoCancelado() override { return false; }
    void MostrarModal(host::TFormZTTandorPadraoResult&) override {}
    bool Falha(const base::TFalha&) override { return false; }
    void Focar(host::TControle&) override {}
    void Pesquisar(host::TZTLookupEx&) override {}
    void ProcessarMensagens() override {}

    std::map<std::string, double> spent;

  private:
    std::string text_;
    std::chrono::steady_clock::time_point since_;
};

void measureTotals(const std::string& targetText, int runs) {
    const Target target(targetText);
    const char* password = std::getenv("ORCREAL_SENHA");
    Connection connection(target, {"", password ? password : ""});
    Stopwatch stopwatch;
    host::TServicos services;
    services.Conexao = &connection;
    services.Interacao = &stopwatch;
    const host::TInstalacaoServicos installed(services);
    Transaction reading(connection.attachment(), TransactionMode::ReadOnly);
    const auto list =
        TextoDe(queryValue(reading, "SELECT LIST(IDCTBORCADAINF, ',') FROM CO01_CTBORCADAINF", "projections"));
    pct04618::TDM04618 dm;
    dm.FIDDemac = 1;
    dm.FInformacoesCtbOrcadaInf.LListaIDs = list;
    dm.GerarTotalizacoesDemonstracoesConfiguraveis(); // the first run has nothing to delete and a cold cache
    const auto projections = static_cast<double>(std::count(list.begin(), list.end(), ',') + 1);
    std::map<std::string, std::vector<double>> byStage;
    std::vector<double> whole;
    for (int run = 0; run < runs; ++run) {
        stopwatch.spent.clear();
        whole.push_back(seconds([&] { dm.GerarTotalizacoesDemonstracoesConfiguraveis(); }) / projections);
        for (const auto& [stage, spent] : stopwatch.spent)
            byStage[stage].push_back(spent / projections);
    }
    const auto count = [&](const char* where) {
        return TextoDe(
            queryValue(reading, std::string("SELECT COUNT(*) FROM CO01_CTBORCADAVLR WHERE ") + where, "rows"));
    };
    std::printf("%-9s %.0f projections, %s base rows, %s detail rows, %s total rows, %d runs: %.3f s a projection\n",
                target.embedded() ? "embedded" : "server", projections, count("IDDEMACTOT IS NULL").c_str(),
                count("IDDEMACTOT IS NOT NULL AND IDPLANO IS NOT NULL").c_str(),
                count("IDDEMACTOT IS NOT NULL AND IDPLANO IS NULL").c_str(), runs, median(whole));
    for (const auto& [stage, spent] : byStage)
        std::printf("  %6.3f s %3.0f %%  %s\n", median(spent), 100 * median(spent) / median(whole), stage.c_str());
}

} // namespace

int main(int argc, char** argv) {
    const std::string action = argc > 2 ? argv[1] : "";
    try {
        if (action == "preparar" && argc > 4)
            prepareTotals(argv[2], std::atoi(argv[3]), std::atoi(argv[4]));
        else if (action == "medir")
            measureTotals(argv[2], argc > 3 ? std::atoi(argv[3]) : 3);
        else
            return 2;
        return 0;
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << "\n";
        return 1;
    }
}
