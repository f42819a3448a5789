#include "suite/desktop/preview/PagePicture.h"

#include "suite/paint/Painting.h"

namespace suite::desktop {

QImage pictureOf(const paper::Page& page, QSize size, double scale, double ratio) {
    QImage image(size * ratio, QImage::Format_RGB32);
    paint::paintPage(
        page, {image.bits(), image.width(), image.height(), static_cast<int>(image.bytesPerLine()), scale * ratio});
    image.setDevicePixelRatio(ratio);
    return image;
}

} // namespace suite::desktop
