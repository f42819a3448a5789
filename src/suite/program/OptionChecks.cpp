#include "suite/program/OptionChecks.h"

#include "base/Texto.h"

#include <charconv>
#include <filesystem>
#include <fstream>
#include <optional>
#include <set>

namespace suite::program {

namespace {

std::optional<std::int64_t> decimal(const std::string& text) {
    std::int64_t value = 0;
    const char* const end = text.data() + text.size();
    const auto [last, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc{} || last != end || text.front() == '-')
        return {};
    return value;
}

std::string inQuotes(const std::string& text) { return "\"" + text + "\""; }

} // namespace

CLI::Validator oneOf(std::vector<std::string> values) {
    std::string list;
    for (const auto& value : values)
        list += (list.empty() ? "" : ", ") + value;
    return {[values, list](std::string& given) {
                return std::find(values.begin(), values.end(), given) != values.end()
                           ? std::string()
                           : inQuotes(given) + " não é um de " + list;
            },
            ""};
}

CLI::Validator notEmpty() {
    return {[](std::string& given) { return given.empty() ? "está vazio" : std::string(); }, ""};
}

CLI::Validator readable() {
    return {[](std::string& given) {
                std::error_code failure;
                const bool read =
                    given == "-" || (!std::filesystem::is_directory(given, failure) && std::ifstream(given));
                return read ? std::string() : "o arquivo " + inQuotes(given) + " não pôde ser lido";
            },
            ""};
}

CLI::Validator number(std::int64_t least, std::int64_t most) {
    return {[least, most](std::string& given) {
                const auto value = decimal(given);
                if (!value || *value < least || *value > most)
                    return inQuotes(given) + " não é um número de " + std::to_string(least) + " a " +
                           std::to_string(most);
                given = std::to_string(*value);
                return std::string();
            },
            ""};
}

CLI::Validator list(std::function<std::string(std::string&)> item) {
    return {[item](std::string& given) {
                std::set<std::string> seen;
                std::string whole;
                for (std::size_t begin = 0; begin <= given.size();) {
                    const auto end = std::min(given.find(',', begin), given.size());
                    auto text = base::Trim(std::string_view(given).substr(begin, end - begin));
                    begin = end + 1;
                    if (text.empty())
                        return "falta um valor na lista " + inQuotes(given);
                    if (const auto wrong = item ? item(text) : std::string(); !wrong.empty())
                        return wrong;
                    if (!seen.insert(text).second)
                        return inQuotes(text) + " está repetido";
                    whole += (whole.empty() ? "" : ",") + text;
                }
                given = whole;
                return std::string();
            },
            ""};
}

std::string code(std::string& item) {
    const auto value = decimal(item);
    if (!value)
        return inQuotes(item) + " não é um código";
    item = std::to_string(*value);
    return {};
}

std::string companyAndEstablishment(std::string& item) {
    const auto slash = std::min(item.find('/'), item.size());
    auto company = item.substr(0, slash);
    auto establishment = item.substr(std::min(slash + 1, item.size()));
    if (!code(company).empty() || !code(establishment).empty())
        return inQuotes(item) + " não é empresa/estabelecimento, como 2/1";
    item = company + "/" + establishment;
    return {};
}

} // namespace suite::program
