#pragma once

#include "base/DataHora.h"

#include <cstdint>
#include <string>
#include <vector>

namespace pct04618 {

// Base of the percentages in mode 3 and in the matrix.
enum class TDetalhePercentual : std::uint8_t { dpRealizadoXOrcado = 0, dpRealizadoXBase = 1, dpVertical = 2 };

// Periods that the actuals update visits.
enum class TPeriodicidadeRealizado : std::uint8_t { prMensais = 0, prDoPerInformado = 1 };

// Values that a roll-up of the chart writes.
enum class TTotalizacao : std::uint8_t { ttProjecaoOrcamentaria = 0, ttAtualizacaoRealizado = 1, ttAmbos = 2 };

// A report mode as a parameter; the numbers are those of Un04618Const.h.
using TDetalharSelecao = std::uint8_t;

// The projections that match a selection.
struct TInformacoesCtbOrcadaInf {
    std::string LListaIDs;           // keys of the headers, separated by ", ", ready for an IN; empty for none
    base::TDataHora DataIBalancoRef; // reference balance of the projection, blank unless exactly one matched
    base::TDataHora DataFBalancoRef;
    std::int32_t QtdePeriodos = 0; // number of matching headers
    std::int32_t TpCCusto = 0;     // detail by cost centre of the last matching header, 0 where it is null
};

// A period that is a column of its own: its days, and those of its reference balance. What a header lacks is blank.
struct TPeriodoEmColuna {
    base::TDataHora Inicio;
    base::TDataHora Fim;
    base::TDataHora InicioBalancoRef;
    base::TDataHora FimBalancoRef;
};

using TStringList = std::vector<std::string>;

} // namespace pct04618
