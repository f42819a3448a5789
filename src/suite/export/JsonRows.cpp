#include "suite/export/Formats.h"
#include "suite/export/Json.h"

namespace suite::exporting {

namespace {

// All fields of the rows that RowAt gives for 0 to count - 1.
template <class RowAt>
void writeMembers(std::ostream& out, const host::TDataSet& rows, std::size_t count, const RowAt& rowAt,
                  const char* lineBreak) {
    out << "\"dados\":" << quoteJson(rows.Nome()) << ",\"aberto\":" << jsonFlag(rows.Active()) << ",\"colunas\":[";
    const char* separator = "";
    for (const auto& field : rows.Fields()) {
        out << separator << quoteJson(field.Nome());
        separator = ",";
    }
    out << "],\"linhas\":[";
    for (std::size_t i = 0; i < count; ++i) {
        out << (i == 0 ? "" : ",") << lineBreak << '[';
        separator = "";
        for (const auto& column : rows.Colunas()) {
            out << separator << jsonValue(column.Valor(rows.LinhaDe(rowAt(i))));
            separator = ",";
        }
        out << ']';
    }
    out << ']';
}

} // namespace

void writeJson(std::ostream& out, const table::Table& table, const Heading& heading) {
    out << '{';
    writeMembers(
        out, table.dataSet(), table.lines().size(), [&](std::size_t i) { return table.lines()[i]; }, "\n");
    JsonObject criteria;
    for (const auto& [name, value] : heading.criteria)
        criteria.add(name, quoteJson(value));
    out << ",\n\"criterios\":" << criteria.text() << "}\n";
}

void writeJsonMembers(std::ostream& out, const host::TDataSet& rows) {
    writeMembers(
        out, rows, rows.RecordCount(), [](std::size_t i) { return i; }, "");
}

} // namespace suite::exporting
