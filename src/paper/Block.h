#pragma once

#include "paper/Rulers.h"

namespace paper {

// A band as it is set: what it puts on a page, from its own upper edge and the left margin.
struct Block {
    Page piece;
    Length height = 0;
};

// Sets bands of a report one by one.
class BandSetter {
  public:
    BandSetter(const base::TDefinicaoRelatorio& report, Measure measure, const Setting& setting);

    const Rulers& rulers() const { return rulers_; }
    // On the page of that number; again: at the top of a page on which its group goes on.
    Block set(const base::TFaixa& band, int page, bool again = false) const;

  private:
    struct Row { // a line of the band
        Length top = 0;
        Length height = 0;
        double body = 1; // of its largest letters
    };
    std::vector<Row> rowsOf(const base::TFaixa& band) const;
    std::size_t linesOf(const base::TElementoFaixa& element) const;
    double bodyOf(const base::TElementoFaixa& element) const { return setting_.oneSize ? 1 : element.Corpo; }
    double roomOf(const base::TElementoFaixa& element) const; // of its text, in ems of its own letters
    void setText(Page& piece, const base::TElementoFaixa& element, const Row& row, std::string text) const;
    void setRule(Page& piece, const base::TElementoFaixa& element, const Row& row) const;

    Measure measure_;
    Setting setting_;
    Rulers rulers_;
};

// Puts a block on a page.
void put(Page& page, const Block& block, Length x, Length y);

} // namespace paper
