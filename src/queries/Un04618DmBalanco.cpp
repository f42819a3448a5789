#include "core/Un04618Const.h"
#include "core/Un04618Dm.h"
#include "host/Texto.h"
#include "queries/Condicoes.h"
#include "queries/SqlBalanco.h"

namespace pct04618 {

namespace {

using host::Format;

// One account chosen alone brings all accounts below it; several are taken as they are.
std::string CondicaoContas(const TDM04618& ADm) {
    if (ADm.FIDPlano > 0)
        return "AND CO01_PLANO.CLASSIFCONTAB LIKE " + host::QuotedStr(ADm.FClassificacao + "%");
    if (!ADm.FIDsContas.empty())
        return "AND(" + ADm.FIDsContas + ")";
    return {};
}

std::string CondicaoCentroCusto(const TDM04618& ADm) {
    return ADm.FIDsCentroCusto.empty() ? std::string() : " AND (" + ADm.FIDsCentroCusto + ")";
}

} // namespace

std::string TDM04618::BuscarDadosOrcamentariaComBaseNoBalanco() const {
    const bool LExato = FDetalharSelecao == ModoPeriodoExato;
    const bool LSeparaFiliais = !FAgruparValFiliais && !FEhConsolidadoHolding;
    return Format(sql::Balanco,
                  {
                      LSeparaFiliais ? "COALESCE(SC00_FILIAL.FILIAL, 0) AS FILIAL" : "0 AS FILIAL",
                      LExato ? sql::BalancoTpBaseProj : "0 AS TPBASEPROJ",
                      LExato ? sql::BalancoColunasProjecao : "",
                      LExato ? sql::BalancoProjecaoMeio : "ORCADO.TPBASEPROJ",
                      LExato && !FAgruparValFiliais ? sql::BalancoProjecaoFora : sql::BalancoProjecaoForaConstante,
                      LExato ? "GROUP BY 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17"
                             : "GROUP BY 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13",
                      host::Trim(FInformacoesCtbOrcadaInf.LListaIDs),
                      std::int64_t{FCenario},
                      CondicaoFilial(*this),
                      CondicaoCentroCusto(*this),
                      CondicaoContas(*this),
                  });
}

} // namespace pct04618
