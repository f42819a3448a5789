#include "suite/desktop/preview/PageMarks.h"

#include "base/Texto.h"
#include "suite/desktop/look/Text.h"
#include "suite/paint/Painting.h"

#include <algorithm>
#include <vector>

namespace suite::desktop {

namespace {

constexpr double Ascent = 0.95; // of the letters' size
constexpr double Descent = 0.25;

bool has(const paper::Page& page, std::size_t text, const std::string& wanted) {
    return base::SemAcentos(page.text(page.texts[text])).find(wanted) != std::string::npos;
}

} // namespace

QRectF placeOf(const paper::Page& page, const paper::Text& text) {
    static const auto measure = paint::paperMeasure();
    const auto width = measure(page.text(text), text.bold) * text.size;
    auto left = static_cast<double>(text.x);
    if (text.alignment == base::TAlinhamento::Direita)
        left += text.width - width;
    else if (text.alignment == base::TAlinhamento::Centro)
        left += (text.width - width) / 2;
    return {left, text.baseline - Ascent * text.size, width, (Ascent + Descent) * text.size};
}

std::optional<std::size_t> textAt(const paper::Page& page, QPointF place) {
    for (std::size_t i = 0; i < page.texts.size(); ++i)
        if (placeOf(page, page.texts[i]).contains(place))
            return i;
    return {};
}

QString lineOf(const paper::Page& page, std::size_t text) {
    std::vector<const paper::Text*> line;
    for (const auto& other : page.texts)
        if (other.baseline == page.texts[text].baseline)
            line.push_back(&other);
    std::sort(line.begin(), line.end(), [](const auto* a, const auto* b) { return a->x < b->x; });
    QStringList texts;
    for (const auto* other : line)
        texts.append(fromUtf8(page.text(*other)));
    return texts.join(QLatin1Char('\t'));
}

std::optional<std::size_t> findText(const paper::Page& page, std::size_t from, const std::string& wanted) {
    for (std::size_t i = from; i < page.texts.size(); ++i)
        if (has(page, i, wanted))
            return i;
    return {};
}

std::optional<std::size_t> findTextBack(const paper::Page& page, std::size_t before, const std::string& wanted) {
    for (std::size_t i = std::min(before, page.texts.size()); i-- > 0;)
        if (has(page, i, wanted))
            return i;
    return {};
}

} // namespace suite::desktop
