#include "suite/script/ScriptReader.h"

#include <array>
#include <cstdint>
#include <utility>

namespace suite::script {

namespace {

constexpr std::string_view Blanks = " \t\r";
constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

std::string_view trim(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(Blanks), text.size()));
    return text.substr(0, text.find_last_not_of(Blanks) + 1);
}

// The code point that begins there, and how many bytes it has; 0 bytes where none begins.
std::pair<std::uint32_t, std::size_t> codePointAt(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = lead < 0x80   ? 1
                               : lead < 0xC0 ? 0
                               : lead < 0xE0 ? 2
                               : lead < 0xF0 ? 3
                               : lead < 0xF8 ? 4
                                             : 0;
    if (length == 0 || length > text.size())
        return {0, 0};
    std::uint32_t point = length == 1 ? lead : lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0U) != 0x80)
            return {0, 0};
        point = point << 6 | (byte & 0x3FU);
    }
    return {point, length};
}

// What a script types comes back in its output, which must stay UTF-8.
bool isUtf8(std::string_view text) {
    constexpr std::array<std::uint32_t, 5> Least{0, 0, 0x80, 0x800, 0x10000};
    while (!text.empty()) {
        const auto [point, length] = codePointAt(text);
        if (length == 0 || point < Least[length] || point > 0x10FFFF || (point >= 0xD800 && point < 0xE000))
            return false;
        text.remove_prefix(length);
    }
    return true;
}

} // namespace

std::vector<std::string> splitWords(std::string_view text, std::size_t most) {
    std::vector<std::string> words;
    for (text = trim(text); !text.empty(); text = trim(text)) {
        const auto end = words.size() + 1 >= most ? text.size() : std::min(text.find_first_of(Blanks), text.size());
        words.emplace_back(text.substr(0, end));
        text.remove_prefix(end);
    }
    return words;
}

const std::optional<Step>& ScriptReader::peek() {
    for (std::string text; !ahead_ && std::getline(in_, text);) {
        ++line_;
        std::string_view line = text;
        if (line_ == 1 && line.starts_with(ByteOrderMark))
            line.remove_prefix(ByteOrderMark.size());
        if (!isUtf8(line))
            throw ScriptFailure(ScriptFailure::Kind::WrongStep, line_, "O texto não é UTF-8.");
        auto words = splitWords(line, 2);
        if (words.empty() || words.front().starts_with('#'))
            continue;
        ahead_ = Step{line_, words.front(), words.size() > 1 ? words.back() : std::string()};
    }
    return ahead_;
}

std::optional<Step> ScriptReader::next() {
    peek();
    return std::exchange(ahead_, std::nullopt);
}

} // namespace suite::script
