#include "suite/export/XlsxParts.h"

#include <algorithm>

namespace suite::exporting {

namespace {

// Nothing where it does not fit.
std::optional<base::TDecimal> plus(base::TDecimal sum, base::TDecimal part, bool minus) {
    for (auto* narrow : {&sum, &part})
        for (const int places = std::max(sum.Escala, part.Escala); narrow->Escala < places; ++narrow->Escala)
            if (__builtin_mul_overflow(narrow->Unidades, 10, &narrow->Unidades))
                return std::nullopt;
    const bool over = minus ? __builtin_sub_overflow(sum.Unidades, part.Unidades, &sum.Unidades)
                            : __builtin_add_overflow(sum.Unidades, part.Unidades, &sum.Unidades);
    return over ? std::nullopt : std::optional(sum);
}

} // namespace

XlsxParts::XlsxParts(const XlsxGrid& grid) : parts_(grid.columns.size()) {
    const auto& rows = grid.table.dataSet();
    for (std::size_t c = 0; c < grid.columns.size(); ++c)
        for (std::string_view name : grid.columns[c].shown->Parcelas) {
            const bool minus = name.starts_with('-');
            name.remove_prefix(minus ? 1 : 0);
            const auto* field = rows.FindField(name);
            if (!field || rows.Colunas()[field->Indice()].Descricao().Tipo != host::TTipoColuna::Inteiro)
                continue;
            Part part{minus, &rows.Colunas()[field->Indice()], {}, {}};
            for (std::size_t p = 0; p < grid.columns.size(); ++p)
                if (grid.columns[p].field == field->Indice()) {
                    part.place = p;
                    part.name = columnName(p);
                }
            parts_[c].push_back(std::move(part));
        }
}

std::string XlsxParts::formula(std::size_t column, const base::TDecimal& value, std::size_t row, lxw_row_t sheetRow,
                               const std::vector<host::TAparencia>& looks) const {
    if (parts_[column].empty())
        return {};
    std::string formula;
    std::optional<base::TDecimal> sum = base::TDecimal{};
    const auto number = std::to_string(sheetRow + 1);
    for (const auto& part : parts_[column]) {
        const base::TDecimal amount{part.values->Nulo(row) ? 0 : part.values->Unidades(row),
                                    part.values->Descricao().Escala};
        if (!amount.Zero() && (!part.place || looks[*part.place].Vazio || !sheetNumber(amount)))
            return {};
        sum = sum ? plus(*sum, amount, part.minus) : sum;
        if (part.place)
            formula += (part.minus ? "-" : formula.empty() ? "" : "+") + part.name + number;
    }
    return formula.empty() || sum != value ? std::string() : "=" + formula;
}

} // namespace suite::exporting
