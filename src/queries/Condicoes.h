#pragma once

#include "core/Un04618Selecao.h"

namespace pct04618 {

// The projections of the selection as a condition on that column.
std::string CondicaoProjecoes(const TSelecao& ASelecao, const std::string& AColuna);

// The establishments of the selection as a condition on value rows: several win over a single one; empty for all.
std::string CondicaoFilial(const TSelecao& ASelecao);

// The column FILIAL of a result, 0 where establishments are summed into one line.
const char* ColunaFilial(const TSelecao& ASelecao);

} // namespace pct04618
