#pragma once

#include "reports/RelatorioDaConsulta.h"

namespace pct04618 {

// The balance report: the rows of modes 1 and 2, a line each, and their totals. It runs the statement of the
// consultation again; order and filter of a grid do not reach it.
class TDM04618Rel final : public TRelatorioDaConsulta {
  public:
    void Imprimir() override;

  private:
    class TFluxo;
    base::TFaixa CabecalhoPagina() const;
};

} // namespace pct04618
