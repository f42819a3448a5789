#include "suite/paint/report/ReportText.h"

#include "base/Texto.h"
#include "paper/BandPages.h"

#include <algorithm>
#include <map>
#include <vector>

namespace suite::paint {

namespace {

constexpr paper::Length Character = 1'000;

// Characters side by side; what comes later is written over what stands there.
class Row {
  public:
    void put(std::size_t column, std::string_view text) {
        while (!text.empty()) {
            const auto size = std::max<std::size_t>(1, base::TamanhoDoCaractere(text));
            if (column >= characters_.size())
                characters_.resize(column + 1, " ");
            characters_[column++] = text.substr(0, size);
            text.remove_prefix(size);
        }
    }
    std::string text() const {
        std::string all;
        for (const auto& character : characters_)
            all += character;
        return all.substr(0, all.find_last_not_of(' ') + 1);
    }

  private:
    std::vector<std::string> characters_;
};

void writePage(std::ostream& out, const paper::Page& page) {
    std::map<paper::Length, Row> rows;
    for (const auto& text : page.texts) {
        const auto letters = page.text(text);
        const auto free = text.width / Character - static_cast<paper::Length>(base::Caracteres(letters));
        auto column = text.x / Character;
        if (text.alignment != base::TAlinhamento::Esquerda && free > 0)
            column += text.alignment == base::TAlinhamento::Direita ? free : free / 2;
        rows[text.baseline / Character].put(static_cast<std::size_t>(column), letters);
    }
    paper::Length next = 0;
    for (const auto& [number, row] : rows) {
        for (; next < number && next > 0; ++next)
            out << '\n';
        out << row.text() << '\n';
        next = number + 1;
    }
}

} // namespace

void writeText(std::ostream& out, const base::TRelatorio& report) {
    paper::BandPages pages(
        report, [](std::string_view text, bool) { return static_cast<double>(base::Caracteres(text)); },
        paper::settingOfText());
    paper::Page page;
    while (pages.next(page)) {
        if (page.number > 1)
            out << '\f';
        writePage(out, page);
    }
}

} // namespace suite::paint
