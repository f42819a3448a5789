#pragma once

#include "demo/Carga.h"
#include "demo/Historicos.h"
#include "demo/Orcamento.h"

namespace demo {

// The journal, written month by month. What it books in the normal book is added up on the lines of the budget, so
// that their actuals are the journal's own sums.
class TDiario {
  public:
    TDiario(suite::firebird::Transaction& ATransacao, TOrcamento& AOrcamento);

    void GravarMes(int AMes, TAndamento& AAndamento);
    // Closing entries of the first year on the sales accounts of each head office.
    void GravarEncerramento();
    void Terminar();

  private:
    struct TQuota {
        int Centro; // key
        TCentavos Valor;
    };
    struct TLancamento {
        int Filial; // key
        int Conta;  // place in the chart
        int Sub;    // key or 0
        base::TDataHora Data;
        TOrigem Origem;
        int TpCtb; // -1 for NULL
        std::string Historico;
        std::string_view Contrapartida;
        std::vector<TQuota> Quotas;
    };

    void GravarGrupo(int AMes, const TOrcamento::TGrupo& AGrupo);
    void GravarGrupoGlobal(int AMes, TChave& AChave);
    void Repetir(int AMes, const TOrcamento::TGrupo& AGrupo, int AFilial, const std::vector<TCentavos>& AAlvos);
    void Ajustes(int AMes, const TOrcamento::TGrupo& AGrupo);
    void Estorno(const TLancamento& AModelo, TCentavos AValor);
    // AValor above 0 is a debit. Writes the entry, its shares and the other side of it.
    void Lancar(const TLancamento& ALancamento, TCentavos AValor);
    void LancarLado(const TLancamento& ALancamento, int AConta, TCentavos AValor, bool AComQuotas);
    std::vector<TQuota> Quotas(const TChave& AChave, TCentavos AValor) const;
    TCentavos Alvo(const TChave& AChave, int AMes) const;
    const TConta& Conta(const TChave& AChave) const;

    TOrcamento& FOrcamento;
    TCarga FDiario;
    TCarga FCusto;
    std::int64_t FProximo = 1;
};

} // namespace demo
