// Opening a mode 1 result of 200,000 lines of 22 columns, against what cannot be beaten (a bare fetch loop of the same
// statement) and what everybody has (isql-fb, its output thrown away). Runs take turns, so that noise hits all alike.
//
//   bench_consulta preparar FILE        makes the database
//   bench_consulta medir TARGET [RUNS]  password in ORCREAL_SENHA; prints medians and ratios
#include "core/Un04618Dm.h"
#include "demo/Esquema.h"
#include "host/Falhas.h"
#include "host/Servicos.h"
#include "suite/firebird/BulkInsert.h"
#include "suite/firebird/Connection.h"
#include "suite/firebird/Script.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iostream>
#include <malloc.h>

namespace {

using namespace suite::firebird;
using host::Inteiro;
using host::TDecimal;
using host::TValor;

constexpr int Accounts = 2000;
constexpr int Centres = 10;
constexpr int Establishments = 10;

void load(Transaction& t, const char* table, std::vector<std::string> columns, int rows,
          const std::function<std::vector<TValor>(int)>& row) {
    BulkInsert insert(t, table, std::move(columns));
    for (int i = 0; i < rows; ++i)
        insert.add(row(i));
    insert.flush();
}

std::string classification(int account) {
    char text[16];
    std::snprintf(text, sizeof text, "3.%02d.%03d", account / 100, account % 100);
    return text;
}

void prepare(const std::string& file) {
    auto database = Attachment::create(Target(file));
    runScript(database, demo::EsquemaDasTabelas());
    Transaction t(database, TransactionMode::ReadWrite);
    load(t, "SC00_EMPRESA", {"IDEMPRESA", "EMPRESA", "NOME"}, 1,
         [](int) { return std::vector<TValor>{Inteiro(1), Inteiro(1), std::string("Empresa de medição")}; });
    load(t, "SC00_FILIAL", {"IDFILIAL", "IDEMPRESA", "FILIAL", "NOME"}, Establishments, [](int i) {
        return std::vector<TValor>{Inteiro(i + 1), Inteiro(1), Inteiro(i + 1), "Unidade " + std::to_string(i + 1)};
    });
    load(t, "CO01_CENTROCUSTO", {"IDCENTROCUSTO", "IDEMPRESA", "CODIGO", "DESCRICAO", "CLASSIFCENTRO", "CENTROTITULO"},
         Centres, [](int i) {
             return std::vector<TValor>{Inteiro(i + 1), Inteiro(1), Inteiro(i + 1), "Produção " + std::to_string(i + 1),
                                        std::to_string(i + 1), Inteiro(2)};
         });
    load(t, "CO01_PLANO", {"IDPLANO", "IDEMPRESA", "CONTA", "CLASSIFCONTAB", "NOME", "CTATITULO", "TPCONTA"}, Accounts,
         [](int i) {
             return std::vector<TValor>{Inteiro(i + 1),    Inteiro(1),
                                        Inteiro(i + 1),    classification(i),
                                        "Serviços de manutenção e conservação nº " + std::to_string(i + 1),
                                        Inteiro(2),        Inteiro(3)};
         });
    const auto begin = *host::TDataHora::De(2024, 1, 1);
    const auto end = *host::TDataHora::De(2024, 1, 31);
    load(t, "CO01_CTBORCADAINF",
         {"IDCTBORCADAINF", "IDEMPRESA", "TPCENARIO", "DATAINICIO", "DATAFIM", "TPDETALHE", "TPCCUSTO"}, 1, [&](int) {
             return std::vector<TValor>{Inteiro(1), Inteiro(1), Inteiro(0), begin, end, Inteiro(2), Inteiro(1)};
         });
    load(t, "CO01_CTBORCADAVLR",
         {"IDCTBORCADAINF", "IDEMPRESA", "IDFILIAL", "IDPLANO", "IDCENTROCUSTO", "VLRBASE", "VLRORCADO",
          "VLRREALIZADO"},
         Accounts * Centres * Establishments, [](int i) {
             return std::vector<TValor>{Inteiro(1),
                                        Inteiro(1),
                                        Inteiro(i % Establishments + 1),
                                        Inteiro(i / (Centres * Establishments) + 1),
                                        Inteiro(i / Establishments % Centres + 1),
                                        TDecimal{100'000 + i, 2},
                                        TDecimal{110'000 + 3 * (i % 9973), 2},
                                        TDecimal{90'000 + 7 * (i % 9967), 2}};
         });
    t.commit();
    runScript(database, demo::EsquemaDasChaves());
    database.detach();
}

double seconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// Nothing but the client library: no decoding, no storing.
std::size_t bareLoop(Attachment& attachment, const std::string& sql) {
    Transaction t(attachment, TransactionMode::ReadOnly);
    Status status;
    auto* statement = attachment.handle()->prepare(status.get(), t.handle(), 0, sql.c_str(), 3, 0);
    status.check("bare");
    auto* metadata = statement->getOutputMetadata(status.get());
    std::vector<unsigned char> row(metadata->getMessageLength(status.get()));
    auto* rows = statement->openCursor(status.get(), t.handle(), nullptr, nullptr, metadata, 0);
    status.check("bare");
    std::size_t count = 0;
    while (rows->fetchNext(status.get(), row.data()) == Firebird::IStatus::RESULT_OK)
        ++count;
    status.check("bare");
    rows->close(status.get());
    metadata->release();
    statement->free(status.get());
    return count;
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

std::size_t heapInUse() {
    const auto info = ::mallinfo2();
    return info.uordblks + info.hblkhd;
}

void measure(const std::string& targetText, int runs) {
    const Target target(targetText);
    const char* password = std::getenv("ORCREAL_SENHA");
    const Credentials credentials{"", password ? password : ""};
    const std::string script = "/tmp/bench_consulta.sql";
    std::vector<double> bare, dataSet, isql;
    std::size_t lines = 0;
    std::size_t cells = 0;
    std::size_t bytes = 0;
    for (int run = 0; run < runs; ++run) {
        {
            Connection connection(target, credentials);
            host::TServicos services;
            services.Conexao = &connection;
            const host::TInstalacaoServicos installed(services);
            pct04618::TDM04618 dm;
            dm.FDetalharSelecao = 1;
            dm.FInformacoesCtbOrcadaInf.LListaIDs = "1";
            const auto sql = dm.BuscarDadosOrcamentariaComBaseNoBalanco();
            std::ofstream(script) << sql << ";\n";
            bare.push_back(seconds([&] { lines = bareLoop(connection.attachment(), sql); }));
            const auto before = heapInUse();
            dm.CdsMostraCtbOrcada.CommandText = sql;
            dataSet.push_back(seconds([&] { dm.CdsMostraCtbOrcada.Open(); }));
            bytes = heapInUse() - before;
            cells = dm.CdsMostraCtbOrcada.RecordCount() * dm.CdsMostraCtbOrcada.Fields().size();
            if (lines != dm.CdsMostraCtbOrcada.RecordCount())
                throw std::runtime_error("the two read different rows");
        }
        const auto command = "ISC_PASSWORD='" + credentials.password + "' isql-fb -q -user SYSDBA -ch ISO8859_1 '" +
                             target.text() + "' -i " + script + " > /dev/null";
        isql.push_back(seconds([&] {
            if (std::system(command.c_str()) != 0)
                throw std::runtime_error("isql-fb failed");
        }));
    }
    std::printf("%-9s %zu lines, %d runs: bare loop %.3f s, dataset %.3f s (%.2f times), isql-fb %.3f s (%.2f times); "
                "%.1f bytes a cell\n",
                target.embedded() ? "embedded" : "server", lines, runs, median(bare), median(dataSet),
                median(dataSet) / median(bare), median(isql), median(isql) / median(bare),
                static_cast<double>(bytes) / static_cast<double>(cells));
}

} // namespace

int main(int argc, char** argv) {
    try {
        const std::string action = argc > 2 ? argv[1] : "";
        if (action == "preparar")
            prepare(argv[2]);
        else if (action == "medir")
            measure(argv[2], argc > 3 ? std::atoi(argv[3]) : 7);
        else
            return 2;
        return 0;
    } catch (const host::TFalhaBanco& failure) {
        std::cerr << failure.Diagnostico() << "\n";
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << "\n";
    }
    return 1;
}
