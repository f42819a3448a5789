#include "suite/table/Chart.h"

#include "base/Texto.h"

#include <algorithm>
#include <cstdlib>

namespace suite::table {

namespace {

constexpr std::size_t MostDeviations = 12;
constexpr std::size_t LinesOfBlock = 3; // base, budget, actual

const host::TColunaGrade* columnOf(const host::TGrade& grid, host::TPapelColuna role) {
    const auto& columns = grid.Colunas();
    const auto found = std::find_if(columns.begin(), columns.end(), [&](const auto& c) { return c.Papel == role; });
    return found == columns.end() ? nullptr : &*found;
}

base::TValor valueOf(const Table& table, std::size_t position, const host::TColunaGrade& column) {
    return table.grid().Celula(position, column).Valor(column.Campo);
}

std::optional<base::TDecimal> numberOf(const Table& table, std::size_t position, const host::TColunaGrade& column) {
    const auto value = valueOf(table, position, column);
    const auto* number = std::get_if<base::TDecimal>(&value);
    return number ? std::optional(*number) : std::nullopt;
}

// "Venda de produtos · Filial 1 · C.Custo 201".
std::string nameOf(const Table& table, std::size_t position) {
    std::string name;
    if (const auto* column = columnOf(table.grid(), host::TPapelColuna::Nome))
        name = base::Trim(TextoDe(valueOf(table, position, *column)));
    for (const auto& column : table.grid().Colunas()) {
        if (column.Papel != host::TPapelColuna::Detalhe)
            continue;
        if (const auto code = base::Trim(TextoDe(valueOf(table, position, column))); !code.empty() && code != "0")
            name += " · " + column.Titulo + " " + code;
    }
    return name;
}

ChartData periodsOf(const Table& table, std::size_t position) {
    ChartData data{nameOf(table, position), {}, false};
    const auto& rows = table.dataSet();
    const auto& rule = table.rows().rule();
    const auto first = position >= LinesOfBlock - 1 ? position - (LinesOfBlock - 1) : 0;
    const auto end = std::min(rows.RecordCount(), position + LinesOfBlock);
    for (const auto& column : table.columns()) {
        if (column.shown->Papel != host::TPapelColuna::Dinheiro)
            continue;
        ChartCategory category{column.shown->Titulo, {}};
        for (auto row = first; row < end; ++row)
            if (const auto kind = rule.type(rows.LinhaDe(row));
                kind >= 1 && kind <= 3 && rule.same(rows.LinhaDe(row), rows.LinhaDe(position)))
                category.values.push_back({static_cast<ChartKind>(kind - 1), numberOf(table, row, *column.shown)});
        data.categories.push_back(std::move(category));
    }
    return data;
}

ChartData deviationsOf(const Table& table) {
    const ChartData none{"Nenhuma conta analítica se afasta do orçado.", {}, true};
    const auto* deviation = columnOf(table.grid(), host::TPapelColuna::Desvio);
    if (!deviation)
        return none;
    struct Found {
        std::size_t position;
        std::int64_t size;
    };
    std::vector<Found> found;
    const auto& rule = table.rows().rule();
    for (const auto line : table.lines())
        if (const auto number = numberOf(table, line, *deviation);
            number && !number->Zero() && rule.kind(table.dataSet().LinhaDe(line)) == Lines::Kind::Analytic)
            found.push_back({line, std::abs(number->Unidades)});
    if (found.empty())
        return none;
    const auto shown = std::min(found.size(), MostDeviations);
    std::partial_sort(found.begin(), found.begin() + static_cast<std::ptrdiff_t>(shown), found.end(),
                      [](const auto& a, const auto& b) { return a.size > b.size; });
    found.resize(shown);
    ChartData data{"Maiores variações entre orçado e realizado", {}, true};
    for (const auto& [position, size] : found) {
        const auto kind = rule.worse(table.dataSet().LinhaDe(position)) ? ChartKind::Worse : ChartKind::Better;
        data.categories.push_back({nameOf(table, position), {{kind, numberOf(table, position, *deviation)}}});
    }
    return data;
}

} // namespace

std::string captionOf(ChartKind kind) {
    switch (kind) {
    case ChartKind::Base:
        return "Base";
    case ChartKind::Budget:
        return "Orçado";
    case ChartKind::Actual:
        return "Realizado";
    case ChartKind::Better:
        return "Melhor que o orçado";
    case ChartKind::Worse:
        return "Pior que o orçado";
    }
    return {};
}

ChartData chartOf(const Table& table, std::optional<std::size_t> position) {
    if (!table.active() || table.lines().empty())
        return {"Não há linhas para o gráfico.", {}, false};
    if (!table.rows().rule().tellsTypes())
        return deviationsOf(table);
    if (!position)
        return {"Escolha uma linha para ver os seus períodos.", {}, false};
    return periodsOf(table, *position);
}

} // namespace suite::table
