#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace suite::desktop {

// Between the toolkit's texts and the UTF-8 of everything else.
inline QString fromUtf8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string toUtf8(const QString& text) { return text.toStdString(); }
// A text of the module, in which a carriage return is a line break.
inline QString fromMessage(std::string_view text) {
    return fromUtf8(text).replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

} // namespace suite::desktop
