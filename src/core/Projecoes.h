#pragma once

#include "core/Un04618Selecao.h"

namespace pct04618 {

// A header is monthly when it starts and ends in the same month of whatever year; any other goes by its year.
inline constexpr const char* ProjecaoMensal =
    "EXTRACT(MONTH FROM CO01_CTBORCADAINF.DATAINICIO) = EXTRACT(MONTH FROM CO01_CTBORCADAINF.DATAFIM)";

// The projections that answer the selection. Nothing where there are none and the user has been told so; mode 5 goes on
// without. Over more than twelve years modes 3 and 4 show a message and abort. A consolidated selection needs both
// conditions of the holding.
std::optional<TInformacoesCtbOrcadaInf> BuscarProjecoes(const TSelecao& ASelecao);
// Whether a projection of the selection is detailed by establishment; False when there is none.
bool ProjecaoDetalhadaPorFilial(const TSelecao& ASelecao);

} // namespace pct04618
