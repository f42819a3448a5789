#pragma once

#include "core/Un04618Selecao.h"

namespace pct04618 {

// The statement of modes 1 and 2. LListaIDs must not be empty.
std::string InstrucaoBalanco(const TSelecao& ASelecao);

} // namespace pct04618
