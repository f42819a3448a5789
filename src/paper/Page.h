#pragma once

#include "base/Faixas.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace paper {

using Length = std::int32_t; // micrometres; a page's origin is its upper left corner

// Width of a UTF-8 text in ems: that of letters of size 1.
using Measure = std::function<double(std::string_view text, bool bold)>;

struct Sheet {
    Length width = 0;
    Length height = 0;
};

// A text in one line. Its place is given, so that a figure ends where the column ends, whatever letters paint it.
struct Text {
    Length x = 0;
    Length baseline = 0;
    Length width = 0; // of its place
    Length size = 0;  // of its letters
    base::TAlinhamento alignment = base::TAlinhamento::Esquerda;
    bool bold = false;
    base::TCor ink = 0;
    std::uint32_t first = 0; // in Page::letters
    std::uint32_t length = 0;
};

struct Line {
    Length x1 = 0;
    Length y1 = 0;
    Length x2 = 0;
    Length y2 = 0;
    Length thickness = 0;
    base::TCor ink = 0;
};

struct Rectangle {
    Length x = 0;
    Length y = 0;
    Length width = 0;
    Length height = 0;
    base::TCor fill = 0;
};

// An entry of the outline.
struct Mark {
    int level = 1; // from 1
    Length y = 0;
    std::string caption;
};

// Rectangles are painted first, then lines, then texts.
struct Page {
    int number = 0; // from 1
    std::vector<Rectangle> rectangles;
    std::vector<Line> lines;
    std::vector<Text> texts;
    std::vector<Mark> marks;
    std::string letters; // of all texts

    std::string_view text(const Text& of) const { return std::string_view(letters).substr(of.first, of.length); }
};

void add(Page& page, Text text, std::string_view letters); // first and length of the text are those of the letters
void clear(Page& page);                                    // but its number

// Pages, made one at a time.
class PageSource {
  public:
    virtual ~PageSource() = default;
    virtual Sheet sheet() const = 0;
    virtual bool next(Page& page) = 0; // writes over it; false behind the last one
};

} // namespace paper
