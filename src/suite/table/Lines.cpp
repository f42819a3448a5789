#include "suite/table/Lines.h"

#include <algorithm>

namespace suite::table {

namespace {

const host::TColuna* find(const host::TDataSet& rows, const std::string& name) {
    const auto* field = rows.FindField(name);
    return field ? &rows.Colunas()[field->Indice()] : nullptr;
}

const host::TColuna* findNumber(const host::TDataSet& rows, const std::string& name) {
    const auto* column = find(rows, name);
    return column && column->Descricao().Tipo == host::TTipoColuna::Inteiro ? column : nullptr;
}

} // namespace

Lines::Lines(const host::TGrade& grid) {
    const auto& rows = *grid.DataSet();
    const auto& rule = grid.Linhas;
    title_ = findNumber(rows, rule.Titulo);
    type_ = findNumber(rows, rule.Tipo);
    account_ = findNumber(rows, rule.Conta);
    sign_ = findNumber(rows, rule.Favoravel);
    level_ = find(rows, rule.Nivel);
    if (level_ && level_->Descricao().Tipo != host::TTipoColuna::Texto)
        level_ = nullptr;
    for (const auto& name : rule.Chave)
        if (const auto* column = find(rows, name))
            key_.push_back(column);
}

Lines::Kind Lines::kind(std::size_t row) const {
    if (!title_)
        return Kind::Analytic;
    if (title_->Nulo(row))
        return Kind::Unmarked;
    const base::TDecimal mark{title_->Unidades(row), title_->Descricao().Escala};
    return mark == base::TDecimal{1, 0} ? Kind::Title : Kind::Analytic;
}

int Lines::type(std::size_t row) const {
    return type_ && !type_->Nulo(row) ? static_cast<int>(type_->Unidades(row)) : 0;
}

bool Lines::holdsOthers(std::size_t row) const { return account_ && account_->Nulo(row); }

bool Lines::worse(std::size_t row) const { return sign_ && !sign_->Nulo(row) && sign_->Unidades(row) < 0; }

bool Lines::same(std::size_t a, std::size_t b) const {
    return !key_.empty() && std::all_of(key_.begin(), key_.end(), [&](auto* c) { return c->Comparar(a, b) == 0; });
}

bool Lines::follows(std::size_t above, std::size_t row) const {
    return type_ && type_->Comparar(above, row) < 0 && same(above, row);
}

bool Lines::isBelow(std::size_t above, std::size_t row) const {
    if (!level_ || level_->Nulo(above) || level_->Nulo(row))
        return false;
    const auto title = level_->Texto(above);
    const auto text = level_->Texto(row);
    return !title.empty() && text.size() > title.size() && text[title.size()] == '.' && text.starts_with(title);
}

} // namespace suite::table
