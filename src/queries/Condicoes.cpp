#include "queries/Condicoes.h"

#include "base/Texto.h"
#include "core/Lista.h"

namespace pct04618 {

std::string CondicaoProjecoes(const TSelecao& ASelecao, const std::string& AColuna) {
    return EstaNaLista(AColuna, base::Trim(ASelecao.FInformacoesCtbOrcadaInf.LListaIDs));
}

std::string CondicaoFilial(const TSelecao& ASelecao) {
    if (ASelecao.FListaIDsFilial && !ASelecao.FListaIDsFilial->empty()) {
        std::string LLista;
        for (const auto& LID : *ASelecao.FListaIDsFilial)
            LLista += (LLista.empty() ? "" : ",") + LID;
        return "AND " + EstaNaLista("CO01_CTBORCADAVLR.IDFILIAL", LLista);
    }
    if (ASelecao.FIDFilial > 0)
        return base::Format("AND CO01_CTBORCADAVLR.IDFILIAL = %d", {ASelecao.FIDFilial});
    return {};
}

const char* ColunaFilial(const TSelecao& ASelecao) {
    const bool LSeparadas = !ASelecao.FAgruparValFiliais && !ASelecao.FEhConsolidadoHolding;
    return LSeparadas ? "COALESCE(SC00_FILIAL.FILIAL, 0) AS FILIAL" : "0 AS FILIAL";
}

} // namespace pct04618
