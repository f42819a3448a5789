#include "suite/export/Rows.h"

#include <algorithm>

namespace suite::exporting {

namespace {

std::string quoteCsv(const std::string& text) {
    if (text.find_first_of(";\"\r\n") == std::string::npos)
        return text;
    std::string quoted = "\"";
    for (const char c : text)
        quoted += c == '"' ? "\"\"" : std::string(1, c);
    return quoted + '"';
}

// Decimal places of a number column: those of its format, or as many more as its values need to lose nothing.
int placesOf(const host::TDataSet& rows, const host::TField& field) {
    const auto point = field.FormatoEdicao.find('.');
    const int scale = field.Descricao().Escala;
    int places = point == std::string::npos ? 0 : static_cast<int>(field.FormatoEdicao.size() - point - 1);
    const auto& column = rows.Colunas()[field.Indice()];
    for (std::size_t i = 0; i < column.Tamanho(); ++i) {
        const base::TDecimal value{column.Nulo(i) ? 0 : column.Unidades(i), scale};
        while (places < scale && !(value.ComEscala(places) == value))
            ++places;
    }
    return places;
}

struct Column {
    const host::TField* field;
    int places;
};

std::string cell(const Column& column, const base::TValor& value) {
    if (const auto* decimal = std::get_if<base::TDecimal>(&value)) {
        auto text = decimal->ComEscala(column.places).Texto();
        std::replace(text.begin(), text.end(), '.', ',');
        return text;
    }
    if (const auto* date = std::get_if<base::TDataHora>(&value))
        return date->Texto();
    return quoteCsv(TextoDe(value));
}

} // namespace

void writeCsv(std::ostream& out, const host::TDataSet& rows, std::span<const ShownColumn> shown) {
    std::vector<Column> columns;
    for (const auto& column : shown) {
        out << (columns.empty() ? "" : ";") << quoteCsv(column.title);
        const auto* field = rows.FindField(column.field);
        const bool number = field->Descricao().Tipo == host::TTipoColuna::Inteiro;
        columns.push_back({field, number ? placesOf(rows, *field) : 0});
    }
    out << '\n';
    for (std::size_t i = 0; i < rows.RecordCount(); ++i) {
        const char* separator = "";
        for (const auto& column : columns) {
            out << separator << cell(column, rows.Colunas()[column.field->Indice()].Valor(rows.LinhaDe(i)));
            separator = ";";
        }
        out << '\n';
    }
}

} // namespace suite::exporting
