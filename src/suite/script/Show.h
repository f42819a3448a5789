#pragma once

#include "host/Formularios.h"
#include "suite/script/JsonLines.h"
#include "suite/script/PrintedReport.h"

#include <string>

namespace suite::script {

// Where a script stands: its window, the form in front, which may be a dialog of it, and what was printed last.
struct View {
    host::TFormZTTandorPadraoSelecao& window;
    const host::TForm& front;
    const PrintedReport& printed;
};

// The text of the window's title panel, empty without one.
std::string titleInView(const host::TForm& window);

// Writes the line that "mostrar" asks for: a subject and what belongs to it. A subject that is not known, or that does
// not exist where the script stands, is a WrongUse.
void show(JsonLines& out, const View& view, const std::string& request);

} // namespace suite::script
