#pragma once

#include "reports/RelatorioDaConsulta.h"

namespace pct04618 {

// The report with periods in columns: of each account or totalizer a line with its name, and below it up to three lines
// of values. It has twelve places for periods, which are taken from the right. It runs the statement of the
// consultation again.
class TDM04618RelPeriodos final : public TRelatorioDaConsulta {
  public:
    TDM04618RelPeriodos();

    bool FImpColorido = false; // coloured backgrounds

    void Imprimir() override;

  private:
    class TFluxo;
    std::string Titulo() const;
    base::TRegua ReguaContas() const;
    base::TRegua ReguaValores() const;
};

} // namespace pct04618
