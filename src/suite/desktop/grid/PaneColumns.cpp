#include "suite/desktop/grid/PaneColumns.h"

#include "suite/desktop/look/Text.h"

#include <algorithm>
#include <optional>

namespace suite::desktop {

namespace {

constexpr const char* AccountName = "NOMECONTA";
constexpr int MoneyDecimals = 2;

std::optional<PaneColumn> describe(const host::TGrade& grid, std::size_t place) {
    const auto& column = grid.Colunas()[place];
    const auto* field = grid.DataSet()->FindField(column.Campo);
    if (!field)
        return std::nullopt;
    const auto& description = field->Descricao();
    const bool exact = description.Tipo == host::TTipoColuna::Inteiro;
    return PaneColumn{place, field->Indice(), description.Tipo != host::TTipoColuna::Texto,
                      exact && description.Escala > 0 && !column.Formato.empty() &&
                          decimalsShown(column.Formato, description.Escala) == MoneyDecimals};
}

} // namespace

std::vector<PaneColumn> columnsInView(const host::TGrade& grid) {
    std::vector<PaneColumn> columns;
    if (!grid.DataSet() || !grid.DataSet()->Active())
        return columns;
    for (std::size_t i = 0; i < grid.Colunas().size(); ++i)
        if (grid.Colunas()[i].Visivel && grid.Colunas()[i].Grupo < 0)
            if (const auto column = describe(grid, i))
                columns.push_back(*column);
    return columns;
}

std::vector<PaneColumn> columnsOfGroups(const host::TGrade& grid) {
    std::vector<PaneColumn> columns;
    if (!grid.DataSet() || !grid.DataSet()->Active())
        return columns;
    for (std::size_t i = 0; i < grid.Colunas().size(); ++i)
        if (grid.Colunas()[i].Grupo >= 0)
            if (const auto column = describe(grid, i))
                columns.push_back(*column);
    std::stable_sort(columns.begin(), columns.end(), [&](const PaneColumn& a, const PaneColumn& b) {
        return grid.Colunas()[a.place].Grupo < grid.Colunas()[b.place].Grupo;
    });
    return columns;
}

int columnsFrozen(const host::TGrade& grid, const std::vector<PaneColumn>& columns) {
    const auto& all = grid.Colunas();
    const bool marks = std::any_of(all.begin(), all.end(), [](const auto& c) { return c.Identificacao; });
    const auto end =
        marks
            ? std::find_if(columns.begin(), columns.end(), [&](auto& c) { return !all[c.place].Identificacao; })
            : std::find_if(columns.begin(), columns.end(), [&](auto& c) { return all[c.place].Campo == AccountName; });
    const auto count = static_cast<int>(end - columns.begin());
    if (marks)
        return count;
    return end == columns.end() ? 0 : count + 1;
}

std::string formatOf(const host::TGrade& grid, const PaneColumn& column) {
    const auto& own = grid.Colunas()[column.place].Formato;
    return own.empty() ? grid.DataSet()->Fields()[column.field].FormatoExibicao : own;
}

int decimalsShown(const std::string& format, int scale) {
    if (format.empty())
        return scale;
    const auto positive = format.substr(0, format.find(';'));
    const auto point = positive.find('.');
    return point == std::string::npos
               ? 0
               : static_cast<int>(
                     std::count(positive.begin() + static_cast<std::ptrdiff_t>(point), positive.end(), '0'));
}

QString fullTitle(const std::vector<host::TColunaGrade>& columns, std::size_t place) {
    std::vector<const host::TColunaGrade*> all;
    for (const auto& column : columns)
        all.push_back(&column);
    return fromUtf8(host::TituloPorExtenso(all, place));
}

bool isOffered(const std::vector<host::TColunaGrade>& columns, std::size_t place) {
    const auto& column = columns[place];
    const bool alone =
        std::count_if(columns.begin(), columns.end(), [&](const auto& c) { return c.Titulo == column.Titulo; }) == 1;
    return !column.Titulo.empty() &&
           (alone || !column.Faixa.empty() || place == 0 || !columns[place - 1].Titulo.empty());
}

std::vector<host::TColunaGrade> moved(std::vector<host::TColunaGrade> columns, std::size_t from, std::size_t to) {
    if (columns[from].Faixa != columns[to].Faixa)
        return columns;
    const auto at = [&](std::size_t place) { return columns.begin() + static_cast<std::ptrdiff_t>(place); };
    if (from < to)
        std::rotate(at(from), at(from + 1), at(to + 1));
    else
        std::rotate(at(to), at(from), at(from + 1));
    return columns;
}

std::vector<host::TColunaGrade> grouped(std::vector<host::TColunaGrade> columns, std::size_t place, bool on) {
    const int before = columns[place].Grupo;
    int levels = 0;
    for (const auto& column : columns)
        levels = std::max(levels, column.Grupo + 1);
    if (on == (before >= 0))
        return columns;
    columns[place].Grupo = on ? levels : -1;
    if (!on)
        for (auto& column : columns)
            column.Grupo -= column.Grupo > before ? 1 : 0;
    return columns;
}

} // namespace suite::desktop
