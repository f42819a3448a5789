#pragma once

#include "base/Valor.h"

#include <string>
#include <string_view>
#include <vector>

namespace suite::exporting {

// A JSON string, quotes included.
std::string quoteJson(std::string_view text);
// Numbers exact with their scale, dates in ISO form, NULL as null.
std::string jsonValue(const base::TValor& value);
inline std::string jsonFlag(bool value) { return value ? "true" : "false"; }
// Empty is null.
inline std::string jsonTextOrNull(const std::string& text) { return text.empty() ? "null" : quoteJson(text); }
// [a,b] of members that are JSON already, and of texts.
std::string jsonList(const std::vector<std::string>& members);
std::string jsonTexts(const std::vector<std::string>& texts);

// An object under construction, its members in the order in which they are added.
class JsonObject {
  public:
    JsonObject& add(std::string_view key, std::string_view json);
    std::string text() const { return "{" + members_ + "}"; }
    const std::string& members() const { return members_; } // without the braces

  private:
    std::string members_;
};

} // namespace suite::exporting
