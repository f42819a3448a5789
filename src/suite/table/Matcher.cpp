#include "suite/table/Matcher.h"

#include "base/Texto.h"

#include <algorithm>
#include <array>
#include <regex>
#include <stdexcept>

namespace suite::table {

namespace {

bool less(const base::TValor& a, const base::TValor& b) {
    if (const auto* x = std::get_if<base::TDecimal>(&a))
        if (const auto* y = std::get_if<base::TDecimal>(&b))
            return *x < *y;
    if (const auto* x = std::get_if<base::TDataHora>(&a))
        if (const auto* y = std::get_if<base::TDataHora>(&b))
            return *x < *y;
    return false;
}

bool isDate(const host::TColuna& values) {
    return values.Descricao().Tipo == host::TTipoColuna::Data || values.Descricao().Tipo == host::TTipoColuna::DataHora;
}

std::string onlyDigits(const std::string& text) {
    std::string digits;
    std::copy_if(text.begin(), text.end(), std::back_inserter(digits), [](char c) { return c >= '0' && c <= '9'; });
    return digits;
}

} // namespace

std::optional<base::TDecimal> typedNumber(std::string_view text) {
    static const std::regex thousands("-?\\d{1,3}(\\.\\d{3})+(,\\d*)?");
    auto number = base::Trim(text);
    if (std::regex_match(number, thousands) || number.find(',') != std::string::npos)
        std::erase(number, '.');
    std::replace(number.begin(), number.end(), ',', '.');
    return base::TDecimal::De(number);
}

Matcher::Matcher(Column column, std::string_view typed, bool plain)
    : column_(std::move(column)), values_(*column_.values), decimals_(column_.decimals()) {
    const auto text = base::Trim(typed);
    part_ = base::SemAcentos(text);
    plainPart_ = text;
    digits_ = onlyDigits(plainPart_);
    if (text.empty())
        kind_ = Kind::All;
    else if (values_.Descricao().Tipo != host::TTipoColuna::Texto && !plain)
        readComparison(text);
    else if (text.front() == '=' && !plain) {
        kind_ = Kind::Whole;
        part_ = base::SemAcentos(base::Trim(text.substr(1)));
    }
}

std::optional<base::TValor> Matcher::typedValue(std::string_view text) const {
    if (isDate(values_)) {
        const auto date = base::TDataHora::DeTexto(base::Trim(text));
        return date ? std::optional<base::TValor>(*date) : std::nullopt;
    }
    const auto number = typedNumber(text);
    return number ? std::optional<base::TValor>(*number) : std::nullopt;
}

void Matcher::readComparison(std::string_view text) {
    struct Sign {
        std::string_view text;
        bool least, most, out, inverted;
    };
    static const std::array<Sign, 6> signs{{{">=", true, false, false, false},
                                            {"<=", false, true, false, false},
                                            {"<>", true, true, false, true},
                                            {">", true, false, true, false},
                                            {"<", false, true, true, false},
                                            {"=", true, true, false, false}}};
    const auto take = [this](std::string_view least, std::string_view most) {
        bounds_.least = typedValue(least);
        bounds_.most = typedValue(most);
        kind_ = bounds_.least || bounds_.most ? Kind::Compare : Kind::All;
    };
    if (const auto dots = text.find(".."); dots != std::string_view::npos) {
        take(text.substr(0, dots), text.substr(dots + 2));
        return;
    }
    for (const auto& sign : signs)
        if (text.starts_with(sign.text)) {
            const auto value = text.substr(sign.text.size());
            take(sign.least ? value : std::string_view(), sign.most ? value : std::string_view());
            bounds_.leastIsOut = bounds_.mostIsOut = sign.out;
            bounds_.inverted = sign.inverted;
            return;
        }
}

bool Matcher::within(std::size_t row) const {
    auto value = values_.Valor(row);
    try {
        if (const auto* number = std::get_if<base::TDecimal>(&value); number && decimals_ < number->Escala)
            value = number->ComEscala(decimals_);
    } catch (const std::overflow_error&) { // it stays as it is
    }
    const auto& b = bounds_;
    const bool tooSmall = b.least && (less(value, *b.least) || (b.leastIsOut && !less(*b.least, value)));
    const bool tooLarge = b.most && (less(*b.most, value) || (b.mostIsOut && !less(value, *b.most)));
    return (tooSmall || tooLarge) == b.inverted;
}

bool Matcher::partOfText(std::size_t row) const {
    const auto code = values_.Codigo(row);
    if (code >= byCode_.size())
        byCode_.resize(code + std::size_t{1}, -1);
    auto& known = byCode_[code];
    if (known < 0) {
        const auto text = base::SemAcentos(values_.Texto(row));
        known = (kind_ == Kind::Whole ? text == part_ : text.find(part_) != std::string::npos) ? 1 : 0;
    }
    return known == 1;
}

bool Matcher::partOfNumber(std::size_t row) const {
    // Most numbers are told apart by their digits, long before they are formatted.
    const int scale = values_.Descricao().Escala;
    auto units = values_.Unidades(row);
    if (decimals_ < scale)
        units = base::TDecimal{units, scale}.ComEscala(decimals_).Unidades;
    auto digits = onlyDigits(std::to_string(units));
    digits.insert(
        0, static_cast<std::size_t>(std::max(0, std::max(decimals_, scale) + 1 - static_cast<int>(digits.size()))),
        '0');
    if (digits.find(digits_) == std::string::npos)
        return false;
    auto text = column_.text(values_.Valor(row));
    if (plainPart_.find('.') == std::string::npos)
        text.erase(std::remove(text.begin(), text.end(), '.'), text.end());
    return text.find(plainPart_) != std::string::npos;
}

bool Matcher::operator()(std::size_t row) const {
    if (kind_ == Kind::All)
        return true;
    if (values_.Descricao().Tipo == host::TTipoColuna::Texto)
        return partOfText(row);
    if (values_.Nulo(row))
        return kind_ == Kind::Compare && bounds_.inverted;
    if (kind_ == Kind::Compare)
        return within(row);
    if (values_.Descricao().Tipo == host::TTipoColuna::Inteiro)
        return partOfNumber(row);
    return base::SemAcentos(column_.text(values_.Valor(row))).find(part_) != std::string::npos;
}

} // namespace suite::table
