#include "suite/export/Formats.h"

#include <algorithm>

namespace suite::exporting {

namespace {

std::string quoteCsv(std::string text) {
    if (text.find_first_of(";\"\r\n") == std::string::npos)
        return text;
    std::string quoted = "\"";
    for (const char c : text)
        quoted += c == '"' ? "\"\"" : std::string(1, c);
    return quoted + '"';
}

std::string cellOf(const base::TValor& value) {
    if (const auto* decimal = std::get_if<base::TDecimal>(&value)) {
        auto text = decimal->Texto();
        std::replace(text.begin(), text.end(), '.', ',');
        return text;
    }
    if (const auto* date = std::get_if<base::TDataHora>(&value))
        return date->Texto();
    if (const auto* text = std::get_if<std::string>(&value))
        return quoteCsv(harmless(*text));
    return TextoDe(value);
}

} // namespace

std::string harmless(std::string_view text) {
    constexpr std::string_view Formula = "=+-@\t\r";
    const bool formula = !text.empty() && Formula.find(text.front()) != std::string_view::npos;
    return (formula ? "'" : "") + std::string(text);
}

void writeCsv(std::ostream& out, const table::Table& table) {
    const auto& columns = table.columnsOfFiles();
    const char* separator = "";
    for (const auto& column : columns) {
        out << separator << quoteCsv(harmless(column.heading));
        separator = ";";
    }
    out << '\n';
    for (std::size_t i = 0; i < table.lines().size(); ++i) {
        separator = "";
        for (const auto& column : columns) {
            out << separator << cellOf(table.value(i, column));
            separator = ";";
        }
        out << '\n';
    }
}

void writeCsvHeading(std::ostream& out, const Heading& heading) {
    for (const auto& [name, value] : heading.criteria)
        out << quoteCsv(harmless(name)) << ';' << quoteCsv(harmless(value)) << '\n';
    out << '\n';
}

} // namespace suite::exporting
