#include "suite/paint/grid/TableColumns.h"

#include <algorithm>
#include <cmath>

namespace suite::paint {

namespace {

constexpr double LargestFont = 9;
constexpr double LeastFont = 6;
constexpr double FontStep = 0.1;
constexpr double MostText = 26; // ems of a column of text; what is longer is wrapped
constexpr double LeastText = 13;
constexpr double MostRepeated = 0.5; // of a page, by columns that stand on each

using table::Column;

struct Widths {
    double content = 0;
    double word = 0; // the longest of the title
};

double widestWord(const paper::Measure& measure, const std::string& title) {
    double widest = 0;
    for (std::size_t from = 0; from <= title.size();) {
        const auto end = std::min(title.find(' ', from), title.size());
        widest = std::max(widest, measure(std::string_view(title).substr(from, end - from), true));
        from = end + 1;
    }
    return widest;
}

Widths measureColumn(const table::Table& table, const Column& column, const paper::Measure& measure) {
    Widths widths{0, widestWord(measure, column.shown->Titulo)};
    const auto sign = signRoom(table, column, measure);
    auto& content = widths.content;
    for (std::size_t set = 0; set <= table.rows().totalSet(); ++set)
        content = std::max(content, measure(table.sumText(set, column), true));
    for (std::size_t line = 0; line < table.lines().size(); ++line) {
        // The rule is asked only for a cell that may be wider than those before.
        if (sign + measure(column.text(table.value(line, column)), true) <= content)
            continue;
        const auto cell = table.cell(line, column);
        content = std::max(content, sign + measure(cell.text, cell.look.Negrito));
    }
    return widths;
}

class Layout {
  public:
    Layout(const table::Table& table, const paper::Measure& measure, double width)
        : columns_(table.columns()), measure_(measure), width_(width), repeated_(table::frozenOf(columns_)) {
        for (const auto& column : columns_)
            widths_.push_back(measureColumn(table, column, measure));
        // Behind them may stand what tells the rows of one line apart.
        while (repeated_ < columns_.size() && !columns_[repeated_].right() && columns_[repeated_].shown->Faixa.empty())
            ++repeated_;
        if (repeated_ == columns_.size())
            repeated_ = 0;
    }

    TableColumns lay() {
        text_ = MostText;
        const auto least = width_ / LeastFont;
        while (text_ > LeastText && total(0, columns_.size()) > least)
            text_ -= 1;
        if (total(0, columns_.size()) > least) {
            text_ = MostText;
            while (text_ > LeastText && total(0, repeated_) > least * MostRepeated)
                text_ -= 1;
            while (repeated_ > 1 && total(0, repeated_) > least * MostRepeated)
                --repeated_;
        }
        const auto parts = partsAt(LeastFont).size();
        auto size = LeastFont;
        while (size + FontStep <= LargestFont && partsAt(size + FontStep).size() == parts)
            size += FontStep;
        TableColumns result;
        result.fontSize = size;
        for (const auto& places : partsAt(size))
            result.parts.push_back(makePart(places, result));
        return result;
    }

  private:
    using Places = std::vector<std::size_t>; // of columns

    double widthOf(std::size_t place) const {
        const auto content = columns_[place].right() ? widths_[place].content : std::min(widths_[place].content, text_);
        return std::max(content, widths_[place].word) + 2 * Padding;
    }
    double total(std::size_t from, std::size_t end) const {
        double sum = 0;
        for (; from < end; ++from)
            sum += widthOf(from);
        return sum;
    }
    // A percentage stays beside the amount that it belongs to.
    std::size_t endOfUnit(std::size_t place) const {
        auto end = place + 1;
        while (end < columns_.size() && columns_[end].shown->Papel == host::TPapelColuna::Percentual)
            ++end;
        return end;
    }
    std::vector<Places> partsAt(double size) const {
        const auto room = width_ / size;
        Places repeated;
        for (std::size_t i = 0; i < repeated_; ++i)
            repeated.push_back(i);
        std::vector<Places> parts{repeated};
        double used = total(0, repeated_);
        for (auto place = repeated_; place < columns_.size();) {
            const auto end = endOfUnit(place);
            const auto wide = total(place, end);
            if (used + wide > room && parts.back().size() > repeated_) {
                parts.push_back(repeated);
                used = total(0, repeated_);
            }
            used += wide;
            for (; place < end; ++place)
                parts.back().push_back(place);
        }
        return parts;
    }
    TableColumns::Part makePart(const Places& places, TableColumns& all) const {
        TableColumns::Part part;
        std::vector<Column> shown;
        for (const auto place : places) {
            const auto& column = columns_[place];
            part.places.push_back({&column, part.width, widthOf(place)});
            part.width += widthOf(place);
            shown.push_back(column);
            all.titleLines = std::max(
                all.titleLines, paper::wrapped(measure_, column.shown->Titulo, part.places.back().room(), true).size());
        }
        part.bands = table::bandsOf(shown);
        for (const auto& band : part.bands) {
            const auto room = part.places[band.first + band.count - 1].right() - part.places[band.first].left;
            all.bandLines =
                std::max(all.bandLines, paper::wrapped(measure_, band.caption, room - 2 * Padding, true).size());
        }
        return part;
    }

    const std::vector<Column>& columns_;
    const paper::Measure& measure_;
    double width_;
    std::size_t repeated_;
    std::vector<Widths> widths_;
    double text_ = MostText;
};

} // namespace

double TableColumns::headHeight() const {
    return static_cast<double>(bandLines + titleLines) * LineHeight + (bandLines > 0 ? 2 : 1) * RowSpace;
}

double signRoom(const table::Table& table, const Column& column, const paper::Measure& measure) {
    return table.showsSign(column) ? measure("MM", true) : 0;
}

TableColumns layColumns(const table::Table& table, const paper::Measure& measure, double width) {
    return Layout(table, measure, width).lay();
}

} // namespace suite::paint
