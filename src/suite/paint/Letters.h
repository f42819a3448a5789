#pragma once

#include <cairo/cairo.h>

#include <memory>
#include <string_view>

namespace suite::paint {

// The letters of paper: without hints, so that a picture and a document set a text equally wide.
class Letters {
  public:
    explicit Letters(bool bold);

    cairo_font_face_t* face() const { return face_.get(); }
    static const cairo_font_options_t* options();
    double width(std::string_view text) const; // of a UTF-8 text in ems

  private:
    struct Release {
        void operator()(cairo_font_face_t* face) const { cairo_font_face_destroy(face); }
        void operator()(cairo_scaled_font_t* font) const { cairo_scaled_font_destroy(font); }
    };
    std::unique_ptr<cairo_font_face_t, Release> face_;
    std::unique_ptr<cairo_scaled_font_t, Release> reference_;
    double ascii_[128];
};

const Letters& letters(bool bold);

} // namespace suite::paint
