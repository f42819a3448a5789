#include "suite/desktop/chart/ChartData.h"

#include "suite/desktop/look/Text.h"

#include <algorithm>

namespace suite::desktop {

namespace {

constexpr std::size_t MostDeviations = 12;
constexpr std::size_t LinesOfBlock = 3; // base, budget, actual

class Rows {
  public:
    explicit Rows(const host::TGrade& grid) : grid_(grid) {}

    base::TValor value(std::size_t position, std::string_view field) const {
        return grid_.Celula(position, grid_.Colunas().front()).Valor(field);
    }
    std::optional<base::TDecimal> number(std::size_t position, std::string_view field) const {
        const auto found = value(position, field);
        const auto* decimal = std::get_if<base::TDecimal>(&found);
        return decimal ? std::optional(*decimal) : std::nullopt;
    }
    std::int64_t whole(std::size_t position, std::string_view field) const {
        const auto found = number(position, field);
        return found ? found->Unidades : 0;
    }
    // A line without a mark is neither title nor analytic.
    bool analytic(std::size_t position) const {
        const auto mark = number(position, "CTATITULO");
        return mark && !(*mark == base::TDecimal{1, 0});
    }
    QString text(std::size_t position, std::string_view field) const {
        return fromUtf8(TextoDe(value(position, field))).trimmed();
    }
    bool has(std::string_view field) const { return grid_.DataSet()->FindField(field) != nullptr; }
    std::size_t count() const { return grid_.DataSet()->RecordCount(); }

    // Whether two rows are of the same line, as base, budget and actual of an account are.
    bool sameLine(std::size_t a, std::size_t b) const {
        const auto same = [&](const std::string& field) {
            return TextoDe(value(a, field)) == TextoDe(value(b, field));
        };
        return same("IDPLANO") && same("IDDEMACTOT") &&
               std::all_of(grid_.Colunas().begin(), grid_.Colunas().end(),
                           [&](const auto& column) { return !column.Identificacao || same(column.Campo); });
    }
    // "Venda de produtos · filial 1 · centro 201".
    QString nameOf(std::size_t position) const {
        auto name = text(position, "NOMECONTA");
        for (const auto& [field, caption] : {std::pair{"FILIAL", " · filial "}, {"CCUSTO", " · centro "}})
            if (const auto code = text(position, field); !code.isEmpty() && code != "0")
                name += QString::fromUtf8(caption) + code;
        return name;
    }

  private:
    const host::TGrade& grid_;
};

ChartData periodsOf(const host::TGrade& grid, const Rows& rows, std::size_t position) {
    ChartData data{rows.nameOf(position), {}, false};
    const auto first = position >= LinesOfBlock - 1 ? position - (LinesOfBlock - 1) : 0;
    const auto end = std::min(rows.count(), position + LinesOfBlock);
    for (const auto& column : grid.Colunas()) {
        if (!column.Visivel || !column.Campo.starts_with("VAL"))
            continue;
        ChartCategory category{fromUtf8(column.Titulo), {}};
        for (auto row = first; row < end; ++row)
            if (const auto kind = rows.whole(row, "TIPOLINHA"); kind >= 1 && kind <= 3 && rows.sameLine(row, position))
                category.values.push_back({static_cast<ChartKind>(kind - 1), rows.number(row, column.Campo)});
        data.categories.push_back(std::move(category));
    }
    return data;
}

ChartData deviationsOf(const Rows& rows, const std::vector<std::uint32_t>& lines) {
    struct Deviation {
        std::size_t position;
        std::int64_t size;
    };
    std::vector<Deviation> found;
    for (const auto line : lines)
        if (const auto units = rows.whole(line, "DELTAVLR"); units != 0 && rows.analytic(line))
            found.push_back({line, std::abs(units)});
    const auto shown = std::min(found.size(), MostDeviations);
    std::partial_sort(found.begin(), found.begin() + static_cast<std::ptrdiff_t>(shown), found.end(),
                      [](const auto& a, const auto& b) { return a.size > b.size; });
    found.resize(shown);
    if (found.empty())
        return {"Nenhuma conta analítica se afasta do orçado.", {}, true};
    ChartData data{"Maiores variações entre orçado e realizado", {}, true};
    for (const auto& [position, size] : found) {
        const auto kind = rows.whole(position, "DELTAVARIACAO") >= 0 ? ChartKind::Better : ChartKind::Worse;
        data.categories.push_back({rows.nameOf(position), {{kind, rows.number(position, "DELTAVLR")}}});
    }
    return data;
}

} // namespace

QString captionOf(ChartKind kind) {
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

ChartData chartOf(const host::TGrade& grid, const std::vector<std::uint32_t>& lines,
                  std::optional<std::size_t> position) {
    if (!grid.DataSet() || !grid.DataSet()->Active() || lines.empty())
        return {"Não há linhas para o gráfico.", {}, false};
    const Rows rows(grid);
    if (!rows.has("TIPOLINHA"))
        return deviationsOf(rows, lines);
    if (!position)
        return {"Escolha uma linha para ver os seus períodos.", {}, false};
    return periodsOf(grid, rows, *position);
}

} // namespace suite::desktop
