#include "suite/script/Json.h"

#include <cstdio>

namespace suite::script {

std::string quoteJson(std::string_view text) {
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') {
            quoted += '\\';
            quoted += c;
        } else if (c == '\r') {
            quoted += "\\r";
        } else if (c == '\n') {
            quoted += "\\n";
        } else if (static_cast<unsigned char>(c) < 0x20) {
            char escape[8];
            std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(c));
            quoted += escape;
        } else {
            quoted += c;
        }
    }
    return quoted + '"';
}

std::string jsonValue(const host::TValor& value) {
    if (EhNulo(value))
        return "null";
    if (std::holds_alternative<std::string>(value) || std::holds_alternative<host::TDataHora>(value))
        return quoteJson(TextoDe(value));
    return TextoDe(value);
}

std::string jsonList(const std::vector<std::string>& members) {
    std::string list = "[";
    for (const auto& member : members)
        list += (list.size() == 1 ? "" : ",") + member;
    return list + "]";
}

std::string jsonTexts(const std::vector<std::string>& texts) {
    std::vector<std::string> members;
    members.reserve(texts.size());
    for (const auto& text : texts)
        members.push_back(quoteJson(text));
    return jsonList(members);
}

JsonObject& JsonObject::add(std::string_view key, std::string_view json) {
    members_ += (members_.empty() ? "" : ",") + quoteJson(key) + ":";
    members_ += json;
    return *this;
}

} // namespace suite::script
