#include "suite/desktop/grid/ColumnMatcher.h"

#include "host/Grade.h"
#include "suite/desktop/grid/PaneColumns.h"
#include "suite/desktop/look/Text.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <stdexcept>

namespace suite::desktop {

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

QString folded(const QString& text) {
    // Letter by letter: normalizing whole texts takes several times as long, and this is done to every one at each key.
    QString plain;
    plain.reserve(text.size());
    for (auto c : text) {
        while (c.unicode() >= 0x80 && c.decompositionTag() == QChar::Canonical)
            c = c.decomposition().front();
        if (c.unicode() < 0x80)
            plain += c >= QLatin1Char('A') && c <= QLatin1Char('Z') ? QChar(c.unicode() + ('a' - 'A')) : c;
        else if (c.category() != QChar::Mark_NonSpacing)
            plain += c.toCaseFolded();
    }
    return plain;
}

std::optional<base::TDecimal> typedNumber(const QString& text) {
    static const QRegularExpression thousands(QStringLiteral("^-?\\d{1,3}(\\.\\d{3})+(,\\d*)?$"));
    auto number = text.trimmed();
    if (thousands.match(number).hasMatch() || number.contains(QLatin1Char(',')))
        number.remove(QLatin1Char('.'));
    number.replace(QLatin1Char(','), QLatin1Char('.'));
    return base::TDecimal::De(number.toStdString());
}

ColumnMatcher::ColumnMatcher(const host::TColuna& values, std::string format, const QString& typed, bool plain)
    : values_(values), format_(std::move(format)), decimals_(decimalsShown(format_, values.Descricao().Escala)) {
    const auto text = typed.trimmed();
    part_ = folded(text);
    plainPart_ = toUtf8(text);
    digits_ = onlyDigits(plainPart_);
    if (text.isEmpty())
        kind_ = Kind::All;
    else if (values.Descricao().Tipo != host::TTipoColuna::Texto && !plain)
        readComparison(text);
    else if (text.startsWith(QLatin1Char('=')) && !plain) {
        kind_ = Kind::Whole;
        part_ = folded(text.mid(1).trimmed());
    }
}

std::optional<base::TValor> ColumnMatcher::typedValue(const QString& text) const {
    if (isDate(values_)) {
        const auto date = base::TDataHora::DeTexto(text.trimmed().toStdString());
        return date ? std::optional<base::TValor>(*date) : std::nullopt;
    }
    const auto number = typedNumber(text);
    return number ? std::optional<base::TValor>(*number) : std::nullopt;
}

void ColumnMatcher::readComparison(const QString& text) {
    struct Sign {
        QLatin1String text;
        bool least, most, out, inverted;
    };
    static const std::array<Sign, 6> signs{{{QLatin1String(">="), true, false, false, false},
                                            {QLatin1String("<="), false, true, false, false},
                                            {QLatin1String("<>"), true, true, false, true},
                                            {QLatin1String(">"), true, false, true, false},
                                            {QLatin1String("<"), false, true, true, false},
                                            {QLatin1String("="), true, true, false, false}}};
    const auto take = [this](const QString& least, const QString& most) {
        bounds_.least = typedValue(least);
        bounds_.most = typedValue(most);
        kind_ = bounds_.least || bounds_.most ? Kind::Compare : Kind::All;
    };
    if (const auto dots = text.indexOf(QLatin1String("..")); dots >= 0) {
        take(text.left(dots), text.mid(dots + 2));
        return;
    }
    for (const auto& sign : signs)
        if (text.startsWith(sign.text)) {
            const auto value = text.mid(sign.text.size());
            take(sign.least ? value : QString(), sign.most ? value : QString());
            bounds_.leastIsOut = bounds_.mostIsOut = sign.out;
            bounds_.inverted = sign.inverted;
            return;
        }
}

bool ColumnMatcher::within(std::size_t row) const {
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

bool ColumnMatcher::partOfText(std::size_t row) const {
    const auto code = values_.Codigo(row);
    if (code >= byCode_.size())
        byCode_.resize(code + std::size_t{1}, -1);
    auto& known = byCode_[code];
    if (known < 0) {
        const auto text = folded(fromUtf8(values_.Texto(row)));
        known = (kind_ == Kind::Whole ? text == part_ : text.contains(part_)) ? 1 : 0;
    }
    return known == 1;
}

bool ColumnMatcher::partOfNumber(std::size_t row) const {
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
    auto text = host::TextoExibido(values_.Valor(row), format_);
    if (plainPart_.find('.') == std::string::npos)
        text.erase(std::remove(text.begin(), text.end(), '.'), text.end());
    return text.find(plainPart_) != std::string::npos;
}

bool ColumnMatcher::operator()(std::size_t row) const {
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
    return folded(fromUtf8(host::TextoExibido(values_.Valor(row), format_))).contains(part_);
}

} // namespace suite::desktop
