#pragma once

#include <string_view>

namespace demo {

// The text of esquema.sql in its two halves: tables, then keys and indexes.
std::string_view EsquemaDasTabelas();
std::string_view EsquemaDasChaves();

} // namespace demo
