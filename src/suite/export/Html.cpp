#include "suite/export/Formats.h"
#include "suite/table/Luminance.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <map>
#include <optional>
#include <tuple>

namespace suite::exporting {

namespace {

constexpr const char* Style =
    R"(:root{color-scheme:light dark;--papel:#fff;--tinta:#1c2024;--cabeca:#e9edf2;--linha:#d5dae0;--grupo:#eef1f5}
@media screen and (prefers-color-scheme:dark){:root{--papel:#16191d;--tinta:#e4e7eb;--cabeca:#272d34;--linha:#373e46;--grupo:#20252b}}
body{margin:1rem;background:var(--papel);color:var(--tinta);font:13px/1.35 system-ui,"Segoe UI",Arial,sans-serif}
h1{margin:0 0 .3rem;font-size:1.35rem}
p{margin:.1rem 0}
table{margin-top:1rem;border-collapse:separate;border-spacing:0;font-variant-numeric:tabular-nums}
thead{position:sticky;top:0}
th,td{padding:.18rem .55rem;border-bottom:1px solid var(--linha);text-align:left;white-space:nowrap}
th{background:var(--cabeca);font-weight:600}
.f th{text-align:center;border-left:1px solid var(--linha)}
.g td{background:var(--grupo);font-weight:600}
[data-s]::before{content:attr(data-s);float:left;margin-right:.6em}
tfoot td{background:var(--cabeca);font-weight:600}
@page{size:A4 landscape;margin:1cm}
@media print{body{margin:0;font-size:7pt}thead{position:static}tr{break-inside:avoid}th,td{padding:.1rem .3rem;-webkit-print-color-adjust:exact;print-color-adjust:exact}}
)";

std::string escape(std::string_view text) {
    std::string escaped;
    for (const char c : text) {
        if (c == '&')
            escaped += "&amp;";
        else if (c == '<')
            escaped += "&lt;";
        else if (c == '>')
            escaped += "&gt;";
        else if (c == '"')
            escaped += "&quot;";
        else
            escaped += c;
    }
    return escaped;
}

std::string hex(host::TCor color) {
    char text[16];
    std::snprintf(text, sizeof text, "#%06x", static_cast<unsigned>(color & 0xFFFFFFU));
    return text;
}

// A font colour meant for paper, mixed with white until it reads on a dark ground.
host::TCor onDark(host::TCor color) {
    constexpr double Readable = 0.3;
    while (table::luminance(color) < Readable) {
        host::TCor mixed = 0;
        for (const unsigned shift : {16U, 8U, 0U}) {
            const auto part = color >> shift & 0xFFU;
            mixed |= (part + (0xFFU - part + 9) / 10) << shift;
        }
        color = mixed;
    }
    return color;
}

// The distinct looks of a grid: their rules, and which cell has which. The rule of the window is asked once a cell.
class Looks {
  public:
    Looks(const table::Table& table, const std::vector<table::Column>& columns) {
        cells_.reserve(table.lines().size() * columns.size());
        for (std::size_t i = 0; i < table.lines().size(); ++i)
            for (const auto& column : columns)
                cells_.push_back(codeOf(table.cell(i, column).look));
    }

    bool blank(std::size_t cell) const { return (cells_[cell] & 1U) != 0; }
    std::string attribute(std::size_t cell) const {
        return cells_[cell] < 2 ? "" : " class=\"c" + std::to_string(cells_[cell] / 2) + "\"";
    }
    std::string styles() const {
        std::string light;
        std::string dark;
        for (const auto& [look, code] : codes_) {
            const auto& [bold, font, ground] = look;
            const auto name = ".c" + std::to_string(code);
            std::string rule = bold ? "font-weight:700;" : "";
            if (font || ground)
                rule += "color:" + hex(font ? *font : table::luminance(*ground) > 0.2 ? 0 : 0xFFFFFF) + ";";
            if (ground)
                rule += "background:" + hex(*ground) + ";";
            if (!rule.empty())
                light += name + "{" + rule.substr(0, rule.size() - 1) + "}\n";
            if (font && !ground)
                dark += name + "{color:" + (*font == 0 ? "var(--tinta)" : hex(onDark(*font))) + "}";
        }
        return dark.empty() ? light : light + "@media screen and (prefers-color-scheme:dark){" + dark + "}\n";
    }

  private:
    using Key = std::tuple<bool, std::optional<host::TCor>, std::optional<host::TCor>>;

    std::uint32_t codeOf(const host::TAparencia& look) {
        const auto found = codes_.try_emplace({look.Negrito, look.Fonte, look.Fundo}, codes_.size()).first;
        return static_cast<std::uint32_t>(found->second * 2 + (look.Vazio ? 1 : 0));
    }

    std::map<Key, std::size_t> codes_{{Key{}, 0}}; // the plain look is 0
    std::vector<std::uint32_t> cells_;             // twice the look, one more for a blank
};

// Alignment goes by column, not by cell: it halves the file.
std::string numberStyle(const std::vector<table::Column>& columns) {
    std::string selectors;
    for (std::size_t i = 0; i < columns.size(); ++i)
        if (columns[i].right()) {
            const auto nth = ":nth-child(" + std::to_string(i + 1) + ")";
            selectors += (selectors.empty() ? "td" : ",td") + nth + ",.t " + nth;
        }
    return selectors.empty() ? "" : selectors + "{text-align:right}\n";
}

void writeHead(std::ostream& out, const std::vector<table::Column>& columns, const Looks& looks,
               const Heading& heading) {
    out << "<!DOCTYPE html>\n<html lang=\"pt-BR\">\n<head>\n<meta charset=\"utf-8\">\n"
        << "<meta name=\"viewport\" content=\"width=device-width,initial-scale=1\">\n<title>" << escape(heading.title())
        << "</title>\n<style>\n"
        << Style << numberStyle(columns) << looks.styles() << "</style>\n</head>\n<body>\n";
    out << "<h1>" << escape(heading.title()) << "</h1>\n";
    for (const auto& line : heading.lines())
        out << "<p>" << escape(line) << "</p>\n";
    out << "<table>\n<thead>\n";
    if (const auto bands = table::bandsOf(columns); !bands.empty()) {
        out << "<tr class=\"f\">";
        for (const auto& band : bands)
            out << "<th scope=\"colgroup\" colspan=\"" << band.count << "\">" << escape(band.caption) << "</th>";
        out << "</tr>\n";
    }
    out << "<tr class=\"t\">";
    for (const auto& column : columns)
        out << "<th scope=\"col\">" << escape(column.shown->Titulo) << "</th>";
    out << "</tr>\n</thead>\n";
}

// A sign before the value of a line whose colour means something, and what it means for whoever points at it.
std::string signOf(const table::Table& table, std::size_t line) {
    const auto meaning = table.meaning(line);
    return meaning.empty()
               ? ""
               : " data-s=\"" + escape(table::Table::signOf(meaning)) + "\" title=\"" + escape(meaning) + "\"";
}

// A row of sums below or above the lines that they count: the caption goes up to the first of them.
std::string sumsRow(const table::Table& table, std::size_t set, const std::string& caption) {
    const auto& columns = table.columnsOfFiles();
    std::size_t wide = 0;
    while (wide < columns.size() && table.sumText(set, columns[wide]).empty())
        ++wide;
    std::string row = "<td colspan=\"" + std::to_string(std::max<std::size_t>(wide, 1)) +
                      "\" style=\"text-align:left\">" + escape(caption) + "</td>";
    for (auto i = std::max<std::size_t>(wide, 1); i < columns.size(); ++i)
        row += "<td style=\"text-align:right\">" + table.sumText(set, columns[i]) + "</td>";
    return row + "</tr>\n";
}

} // namespace

void writeHtml(const table::Table& table, const std::filesystem::path& file, const Heading& heading) {
    const auto& columns = table.columnsOfFiles();
    const Looks looks(table, columns);
    std::ofstream out(file, std::ios::binary);
    out.exceptions(std::ios::failbit | std::ios::badbit);
    writeHead(out, columns, looks, heading);
    out << "<tbody>\n";
    std::string line;
    for (const auto entry : table.rows().unfolded()) {
        if ((entry & table::Rows::GroupBit) != 0) {
            const auto group = entry & ~table::Rows::GroupBit;
            out << "<tr class=\"g\">" << sumsRow(table, group, table.captionOf(table.rows().group(group)));
            continue;
        }
        line = "<tr>";
        auto cell = entry * columns.size();
        for (const auto& column : columns) {
            line += "<td" + looks.attribute(cell) + (table.showsSign(column) ? signOf(table, entry) : "") + ">";
            if (!looks.blank(cell++))
                line += escape(column.text(table.value(entry, column)));
            line += "</td>";
        }
        out << line << "</tr>\n";
    }
    out << "</tbody>\n";
    const auto sums = [&](const auto& column) { return column.sums(); };
    if (!table.lines().empty() && std::any_of(columns.begin(), columns.end(), sums))
        out << "<tfoot><tr>" << sumsRow(table, table.rows().totalSet(), table.totalCaption(columns)) << "</tfoot>\n";
    out << "</table>\n</body>\n</html>\n";
    out.close();
}

} // namespace suite::exporting
