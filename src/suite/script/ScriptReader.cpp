#include "suite/script/ScriptReader.h"

#include "base/Texto.h"

#include <utility>

namespace suite::script {

namespace {

constexpr std::string_view Blanks = " \t\r";
constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

std::string_view trim(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(Blanks), text.size()));
    return text.substr(0, text.find_last_not_of(Blanks) + 1);
}

// What a script types comes back in its output, which must stay UTF-8.
bool isUtf8(std::string_view text) {
    while (!text.empty()) {
        const auto length = base::TamanhoDoCaractere(text);
        if (length == 0)
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
