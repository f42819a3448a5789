#include "paper/Page.h"

namespace paper {

void add(Page& page, Text text, std::string_view letters) {
    text.first = static_cast<std::uint32_t>(page.letters.size());
    text.length = static_cast<std::uint32_t>(letters.size());
    page.letters += letters;
    page.texts.push_back(text);
}

void clear(Page& page) {
    page.rectangles.clear();
    page.lines.clear();
    page.texts.clear();
    page.marks.clear();
    page.letters.clear();
}

} // namespace paper
