#include "suite/table/Columns.h"

#include <algorithm>
#include <optional>
#include <set>

namespace suite::table {

namespace {

std::optional<Column> describe(const host::TGrade& grid, std::size_t place) {
    const auto& shown = grid.Colunas()[place];
    const auto* field = grid.DataSet()->FindField(shown.Campo);
    if (!field)
        return std::nullopt;
    const auto& values = grid.DataSet()->Colunas()[field->Indice()];
    auto format = grid.FormatoDe(shown);
    const base::TFormatoNumerico digits(format, values.Descricao().Escala);
    return Column{&shown, &values, place, field->Indice(), std::move(format), digits, headingOf(shown)};
}

template <class Wanted>
std::vector<Column> columnsWhere(const host::TGrade& grid, Wanted wanted) {
    std::vector<Column> columns;
    if (!grid.DataSet() || !grid.DataSet()->Active())
        return columns;
    for (std::size_t i = 0; i < grid.Colunas().size(); ++i)
        if (wanted(grid.Colunas()[i]))
            if (auto column = describe(grid, i))
                columns.push_back(std::move(*column));
    std::set<std::string> taken;
    for (auto& column : columns) {
        const auto plain = column.heading;
        for (int again = 2; !taken.insert(column.heading).second; ++again)
            column.heading = plain + " (" + std::to_string(again) + ")";
    }
    return columns;
}

} // namespace

bool Column::sums() const {
    using host::TPapelColuna;
    const auto role = shown->Papel;
    return type() == host::TTipoColuna::Inteiro &&
           (role == TPapelColuna::Dinheiro || role == TPapelColuna::Total || role == TPapelColuna::Desvio);
}

std::string Column::text(const base::TValor& value) const {
    const auto* number = std::get_if<base::TDecimal>(&value);
    return number ? base::FormatarNumero(*number, digits) : host::TextoExibido(value, {});
}

std::vector<Column> columnsInView(const host::TGrade& grid) {
    return columnsWhere(grid, [](const auto& c) { return c.Visivel && c.Grupo < 0; });
}

std::vector<Column> columnsOfGroups(const host::TGrade& grid) {
    auto columns = columnsWhere(grid, [](const auto& c) { return c.Grupo >= 0; });
    std::stable_sort(columns.begin(), columns.end(),
                     [](const Column& a, const Column& b) { return a.shown->Grupo < b.shown->Grupo; });
    return columns;
}

std::vector<Column> columnsOfFiles(const host::TGrade& grid) {
    return columnsWhere(grid, [](const auto& c) { return c.Visivel || c.Grupo >= 0; });
}

std::size_t frozenOf(const std::vector<Column>& columns) {
    const auto end =
        std::find_if(columns.begin(), columns.end(), [](const auto& c) { return !c.shown->Identificacao; });
    return static_cast<std::size_t>(end - columns.begin());
}

std::vector<Band> bandsOf(const std::vector<Column>& columns) {
    if (std::all_of(columns.begin(), columns.end(), [](const auto& c) { return c.shown->Faixa.empty(); }))
        return {};
    std::vector<Band> bands;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const auto& caption = columns[i].shown->Faixa;
        if (bands.empty() || bands.back().caption != caption)
            bands.push_back({caption, i, 0});
        ++bands.back().count;
    }
    return bands;
}

std::string headingOf(const host::TColunaGrade& column) {
    const auto& title = column.Extenso.empty() ? column.Titulo : column.Extenso;
    if (column.Faixa.empty() || title.starts_with(column.Faixa))
        return title;
    return column.Faixa.starts_with(title) ? column.Faixa : column.Faixa + " " + title;
}

bool isOffered(const std::vector<host::TColunaGrade>& columns, std::size_t place) {
    const auto& column = columns[place];
    const bool alone =
        std::count_if(columns.begin(), columns.end(), [&](const auto& c) { return c.Titulo == column.Titulo; }) == 1;
    return !column.Titulo.empty() &&
           (alone || !column.Faixa.empty() || place == 0 || !columns[place - 1].Titulo.empty());
}

} // namespace suite::table
