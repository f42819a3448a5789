#pragma once

#include "host/Falhas.h"

namespace suite::program {

enum class ExitCode { Done = 0, Refused = 1, WrongUse = 2, DatabaseFailure = 3, Cancelled = 4 };

inline ExitCode exitCodeOf(const host::TFalhaBanco& failure) {
    return failure.Tipo() == host::TTipoFalhaBanco::Cancelado ? ExitCode::Cancelled : ExitCode::DatabaseFailure;
}

} // namespace suite::program
