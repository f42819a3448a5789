#include "demo/Modelo.h"

#include <numeric>

namespace demo {

namespace {

constexpr TPesosDoAno Pesos[] = {
    {1000, 1000, 1000, 1000, 1000, 1000, 1000, 1000, 1000, 1000, 1000, 1000}, // Plana
    {780, 800, 930, 950, 1010, 940, 960, 1010, 1050, 1130, 1280, 1160},       // Vendas
    {950, 950, 950, 950, 950, 950, 950, 950, 950, 950, 1250, 1250},           // Folha
    {1120, 1130, 1100, 1000, 940, 900, 890, 900, 940, 990, 1030, 1060},       // Energia
    {0, 0, 3000, 0, 0, 3000, 0, 0, 3000, 0, 0, 3000},                         // Trimestral
    {4000, 3200, 2400, 1200, 1200, 0, 0, 0, 0, 0, 0, 0},                      // InicioDoAno
    {0, 1500, 3500, 500, 0, 500, 1000, 3500, 1000, 500, 0, 0},                // Feiras
};

constexpr bool SomamDozeMil() {
    for (const auto& LAno : Pesos)
        if (std::accumulate(LAno.begin(), LAno.end(), 0) != 12'000)
            return false;
    return true;
}
static_assert(SomamDozeMil());

} // namespace

const TPesosDoAno& PesosDoAno(TSazonal ASazonal) { return Pesos[static_cast<std::size_t>(ASazonal)]; }

} // namespace demo
