#pragma once

#include "core/Un04618Selecao.h"
#include "host/DataSet.h"

namespace pct04618 {

// Mode 3: loads the dataset, whose SQL side is ASqlDataSet, with each period as a column and a row for each line type
// that is on; at least one must be. AImpPerComMov: periods without a value row have a column too. LListaIDs must not be
// empty, and dpVertical is for a configurable statement only. The text stays in the dataset.
void CarregarPeriodosEmColunas(const TSelecao& ASelecao, host::TZTClientDataSet& ADataSet,
                               host::TZTSQLDataSet& ASqlDataSet, bool AImpPerComMov);

// The periods of the columns of that result, where two have the same name and it takes their dates to tell them apart;
// else none.
std::vector<TPeriodoEmColuna> BuscarPeriodosDeMesmoNome(const TSelecao& ASelecao, const host::TDataSet& ADataSet,
                                                        bool AImpPerComMov);

} // namespace pct04618
