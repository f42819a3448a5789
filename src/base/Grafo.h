#pragma once

#include "base/Exportar.h"

#include <cstdint>
#include <map>
#include <set>
#include <vector>

namespace base {

// Records that point to records, by key: parents, links. A key may stand on either side alone.
class BASE_API TGrafo {
  public:
    void Ligar(std::int64_t ADe, std::int64_t APara) { FLigacoes[ADe].push_back(APara); }

    // Every record that the given ones lead to, themselves included.
    std::set<std::int64_t> Alcancados(const std::set<std::int64_t>& AInicios) const;
    // Cycles that the given records lead to, each in the order in which it is walked, none sharing a record with
    // another. No cycle is left only if the answer is empty.
    std::vector<std::vector<std::int64_t>> Ciclos(const std::set<std::int64_t>& AInicios) const;
    // The same from any record.
    std::vector<std::vector<std::int64_t>> Ciclos() const;

  private:
    const std::vector<std::int64_t>& LigacoesDe(std::int64_t AId) const;

    std::map<std::int64_t, std::vector<std::int64_t>> FLigacoes;
};

} // namespace base
