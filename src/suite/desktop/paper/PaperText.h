#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace suite::desktop::paper {

// Width of a UTF-8 text in ems: that of a font of size 1.
using Measure = std::function<double(std::string_view text, bool bold)>;

// In ems too: a line of text, the space between two rows, and what stands free beside a cell's text.
inline constexpr double LineHeight = 1.25;
inline constexpr double RowSpace = 0.3;
inline constexpr double Padding = 0.45;

// The text in lines that fit, broken between words where possible. One line at least.
std::vector<std::string> wrapped(const Measure& measure, std::string_view text, double width, bool bold);
// As much of the beginning as fits, with "…" behind it where that is not all.
std::string shortened(const Measure& measure, const std::string& text, double width, bool bold);

} // namespace suite::desktop::paper
