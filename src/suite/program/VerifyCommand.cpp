#include "suite/program/VerifyCommand.h"

#include "host/Falhas.h"
#include "suite/program/DataChecks.h"

#include <iostream>

namespace suite::program {

namespace {

std::string counted(std::size_t count, const char* one, const char* many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

std::string summary(std::size_t stops, std::size_t slow) {
    const auto slowText = counted(slow, "ponto lento", "pontos lentos");
    if (stops > 0)
        return "O banco de dados não serve: " + counted(stops, "impedimento", "impedimentos") +
               (slow > 0 ? " e " + slowText : "") + ".";
    if (slow > 0)
        return "O banco de dados serve, com " + slowText + ".";
    std::size_t columns = 0;
    for (const auto& table : ExpectedTables)
        for (const auto& list :
             {table.keys, table.codes, table.amounts, table.rates, table.dates, table.texts, table.others})
            columns += words(list).size();
    return "O banco de dados serve: " + std::to_string(std::size(ExpectedTables)) + " tabelas, " +
           std::to_string(columns) + " colunas e " + std::to_string(std::size(ExpectedIndexes)) +
           " índices conferidos.";
}

} // namespace

ExitCode runVerify(firebird::Attachment& attachment) {
    firebird::Transaction transaction(attachment, firebird::TransactionMode::ReadOnly);
    auto schema = readSchema(transaction);
    Findings stops;
    checkTables(schema, stops);
    checkInserts(schema, stops);
    checkGenerator(transaction, schema, stops);
    checkCycles(transaction, schema, stops);
    checkBooks(transaction, schema, stops);
    Findings slow;
    checkIndexes(schema, slow);
    for (const auto& line : stops)
        std::cout << "impede: " << line << '\n';
    for (const auto& line : slow)
        std::cout << "lento: " << line << '\n';
    std::cout << summary(stops.size(), slow.size()) << std::endl;
    if (!std::cout)
        throw host::TFalha("Não foi possível escrever o resultado na saída.");
    return stops.empty() ? ExitCode::Done : ExitCode::Refused;
}

} // namespace suite::program
