#pragma once

#include "paper/Page.h"

#include <cairo/cairo.h>

namespace suite::paint {

// What stands on a page, with a micrometre as the unit: the one way to a picture, a document and a printer.
void paint(cairo_t* on, const paper::Page& page);

} // namespace suite::paint
