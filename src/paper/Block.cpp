#include "paper/Block.h"

#include "base/Texto.h"
#include "paper/TextFit.h"

#include <algorithm>
#include <cmath>

namespace paper {

namespace {

using base::TAlinhamento;
using base::TCabimento;
using base::TElementoFaixa;
using base::TEspecieElemento;

constexpr Length RuleThickness = 80;
constexpr base::TCor RuleInk = 0x808080;
constexpr base::TCor LetterInk = 0x000000;
constexpr std::size_t MostLines = 20; // of a text, far below a page
constexpr double Tolerance = 1e-6;

} // namespace

BandSetter::BandSetter(const base::TDefinicaoRelatorio& report, Measure measure, const Setting& setting)
    : measure_(std::move(measure)), setting_(setting), rulers_(report, measure_, setting) {}

double BandSetter::roomOf(const TElementoFaixa& element) const {
    const auto width = rulers_.right(element.Lugar) - rulers_.left(element.Lugar);
    return std::max(0.0, width / (rulers_.size() * bodyOf(element)) - 2 * setting_.padding / bodyOf(element));
}

std::size_t BandSetter::linesOf(const TElementoFaixa& element) const {
    if (element.Especie != TEspecieElemento::Texto)
        return 0;
    if (element.Cabimento != TCabimento::Quebra)
        return 1;
    return std::min(MostLines, wrapped(measure_, element.Texto, roomOf(element), element.Negrito).size());
}

std::vector<BandSetter::Row> BandSetter::rowsOf(const base::TFaixa& band) const {
    std::vector<Row> rows(1);
    std::vector<std::size_t> lines(1, 0); // of text; none where rules stand alone
    for (const auto& element : band.Elementos) {
        const std::size_t line = element.Lugar.Linha;
        if (line >= rows.size()) {
            rows.resize(line + 1);
            lines.resize(line + 1, 0);
        }
        lines[line] = std::max(lines[line], linesOf(element));
        rows[line].body = std::max(rows[line].body, bodyOf(element));
    }
    Length top = 0;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto ems = static_cast<double>(lines[i]) * setting_.lineHeight * rows[i].body + setting_.rowSpace;
        rows[i].top = top;
        rows[i].height = static_cast<Length>(std::lround(ems * rulers_.size()));
        top += rows[i].height;
    }
    return rows;
}

Block BandSetter::set(const base::TFaixa& band, int page, bool again) const {
    Block block;
    if (band.Elementos.empty())
        return block;
    const auto rows = rowsOf(band);
    block.height = rows.back().top + rows.back().height;
    for (const auto& element : band.Elementos) {
        const auto& row = rows[element.Lugar.Linha];
        if (element.Especie == TEspecieElemento::Forma && element.Fundo) {
            const auto left = rulers_.left(element.Lugar);
            block.piece.rectangles.push_back(
                {left, row.top, rulers_.right(element.Lugar) - left, block.height - row.top, *element.Fundo});
        } else if (element.Especie == TEspecieElemento::Texto) {
            auto text = element.Folha ? std::to_string(page) : element.Texto;
            if (again && element.Continua)
                text += " (continuação)";
            setText(block.piece, element, row, base::SemControles(text));
        } else if (element.Especie != TEspecieElemento::Forma) {
            setRule(block.piece, element, row);
        }
    }
    if (!band.Marcador.empty() && !again)
        block.piece.marks.push_back({band.Nivel, 0, base::SemControles(band.Marcador)});
    return block;
}

void BandSetter::setText(Page& piece, const TElementoFaixa& element, const Row& row, std::string text) const {
    const auto em = rulers_.size() * bodyOf(element);
    const auto padding = static_cast<Length>(std::lround(setting_.padding * rulers_.size()));
    const auto left = rulers_.left(element.Lugar);
    const auto room = roomOf(element);
    if (element.Fundo)
        piece.rectangles.push_back({left, row.top, rulers_.right(element.Lugar) - left, row.height, *element.Fundo});
    if (text.empty())
        return;
    Text set;
    set.x = left + padding;
    set.width = rulers_.right(element.Lugar) - padding - set.x;
    set.size = static_cast<Length>(std::lround(em));
    set.alignment = element.Alinhamento;
    set.bold = element.Negrito;
    set.ink = LetterInk;
    std::vector<std::string> lines;
    const auto wide = measure_(text, element.Negrito);
    if (element.Cabimento == TCabimento::Quebra) {
        lines = wrapped(measure_, text, room, element.Negrito);
    } else if (wide > room + Tolerance && element.Cabimento == TCabimento::Encolhe) {
        const auto smaller = std::max(room / wide, std::min(1.0, setting_.least / em));
        set.size = static_cast<Length>(em * smaller);
        lines.push_back(shortened(measure_, text, room / smaller, element.Negrito));
    } else {
        lines.push_back(shortened(measure_, text, room, element.Negrito));
    }
    if (lines.size() > MostLines) {
        lines.resize(MostLines);
        lines.back() += "…";
    }
    const auto ofLine = setting_.lineHeight * row.body * rulers_.size();
    auto baseline = row.top + (setting_.rowSpace / 2 + setting_.baseline * row.body) * rulers_.size();
    for (const auto& line : lines) {
        set.baseline = static_cast<Length>(std::lround(baseline));
        add(piece, set, line);
        baseline += ofLine;
    }
}

void BandSetter::setRule(Page& piece, const TElementoFaixa& element, const Row& row) const {
    const bool far = element.Alinhamento == TAlinhamento::Direita;
    const auto left = rulers_.left(element.Lugar);
    const auto right = rulers_.right(element.Lugar);
    const auto bottom = row.top + row.height;
    if (element.Especie == TEspecieElemento::FioVertical) {
        const auto x = far ? right : left;
        piece.lines.push_back({x, row.top, x, bottom, RuleThickness, RuleInk});
    } else {
        const auto y = far ? bottom : row.top;
        piece.lines.push_back({left, y, right, y, RuleThickness, RuleInk});
    }
}

void put(Page& page, const Block& block, Length x, Length y) {
    for (auto rectangle : block.piece.rectangles) {
        rectangle.x += x;
        rectangle.y += y;
        page.rectangles.push_back(rectangle);
    }
    for (auto line : block.piece.lines) {
        line.x1 += x;
        line.x2 += x;
        line.y1 += y;
        line.y2 += y;
        page.lines.push_back(line);
    }
    for (auto text : block.piece.texts) {
        const auto letters = block.piece.text(text);
        text.x += x;
        text.baseline += y;
        add(page, text, letters);
    }
    for (auto mark : block.piece.marks) {
        mark.y += y;
        page.marks.push_back(std::move(mark));
    }
}

} // namespace paper
