// A module that leaves all it could say of itself null.
#include "host/Registro.h"

extern "C" [[gnu::visibility("default")]] const host::TInformacoesPacote* InformacoesDoPacote() {
    static const host::TInformacoesPacote Nada{};
    return &Nada;
}
