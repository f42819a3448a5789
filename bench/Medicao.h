#pragma once

#include "base/Falhas.h"
#include "datamodule/Un04618Dm.h"
#include "demo/Esquema.h"
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

// What the measurements of openings share: a database of invented rows, and a dataset's opening against what cannot be
// beaten (a bare fetch loop of the same statement) and what everybody has (isql-fb, its output thrown away).
namespace bench {

using namespace suite::firebird;
using base::Inteiro;
using base::TDecimal;
using base::TValor;

inline void load(Transaction& t, const char* table, std::vector<std::string> columns, int rows,
                 const std::function<std::vector<TValor>(int)>& row) {
    BulkInsert insert(t, table, std::move(columns));
    for (int i = 0; i < rows; ++i)
        insert.add(row(i));
    insert.flush();
}

// How many of each; every account has a value row in each of its centres and establishments.
struct Chart {
    int accounts;
    int centres;
    int establishments;
    int lines() const { return accounts * centres * establishments; }
};

// One company with its chart, its centres and its establishments; keys count from 1.
inline void loadChart(Transaction& t, const Chart& chart) {
    load(t, "SC00_EMPRESA", {"IDEMPRESA", "EMPRESA", "NOME"}, 1, [](int) {
        return std::vector<TValor>{Inteiro(1), Inteiro(1), std::string("Empresa de medição")};
    });
    load(t, "SC00_FILIAL", {"IDFILIAL", "IDEMPRESA", "FILIAL", "NOME"}, chart.establishments, [](int i) {
        return std::vector<TValor>{Inteiro(i + 1), Inteiro(1), Inteiro(i + 1), "Unidade " + std::to_string(i + 1)};
    });
    load(t, "CO01_CENTROCUSTO", {"IDCENTROCUSTO", "IDEMPRESA", "CODIGO", "DESCRICAO", "CLASSIFCENTRO", "CENTROTITULO"},
         chart.centres, [](int i) {
             return std::vector<TValor>{Inteiro(i + 1),        Inteiro(1),
                                        Inteiro(i + 1),        "Produção " + std::to_string(i + 1),
                                        std::to_string(i + 1), Inteiro(2)};
         });
    load(t, "CO01_PLANO", {"IDPLANO", "IDEMPRESA", "CONTA", "CLASSIFCONTAB", "NOME", "CTATITULO", "TPCONTA"},
         chart.accounts, [](int i) {
             char classification[16];
             std::snprintf(classification, sizeof classification, "3.%02d.%03d", i / 100, i % 100);
             return std::vector<TValor>{Inteiro(i + 1),
                                        Inteiro(1),
                                        Inteiro(i + 1),
                                        std::string(classification),
                                        "Serviços de manutenção e conservação nº " + std::to_string(i + 1),
                                        Inteiro(2),
                                        Inteiro(3)};
         });
}

// Monthly headers from January 2024 on, and the value rows of each.
inline void loadProjections(Transaction& t, const Chart& chart, int months) {
    load(t, "CO01_CTBORCADAINF",
         {"IDCTBORCADAINF", "IDEMPRESA", "TPCENARIO", "DATAINICIO", "DATAFIM", "DATAIBALANCOREF", "TPDETALHE",
          "TPCCUSTO"},
         months, [](int i) {
             const auto begin = *base::TDataHora::De(2024, i + 1, 1);
             return std::vector<TValor>{Inteiro(i + 1),
                                        Inteiro(1),
                                        Inteiro(0),
                                        begin,
                                        begin.UltimoDiaDoMes(),
                                        *base::TDataHora::De(2023, i + 1, 1),
                                        Inteiro(2),
                                        Inteiro(1)};
         });
    load(t, "CO01_CTBORCADAVLR",
         {"IDCTBORCADAINF", "IDEMPRESA", "IDFILIAL", "IDPLANO", "IDCENTROCUSTO", "VLRBASE", "VLRORCADO", "PERCORCADO",
          "VLRREALIZADO"},
         chart.lines() * months, [&](int i) {
             const int line = i % chart.lines();
             return std::vector<TValor>{Inteiro(i / chart.lines() + 1),
                                        Inteiro(1),
                                        Inteiro(line % chart.establishments + 1),
                                        Inteiro(line / (chart.centres * chart.establishments) + 1),
                                        Inteiro(line / chart.establishments % chart.centres + 1),
                                        TDecimal{100'000 + i, 2},
                                        TDecimal{110'000 + 3 * (i % 9973), 2},
                                        TDecimal{i % 997, 2},
                                        TDecimal{90'000 + 7 * (i % 9967), 2}};
         });
}

inline void prepare(const std::string& file, const Chart& chart, int months) {
    auto database = Attachment::create(Target(file));
    runScript(database, demo::EsquemaDasTabelas());
    Transaction t(database, TransactionMode::ReadWrite);
    loadChart(t, chart);
    loadProjections(t, chart, months);
    t.commit();
    runScript(database, demo::EsquemaDasChaves());
    database.detach();
}

inline double seconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// Nothing but the client library: no decoding, no storing.
inline std::size_t bareLoop(Attachment& attachment, const std::string& sql) {
    Transaction t(attachment, TransactionMode::ReadOnly);
    Status status;
    auto* statement =
        attachment.handle()->prepare(status.get(), t.handle(), static_cast<unsigned>(sql.size()), sql.c_str(), 3, 0);
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

inline double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

inline std::size_t heapInUse() {
    const auto info = ::mallinfo2();
    return info.uordblks + info.hblkhd;
}

// Memory of the process in MB: "VmRSS", what it holds now, or "VmHWM", the most it ever held.
inline double memory(const std::string& name) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with(name + ":"))
            return std::stod(line.substr(name.size() + 1)) / 1024;
    throw std::runtime_error("no " + name);
}

// Opens the dataset of a consultation; its CommandText is then the statement.
using Opening = std::function<host::TZTClientDataSet&(pct04618::TDM04618&)>;

// Runs take turns, so that noise hits all alike. A first opening, of a process that has done nothing yet, tells the
// text and the peak of memory; its time does not count.
inline void measure(const std::string& targetText, int runs, const Opening& open) {
    const Target target(targetText);
    const char* password = std::getenv("ORCREAL_SENHA");
    const Credentials credentials{"", password ? password : ""};
    const std::string script = "/tmp/orcreal_bench.sql";
    std::vector<double> bare, dataSet, isql;
    double peak = 0;
    std::string sql;
    std::size_t lines = 0;
    std::size_t cells = 0;
    std::size_t bytes = 0;
    for (int run = -1; run < runs; ++run) {
        {
            Connection connection(target, credentials);
            host::TServicos services;
            services.Conexao = &connection;
            const host::TInstalacaoServicos installed(services);
            if (run >= 0)
                bare.push_back(seconds([&] { lines = bareLoop(connection.attachment(), sql); }));
            pct04618::TDM04618 dm;
            host::TZTClientDataSet* result = nullptr;
            const auto held = memory("VmRSS");
            const auto before = heapInUse();
            const auto spent = seconds([&] { result = &open(dm); });
            bytes = heapInUse() - before;
            cells = result->RecordCount() * result->Fields().size();
            sql = result->CommandText;
            if (run < 0) {
                peak = memory("VmHWM") - held;
                continue;
            }
            dataSet.push_back(spent);
            if (lines != result->RecordCount())
                throw std::runtime_error("the two read different rows");
        }
        std::ofstream(script) << "SET TERM ^ ;\n" << sql << "^\n";
        const auto command = "ISC_PASSWORD='" + credentials.password + "' isql-fb -q -user SYSDBA -ch ISO8859_1 '" +
                             target.text() + "' -i " + script + " > /dev/null";
        isql.push_back(seconds([&] {
            if (std::system(command.c_str()) != 0)
                throw std::runtime_error("isql-fb failed");
        }));
    }
    std::printf("%-9s %zu rows, %d runs: bare loop %.3f s, dataset %.3f s (%.2f times), isql-fb %.3f s (%.2f times); "
                "%.1f bytes a cell, %.0f MB at rest, process grew by %.0f MB at its peak\n",
                target.embedded() ? "embedded" : "server", lines, runs, median(bare), median(dataSet),
                median(dataSet) / median(bare), median(isql), median(isql) / median(bare),
                static_cast<double>(bytes) / static_cast<double>(cells), static_cast<double>(bytes) / (1024 * 1024),
                peak);
}

//   preparar FILE        makes the database
//   medir TARGET [RUNS]  password in ORCREAL_SENHA; prints medians and ratios
inline int run(int argc, char** argv, const Chart& chart, int months, const Opening& open) {
    try {
        const std::string action = argc > 2 ? argv[1] : "";
        if (action == "preparar")
            prepare(argv[2], chart, months);
        else if (action == "medir")
            measure(argv[2], argc > 3 ? std::atoi(argv[3]) : 7, open);
        else
            return 2;
        return 0;
    } catch (const base::TFalhaBanco& failure) {
        std::cerr << failure.Diagnostico() << "\n";
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << "\n";
    }
    return 1;
}

} // namespace bench
