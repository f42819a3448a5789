#include "demo/Carga.h"

namespace demo {

namespace {

constexpr std::size_t PassosPorAviso = 2000;

} // namespace

void TAndamento::SetTexto(std::string ATexto) {
    FTexto = std::move(ATexto);
    Avisar();
}

void TAndamento::Avancar(std::size_t AQuantos) {
    FFeito += AQuantos;
    if (FFeito - FAvisado >= PassosPorAviso)
        Avisar();
}

void TAndamento::Avisar() {
    FAvisado = FFeito;
    if (FProgresso)
        FProgresso(FTexto, FFeito, FTotal);
}

} // namespace demo
