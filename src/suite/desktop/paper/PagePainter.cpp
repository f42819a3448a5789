#include "suite/desktop/paper/PagePainter.h"

#include "suite/desktop/look/CellColours.h"
#include "suite/desktop/look/Text.h"
#include "suite/desktop/paper/PaperFont.h"

#include <QPagedPaintDevice>

#include <algorithm>
#include <stdexcept>

namespace suite::desktop {

namespace {

using namespace paper;
using Kind = PaperRows::Kind;

constexpr double PointsOfInch = 72;
constexpr double Baseline = 0.95; // below the top of a line
constexpr double TitleSize = 1.5;
constexpr double FootHeight = LineHeight + RowSpace;
constexpr double LargestHeading = 0.5; // of a page
constexpr double ThickRule = 0.07;
constexpr double ThinRule = 0.03;

const QColor GroupGround(0xDC, 0xDC, 0xDC);
const QColor TotalGround(0xE8, 0xE8, 0xE8);
const QColor ThinInk(0xC8, 0xC8, 0xC8);

} // namespace

PagePainter::PagePainter(const table::Table& table, const exporting::Heading& heading, QPagedPaintDevice& device)
    : table_(table), device_(device), measure_(paperMeasure()),
      columns_(layColumns(table, measure_, device.width() * PointsOfInch / device.logicalDpiX())),
      em_(columns_.fontSize * device.logicalDpiX() / PointsOfInch), width_(device.width() / em_),
      height_(device.height() / em_ - FootHeight), palette_(paperPalette()), plain_(paperFont(false)),
      bold_(paperFont(true)), large_(bold_) {
    plain_.setPointSizeF(columns_.fontSize);
    bold_.setPointSizeF(columns_.fontSize);
    large_.setPointSizeF(columns_.fontSize * TitleSize);
    layHeading(heading);
    rows_ = layRows(table_, columns_, measure_, height_ - headingHeight(), height_);
}

void PagePainter::layHeading(const exporting::Heading& heading) {
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

double PagePainter::headingHeight() const {
    return (TitleSize + static_cast<double>(headings_.size())) * LineHeight + LineHeight;
}

void PagePainter::paint() {
    if (!painter_.begin(&device_))
        throw std::runtime_error("the PDF cannot be painted");
    for (std::size_t page = 0; page < rows_.pages.size(); ++page) {
        const auto end = page + 1 < rows_.pages.size() ? rows_.pages[page + 1].first : rows_.rows.size();
        for (std::size_t i = 0; i < columns_.parts.size(); ++i) {
            const auto& part = columns_.parts[i];
            if (page + i > 0)
                device_.newPage();
            top_ = 0;
            if (page == 0)
                paintHeading(i);
            paintHead(part);
            paintContinued(part, rows_.pages[page].continued);
            for (auto row = rows_.pages[page].first; row < end; ++row)
                paintRow(part, rows_.rows[row]);
            paintFoot(page, i);
        }
    }
    painter_.end();
}

void PagePainter::paintHeading(std::size_t part) {
    painter_.setFont(large_);
    painter_.setPen(Qt::black);
    const auto title = shortened(measure_, title_, (width_ - 2 * Padding) / TitleSize, true);
    painter_.drawText(QPointF(Padding, TitleSize * Baseline) * em_, fromUtf8(title));
    if (part == 0)
        lines({Padding, TitleSize * LineHeight, width_ - 2 * Padding}, headings_, {});
    top_ = headingHeight();
}

void PagePainter::paintHead(const Part& part) {
    for (const auto& band : part.bands) {
        const auto left = part.places[band.first].left + Padding;
        const Room room{left, top_, part.places[band.first + band.count - 1].right() - Padding - left};
        if (band.caption.empty())
            continue;
        lines(room, wrapped(measure_, band.caption, room.width, true), {true, Qt::AlignHCenter});
        rule(room.left, top_ + static_cast<double>(columns_.bandLines) * LineHeight + RowSpace / 2, room.width,
             ThinRule, Qt::black);
    }
    const auto titles = static_cast<double>(columns_.titleLines) * LineHeight;
    top_ += columns_.headHeight();
    for (const auto& place : part.places) {
        const auto title = wrapped(measure_, place.column->shown->Titulo, place.room(), true);
        const auto missing = titles - static_cast<double>(title.size()) * LineHeight; // they stand on the rule
        lines({place.left + Padding, top_ - RowSpace - titles + missing, place.room()}, title,
              {true, place.column->right() ? Qt::AlignRight : Qt::AlignLeft});
    }
    rule(0, top_ - RowSpace / 2, part.width, ThickRule, Qt::black);
}

void PagePainter::paintContinued(const Part& part, std::uint32_t group) {
    if (group == table::Rows::NoGroup)
        return;
    const Room room{Padding, top_ + RowSpace / 2, part.width - 2 * Padding};
    lines(room, {shortened(measure_, captionOfContinued(table_, group), room.width, false)}, {});
    top_ += PaperRows::ContinuedHeight;
    rule(0, top_, part.width, ThinRule, ThinInk);
}

void PagePainter::paintRow(const Part& part, const PaperRows::Row& row) {
    if (row.kind == Kind::Line)
        paintLine(part, row);
    else
        paintSums(part, row);
    top_ += row.height();
    if (row.kind == Kind::Line)
        rule(0, top_, part.width, ThinRule, ThinInk);
}

void PagePainter::paintLine(const Part& part, const PaperRows::Row& row) {
    for (const auto& place : part.places) {
        const auto cell = table_.cell(row.index, *place.column);
        const auto colours = coloursOf(cell.look, palette_);
        if (cell.look.Fundo)
            painter_.fillRect(QRectF(place.left * em_, top_ * em_, place.width * em_, row.height() * em_),
                              colours.ground);
        if (cell.look.Vazio)
            continue;
        const Room room{place.left + Padding, top_ + RowSpace / 2, place.room()};
        const Style style{cell.look.Negrito, place.column->right() ? Qt::AlignRight : Qt::AlignLeft, colours.text};
        if (table_.showsSign(*place.column))
            lines(room, {table::Table::signOf(table_.meaning(row.index))}, {style.bold, Qt::AlignLeft, style.ink});
        if (place.column->right())
            lines(room, {cell.text}, style);
        else
            lines(room, wrapped(measure_, cell.text, room.width, style.bold), style);
    }
}

void PagePainter::paintSums(const Part& part, const PaperRows::Row& row) {
    painter_.fillRect(QRectF(0, top_ * em_, part.width * em_, row.height() * em_),
                      row.kind == Kind::Group ? GroupGround : TotalGround);
    const auto indent = indentOf(table_, row);
    const Room room{indent + Padding, top_ + RowSpace / 2, part.width - indent - 2 * Padding};
    const auto caption = captionOf(table_, row);
    if (row.lines > 1)
        lines(room, wrapped(measure_, caption, room.width, true), {true});
    else
        lines(room, {caption}, {true});
    for (const auto& place : part.places)
        lines({place.left + Padding, room.top + (row.lines - 1) * LineHeight, place.room()},
              {table_.sumText(setOf(table_, row), *place.column)}, {true, Qt::AlignRight});
}

void PagePainter::paintFoot(std::size_t page, std::size_t part) {
    const auto parts = columns_.parts.size();
    const auto number =
        "Página " + std::to_string(page * parts + part + 1) + " de " + std::to_string(rows_.pages.size() * parts);
    auto left = title_;
    if (parts > 1)
        left += " · colunas, parte " + std::to_string(part + 1) + " de " + std::to_string(parts);
    const Room room{Padding, height_ + RowSpace, width_ - 2 * Padding};
    lines(room, {number}, {false, Qt::AlignRight});
    lines(room, {shortened(measure_, left, room.width - measure_(number, false) - 2, false)}, {});
}

void PagePainter::lines(const Room& room, const std::vector<std::string>& lines, const Style& style) {
    auto top = room.top;
    painter_.setFont(style.bold ? bold_ : plain_);
    painter_.setPen(style.ink);
    for (const auto& line : lines) {
        if (line.empty())
            continue;
        auto left = room.left;
        if (style.alignment != Qt::AlignLeft)
            left += (room.width - measure_(line, style.bold)) / (style.alignment == Qt::AlignRight ? 1 : 2);
        painter_.drawText(QPointF(left, top + Baseline) * em_, fromUtf8(line));
        top += LineHeight;
    }
}

void PagePainter::rule(double left, double top, double width, double thick, const QColor& ink) {
    painter_.fillRect(QRectF(left * em_, (top - thick / 2) * em_, width * em_, thick * em_), ink);
}

} // namespace suite::desktop
