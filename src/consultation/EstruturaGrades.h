#pragma once

#include "core/Un04618Types.h"
#include "host/Grade.h"

#include <vector>

namespace pct04618 {

using TColunasGrade = std::vector<host::TColunaGrade>;

// The two result grids as they are designed: all columns in order.
TColunasGrade ColunasDbtvCtbOrcada();
TColunasGrade ColunasDbtvMostraCtbOrcMensal();
// What their lines say of themselves.
host::TRegraDasLinhas LinhasDbtvCtbOrcada();
host::TRegraDasLinhas LinhasDbtvMostraCtbOrcMensal();

// Captions and visibility of the period columns, from the periods that the current record names. In full a column goes
// by its period alone, which APeriodos tells apart where names repeat.
TColunasGrade EstruturarColunasPeriodo(TColunasGrade AColunas, const host::TDataSet& ADataSet,
                                       const std::vector<TPeriodoEmColuna>& APeriodos = {});

// What the default layout of each grid makes sure of: grouped by establishment first, and the columns hidden that only
// the rules read.
void AplicarPadraoDbtvCtbOrcada(TColunasGrade& AColunas);
void AplicarPadraoDbtvMostraCtbOrcMensal(TColunasGrade& AColunas);

} // namespace pct04618
