#include "suite/paint/PagePaint.h"

#include "suite/paint/Letters.h"

#include <string>

namespace suite::paint {

namespace {

using base::TAlinhamento;

void setInk(cairo_t* on, base::TCor colour) {
    constexpr double Full = 255;
    cairo_set_source_rgb(on, (colour >> 16 & 0xFF) / Full, (colour >> 8 & 0xFF) / Full, (colour & 0xFF) / Full);
}

double startOf(const paper::Text& text, std::string_view letters) {
    if (text.alignment == TAlinhamento::Esquerda)
        return text.x;
    const auto room = text.width - paint::letters(text.bold).width(letters) * text.size;
    return text.x + (text.alignment == TAlinhamento::Direita ? room : room / 2);
}

// Glyphs with the text that they say: so a document can be searched and copied.
void paintText(cairo_t* on, const paper::Text& text, std::string_view letters) {
    const std::string bytes(letters);
    cairo_glyph_t* glyphs = nullptr;
    int glyphCount = 0;
    cairo_text_cluster_t* clusters = nullptr;
    int clusterCount = 0;
    cairo_text_cluster_flags_t flags{};
    if (cairo_scaled_font_text_to_glyphs(cairo_get_scaled_font(on), startOf(text, letters), text.baseline,
                                         bytes.c_str(), static_cast<int>(bytes.size()), &glyphs, &glyphCount, &clusters,
                                         &clusterCount, &flags) == CAIRO_STATUS_SUCCESS)
        cairo_show_text_glyphs(on, bytes.c_str(), static_cast<int>(bytes.size()), glyphs, glyphCount, clusters,
                               clusterCount, flags);
    cairo_glyph_free(glyphs);
    cairo_text_cluster_free(clusters);
}

} // namespace

void paint(cairo_t* on, const paper::Page& page) {
    for (const auto& rectangle : page.rectangles) {
        setInk(on, rectangle.fill);
        cairo_rectangle(on, rectangle.x, rectangle.y, rectangle.width, rectangle.height);
        cairo_fill(on);
    }
    for (const auto& line : page.lines) {
        setInk(on, line.ink);
        cairo_set_line_width(on, line.thickness);
        cairo_move_to(on, line.x1, line.y1);
        cairo_line_to(on, line.x2, line.y2);
        cairo_stroke(on);
    }
    cairo_set_font_options(on, Letters::options());
    const paper::Text* before = nullptr;
    for (const auto& text : page.texts) {
        const auto letters = page.text(text);
        if (letters.empty())
            continue;
        if (!before || before->bold != text.bold)
            cairo_set_font_face(on, paint::letters(text.bold).face());
        if (!before || before->size != text.size)
            cairo_set_font_size(on, text.size);
        before = &text;
        setInk(on, text.ink);
        paintText(on, text, letters);
    }
}

} // namespace suite::paint
