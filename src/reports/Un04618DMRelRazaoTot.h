#pragma once

#include "reports/RelatorioDaConsulta.h"

namespace pct04618 {

// The ledger of the totalizers: the journal's entries of the period under each totalizer of the statement that links
// their account, with totals by account, cost centre, totalizer and statement. It reads no projection, and all
// establishments of the company.
class TDM04618RelRazaoTot final : public TRelatorioDaConsulta {
  public:
    TDM04618RelRazaoTot();

    void Imprimir() override;

  private:
    class TFluxo;
    void CdsImpressaoBeforeOpen();
    void CdsImpressaoAfterOpen();
    bool CCustoVisivel() const;
    std::string Titulo() const;
    base::TRegua ReguaLancamentos() const;
    base::TRegua ReguaGrupos() const;
    std::vector<std::string> Observacoes() const;
};

} // namespace pct04618
