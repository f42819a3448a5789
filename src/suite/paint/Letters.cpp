#include "suite/paint/Letters.h"

#include <algorithm>
#include <string>

namespace suite::paint {

namespace {

constexpr double Reference = 1000; // units of an em

struct Options {
    cairo_font_options_t* const made = cairo_font_options_create();
    Options() {
        cairo_font_options_set_hint_metrics(made, CAIRO_HINT_METRICS_OFF);
        cairo_font_options_set_hint_style(made, CAIRO_HINT_STYLE_NONE);
        cairo_font_options_set_antialias(made, CAIRO_ANTIALIAS_GRAY);
    }
    ~Options() { cairo_font_options_destroy(made); }
    Options(const Options&) = delete;
    Options& operator=(const Options&) = delete;
};

double advance(cairo_scaled_font_t* font, const std::string& text) {
    cairo_text_extents_t extents;
    cairo_scaled_font_text_extents(font, text.c_str(), &extents);
    return extents.x_advance / Reference;
}

} // namespace

const cairo_font_options_t* Letters::options() {
    static const Options all;
    return all.made;
}

Letters::Letters(bool bold)
    : face_(cairo_toy_font_face_create("Liberation Sans", CAIRO_FONT_SLANT_NORMAL,
                                       bold ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL)) {
    cairo_matrix_t size;
    cairo_matrix_t identity;
    cairo_matrix_init_scale(&size, Reference, Reference);
    cairo_matrix_init_identity(&identity);
    reference_.reset(cairo_scaled_font_create(face_.get(), &size, &identity, options()));
    for (int letter = ' '; letter < 127; ++letter)
        ascii_[letter] = advance(reference_.get(), std::string(1, static_cast<char>(letter)));
    std::fill(ascii_, ascii_ + ' ', 0.0);
    ascii_[127] = 0;
}

double Letters::width(std::string_view text) const {
    double sum = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (byte < 128) {
            sum += ascii_[byte];
            continue;
        }
        auto end = i + 1; // all that is not ASCII here, at once
        while (end < text.size() && static_cast<unsigned char>(text[end]) >= 128)
            ++end;
        sum += advance(reference_.get(), std::string(text.substr(i, end - i)));
        i = end - 1;
    }
    return sum;
}

const Letters& letters(bool bold) {
    static const Letters plain(false);
    static const Letters strong(true);
    return bold ? strong : plain;
}

} // namespace suite::paint
