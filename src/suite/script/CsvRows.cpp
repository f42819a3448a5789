#include "suite/script/Rows.h"

#include <algorithm>

namespace suite::script {

namespace {

std::string quoteCsv(const std::string& text) {
    if (text.find_first_of(";\"\r\n") == std::string::npos)
        return text;
    std::string quoted = "\"";
    for (const char c : text)
        quoted += c == '"' ? "\"\"" : std::string(1, c);
    return quoted + '"';
}

// With the decimals of the field's format where that loses nothing, else with all that the database holds.
std::string number(const host::TDecimal& value, const std::string& format) {
    const auto point = format.find('.');
    const int places = format.empty() ? value.Escala
                       : point == std::string::npos ? 0
                                                    : static_cast<int>(format.size() - point - 1);
    auto text = (value.ComEscala(places) == value ? value.ComEscala(places) : value).Texto();
    std::replace(text.begin(), text.end(), '.', ',');
    return text;
}

std::string cell(const host::TField& field, const host::TValor& value) {
    if (const auto* decimal = std::get_if<host::TDecimal>(&value))
        return number(*decimal, field.FormatoEdicao);
    if (const auto* date = std::get_if<host::TDataHora>(&value))
        return date->Texto();
    return quoteCsv(TextoDe(value));
}

} // namespace

void writeCsv(std::ostream& out, const host::TDataSet& rows, std::span<const ShownColumn> columns) {
    std::vector<const host::TField*> fields;
    for (const auto& column : columns) {
        out << (fields.empty() ? "" : ";") << quoteCsv(std::string(column.title));
        fields.push_back(rows.FindField(column.field));
    }
    out << "\r\n";
    for (std::size_t i = 0; i < rows.RecordCount(); ++i) {
        const char* separator = "";
        for (const auto* field : fields) {
            out << separator << cell(*field, rows.Colunas()[field->Indice()].Valor(rows.LinhaDe(i)));
            separator = ";";
        }
        out << "\r\n";
    }
}

} // namespace suite::script
