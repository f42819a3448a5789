#pragma once

#include "base/DataHora.h"
#include "paper/Page.h"

#include <filesystem>
#include <functional>
#include <string>

namespace suite::paint {

// Widths of the letters that pages are painted with. It may be copied, and asked in one thread at a time.
paper::Measure paperMeasure();

// A picture of a page's upper left corner, whose memory is given: rows of pixels, 0xFFRRGGBB each in the machine's
// order, as many bytes apart.
struct Picture {
    unsigned char* pixels = nullptr;
    int width = 0;
    int height = 0;
    int stride = 0;
    double scale = 1; // pixels of a micrometre of the page
};

// White, and what the page has there.
void paintPage(const paper::Page& page, const Picture& picture);

struct Document {
    std::string title;
    std::string subject; // what its rows were asked for
    std::string program;
    base::TDataHora made;
};

// All pages as a PDF with an outline, page labels and text that can be searched and copied; the same pages and document
// give the same bytes. progress is told the pages made so far and may throw to stop. Throws TFalha or
// std::system_error, and leaves the file as far as it is.
void writePdf(paper::PageSource& pages, const std::filesystem::path& file, const Document& document,
              const std::function<void(int page)>& progress = {});

} // namespace suite::paint
