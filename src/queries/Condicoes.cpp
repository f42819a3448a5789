#include "queries/Condicoes.h"

#include "base/Texto.h"
#include "core/Un04618Dm.h"

namespace pct04618 {

std::string CondicaoFilial(const TDM04618& ADm) {
    if (ADm.FListaIDsFilial && !ADm.FListaIDsFilial->empty()) {
        std::string LLista;
        for (const auto& LID : *ADm.FListaIDsFilial)
            LLista += (LLista.empty() ? "" : ",") + LID;
        return base::Format("AND CO01_CTBORCADAVLR.IDFILIAL IN (%s)", {LLista});
    }
    if (ADm.FIDFilial > 0)
        return base::Format("AND CO01_CTBORCADAVLR.IDFILIAL = %d", {ADm.FIDFilial});
    return {};
}

} // namespace pct04618
