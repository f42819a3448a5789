#pragma once

#include "consultation/Un04618Form.h"
#include "host/Registro.h"

// The module's window under its name, as loading the module does; once in a process.
inline void registrarModulo() {
    static const bool registrada = [] {
        host::RegisterClass("TForm04618", [] { return std::make_unique<pct04618::TForm04618>(); });
        return true;
    }();
    static_cast<void>(registrada);
}
