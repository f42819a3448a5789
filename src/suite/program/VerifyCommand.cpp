#include "suite/program/VerifyCommand.h"

#include "base/Falhas.h"
#include "base/Texto.h"
#include "suite/verify/DataChecks.h"
#include "suite/verify/NoticeChecks.h"

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
    for (const auto& table : verify::ExpectedTables)
        for (const auto& list :
             {table.keys, table.codes, table.amounts, table.rates, table.dates, table.texts, table.others})
            columns += verify::words(list).size();
    return "O banco de dados serve: " + std::to_string(std::size(verify::ExpectedTables)) + " tabelas, " +
           std::to_string(columns) + " colunas e " + std::to_string(std::size(verify::ExpectedIndexes)) +
           " índices conferidos.";
}

} // namespace

ExitCode runVerify(firebird::Attachment& attachment) {
    firebird::Transaction transaction(attachment, firebird::TransactionMode::ReadOnly);
    auto schema = verify::readSchema(transaction);
    verify::Findings stops;
    verify::checkTables(schema, stops);
    verify::checkInserts(schema, stops);
    verify::checkGenerator(transaction, schema, stops);
    verify::checkCycles(transaction, schema, stops);
    verify::checkBooks(transaction, schema, stops);
    verify::Findings slow;
    verify::checkIndexes(schema, slow);
    verify::Findings notices;
    verify::checkRepeats(transaction, schema, notices);
    verify::checkLimits(transaction, schema, notices);
    for (const auto& line : stops)
        std::cout << "impede: " << base::SemControles(line) << '\n';
    for (const auto& line : slow)
        std::cout << "lento: " << base::SemControles(line) << '\n';
    for (const auto& line : notices)
        std::cout << "aviso: " << base::SemControles(line) << '\n';
    std::cout << summary(stops.size(), slow.size(), notices.size()) << std::endl;
    if (!std::cout)
        throw base::TFalha("Não foi possível escrever o resultado na saída.");
    return stops.empty() ? ExitCode::Done : ExitCode::Refused;
}

} // namespace suite::program
