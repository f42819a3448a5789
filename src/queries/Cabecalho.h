#pragma once

#include "core/Un04618Selecao.h"

namespace pct04618 {

// The headers of LListaIDs, which must not be empty: for mode 3 each of them, else their distinct periods in order.
std::string InstrucaoCabecalho(const TSelecao& ASelecao, TDetalharSelecao ADetalharSelecao);

// Sets the actual value of all rows of the projections, a list like LListaIDs, to 0.
std::string InstrucaoZerarRealizado(const std::string& AIDsOrcadaInf);

} // namespace pct04618
