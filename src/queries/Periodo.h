#pragma once

#include <string>
#include <string_view>

namespace pct04618 {

// How a reader calls the period of a header, as an expression: the month's name, or the year. The lines behind the
// first stand ARecuo columns in.
std::string DescricaoDoPeriodo(std::size_t ARecuo);

// A fragment for a place that many columns in: its first line goes on where it is put.
std::string Recuado(std::string_view ATexto, std::size_t ARecuo);

} // namespace pct04618
