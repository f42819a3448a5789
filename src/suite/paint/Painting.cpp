#include "suite/paint/Painting.h"

#include "suite/paint/Letters.h"
#include "suite/paint/PagePaint.h"

#include <memory>
#include <stdexcept>

namespace suite::paint {

paper::Measure paperMeasure() {
    return [](std::string_view text, bool bold) { return letters(bold).width(text); };
}

void paintPage(const paper::Page& page, const Picture& picture) {
    const std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)> surface(
        cairo_image_surface_create_for_data(picture.pixels, CAIRO_FORMAT_RGB24, picture.width, picture.height,
                                            picture.stride),
        cairo_surface_destroy);
    const std::unique_ptr<cairo_t, decltype(&cairo_destroy)> on(cairo_create(surface.get()), cairo_destroy);
    cairo_set_source_rgb(on.get(), 1, 1, 1);
    cairo_paint(on.get());
    cairo_scale(on.get(), picture.scale, picture.scale);
    paint(on.get(), page);
    cairo_surface_flush(surface.get());
    if (const auto status = cairo_status(on.get()); status != CAIRO_STATUS_SUCCESS)
        throw std::runtime_error(std::string("a page cannot be painted: ") + cairo_status_to_string(status));
}

} // namespace suite::paint
