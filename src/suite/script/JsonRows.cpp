#include "suite/script/Rows.h"

#include <cstdio>

namespace suite::script {

namespace {

std::string jsonValue(const host::TValor& value) {
    if (EhNulo(value))
        return "null";
    if (std::holds_alternative<std::string>(value) || std::holds_alternative<host::TDataHora>(value))
        return quoteJson(TextoDe(value));
    return TextoDe(value);
}

} // namespace

std::string quoteJson(std::string_view text) {
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') {
            quoted += '\\';
            quoted += c;
        } else if (c == '\r') {
            quoted += "\\r";
        } else if (c == '\n') {
            quoted += "\\n";
        } else if (static_cast<unsigned char>(c) < 0x20) {
            char escape[8];
            std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(c));
            quoted += escape;
        } else {
            quoted += c;
        }
    }
    return quoted + '"';
}

void writeJson(std::ostream& out, const host::TDataSet& rows) {
    out << "{\"dados\":" << quoteJson(rows.Nome()) << ",\"aberto\":" << (rows.Active() ? "true" : "false")
        << ",\"colunas\":[";
    const char* separator = "";
    for (const auto& field : rows.Fields()) {
        out << separator << quoteJson(field.Nome());
        separator = ",";
    }
    out << "],\"linhas\":[";
    for (std::size_t i = 0; i < rows.RecordCount(); ++i) {
        out << (i == 0 ? "\n[" : ",\n[");
        separator = "";
        for (const auto& column : rows.Colunas()) {
            out << separator << jsonValue(column.Valor(rows.LinhaDe(i)));
            separator = ",";
        }
        out << ']';
    }
    out << "]}\n";
}

} // namespace suite::script
