#include "suite/script/GridJson.h"

#include <cstdio>

namespace suite::script {

std::string jsonColour(const std::optional<base::TCor>& value) {
    if (!value)
        return "null";
    char text[12];
    std::snprintf(text, sizeof text, "\"#%06X\"", static_cast<unsigned>(*value & 0xFFFFFFU));
    return text;
}

std::string describeColumns(const host::TGrade& grid) {
    std::vector<std::string> columns;
    for (const auto& column : grid.Colunas()) {
        exporting::JsonObject members;
        members.add("campo", exporting::quoteJson(column.Campo))
            .add("titulo", exporting::quoteJson(column.Titulo))
            .add("faixa", exporting::jsonTextOrNull(column.Faixa))
            .add("visivel", exporting::jsonFlag(column.Visivel))
            .add("formato", exporting::jsonTextOrNull(grid.FormatoDe(column)))
            .add("grupo", column.Grupo < 0 ? "null" : std::to_string(column.Grupo));
        columns.push_back(members.text());
    }
    return exporting::jsonList(columns);
}

exporting::JsonObject describeCells(const host::TGrade& grid, std::size_t row, bool selected) {
    exporting::JsonObject cells;
    for (const auto& column : grid.Colunas()) {
        const auto cell = grid.Celula(row, column, selected);
        const auto look = grid.Aparencia(cell);
        exporting::JsonObject members;
        members.add("texto", exporting::quoteJson(cell.Texto()))
            .add("negrito", exporting::jsonFlag(look.Negrito))
            .add("fonte", jsonColour(look.Fonte))
            .add("fundo", jsonColour(look.Fundo))
            .add("vazio", exporting::jsonFlag(look.Vazio));
        cells.add(column.Campo, members.text());
    }
    return cells;
}

} // namespace suite::script
