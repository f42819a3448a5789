#include "base/Grafo.h"

#include <algorithm>

namespace base {

const std::vector<std::int64_t>& TGrafo::LigacoesDe(std::int64_t AId) const {
    static const std::vector<std::int64_t> LNenhuma;
    const auto LAchado = FLigacoes.find(AId);
    return LAchado == FLigacoes.end() ? LNenhuma : LAchado->second;
}

std::set<std::int64_t> TGrafo::Alcancados(const std::set<std::int64_t>& AInicios) const {
    auto LVistos = AInicios;
    std::vector<std::int64_t> LPendentes(AInicios.begin(), AInicios.end());
    while (!LPendentes.empty()) {
        const auto LAtual = LPendentes.back();
        LPendentes.pop_back();
        for (const auto LProximo : LigacoesDe(LAtual))
            if (LVistos.insert(LProximo).second)
                LPendentes.push_back(LProximo);
    }
    return LVistos;
}

std::vector<std::vector<std::int64_t>> TGrafo::Ciclos(const std::set<std::int64_t>& AInicios) const {
    std::vector<std::vector<std::int64_t>> LCiclos;
    std::set<std::int64_t> LVistos;
    std::set<std::int64_t> LEmCiclo;
    // The way from a start to the record at hand, with how many links of each are behind.
    struct TPasso {
        std::int64_t Id;
        std::size_t Seguidas;
    };
    std::vector<TPasso> LCaminho;
    const auto LAnotar = [&](std::int64_t AId) {
        const auto LVolta = std::find_if(LCaminho.begin(), LCaminho.end(), [&](const auto& P) { return P.Id == AId; });
        const bool LJaDito =
            std::any_of(LVolta, LCaminho.end(), [&](const auto& P) { return LEmCiclo.count(P.Id) > 0; });
        if (LVolta == LCaminho.end() || LJaDito)
            return;
        auto& LCiclo = LCiclos.emplace_back();
        for (auto LPasso = LVolta; LPasso != LCaminho.end(); ++LPasso) {
            LCiclo.push_back(LPasso->Id);
            LEmCiclo.insert(LPasso->Id);
        }
    };
    for (const auto LInicio : AInicios) {
        if (!LVistos.insert(LInicio).second)
            continue;
        LCaminho.push_back({LInicio, 0});
        while (!LCaminho.empty()) {
            const auto& LLigacoes = LigacoesDe(LCaminho.back().Id);
            if (LCaminho.back().Seguidas == LLigacoes.size()) {
                LCaminho.pop_back();
                continue;
            }
            const auto LProximo = LLigacoes[LCaminho.back().Seguidas++];
            if (LVistos.insert(LProximo).second)
                LCaminho.push_back({LProximo, 0});
            else
                LAnotar(LProximo);
        }
    }
    return LCiclos;
}

std::vector<std::vector<std::int64_t>> TGrafo::Ciclos() const {
    std::set<std::int64_t> LTodos;
    for (const auto& [LId, LLigacoes] : FLigacoes)
        LTodos.insert(LId);
    return Ciclos(LTodos);
}

} // namespace base
