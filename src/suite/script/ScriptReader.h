#pragma once

#include <istream>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace suite::script {

// What ends a script before its last step: a step that is wrong or comes where it has no meaning, or a rule of the
// script's own that was not kept. The sentence names the line.
class ScriptFailure : public std::runtime_error {
  public:
    enum class Kind { WrongStep, Refused };
    ScriptFailure(Kind kind, int line, const std::string& sentence)
        : std::runtime_error("Linha " + std::to_string(line) + ": " + sentence), kind_(kind) {}
    Kind kind() const { return kind_; }

  private:
    Kind kind_;
};

// A step as it stands in the script: its first word, and what follows.
struct Step {
    int line = 0;
    std::string name;
    std::string rest;
};

// Reads a script line by line, as its steps are run: what writes the script may read the answers meanwhile.
class ScriptReader {
  public:
    explicit ScriptReader(std::istream& in) : in_(in) {}

    // Nothing at the end. A line that is not UTF-8 is a ScriptFailure.
    std::optional<Step> next();
    // The step that next will give.
    const std::optional<Step>& peek();

  private:
    std::istream& in_;
    int line_ = 0;
    std::optional<Step> ahead_;
};

// The words of a text, at most that many: the last one takes the rest.
std::vector<std::string> splitWords(std::string_view text, std::size_t most);

} // namespace suite::script
