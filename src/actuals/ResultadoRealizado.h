#pragma once

#include "base/DataHora.h"
#include "base/Decimal.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace pct04618 {

// Why an entry of the journal did not enter: the first of these that holds.
enum class TDestino { OrigemExcluida, OutroLivro, ContaDeFora, SemQuota };
inline constexpr std::array<TDestino, 4> Destinos{TDestino::OrigemExcluida, TDestino::OutroLivro, TDestino::ContaDeFora,
                                                  TDestino::SemQuota};
const char* DescricaoDo(TDestino ADestino); // for the user

struct TMovimento {
    std::int64_t Lancamentos = 0;
    base::TMoeda Debitos;
    base::TMoeda Creditos; // not negative
};

// What a run did to one projection. Sums are of the accounts that are no title.
struct TProjecaoAtualizada {
    std::int64_t IDCtbOrcadaInf = 0;
    base::TDataHora DataInicio;
    base::TDataHora DataFim;
    std::string Cenario;
    std::int64_t Lidos = 0;                            // entries of its period
    std::array<TMovimento, Destinos.size()> Excluidos; // of them, by TDestino
    bool ComMovimento = false;                         // else the stored actuals stayed
    std::string Observacao{};                          // what the user would not expect, in few words
    std::int64_t Zeradas = 0;                          // rows that had a value
    std::int64_t Alteradas = 0; // rows to which the journal or a total gave another value than they then had
    std::int64_t Novas = 0;
    base::TMoeda Antes;
    base::TMoeda Depois;
    std::int64_t Milissegundos = 0;

    std::int64_t Confrontados() const;
};

struct TDemonstracaoDefasada {
    std::int64_t IDDemac = 0;
    std::int64_t Codigo = 0;
    std::string Titulo;
};

// What a run did, projection by projection in their order; of a run that ended early what it had stored by then.
struct TResultadoRealizado {
    std::vector<TProjecaoAtualizada> Projecoes;
    std::vector<TDemonstracaoDefasada> Defasadas; // statements with totals of before the run

    TMovimento Total(TDestino ADestino) const;
    bool Vazio() const { return Projecoes.empty(); }
    std::string ListaIDs() const; // of the projections whose actuals are other ones, like LListaIDs
};

} // namespace pct04618
