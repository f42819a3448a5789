#pragma once

#include "actuals/ResultadoRealizado.h"
#include "host/Grade.h"

namespace pct04618 {

// Rows that were worked out here and come from no statement. Closed until it is given some.
class TDataSetResultado final : public host::TDataSet {
  public:
    using TDataSet::TDataSet;
    void Carregar(std::vector<host::TDescricaoColuna> AColunas, std::vector<std::vector<base::TValor>> ALinhas);

  protected:
    std::unique_ptr<host::TCursor> AbrirCursor() override;

  private:
    std::vector<host::TDescricaoColuna> FDescricoes;
    std::vector<std::vector<base::TValor>> FLinhas;
};

// One of the tables in which a run is told.
struct TTabelaResultado {
    TTabelaResultado(const std::string& ANome, const char* ATitulo);

    TDataSetResultado Cds;
    host::TDataSource Ds;
    host::TGrade Dbg;
};

// What a run did: by projection, what did not enter and why, and the statements whose totals are of before it.
struct TTabelasRealizado {
    TTabelasRealizado();
    void Carregar(const TResultadoRealizado& AResultado);

    TTabelaResultado Projecoes;
    TTabelaResultado NaoEntraram;
    TTabelaResultado Defasadas;
};

// The same as text, its lines divided by carriage returns; empty where no projection was visited.
std::string Descrever(const TResultadoRealizado& AResultado);

} // namespace pct04618
