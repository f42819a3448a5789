#pragma once

#include "paper/Page.h"

#include <string>
#include <vector>

namespace paper {

// The text in lines that fit in a width of ems, broken between words where possible. One line at least.
std::vector<std::string> wrapped(const Measure& measure, std::string_view text, double width, bool bold);
// As much of the beginning as fits, with "…" behind it where that is not all.
std::string shortened(const Measure& measure, const std::string& text, double width, bool bold);

} // namespace paper
