#include "suite/paint/report/ReportHtml.h"

#include "base/Texto.h"
#include "paper/Rulers.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace suite::paint {

namespace {

using base::TAlinhamento;
using base::TElementoFaixa;
using base::TEspecieElemento;
using base::TEspecieFaixa;

constexpr const char* Style =
    R"(body{margin:1rem;background:#fff;color:#000;font:13px/1.3 system-ui,"Segoe UI",Arial,sans-serif}
table{border-collapse:collapse;font-variant-numeric:tabular-nums}
td{padding:.1rem .35rem;vertical-align:top;white-space:nowrap}
.q{white-space:normal}
.d{text-align:right}
.c{text-align:center}
.n{font-weight:600}
.t td{border-top:1px solid #888}
.b td{border-bottom:1px solid #888}
.v{border-left:1px solid #888}
@page{size:A4 %s;margin:1cm}
@media print{body{margin:0;font-size:7pt}tr{break-inside:avoid}td{padding:.05rem .2rem;-webkit-print-color-adjust:exact;print-color-adjust:exact}}
)";

std::string escape(std::string_view text) {
    std::string escaped;
    for (const char c : base::SemControles(text))
        escaped += c == '&' ? "&amp;" : c == '<' ? "&lt;" : c == '>' ? "&gt;" : std::string(1, c);
    return escaped;
}

std::string hex(base::TCor colour) {
    char text[16];
    std::snprintf(text, sizeof text, "#%06x", static_cast<unsigned>(colour));
    return text;
}

// A line of a band as a row.
struct Line {
    std::vector<const TElementoFaixa*> texts; // from left to right
    std::set<paper::Length> rules;            // left edges with an upright rule
    bool above = false;                       // a rule across
    bool below = false;
    const TElementoFaixa* ground = nullptr;
};

class Writer {
  public:
    Writer(std::ostream& out, const base::TDefinicaoRelatorio& report)
        : out_(out), rulers_(
                         report, [](std::string_view text, bool) { return double(base::Caracteres(text)); },
                         paper::settingOfText()) {
        std::set<paper::Length> edges;
        for (std::size_t r = 0; r < report.Reguas.size(); ++r)
            for (std::size_t c = 0; c < report.Reguas[r].size(); ++c) {
                const base::TLugar place{0, static_cast<std::uint8_t>(r), static_cast<std::uint8_t>(c), 1};
                edges.insert(rulers_.left(place));
                edges.insert(rulers_.right(place));
            }
        edges_.assign(edges.begin(), edges.end());
    }

    void write(const base::TFaixa& band) {
        std::map<int, Line> lines;
        const TElementoFaixa* ground = nullptr;
        for (const auto& element : band.Elementos) {
            auto& line = lines[element.Lugar.Linha];
            const bool far = element.Alinhamento == TAlinhamento::Direita;
            if (element.Especie == TEspecieElemento::Forma)
                ground = &element;
            else if (element.Especie == TEspecieElemento::FioHorizontal)
                (far ? line.below : line.above) = true;
            else if (element.Especie == TEspecieElemento::FioVertical)
                line.rules.insert(far ? rulers_.right(element.Lugar) : rulers_.left(element.Lugar));
            else if (!(band.Especie == TEspecieFaixa::RodapePagina && element.Lugar.Coluna > 0)) // no sheets here
                line.texts.push_back(&element);
        }
        for (auto& [number, line] : lines) {
            if (ground && number >= ground->Lugar.Linha)
                line.ground = ground;
            write(line);
        }
    }

  private:
    std::size_t columnOf(paper::Length edge) const {
        return static_cast<std::size_t>(std::lower_bound(edges_.begin(), edges_.end(), edge) - edges_.begin());
    }

    void write(Line& line) {
        std::sort(line.texts.begin(), line.texts.end(),
                  [&](const auto* a, const auto* b) { return rulers_.left(a->Lugar) < rulers_.left(b->Lugar); });
        out_ << "<tr";
        if (line.above || line.below)
            out_ << " class=\"" << (line.above ? "t" : "") << (line.above && line.below ? " " : "")
                 << (line.below ? "b" : "") << '"';
        if (line.ground && line.ground->Fundo)
            out_ << " style=\"background:" << hex(*line.ground->Fundo) << '"';
        out_ << '>';
        std::size_t column = 0;
        for (const auto* element : line.texts) {
            const auto first = columnOf(rulers_.left(element->Lugar));
            const auto last = columnOf(rulers_.right(element->Lugar));
            if (first > column)
                out_ << "<td colspan=\"" << first - column << "\"></td>";
            cell(*element, last - first, line.rules.count(edges_[first]) > 0);
            column = last;
        }
        if (column + 1 < edges_.size())
            out_ << "<td colspan=\"" << edges_.size() - 1 - column << "\"></td>";
        out_ << "</tr>\n";
    }

    void cell(const TElementoFaixa& element, std::size_t columns, bool rule) {
        std::string classes = element.Alinhamento == TAlinhamento::Direita  ? " d"
                              : element.Alinhamento == TAlinhamento::Centro ? " c"
                                                                            : "";
        classes += element.Negrito ? " n" : "";
        classes += element.Cabimento == base::TCabimento::Quebra ? " q" : "";
        classes += rule ? " v" : "";
        out_ << "<td";
        if (columns > 1)
            out_ << " colspan=\"" << columns << '"';
        if (!classes.empty())
            out_ << " class=\"" << classes.substr(1) << '"';
        if (element.Fundo)
            out_ << " style=\"background:" << hex(*element.Fundo) << '"';
        out_ << '>' << escape(element.Texto) << "</td>";
    }

    std::ostream& out_;
    paper::Rulers rulers_;
    std::vector<paper::Length> edges_; // of all rulers
};

} // namespace

void writeHtml(std::ostream& out, const base::TRelatorio& report) {
    const auto& definition = report.Definicao();
    const auto title = escape(definition.Titulo);
    char style[1024];
    std::snprintf(style, sizeof style, Style, definition.Papel.Paisagem ? "landscape" : "portrait");
    out << "<!DOCTYPE html>\n<html lang=\"pt-BR\">\n<head>\n<meta charset=\"utf-8\">\n<title>" << title
        << "</title>\n<style>\n"
        << style << "</style>\n</head>\n<body>\n<table>\n";
    Writer writer(out, definition);
    const auto bands = report.Faixas();
    for (base::TFaixa band; bands->Proxima(band);)
        writer.write(band);
    out << "</table>\n</body>\n</html>\n";
}

} // namespace suite::paint
