#include "suite/table/Table.h"

#include "suite/table/Matcher.h"

#include <algorithm>
#include <cctype>
#include <memory>

namespace suite::table {

Table::Table(const host::TGrade& grid, const Wish& wish) : grid_(grid) {
    load();
    readColumns();
    arrange(wish);
}

void Table::load() { rows_.load(grid_); }

void Table::readColumns() {
    columns_ = columnsInView(grid_);
    groups_ = columnsOfGroups(grid_);
    files_ = table::columnsOfFiles(grid_);
}

void Table::arrange(const Wish& wish) {
    wish_ = wish;
    rows_.arrange(active() ? arrangement() : Rows::Arrangement{});
}

Rows::Arrangement Table::arrangement() const {
    Rows::Arrangement wanted;
    const auto& rows = dataSet();
    for (const auto& column : groups_)
        wanted.groups.push_back(column.field);
    for (const auto& sort : wish_.sorts)
        if (const auto* field = rows.FindField(sort.field))
            wanted.sorts.push_back({field->Indice(), sort.descending});
    auto matchers = std::make_shared<std::vector<Matcher>>();
    for (const auto& column : columns_) {
        if (column.sums())
            wanted.money.push_back(column.field);
        if (const auto typed = wish_.filters.find(column.shown->Campo); typed != wish_.filters.end())
            matchers->emplace_back(column, typed->second);
    }
    const bool noZeros = wish_.withoutZeros && !wanted.money.empty();
    if (matchers->empty() && !noZeros)
        return wanted;
    wanted.keeps = [&rows, matchers, noZeros, money = wanted.money](std::size_t position) {
        const auto row = rows.LinhaDe(position);
        const auto isZero = [&](std::size_t field) {
            const auto& values = rows.Colunas()[field];
            return values.Nulo(row) || values.Unidades(row) == 0;
        };
        return !(noZeros && std::all_of(money.begin(), money.end(), isZero)) &&
               std::all_of(matchers->begin(), matchers->end(), [&](const auto& matches) { return matches(row); });
    };
    return wanted;
}

bool Table::repeatsAbove(std::size_t line, const Column& column) const {
    if (!column.shown->Identificacao)
        return true;
    const auto position = lines()[line];
    const auto block = rows_.blockOf(position);
    if (block == position)
        return true;
    if (!rows_.opensGroup(line) && rows_.blockOf(lines()[line - 1]) == block)
        return true;
    return grid_.Aparencia(grid_.Celula(block, *column.shown)).Vazio;
}

host::TAparencia Table::look(std::size_t line, const Column& column, bool selected) const {
    auto look = grid_.Aparencia(grid_.Celula(lines()[line], *column.shown, selected));
    if (look.Vazio && !repeatsAbove(line, column))
        look.Vazio = false;
    return look;
}

Table::Cell Table::cell(std::size_t line, const Column& column, bool selected) const {
    Cell shown{{}, look(line, column, selected)};
    if (!shown.look.Vazio)
        shown.text = column.text(value(line, column));
    return shown;
}

base::TValor Table::value(std::size_t line, const Column& column) const {
    return column.values->Valor(dataSet().LinhaDe(lines()[line]));
}

std::string Table::captionOf(const Rows::Group& group) const {
    const auto& column = groups_[group.level];
    auto value = column.text(rows_.value(group));
    if (value.empty())
        value = "(vazio)";
    return column.heading + ": " + value + " (" + base::FormatarNumero({group.count, 0}, ",0") +
           (group.count == 1 ? " linha)" : " linhas)");
}

std::string Table::sumText(std::size_t set, const Column& column) const {
    if (!column.sums())
        return {};
    if (const auto sum = rows_.sums().sum(set, column.field))
        return base::FormatarNumero(*sum, column.digits);
    return rows_.sums().reason(set, column.field) == NoSum::TooLarge ? "—" : std::string();
}

std::string Table::reasonText(std::size_t set, const Column& column) const {
    if (!column.sums())
        return {};
    switch (rows_.sums().reason(set, column.field)) {
    case NoSum::LineTypes:
        return "Sem soma: há linhas de base, de orçado ou de realizado juntas. Filtre um só tipo de linha para somar.";
    case NoSum::Totalizers:
        return "Sem soma: os totalizadores já contêm as contas e seriam contados duas vezes.";
    case NoSum::TooLarge:
        return "Sem soma: ela, ou um dos valores, passa do que se pode mostrar com exatidão.";
    case NoSum::None:
        break;
    }
    return {};
}

std::string Table::totalCaption(const std::vector<Column>& columns) const {
    for (const auto& column : columns)
        if (auto reason = reasonText(rows_.totalSet(), column);
            !reason.empty() && sumText(rows_.totalSet(), column).empty())
            return reason;
    return rows_.rule().tellsTitles() ? "Total (contas analíticas)" : "Total";
}

std::string Table::meaning(std::size_t line) const {
    if (grid_.Significados.empty() || columns_.empty())
        return {};
    const auto look = grid_.Aparencia(grid_.Celula(lines()[line], *columns_.front().shown));
    const auto found = look.Fonte ? grid_.Significados.find(*look.Fonte) : grid_.Significados.end();
    return found == grid_.Significados.end() ? std::string() : found->second;
}

std::string Table::signOf(std::string_view meaning) {
    if (meaning.empty())
        return {};
    const auto sign = meaning.find_first_of("<>=");
    if (sign == std::string_view::npos)
        return std::string(meaning.substr(0, 2));
    return {static_cast<char>(std::toupper(static_cast<unsigned char>(meaning.front()))), meaning[sign]};
}

bool Table::showsSign(const Column& column) const {
    return !grid_.Significados.empty() && column.shown->Papel == host::TPapelColuna::PercentualDesvio;
}

std::string Table::describeFilters() const {
    std::string text;
    for (const auto& column : columns_)
        if (const auto typed = wish_.filters.find(column.shown->Campo); typed != wish_.filters.end())
            text += (text.empty() ? "" : "; ") + column.heading + ": " + typed->second;
    if (wish_.withoutZeros)
        text += std::string(text.empty() ? "" : "; ") + "sem linhas zeradas";
    return text;
}

std::string Table::describeSorts() const {
    std::string text;
    for (const auto& sort : wish_.sorts)
        for (const auto& column : grid_.Colunas())
            if (column.Campo == sort.field)
                text += (text.empty() ? "" : ", ") + headingOf(column) + (sort.descending ? " (decrescente)" : "");
    return text;
}

} // namespace suite::table
