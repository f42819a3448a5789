#include "suite/program/VerifyCommand.h"

#include "host/Falhas.h"
#include "host/Texto.h"
#include "suite/program/DataChecks.h"
#include "suite/program/NoticeChecks.h"

#include <iostream>

namespace suite::program {

namespace {

std::string counted(std::size_t count, const char* one, const char* many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

// "a, b e c" of what there is.
std::string listed(std::initializer_list<std::string> parts) {
    std::string text;
    std::string last;
    for (const auto& part : parts) {
        if (part.empty())
            continue;
        if (!last.empty())
            text += (text.empty() ? "" : ", ") + last;
        last = part;
    }
    return text.empty() ? last : text + " e " + last;
}

std::string summary(std::size_t stops, std::size_t slow, std::size_t notices) {
    const auto stopText = stops > 0 ? counted(stops, "impedimento", "impedimentos") : "";
    const auto slowText = slow > 0 ? counted(slow, "ponto lento", "pontos lentos") : "";
    const auto noticeText = notices > 0 ? counted(notices, "aviso", "avisos") : "";
    const auto all = listed({stopText, slowText, noticeText});
    if (stops > 0)
        return "O banco de dados não serve: " + all + ".";
    if (!all.empty())
        return "O banco de dados serve, com " + all + ".";
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
    Findings notices;
    checkRepeats(transaction, schema, notices);
    checkLimits(transaction, schema, notices);
    for (const auto& line : stops)
        std::cout << "impede: " << host::SemControles(line) << '\n';
    for (const auto& line : slow)
        std::cout << "lento: " << host::SemControles(line) << '\n';
    for (const auto& line : notices)
        std::cout << "aviso: " << host::SemControles(line) << '\n';
    std::cout << summary(stops.size(), slow.size(), notices.size()) << std::endl;
    if (!std::cout)
        throw host::TFalha("Não foi possível escrever o resultado na saída.");
    return stops.empty() ? ExitCode::Done : ExitCode::Refused;
}

} // namespace suite::program
