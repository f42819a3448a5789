#pragma once

#include "base/Exportar.h"

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <variant>

namespace base {

using TArgumento = std::variant<std::int64_t, std::string>;

// Fills the placeholders of a text: "%0:s" and "%1:d" take the argument of that number, "%s" and "%d" the next one,
// "%%" is a percent sign. s takes a text, d a number. A placeholder without its argument or with one of the other
// kind, or an argument that no placeholder takes, is a fault of the caller: std::logic_error.
BASE_API std::string Format(std::string_view ATexto, std::initializer_list<TArgumento> AArgumentos);

// The text as a SQL literal, quotes included.
BASE_API std::string QuotedStr(std::string_view ATexto);
BASE_API std::string Trim(std::string_view ATexto);
// Bytes of the code point with which the text begins; 0 where that is not UTF-8.
BASE_API std::size_t TamanhoDoCaractere(std::string_view AUtf8);
// Code points of a UTF-8 text; what the database holds takes one column of a terminal each.
BASE_API std::size_t Caracteres(std::string_view AUtf8);
// Letters of ISO8859_1 without case and accents, as the database compares them; anything else as it is.
BASE_API std::string SemAcentos(std::string_view AUtf8);
// As one line that a terminal can be given: every control character as the sign that stands for it, and what is not
// UTF-8 as the replacement character.
BASE_API std::string SemControles(std::string_view ATexto);
// The same of a text of several lines: its carriage returns and line feeds become line feeds.
BASE_API std::string LinhasSemControles(std::string_view ATexto);
// A whole number as text; 0 for any other text.
BASE_API std::int32_t NumeroOuZero(std::string_view ATexto);

} // namespace base
