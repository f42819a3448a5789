#pragma once

#include "paper/Page.h"

#include <vector>

namespace paper {

// How bands are set.
struct Setting {
    double lineHeight = 1.25; // in ems, likewise the rest
    double rowSpace = 0.3;
    double padding = 0.35;  // free on both sides of a text
    double baseline = 0.95; // below the upper edge of a line
    Length least = 1'235;   // size of letters: 3.5 to 8.5 points
    Length most = 2'999;
    bool oneSize = false; // titles are no larger than the rest
    Sheet sheet;          // a width of 0: as wide as the widest ruler
    base::TPapel margins;
};

// A4, as a report asks for it.
Setting settingOf(const base::TPapel& paper);
// A character an em wide, a line a row of 1000 micrometres.
Setting settingOfText();

// Where the columns of a report's rulers stand, from the left margin.
class Rulers {
  public:
    Rulers(const base::TDefinicaoRelatorio& report, const Measure& measure, const Setting& setting);

    Length size() const { return size_; }   // of the report's letters: the largest with which all samples fit
    Length width() const { return width_; } // between the margins
    Length left(const base::TLugar& place) const { return edge(place, place.Coluna); }
    Length right(const base::TLugar& place) const { return edge(place, place.Coluna + place.Colunas); }

  private:
    Length edge(const base::TLugar& place, int column) const;

    std::vector<std::vector<Length>> edges_; // of each ruler its columns', and the last one's right edge
    Length size_ = 0;
    Length width_ = 0;
};

} // namespace paper
