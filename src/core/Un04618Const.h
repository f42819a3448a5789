#pragma once

#include <cstdint>

namespace pct04618 {

// Report modes, as FDetalharSelecao holds them.
inline constexpr std::int32_t ModoAgrupandoPeriodos = 1;
inline constexpr std::int32_t ModoPeriodoExato = 2;
inline constexpr std::int32_t ModoPeriodosEmColunas = 3;
inline constexpr std::int32_t ModoMatricial = 4;
inline constexpr std::int32_t ModoRazaoTotalizadores = 5;

// Value columns of a result with periods in columns.
inline constexpr int MaximoPeriodosEmColunas = 12;

// TPDETALHE of a projection header.
inline constexpr std::int64_t DetalhadaPorEstabelecimento = 2;

// Type of a question that is only acknowledged.
inline constexpr int BotaoCiente = 6;

} // namespace pct04618
