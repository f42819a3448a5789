#include "suite/terminal/TableText.h"

#include "base/Texto.h"

#include <algorithm>
#include <functional>

namespace suite::terminal {

namespace {

constexpr std::size_t LeastName = 25;

std::string cut(std::string_view text, std::size_t width) {
    if (base::Caracteres(text) <= width)
        return std::string(text);
    std::size_t bytes = 0;
    for (std::size_t taken = 1; taken < width; ++taken)
        bytes += base::TamanhoDoCaractere(text.substr(bytes));
    return std::string(text.substr(0, bytes)) + "…";
}

std::string repeat(std::string_view text, std::size_t times) {
    std::string repeated;
    for (std::size_t i = 0; i < times; ++i)
        repeated += text;
    return repeated;
}

struct Column {
    const table::Column* source;
    std::string title;
    std::string total;
    std::vector<std::string> cells;
    bool speaks = false; // some cell says more than that there is nothing
    std::size_t width = 0;

    bool isName() const { return source->shown->Papel == host::TPapelColuna::Nome; }
};

Column load(const table::Table& table, const table::Column& source) {
    // "Valor" below "Valor Base" needs no line above it.
    const auto& title = source.heading == source.shown->Faixa ? source.heading : source.shown->Titulo;
    Column column{&source, base::SemControles(title), {}, {}, source.sums()};
    column.width = base::Caracteres(column.title);
    for (std::size_t i = 0; i < table.lines().size(); ++i) {
        auto text = base::SemControles(table.cell(i, source).text);
        const auto value = table.value(i, source);
        const auto* number = std::get_if<base::TDecimal>(&value);
        column.speaks = column.speaks || (number ? !number->Zero() : !text.empty());
        column.width = std::max(column.width, base::Caracteres(text));
        column.cells.push_back(std::move(text));
    }
    column.total = table.sumText(table.rows().totalSet(), source);
    column.width = std::max(column.width, column.isName() ? LeastName : base::Caracteres(column.total));
    return column;
}

std::size_t lineWidth(const std::vector<Column>& columns) {
    std::size_t width = 0;
    for (const auto& column : columns)
        width += 1 + (column.isName() ? std::min(column.width, LeastName) : column.width);
    return width == 0 ? 0 : width - 1;
}

// Leaves out what the width has no room for; returns its headings.
std::string fit(std::vector<Column>& columns, std::size_t width) {
    std::string left;
    while (lineWidth(columns) > width) {
        const auto last = std::max_element(columns.begin(), columns.end(), [](const Column& a, const Column& b) {
            return a.source->shown->Cede < b.source->shown->Cede;
        });
        if (last->source->shown->Cede == 0)
            break;
        left += (left.empty() ? "" : ", ") + base::SemControles(last->source->heading);
        columns.erase(last);
    }
    const auto used = lineWidth(columns);
    for (auto& column : columns)
        if (column.isName()) {
            const auto least = std::min(column.width, LeastName);
            column.width = std::min(column.width, least + (width > used ? width - used : 0));
        }
    return left;
}

std::string withoutEnd(std::string line) {
    line.erase(line.find_last_not_of(' ') + 1);
    return line + '\n';
}

void writeLine(std::ostream& out, const std::vector<Column>& columns,
               const std::function<std::string_view(const Column&)>& text) {
    std::string line;
    for (const auto& column : columns) {
        const auto shown = cut(text(column), column.width);
        const std::string blanks(column.width - base::Caracteres(shown), ' ');
        line += (line.empty() ? "" : " ") + (column.source->right() ? blanks + shown : shown + blanks);
    }
    out << withoutEnd(std::move(line));
}

// A line above the titles, each caption over its columns where there are several.
void writeBands(std::ostream& out, const std::vector<Column>& columns) {
    std::string line;
    bool any = false;
    for (std::size_t i = 0; i < columns.size();) {
        const auto first = i;
        const auto& caption = columns[i].source->shown->Faixa;
        auto width = columns[i].width;
        for (++i; i < columns.size() && columns[i].source->shown->Faixa == caption; ++i)
            width += 1 + columns[i].width;
        line += line.empty() ? "" : " ";
        const auto shown = base::SemControles(caption);
        const auto taken = base::Caracteres(shown) + 2;
        if (shown.empty() || i - first == 1 || taken > width) {
            line += std::string(width, ' ');
            continue;
        }
        any = true;
        const auto left = (width - taken) / 2;
        line += repeat("─", left) + " " + shown + " " + repeat("─", width - taken - left);
    }
    if (any)
        out << withoutEnd(std::move(line));
}

} // namespace

void writeTable(std::ostream& out, const table::Table& table, std::size_t width, bool bold) {
    const auto count = table.lines().size();
    if (count == 0) {
        out << "Nenhuma linha com valor.\n";
        return;
    }
    std::vector<Column> columns;
    for (const auto& source : table.columnsOfFiles())
        if (auto column = load(table, source); column.speaks)
            columns.push_back(std::move(column));
    const auto left = fit(columns, width);
    writeBands(out, columns);
    writeLine(out, columns, [](const Column& c) { return std::string_view(c.title); });
    writeLine(out, columns, [line = std::string()](const Column& c) mutable {
        line = repeat("─", c.width);
        return std::string_view(line);
    });
    for (std::size_t i = 0; i < count; ++i) {
        const auto row = table.dataSet().LinhaDe(table.lines()[i]);
        const bool title = bold && table.rows().rule().kind(row) == table::Lines::Kind::Title;
        out << (title ? "\033[1m" : "");
        writeLine(out, columns, [i](const Column& c) { return std::string_view(c.cells[i]); });
        out << (title ? "\033[0m" : "");
    }
    const auto caption = table.totalCaption(table.columnsOfFiles());
    const bool sums = std::any_of(columns.begin(), columns.end(), [](const auto& c) { return !c.total.empty(); });
    if (sums)
        writeLine(out, columns, [&](const Column& c) { return std::string_view(c.isName() ? caption : c.total); });
    out << '\n' << count << (count == 1 ? " linha." : " linhas.");
    if (!left.empty())
        out << " Não couberam: " << left << " (--formato csv mostra todas as colunas).";
    out << '\n';
    if (!sums && caption.starts_with("Sem soma"))
        out << caption << '\n';
}

} // namespace suite::terminal
