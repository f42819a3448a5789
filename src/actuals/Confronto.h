#pragma once

#include "core/Un04618Selecao.h"

#include <string>

namespace host {
class TZTClientDataSet;
}

namespace pct04618 {

// TPCTB of a projection is a sum of books; those of the journal go by another list of values.
inline constexpr int LivroNormal = 1;
inline constexpr int LivroSocietario = 2;
inline constexpr int LivroFiscal = 4;

// With what a projection is confronted.
struct TConfronto {
    std::int64_t IDCtbOrcadaInf = 0;
    base::TDataHora DataInicio;
    base::TDataHora DataFim;
    std::int32_t Cenario = 0;
    std::int64_t Livros = 0;
    std::int64_t IDFilial = 0; // the only establishment of a projection that is detailed by them, 0 for all
    std::string Filiais;       // the establishments whose entries count: the one, or those of the company
    bool DetalharFilial = false;
    bool DetalharCCusto = false;

    // The projection on which a dataset of headers stands; AIDFilial is what the user has chosen, AFiliais are those of
    // the company, a list for an IN.
    static TConfronto Do(host::TZTClientDataSet& ACabecalhos, std::int64_t AIDFilial, const std::string& AFiliais);
    bool TemLivro() const { return (Livros & (LivroNormal | LivroSocietario | LivroFiscal)) != 0; }
    std::string Periodo() const; // "01/01/2024 a 31/01/2024"
    std::string NomeDoCenario() const;
};

// Headers of the company in the scenarios, a sum of 1 normal, 2 optimistic and 4 pessimistic: with exactly these dates,
// or all that lie between them.
std::string InstrucaoCabecalhosRealizado(std::int64_t AIDEmpresa, int ACenarios, base::TDataHora ADataInicial,
                                         base::TDataHora ADataFinal, bool AIntervalo);
// The journal of the period of a projection: summed for its base rows, and by what becomes of each entry.
std::string InstrucaoSomasDoDiario(const TSelecao& ASelecao, const TConfronto& AConfronto);
std::string InstrucaoDestinosDoDiario(const TSelecao& ASelecao, const TConfronto& AConfronto);
// The accounts that the journal of a period adds to the totals, and those that the projections have.
std::string InstrucaoContasQueTotalizam(const TSelecao& ASelecao, const std::string& AIDsOrcadaInf,
                                        base::TDataHora ADataInicial, base::TDataHora ADataFinal);
// What a projection holds, base rows of title accounts alone or of all, what it holds in sums, the totals of its
// accounts, and the text that sets its actuals to 0: of the one establishment, where there is one.
std::string InstrucaoValores(const TConfronto& AConfronto, bool ASomenteSinteticas);
std::string InstrucaoSituacao(const TConfronto& AConfronto);
std::string InstrucaoTotaisDasContas(const TConfronto& AConfronto);
std::string InstrucaoZerar(const TConfronto& AConfronto);

} // namespace pct04618
