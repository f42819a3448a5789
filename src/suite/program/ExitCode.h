#pragma once

#include "base/Falhas.h"

namespace suite::program {

enum class ExitCode { Done = 0, Refused = 1, WrongUse = 2, DatabaseFailure = 3, Cancelled = 4 };

inline ExitCode exitCodeOf(const base::TFalhaBanco& failure) {
    return failure.Tipo() == base::TTipoFalhaBanco::Cancelado ? ExitCode::Cancelled : ExitCode::DatabaseFailure;
}

} // namespace suite::program
