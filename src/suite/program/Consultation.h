#pragma once

#include "host/Formularios.h"
#include "suite/program/Options.h"
#include "suite/terminal/Headless.h"

#include <memory>

namespace suite::program {

// A window behind one consultation, driven as a user would drive it: what the rules say of it, and what they then show,
// goes through the interaction. Options and interaction outlive the window.
std::unique_ptr<host::TFormZTTandorPadraoSelecao> consult(const ConsultOptions& options,
                                                          terminal::Headless& interaction);

// That of the dataset which the commit has opened, in view or not; null when the rules have declined it.
const host::TGrade* resultGrid(const host::TForm& window);

} // namespace suite::program
