#include "suite/export/XlsxNumbers.h"

#include <algorithm>

namespace suite::exporting {

namespace {

// Exact all of them.
constexpr double PowersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8, 1e9,
                                  1e10, 1e11, 1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18};

// What stands beside the digits; a quote for each sign that means something to a spreadsheet.
std::string literal(std::string_view text) {
    std::string quoted;
    for (const char c : text) {
        const bool follows = (static_cast<unsigned char>(c) & 0xC0U) == 0x80;
        if (!follows && std::string_view("()-+ ").find(c) == std::string_view::npos)
            quoted += '\\';
        quoted += c;
    }
    return quoted;
}

// The spreadsheet's own notation for a section of a number format: "#,##0.00" for ",0.00".
std::string spreadsheetFormat(const base::TSecaoNumerica& section) {
    std::string digits(static_cast<std::size_t>(std::max(section.Inteiros, 1)), '0');
    if (section.Milhares) {
        digits.insert(0, 4 - std::min<std::size_t>(digits.size(), 4), '#');
        for (auto i = digits.size(); i > 3; i -= 3)
            digits.insert(i - 3, 1, ',');
    }
    if (section.Decimais > 0)
        digits += "." + std::string(static_cast<std::size_t>(section.Decimais), '0');
    return literal(section.Antes) + digits + literal(section.Depois);
}

} // namespace

std::optional<double> sheetNumber(base::TDecimal value) {
    constexpr std::int64_t Limit = 999'999'999'999'999;
    for (; value.Unidades != 0 && value.Unidades % 10 == 0; value.Unidades /= 10)
        --value.Escala;
    if (value.Unidades > Limit || value.Unidades < -Limit)
        return std::nullopt;
    const auto units = static_cast<double>(value.Unidades);
    return value.Escala < 0 ? units * PowersOfTen[-value.Escala] : units / PowersOfTen[value.Escala];
}

std::string allDigits(const base::TDecimal& value) { return host::TextoExibido(value, {}); }

std::optional<double> sheetDate(base::TDataHora date) {
    constexpr double FirstSafe = 61;
    const double days = static_cast<double>(date.Decimos()) / static_cast<double>(base::TDataHora::DecimosPorDia);
    return days < FirstSafe ? std::nullopt : std::optional(days);
}

NumberLook::NumberLook(XlsxBook& book, const base::TFormatoNumerico& digits) : places(digits.Positiva.Decimais) {
    const auto plain = spreadsheetFormat(digits.Positiva);
    format = book.numberFormat(digits.Negativa ? plain + ";" + spreadsheetFormat(*digits.Negativa) : plain);
    nil = book.numberFormat(plain + ";" + plain);
}

std::size_t NumberLook::of(const base::TDecimal& value) const {
    return value.Unidades < 0 && value.Escala > places && value.ComEscala(places).Zero() ? nil : format;
}

} // namespace suite::exporting
