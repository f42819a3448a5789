#pragma once

#include "paper/Page.h"

#include <QRectF>
#include <QString>
#include <QStringList>

#include <optional>
#include <string>

namespace suite::desktop {

// Where the letters of a text stand on its page, in micrometres.
QRectF placeOf(const paper::Page& page, const paper::Text& text);

// The text that stands there.
std::optional<std::size_t> textAt(const paper::Page& page, QPointF place);
// All texts of its line from left to right, with tabs between them.
QString lineOf(const paper::Page& page, std::size_t text);

// The next text from that one on, itself included, that has the words in it, whatever their case and accents. Wanted
// has been through base::SemAcentos.
std::optional<std::size_t> findText(const paper::Page& page, std::size_t from, const std::string& wanted);
std::optional<std::size_t> findTextBack(const paper::Page& page, std::size_t before, const std::string& wanted);

} // namespace suite::desktop
