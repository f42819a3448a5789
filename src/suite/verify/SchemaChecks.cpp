#include "suite/verify/SchemaChecks.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <sstream>

namespace suite::verify {

namespace {

bool contains(std::string_view list, const std::string& word) {
    const auto all = words(list);
    return std::find(all.begin(), all.end(), word) != all.end();
}

bool isExact(const FoundColumn& column) {
    return column.type == ColumnType::Whole16 || column.type == ColumnType::Whole32 ||
           column.type == ColumnType::Whole64;
}
bool isWhole(const FoundColumn& column) { return isExact(column) && column.decimals == 0; }
bool isAmount(const FoundColumn& column) { return isExact(column) && column.decimals >= 2; }
bool isDate(const FoundColumn& column) {
    return column.type == ColumnType::Date || column.type == ColumnType::Timestamp;
}
bool isText(const FoundColumn& column) { return column.type == ColumnType::Text; }
bool isAnything(const FoundColumn&) { return true; }

// Columns of a table whose types are asked the same.
struct Group {
    std::string_view names;
    bool (*fits)(const FoundColumn&);
    std::string wanted;
    bool wide = false;
};

std::vector<Group> groupsOf(const ExpectedTable& table) {
    const std::string wide = table.written ? ", de 64 bits" : "";
    return {{table.keys, isWhole, "um número inteiro exato" + wide, table.written},
            {table.codes, isWhole, "um número inteiro exato"},
            {table.amounts, isAmount, "um número exato com duas decimais ou mais" + wide, table.written},
            {table.rates, isExact, "um número exato"},
            {table.dates, isDate, "uma data, com ou sem hora"},
            {table.texts, isText, "um texto que não seja BLOB"},
            {table.others, isAnything, ""}};
}

void checkColumn(const std::string& word, const Group& group, FoundTable& table, std::string_view tableName,
                 Findings& findings) {
    const auto colon = word.find(':');
    const auto name = word.substr(0, colon);
    const auto label = std::string(tableName) + "." + name;
    const auto found = table.columns.find(name);
    if (found == table.columns.end()) {
        findings.push_back("Falta a coluna " + label + ".");
        return;
    }
    const auto& column = found->second;
    const int length = colon == std::string::npos ? 0 : std::stoi(word.substr(colon + 1));
    if (!group.fits(column) || (group.wide && column.type != ColumnType::Whole64))
        findings.push_back("A coluna " + label + " não tem o tipo de que o módulo precisa: " + group.wanted + ".");
    else if (column.length < length)
        findings.push_back("A coluna " + label + " é curta para o que o módulo grava: tem " +
                           std::to_string(column.length) + " caracteres e precisa de " + std::to_string(length) + ".");
    else
        return;
    table.columns.erase(found);
}

void checkKind(const ExpectedTable& table, TableKind kind, Findings& findings) {
    const std::string name(table.name);
    if (table.name == WorkTable && kind != TableKind::ClearedOnCommit)
        findings.push_back(name + " tem de ser uma tabela temporária com ON COMMIT DELETE ROWS: nada apaga as "
                                  "suas linhas, e um relatório somaria as do anterior.");
    else if (table.name != WorkTable && table.written && kind != TableKind::Stored)
        findings.push_back(name + " tem de ser uma tabela comum: o módulo grava nela.");
}

bool isNamed(const ExpectedTable& table, const std::string& column) {
    for (const auto& group : groupsOf(table))
        for (const auto& word : words(group.names))
            if (word.substr(0, word.find(':')) == column)
                return true;
    return false;
}

// Without what may differ between two texts of one expression.
std::string plain(std::string_view expression) {
    std::string text;
    for (const unsigned char c : expression)
        if (!std::isspace(c) && c != '"')
            text += static_cast<char>(std::toupper(c));
    while (text.size() > 1 && text.front() == '(' && text.back() == ')')
        text = text.substr(1, text.size() - 2);
    return text;
}

std::string columnsText(const ExpectedIndex& wanted) {
    std::string text;
    for (const auto& word : words(wanted.columns))
        if (word != "|")
            text += (text.empty() ? "" : ", ") + word;
    return wanted.nullAsZero ? "COALESCE(" + text + ", 0)" : text;
}

// Whether the index has the columns, whatever its state.
bool matches(const FoundIndex& index, const ExpectedIndex& wanted) {
    if (index.table != wanted.table || !index.ascending)
        return false;
    if (wanted.nullAsZero || !index.expression.empty())
        return wanted.nullAsZero && plain(index.expression) == plain(columnsText(wanted));
    auto next = index.columns.begin();
    std::vector<std::string> group;
    const auto groupStands = [&] {
        if (static_cast<std::size_t>(index.columns.end() - next) < group.size() ||
            !std::is_permutation(group.begin(), group.end(), next))
            return false;
        next += static_cast<std::ptrdiff_t>(group.size());
        group.clear();
        return true;
    };
    for (const auto& word : words(wanted.columns))
        if (word != "|")
            group.push_back(word);
        else if (!groupStands())
            return false;
    return groupStands();
}

void checkIndex(const ExpectedIndex& wanted, const std::vector<FoundIndex>& indexes, Findings& findings) {
    const FoundIndex* inactive = nullptr;
    for (const auto& index : indexes)
        if (matches(index, wanted)) {
            if (index.active)
                return;
            inactive = &index;
        }
    const auto place =
        std::string(wanted.table) + " (" + columnsText(wanted) + "): " + std::string(wanted.gain) + ". Execute: ";
    if (inactive) {
        findings.push_back("Está inativo o índice em " + place + "ALTER INDEX " + inactive->name + " ACTIVE;");
        return;
    }
    std::string name(wanted.name);
    while (std::any_of(indexes.begin(), indexes.end(), [&](const auto& index) { return index.name == name; }))
        name += "_2";
    findings.push_back("Falta um índice em " + place + "CREATE INDEX " + name + " ON " + std::string(wanted.table) +
                       (wanted.nullAsZero ? " COMPUTED BY (" : " (") + columnsText(wanted) + ");");
}

} // namespace

std::vector<std::string> words(std::string_view list) {
    std::istringstream in{std::string(list)};
    return {std::istream_iterator<std::string>(in), {}};
}

bool has(const Schema& schema, std::string_view table, std::string_view columns) {
    const auto found = schema.tables.find(table);
    const auto all = words(columns);
    return found != schema.tables.end() && std::all_of(all.begin(), all.end(), [&](const auto& column) {
               return found->second.columns.contains(column);
           });
}

void checkTables(Schema& schema, Findings& findings) {
    for (const auto& table : ExpectedTables) {
        const auto found = schema.tables.find(table.name);
        if (found == schema.tables.end()) {
            findings.push_back("Falta a tabela " + std::string(table.name) + ".");
            continue;
        }
        checkKind(table, found->second.kind, findings);
        for (const auto& group : groupsOf(table))
            for (const auto& word : words(group.names))
                checkColumn(word, group, found->second, table.name, findings);
    }
}

void checkInserts(const Schema& schema, Findings& findings) {
    for (const auto& table : ExpectedTables) {
        const auto found = schema.tables.find(table.name);
        if (!table.written || found == schema.tables.end())
            continue;
        for (const auto& [name, column] : found->second.columns) {
            if (column.filledOnInsert)
                continue;
            const auto label = std::string(table.name) + "." + name;
            const bool leftOut = contains(table.omitted, name) || !isNamed(table, name);
            if (table.name == ValueTable && name == ValueKey)
                findings.push_back("A chave " + label +
                                   " não é preenchida pelo banco: os totais gravam sem ela. Falta um gatilho "
                                   "BEFORE INSERT ativo, ou IDENTITY.");
            else if (column.notNull && (contains(table.nulls, name) || (leftOut && !column.hasDefault)))
                findings.push_back("A coluna " + label + " não aceita nulo, mas o módulo grava linhas sem ela.");
        }
    }
}

void checkIndexes(const Schema& schema, Findings& findings) {
    for (const auto& wanted : ExpectedIndexes) {
        // A view has no indexes of its own, and what is lacking altogether is told elsewhere.
        const auto table = schema.tables.find(wanted.table);
        std::string columns(wanted.columns);
        std::erase(columns, '|');
        if (has(schema, wanted.table, columns) && table->second.kind != TableKind::View)
            checkIndex(wanted, schema.indexes, findings);
    }
}

} // namespace suite::verify
