#pragma once

#include "demo/Carga.h"
#include "demo/Orcamento.h"

#include <cstddef>
#include <vector>

namespace demo {

// Headers and value rows: the lines of the budget over each period, and above them the synthetic accounts.
class TProjecoes {
  public:
    explicit TProjecoes(const TOrcamento& AOrcamento);

    // Steps that Gravar will report.
    std::size_t Passos() const;
    void Gravar(suite::firebird::Transaction& ATransacao, TAndamento& AAndamento);

  private:
    struct TCabecalho {
        int Empresa; // place in Empresas
        int Filial;  // place in Filiais of a header of one establishment, -1 for the whole company
        int Cenario;
        int Mes;
        int Meses;
        int TpCtb;
    };
    struct TLinha {
        TCentavos Base = 0;
        TCentavos Orcado = 0;
        TCentavos Realizado = 0;
        bool Zero() const { return Base == 0 && Orcado == 0 && Realizado == 0; }
    };

    TLinha Somar(const TChave& AChave, const TCabecalho& ACabecalho) const;
    void GravarCabecalho(TCarga& ACarga, const TCabecalho& ACabecalho, std::int64_t AId) const;
    void GravarLinhas(TCarga& ACarga, const TCabecalho& ACabecalho, std::int64_t AId, TAndamento& AAndamento);
    void GravarSinteticas(TCarga& ACarga, const TCabecalho& ACabecalho, std::int64_t AId);

    const TOrcamento& FOrcamento;
    std::vector<TCabecalho> FCabecalhos;
    std::vector<std::vector<TLinha>> FSinteticas; // by establishment (0 for none, else its place and one), by account
    std::int64_t FProximo = 1;
};

} // namespace demo
