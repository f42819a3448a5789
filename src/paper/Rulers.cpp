#include "paper/Rulers.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <stdexcept>

namespace paper {

namespace {

constexpr Length A4Short = 210'000;
constexpr Length A4Long = 297'000;
constexpr Length Character = 1'000;
constexpr Length RowsOfText = 66 * Character;

std::vector<double> widthsOf(const base::TRegua& ruler, const Measure& measure, double padding) {
    std::vector<double> widths;
    for (const auto& column : ruler) {
        double widest = 0;
        for (const auto& sample : column.Amostras)
            widest = std::max(widest, measure(sample, true) + 2 * padding);
        widths.push_back(widest);
    }
    return widths;
}

double sum(const std::vector<double>& widths) { return std::accumulate(widths.begin(), widths.end(), 0.0); }

// Wider columns by their shares of the room, or all of them narrower where there is not enough.
void fill(std::vector<double>& widths, const base::TRegua& ruler, double room) {
    const auto used = sum(widths);
    double shares = 0;
    for (const auto& column : ruler)
        shares += column.Peso;
    for (std::size_t i = 0; i < widths.size(); ++i)
        if (used > room)
            widths[i] *= room / used;
        else if (shares > 0)
            widths[i] += (room - used) * ruler[i].Peso / shares;
}

} // namespace

Setting settingOf(const base::TPapel& paper) {
    Setting setting;
    setting.margins = paper;
    setting.sheet = paper.Paisagem ? Sheet{A4Long, A4Short} : Sheet{A4Short, A4Long};
    return setting;
}

Setting settingOfText() {
    Setting setting;
    setting.lineHeight = 1;
    setting.rowSpace = 0;
    setting.padding = 0.5;
    setting.least = setting.most = Character;
    setting.oneSize = true;
    setting.sheet = {0, RowsOfText};
    setting.margins = {false, 0, 0, 0, 0};
    return setting;
}

Rulers::Rulers(const base::TDefinicaoRelatorio& report, const Measure& measure, const Setting& setting) {
    std::vector<std::vector<double>> widths;
    double widest = 0;
    for (const auto& ruler : report.Reguas) {
        widths.push_back(widthsOf(ruler, measure, setting.padding));
        widest = std::max(widest, sum(widths.back()));
    }
    const bool natural = setting.sheet.width == 0;
    const auto room =
        natural ? widest * setting.most
                : static_cast<double>(setting.sheet.width - setting.margins.Esquerda - setting.margins.Direita);
    width_ = static_cast<Length>(std::ceil(room));
    const auto fitting = widest > 0 ? static_cast<Length>(room / widest) : setting.most;
    size_ = std::clamp(natural ? setting.most : fitting, setting.least, setting.most);
    for (std::size_t i = 0; i < widths.size(); ++i) {
        fill(widths[i], report.Reguas[i], room / size_);
        double edge = 0;
        auto& edges = edges_.emplace_back(1, 0);
        for (const auto width : widths[i])
            edges.push_back(static_cast<Length>(std::lround((edge += width) * size_)));
    }
}

Length Rulers::edge(const base::TLugar& place, int column) const {
    const auto& edges = edges_.at(place.Regua);
    if (column < 0 || static_cast<std::size_t>(column) >= edges.size())
        throw std::out_of_range("a place is not on its ruler");
    return edges[static_cast<std::size_t>(column)];
}

} // namespace paper
