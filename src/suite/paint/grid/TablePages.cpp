#include "suite/paint/grid/TablePages.h"

#include "base/Texto.h"
#include "paper/Rulers.h"
#include "suite/paint/Painting.h"
#include "suite/table/Luminance.h"

#include <algorithm>
#include <cmath>

namespace suite::paint {

namespace {

using base::TAlinhamento;
using paper::shortened;
using paper::wrapped;
using Kind = TableRows::Kind;

constexpr double Point = 25'400.0 / 72; // micrometres
constexpr double Baseline = 0.95;       // below the top of a line
constexpr double TitleSize = 1.5;
constexpr double FootHeight = LineHeight + RowSpace;
constexpr double LargestHeading = 0.5; // of a page
constexpr double ThickRule = 0.07;
constexpr double ThinRule = 0.03;

constexpr base::TCor White = 0xFFFFFF;
constexpr base::TCor GroupGround = 0xDCDCDC;
constexpr base::TCor TotalGround = 0xE8E8E8;
constexpr base::TCor ThinInk = 0xC8C8C8;

constexpr base::TPapel Across{true, 10'000, 10'000, 10'000, 10'000};

} // namespace

TablePages::TablePages(const table::Table& table, const exporting::Heading& heading, const base::TPapel& sheet,
                       paper::Measure measure, Foot foot)
    : table_(table), margins_(sheet), sheet_(paper::settingOf(sheet).sheet), measure_(std::move(measure)),
      columns_(layColumns(table, measure_, (sheet_.width - sheet.Esquerda - sheet.Direita) / Point)),
      em_(columns_.fontSize * Point), width_((sheet_.width - sheet.Esquerda - sheet.Direita) / em_),
      height_((sheet_.height - sheet.Topo - sheet.Base) / em_ - FootHeight) {
    layHeading(heading);
    rows_ = layRows(table_, columns_, measure_, height_ - headingHeight(), height_);
    if (foot == Foot::None && !rows_.rows.empty() && rows_.rows.back().kind == TableRows::Kind::Total)
        rows_.rows.pop_back(); // it never stands on a page of its own
}

void TablePages::layHeading(const exporting::Heading& heading) {
    title_ = heading.title();
    auto all = heading.lines();
    std::string legend;
    for (const auto& [colour, meaning] : table_.grid().Significados)
        legend += (legend.empty() ? "" : "; ") + table::Table::signOf(meaning) + " " + meaning;
    const auto& shown = table_.columns();
    if (std::any_of(shown.begin(), shown.end(), [&](const auto& column) { return table_.showsSign(column); }))
        all.push_back("Sinais: " + legend);
    const auto most = static_cast<std::size_t>(height_ * LargestHeading / LineHeight);
    for (const auto& line : all)
        for (auto& part : wrapped(measure_, line, width_ - 2 * Padding, false))
            if (headings_.size() < most)
                headings_.push_back(std::move(part));
            else
                headings_.back() = "…";
}

double TablePages::headingHeight() const {
    return (TitleSize + static_cast<double>(headings_.size())) * LineHeight + LineHeight;
}

bool TablePages::next(paper::Page& page) {
    const auto parts = columns_.parts.size();
    if (next_ == rows_.pages.size() * parts)
        return false;
    const auto number = next_ / parts;
    const auto part = next_ % parts;
    ++next_;
    clear(page);
    page.number = static_cast<int>(next_);
    page_ = &page;
    top_ = 0;
    if (number == 0)
        setHeading(part);
    setHead(columns_.parts[part]);
    setContinued(columns_.parts[part], rows_.pages[number].continued);
    const auto end = number + 1 < rows_.pages.size() ? rows_.pages[number + 1].first : rows_.rows.size();
    for (auto row = rows_.pages[number].first; row < end; ++row)
        setRow(columns_.parts[part], rows_.rows[row]);
    setFoot(number, part);
    return true;
}

void TablePages::setHeading(std::size_t part) {
    lines({Padding, 0, width_ - 2 * Padding}, {shortened(measure_, title_, (width_ - 2 * Padding) / TitleSize, true)},
          {true}, TitleSize);
    if (part == 0)
        lines({Padding, TitleSize * LineHeight, width_ - 2 * Padding}, headings_, {});
    top_ = headingHeight();
}

void TablePages::setHead(const Part& part) {
    for (const auto& band : part.bands) {
        const auto left = part.places[band.first].left + Padding;
        const Room room{left, top_, part.places[band.first + band.count - 1].right() - Padding - left};
        if (band.caption.empty())
            continue;
        lines(room, wrapped(measure_, band.caption, room.width, true), {true, TAlinhamento::Centro});
        rule(room.left, top_ + static_cast<double>(columns_.bandLines) * LineHeight + RowSpace / 2, room.width,
             ThinRule, 0);
    }
    const auto titles = static_cast<double>(columns_.titleLines) * LineHeight;
    top_ += columns_.headHeight();
    for (const auto& place : part.places) {
        const auto title = wrapped(measure_, place.column->shown->Titulo, place.room(), true);
        const auto missing = titles - static_cast<double>(title.size()) * LineHeight; // they stand on the rule
        lines({place.left + Padding, top_ - RowSpace - titles + missing, place.room()}, title,
              {true, place.column->right() ? TAlinhamento::Direita : TAlinhamento::Esquerda});
    }
    rule(0, top_ - RowSpace / 2, part.width, ThickRule, 0);
}

void TablePages::setContinued(const Part& part, std::uint32_t group) {
    if (group == table::Rows::NoGroup)
        return;
    const Room room{Padding, top_ + RowSpace / 2, part.width - 2 * Padding};
    lines(room, {shortened(measure_, captionOfContinued(table_, group), room.width, false)}, {});
    top_ += TableRows::ContinuedHeight;
    rule(0, top_, part.width, ThinRule, ThinInk);
}

void TablePages::setRow(const Part& part, const TableRows::Row& row) {
    if (row.kind == Kind::Line)
        setLine(part, row);
    else
        setSums(part, row);
    if (row.kind == Kind::Group)
        page_->marks.push_back({static_cast<int>(table_.rows().group(row.index).level) + 1,
                                static_cast<paper::Length>(margins_.Topo + top_ * em_), captionOf(table_, row)});
    top_ += row.height();
    if (row.kind == Kind::Line)
        rule(0, top_, part.width, ThinRule, ThinInk);
}

void TablePages::setLine(const Part& part, const TableRows::Row& row) {
    for (const auto& place : part.places) {
        const auto cell = table_.cell(row.index, *place.column);
        const auto ground = cell.look.Fundo.value_or(White);
        if (cell.look.Fundo)
            fill({place.left, top_, place.width}, row.height(), ground);
        if (cell.look.Vazio)
            continue;
        const Room room{place.left + Padding, top_ + RowSpace / 2, place.room()};
        const Style style{cell.look.Negrito, place.column->right() ? TAlinhamento::Direita : TAlinhamento::Esquerda,
                          table::legible(cell.look.Fonte.value_or(0), ground)};
        if (table_.showsSign(*place.column))
            lines(room, {table::Table::signOf(table_.meaning(row.index))},
                  {style.bold, TAlinhamento::Esquerda, style.ink});
        if (place.column->right())
            lines(room, {cell.text}, style);
        else
            lines(room, wrapped(measure_, cell.text, room.width, style.bold), style);
    }
}

void TablePages::setSums(const Part& part, const TableRows::Row& row) {
    fill({0, top_, part.width}, row.height(), row.kind == Kind::Group ? GroupGround : TotalGround);
    const auto indent = indentOf(table_, row);
    const Room room{indent + Padding, top_ + RowSpace / 2, part.width - indent - 2 * Padding};
    const auto caption = captionOf(table_, row);
    if (row.lines > 1)
        lines(room, wrapped(measure_, caption, room.width, true), {true});
    else
        lines(room, {caption}, {true});
    for (const auto& place : part.places)
        lines({place.left + Padding, room.top + (row.lines - 1) * LineHeight, place.room()},
              {table_.sumText(setOf(table_, row), *place.column)}, {true, TAlinhamento::Direita});
}

void TablePages::setFoot(std::size_t page, std::size_t part) {
    const auto parts = columns_.parts.size();
    const auto number =
        "Página " + std::to_string(page * parts + part + 1) + " de " + std::to_string(rows_.pages.size() * parts);
    auto left = title_;
    if (parts > 1)
        left += " · colunas, parte " + std::to_string(part + 1) + " de " + std::to_string(parts);
    const Room room{Padding, height_ + RowSpace, width_ - 2 * Padding};
    lines(room, {number}, {false, TAlinhamento::Direita});
    lines(room, {shortened(measure_, left, room.width - measure_(number, false) - Padding, false)}, {});
}

void TablePages::lines(const Room& room, const std::vector<std::string>& lines, const Style& style, double size) {
    auto top = room.top;
    for (const auto& line : lines) {
        paper::Text text;
        text.x = across(room.left);
        text.width = across(room.left + room.width) - text.x;
        text.baseline = down(top + Baseline * size);
        text.size = static_cast<paper::Length>(std::lround(em_ * size));
        text.alignment = style.alignment;
        text.bold = style.bold;
        text.ink = style.ink;
        if (!line.empty())
            add(*page_, text, base::SemControles(line));
        top += LineHeight * size;
    }
}

void TablePages::fill(const Room& room, double height, base::TCor colour) {
    const auto left = across(room.left);
    const auto top = down(room.top);
    page_->rectangles.push_back(
        {left, top, across(room.left + room.width) - left, down(room.top + height) - top, colour});
}

void TablePages::rule(double left, double top, double width, double thick, base::TCor ink) {
    page_->lines.push_back({across(left), down(top), across(left + width), down(top),
                            static_cast<paper::Length>(std::lround(thick * em_)), ink});
}

paper::Length TablePages::across(double ems) const {
    return margins_.Esquerda + static_cast<paper::Length>(std::lround(ems * em_));
}

paper::Length TablePages::down(double ems) const {
    return margins_.Topo + static_cast<paper::Length>(std::lround(ems * em_));
}

Document documentOf(const exporting::Heading& heading) {
    std::string criteria;
    for (const auto& line : heading.lines())
        criteria += (criteria.empty() ? "" : "; ") + line;
    return {heading.title(), criteria, heading.origin.program, heading.origin.made};
}

void writeTablePdf(const table::Table& table, const std::filesystem::path& file, const exporting::Heading& heading) {
    TablePages pages(table, heading, Across, paperMeasure());
    writePdf(pages, file, documentOf(heading));
}

} // namespace suite::paint
