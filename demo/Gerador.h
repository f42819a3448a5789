#pragma once

#include <cstdint>
#include <initializer_list>
#include <vector>

namespace demo {

// All money is whole cents.
using TCentavos = std::int64_t;

// A number drawn from its keys alone: the same keys give the same number in every making, on every machine and at
// every scale, in whatever order the draws are made.
constexpr std::uint64_t Sortear(std::initializer_list<std::int64_t> AChaves) {
    std::uint64_t LEstado = 0x6f72637265616cULL;
    for (const auto LChave : AChaves) {
        LEstado += static_cast<std::uint64_t>(LChave) + 0x9e3779b97f4a7c15ULL;
        LEstado = (LEstado ^ (LEstado >> 30)) * 0xbf58476d1ce4e5b9ULL;
        LEstado = (LEstado ^ (LEstado >> 27)) * 0x94d049bb133111ebULL;
        LEstado ^= LEstado >> 31;
    }
    return LEstado;
}

// A drawn number from AMenor to AMaior, both included.
constexpr int SortearEntre(int AMenor, int AMaior, std::initializer_list<std::int64_t> AChaves) {
    return AMenor + static_cast<int>(Sortear(AChaves) % static_cast<std::uint64_t>(AMaior - AMenor + 1));
}

// AValor * AVezes / APor, half away from zero, as the database rounds.
constexpr TCentavos Proporcao(TCentavos AValor, std::int64_t AVezes, std::int64_t APor) {
    const auto LProduto = AValor * AVezes;
    return (LProduto + (LProduto < 0 ? -APor : APor) / 2) / APor;
}

// AValor in parts by weight. The parts add up to it exactly; the last takes what rounding leaves.
inline std::vector<TCentavos> Repartir(TCentavos AValor, const std::vector<int>& APesos) {
    std::int64_t LSoma = 0;
    for (const int LPeso : APesos)
        LSoma += LPeso;
    std::vector<TCentavos> LPartes;
    auto LResto = AValor;
    for (std::size_t i = 0; i + 1 < APesos.size(); ++i) {
        LPartes.push_back(Proporcao(AValor, APesos[i], LSoma));
        LResto -= LPartes.back();
    }
    LPartes.push_back(LResto);
    return LPartes;
}

} // namespace demo
