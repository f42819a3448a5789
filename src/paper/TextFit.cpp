#include "paper/TextFit.h"

#include "base/Texto.h"

#include <algorithm>

namespace paper {

namespace {

// A column is as wide as its widest text, and widths are sums of fractions.
constexpr double Tolerance = 1e-6;

// Bytes of the beginning that fit, one character at least.
std::size_t fitting(const Measure& measure, std::string_view text, double width, bool bold) {
    std::size_t size = 0;
    for (double used = 0; size < text.size();) {
        const auto next = std::max<std::size_t>(1, base::TamanhoDoCaractere(text.substr(size)));
        used += measure(text.substr(size, next), bold);
        if (used > width + Tolerance && size > 0)
            break;
        size += next;
    }
    return size;
}

} // namespace

std::vector<std::string> wrapped(const Measure& measure, std::string_view text, double width, bool bold) {
    std::vector<std::string> lines;
    while (measure(text, bold) > width + Tolerance) {
        auto size = fitting(measure, text, width, bold);
        if (size == text.size())
            break;
        if (const auto space = text.rfind(' ', size); space != std::string_view::npos && space > 0)
            size = space;
        lines.emplace_back(text.substr(0, size));
        text.remove_prefix(std::min(text.size(), text.find_first_not_of(' ', size)));
    }
    if (lines.empty() || !text.empty())
        lines.emplace_back(text);
    return lines;
}

std::string shortened(const Measure& measure, const std::string& text, double width, bool bold) {
    if (measure(text, bold) <= width + Tolerance)
        return text;
    return text.substr(0, fitting(measure, text, width - measure("…", bold), bold)) + "…";
}

} // namespace paper
