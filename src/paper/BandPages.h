#pragma once

#include "paper/Block.h"

#include <deque>
#include <memory>
#include <vector>

namespace paper {

// The pages of a report, one finished before the next is begun: it holds the bands of a page at most.
//
// Page header and footer stand on each page. Bands that belong together are set together: a header with what follows
// it, a footer with what it closes, and the group of a header that is kept together, as far as a page can hold them.
class BandPages final : public PageSource {
  public:
    // The report outlives the pages.
    BandPages(const base::TRelatorio& report, Measure measure);
    BandPages(const base::TRelatorio& report, Measure measure, const Setting& setting);

    Sheet sheet() const override { return sheet_; }
    bool next(Page& page) override;

  private:
    struct Piece { // a band that waits for its place
        base::TFaixa band;
        Block block;
        std::shared_ptr<const base::TFaixa> head; // of a page that begins with it
    };

    bool joins(const base::TFaixa& band) const;
    void take(base::TFaixa band);
    void place();
    void place(Piece& piece);
    void beginPage(const Piece& first);
    void endPage();
    void close(const base::TFaixa& band); // groups that are over where that band stands
    Length unitHeight() const;
    Length room() const { return bottom_ - y_; }

    const base::TDefinicaoRelatorio& report_;
    BandSetter setter_;
    Sheet sheet_;
    base::TPapel margins_;
    std::unique_ptr<base::TFluxoFaixas> bands_; // null behind the last one
    std::shared_ptr<const base::TFaixa> head_;  // that came last
    Length whole_ = 0;                          // room of a page with nothing but that
    std::vector<Piece> unit_;                   // what is set together, still to be placed
    int kept_ = 0;                              // depth of the group that unit_ keeps together, 0 for none
    std::vector<base::TFaixa> open_;            // headers to be repeated, by depth
    std::deque<Page> done_;
    Page page_;
    bool begun_ = false; // page_
    bool fresh_ = false; // and nothing but headers stands on it
    Length y_ = 0;
    Length bottom_ = 0; // of what stands above the footer
    int number_ = 0;
};

} // namespace paper
