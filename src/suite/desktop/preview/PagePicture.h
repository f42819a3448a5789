#pragma once

#include "paper/Page.h"

#include <QImage>
#include <QSize>

namespace suite::desktop {

// A page as a picture of that size, at so many pixels of a micrometre; ratio: device pixels of one of them.
QImage pictureOf(const paper::Page& page, QSize size, double scale, double ratio);

} // namespace suite::desktop
