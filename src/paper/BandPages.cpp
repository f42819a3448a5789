#include "paper/BandPages.h"

#include <algorithm>

namespace paper {

namespace {

using base::TEspecieFaixa;

bool heads(const base::TFaixa& band) { return band.Especie == TEspecieFaixa::CabecalhoGrupo; }
bool closes(const base::TFaixa& band) {
    return band.Especie == TEspecieFaixa::RodapeGrupo || band.Especie == TEspecieFaixa::Sumario;
}

} // namespace

BandPages::BandPages(const base::TRelatorio& report, Measure measure)
    : BandPages(report, std::move(measure), settingOf(report.Definicao().Papel)) {}

BandPages::BandPages(const base::TRelatorio& report, Measure measure, const Setting& setting)
    : report_(report.Definicao()), setter_(report_, std::move(measure), setting), sheet_(setting.sheet),
      margins_(setting.margins), bands_(report.Faixas()) {
    if (sheet_.width == 0)
        sheet_.width = setter_.rulers().width() + margins_.Esquerda + margins_.Direita;
}

bool BandPages::next(Page& page) {
    base::TFaixa band;
    while (done_.empty() && bands_) {
        if (bands_->Proxima(band)) {
            take(std::move(band));
            band = {};
            continue;
        }
        bands_.reset();
        place();
        if (!begun_ && number_ == 0 && head_) // a report without a row has its page all the same
            beginPage({{}, {}, head_});
        endPage();
    }
    if (done_.empty())
        return false;
    page = std::move(done_.front());
    done_.pop_front();
    return true;
}

void BandPages::take(base::TFaixa band) {
    if (band.Especie == TEspecieFaixa::CabecalhoPagina) {
        head_ = std::make_shared<const base::TFaixa>(std::move(band));
        whole_ = sheet_.height - margins_.Topo - margins_.Base - setter_.set(*head_, 0).height -
                 setter_.set(report_.Rodape, 0).height;
        return;
    }
    if (band.Especie == TEspecieFaixa::RodapePagina) // that of the definition stands on each page
        return;
    if (!joins(band))
        place();
    if (unit_.empty() || kept_ == 0)
        kept_ = heads(band) && band.MantemJunto ? band.Nivel : 0;
    auto block = setter_.set(band, 0);
    unit_.push_back({std::move(band), std::move(block), head_});
    if (unitHeight() > whole_) // no page holds it: as it comes
        place();
}

// Whether a band is set together with those that wait.
bool BandPages::joins(const base::TFaixa& band) const {
    if (unit_.empty() || band.NovaPagina)
        return unit_.empty();
    if (heads(unit_.back().band) || closes(band))
        return true;
    return kept_ > 0 && (heads(band) ? band.Nivel > kept_ : band.Nivel >= kept_);
}

Length BandPages::unitHeight() const {
    Length height = 0;
    for (const auto& piece : unit_)
        height += piece.block.height;
    return height;
}

void BandPages::place() {
    if (unit_.empty())
        return;
    const auto& first = unit_.front();
    if (begun_ && !fresh_ && (first.band.NovaPagina || unitHeight() > room()))
        endPage();
    for (auto& piece : unit_)
        place(piece);
    unit_.clear();
    kept_ = 0;
}

void BandPages::place(Piece& piece) {
    if (begun_ && !fresh_ && piece.block.height > room())
        endPage();
    close(piece.band);
    if (!begun_)
        beginPage(piece);
    put(page_, piece.block, margins_.Esquerda, y_);
    y_ += piece.block.height;
    fresh_ = fresh_ && piece.block.height == 0;
    if (heads(piece.band) && piece.band.Repete)
        open_.push_back(std::move(piece.band));
}

// A footer still belongs to its group.
void BandPages::close(const base::TFaixa& band) {
    const auto over = [&](const base::TFaixa& header) {
        return heads(band) ? header.Nivel >= band.Nivel : header.Nivel > band.Nivel;
    };
    open_.erase(std::remove_if(open_.begin(), open_.end(), over), open_.end());
}

void BandPages::beginPage(const Piece& first) {
    begun_ = fresh_ = true;
    page_.number = ++number_;
    y_ = margins_.Topo;
    bottom_ = sheet_.height - margins_.Base - setter_.set(report_.Rodape, number_).height;
    const auto add = [&](const Block& block) {
        put(page_, block, margins_.Esquerda, y_);
        y_ += block.height;
    };
    if (first.head)
        add(setter_.set(*first.head, number_));
    for (const auto& header : open_)
        add(setter_.set(header, number_, true));
}

void BandPages::endPage() {
    if (!begun_)
        return;
    put(page_, setter_.set(report_.Rodape, number_), margins_.Esquerda, bottom_);
    done_.push_back(std::move(page_));
    page_ = {};
    begun_ = false;
}

} // namespace paper
