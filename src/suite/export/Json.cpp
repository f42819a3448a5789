#include "suite/export/Json.h"

#include "base/Texto.h"

#include <algorithm>
#include <cstdio>

namespace suite::exporting {

namespace {

std::string escaped(unsigned point) {
    char text[8];
    std::snprintf(text, sizeof text, "\\u%04x", point);
    return text;
}

} // namespace

// Terminals obey U+007F to U+009F as well, so these are escaped with the controls that JSON itself forbids.
std::string quoteJson(std::string_view text) {
    std::string quoted = "\"";
    while (!text.empty()) {
        const auto length = base::TamanhoDoCaractere(text);
        const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
        if (text.front() == '"' || text.front() == '\\')
            (quoted += '\\') += text.front();
        else if (text.front() == '\r')
            quoted += "\\r";
        else if (text.front() == '\n')
            quoted += "\\n";
        else if (length == 1 && (byte(0) < 0x20 || byte(0) == 0x7F))
            quoted += escaped(byte(0));
        else if (length == 2 && byte(0) == 0xC2 && byte(1) < 0xA0)
            quoted += escaped(byte(1));
        else if (length == 0)
            quoted += "\uFFFD"; // what is not UTF-8 is no JSON
        else
            quoted += text.substr(0, length);
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return quoted + '"';
}

std::string jsonValue(const base::TValor& value) {
    if (EhNulo(value))
        return "null";
    if (std::holds_alternative<std::string>(value) || std::holds_alternative<base::TDataHora>(value))
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

} // namespace suite::exporting
