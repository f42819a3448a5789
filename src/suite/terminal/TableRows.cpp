#include "suite/terminal/TableRows.h"

#include "base/FormatoNumerico.h"
#include "base/Texto.h"
#include "host/Grade.h"

#include <algorithm>
#include <functional>

namespace suite::terminal {

namespace {

constexpr const char* TotalLabel = "Total (contas analíticas)";
constexpr std::size_t LeastStretch = 25;

// Characters of a UTF-8 text; all that the database holds is one column wide.
std::size_t length(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80; }));
}

std::string cut(std::string_view text, std::size_t width) {
    if (length(text) <= width)
        return std::string(text);
    std::size_t bytes = 0;
    for (std::size_t taken = 0; bytes < text.size(); ++bytes)
        if ((static_cast<unsigned char>(text[bytes]) & 0xC0U) != 0x80 && taken++ == width - 1)
            break;
    return std::string(text.substr(0, bytes)) + "…";
}

struct Column {
    const ShownColumn* shown;
    const host::TField* field;
    std::string title;
    bool number;
    std::size_t width;
    std::vector<std::string> cells;
    std::string total;
};

enum class Mark { Title, Analytic, None };

// What a line says of itself; no mark where it holds NULL.
Mark markOf(const host::TDataSet& rows, std::size_t row) {
    const auto* field = rows.FindField("CTATITULO");
    if (!field)
        return Mark::Analytic;
    const auto value = rows.Colunas()[field->Indice()].Valor(row);
    const auto* number = std::get_if<base::TDecimal>(&value);
    if (!number)
        return Mark::None;
    return *number == base::TDecimal{1, 0} ? Mark::Title : Mark::Analytic;
}

// Money of the analytic accounts. Percentages and codes have no sum.
std::string totalOf(const host::TDataSet& rows, const host::TField& field) {
    if (!field.Nome().starts_with("VLR") && field.Nome() != "DELTAVLR")
        return {};
    base::TDecimal sum{0, field.Descricao().Escala};
    const auto& column = rows.Colunas()[field.Indice()];
    for (std::size_t i = 0; i < column.Tamanho(); ++i)
        if (markOf(rows, i) == Mark::Analytic && // an amount beyond what its column holds is NULL
            (column.Nulo(i) || __builtin_add_overflow(sum.Unidades, column.Unidades(i), &sum.Unidades)))
            return "—"; // no sum is better than a wrong one
    return base::FormatarNumero(sum, field.FormatoExibicao);
}

bool isZero(const base::TValor& value) {
    const auto* number = std::get_if<base::TDecimal>(&value);
    return number ? number->Zero() : TextoDe(value) == "0";
}

Column load(const host::TDataSet& rows, const ShownColumn& shown) {
    Column column{&shown, rows.FindField(shown.field), base::SemControles(shown.title), false, 0, {}, {}};
    column.width = length(column.title);
    const auto& cells = rows.Colunas()[column.field->Indice()];
    column.number = cells.Descricao().Tipo != host::TTipoColuna::Texto;
    for (std::size_t i = 0; i < rows.RecordCount(); ++i) {
        const auto value = cells.Valor(rows.LinhaDe(i));
        auto text = shown.zeroIsBlank && isZero(value)
                        ? std::string()
                        : base::SemControles(host::TextoExibido(value, column.field->FormatoExibicao));
        column.width = std::max(column.width, length(text));
        column.cells.push_back(std::move(text));
    }
    column.total = totalOf(rows, *column.field);
    column.width = std::max(column.width, shown.stretches ? LeastStretch : length(column.total));
    return column;
}

bool empty(const Column& column) {
    return std::all_of(column.cells.begin(), column.cells.end(), [](const auto& cell) { return cell.empty(); });
}

std::size_t lineWidth(const std::vector<Column>& columns) {
    std::size_t width = 0;
    for (const auto& column : columns)
        width += 1 + (column.shown->stretches ? std::min(column.width, LeastStretch) : column.width);
    return width == 0 ? 0 : width - 1;
}

// Leaves out what the width has no room for; returns its titles.
std::string fit(std::vector<Column>& columns, std::size_t width) {
    std::string left;
    while (lineWidth(columns) > width) {
        const auto last = std::max_element(columns.begin(), columns.end(), [](const Column& a, const Column& b) {
            return a.shown->rank < b.shown->rank;
        });
        if (last->shown->rank == 0)
            break;
        left += (left.empty() ? "" : ", ") + last->title;
        columns.erase(last);
    }
    const auto used = lineWidth(columns);
    for (auto& column : columns)
        if (column.shown->stretches) {
            const auto least = std::min(column.width, LeastStretch);
            column.width = std::min(column.width, least + (width > used ? width - used : 0));
        }
    return left;
}

void writeLine(std::ostream& out, const std::vector<Column>& columns,
               const std::function<std::string_view(const Column&)>& text) {
    std::string line;
    for (const auto& column : columns) {
        const auto shown = cut(text(column), column.width);
        const std::string blanks(column.width - length(shown), ' ');
        line += (line.empty() ? "" : " ") + (column.number ? blanks + shown : shown + blanks);
    }
    line.erase(line.find_last_not_of(' ') + 1);
    out << line << '\n';
}

} // namespace

void writeTable(std::ostream& out, const host::TDataSet& rows, std::span<const ShownColumn> shown, std::size_t width,
                bool bold) {
    if (rows.IsEmpty()) {
        out << "Nenhuma linha com valor.\n";
        return;
    }
    std::vector<Column> columns;
    for (const auto& column : shown)
        if (auto loaded = load(rows, column); !empty(loaded))
            columns.push_back(std::move(loaded));
    const auto left = fit(columns, width);
    writeLine(out, columns, [](const Column& c) { return std::string_view(c.title); });
    writeLine(out, columns, [line = std::string()](const Column& c) mutable {
        line.clear();
        for (std::size_t i = 0; i < c.width; ++i)
            line += "─";
        return std::string_view(line);
    });
    for (std::size_t i = 0; i < rows.RecordCount(); ++i) {
        const bool title = bold && markOf(rows, rows.LinhaDe(i)) == Mark::Title;
        out << (title ? "\033[1m" : "");
        writeLine(out, columns, [i](const Column& c) { return std::string_view(c.cells[i]); });
        out << (title ? "\033[0m" : "");
    }
    if (std::any_of(columns.begin(), columns.end(), [](const Column& c) { return !c.total.empty(); }))
        writeLine(out, columns, [](const Column& c) {
            return c.shown->stretches ? std::string_view(TotalLabel) : std::string_view(c.total);
        });
    out << '\n' << rows.RecordCount() << (rows.RecordCount() == 1 ? " linha." : " linhas.");
    if (!left.empty())
        out << " Não couberam: " << left << " (--formato csv mostra todas as colunas).";
    out << '\n';
}

} // namespace suite::terminal
