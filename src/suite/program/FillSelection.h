#pragma once

#include "host/Formularios.h"
#include "suite/program/Options.h"
#include "suite/terminal/Headless.h"

namespace suite::program {

// Fills the selection dialog step by step, as a user does who tabs through it, and confirms. Stops where a rule
// refuses, with the dialog still open. An option whose control the rules leave disabled is a base::TFalha that says
// why.
void fillSelection(host::TForm& dialog, const ConsultOptions& options, const terminal::Headless& interaction);

} // namespace suite::program
