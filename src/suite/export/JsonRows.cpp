#include "suite/export/Json.h"
#include "suite/export/Rows.h"

namespace suite::exporting {

namespace {

void writeMembers(std::ostream& out, const host::TDataSet& rows, const char* lineBreak) {
    out << "\"dados\":" << quoteJson(rows.Nome()) << ",\"aberto\":" << jsonFlag(rows.Active()) << ",\"colunas\":[";
    const char* separator = "";
    for (const auto& field : rows.Fields()) {
        out << separator << quoteJson(field.Nome());
        separator = ",";
    }
    out << "],\"linhas\":[";
    for (std::size_t i = 0; i < rows.RecordCount(); ++i) {
        out << (i == 0 ? "" : ",") << lineBreak << '[';
        separator = "";
        for (const auto& column : rows.Colunas()) {
            out << separator << jsonValue(column.Valor(rows.LinhaDe(i)));
            separator = ",";
        }
        out << ']';
    }
    out << ']';
}

} // namespace

void writeJson(std::ostream& out, const host::TDataSet& rows) {
    out << '{';
    writeMembers(out, rows, "\n");
    out << "}\n";
}

void writeJsonMembers(std::ostream& out, const host::TDataSet& rows) { writeMembers(out, rows, ""); }

} // namespace suite::exporting
