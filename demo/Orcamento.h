#pragma once

#include "demo/Gerador.h"
#include "demo/Organizacao.h"
#include "demo/Periodo.h"
#include "demo/Plano.h"

#include <array>
#include <cstddef>
#include <vector>

namespace demo {

constexpr int Cenarios = 3; // normal, favourable, adverse

struct TValores {
    TCentavos Base = 0;
    std::array<TCentavos, Cenarios> Orcado{};
    TCentavos Realizado = 0; // of the normal book
};

// One line of a company's projection: the account with what details it there.
struct TChave {
    int Empresa; // place in Empresas
    int Conta;   // place in the chart
    int Sub;     // key of the sub-account, 0 for none
    int Filial;  // place in Filiais, -1 where the company's projections know no establishments
    int Centro;  // place in CentrosCusto, -1 for none
    std::int64_t Semente;
    TCentavos Mensal; // planned amount of an average month
    std::array<TValores, MesesProjetados> Meses{};
    TValores& Mes(int AMes) { return Meses[static_cast<std::size_t>(AMes)]; }
    const TValores& Mes(int AMes) const { return Meses[static_cast<std::size_t>(AMes)]; }
    TCentavos Societario2023 = 0; // booked in the corporate book alone
};

// How a projection was worked out, as it is stored beside its values.
struct TProjecao {
    int TpBase;
    int TpAtualizacao;
    int Indice; // millionths
    int Tipo;   // 1 worked out, 2 typed in
};

// Base and budget of every line and month. The base of a month is what was booked a year before, and in the first
// year, when there was no journal yet, the plan; so a month of the second year is prepared after the journal of the
// same month of the first.
class TOrcamento {
  public:
    TOrcamento(const TPlano& APlano, std::span<const TEmpresa> AEmpresas);

    const TPlano& Plano() const { return FPlano; }
    std::vector<TChave>& Chaves() { return FChaves; }
    const std::vector<TChave>& Chaves() const { return FChaves; }
    // Lines of one account and sub-account in one establishment stand together: first and one past the last.
    struct TGrupo {
        std::size_t Primeira;
        std::size_t Fim;
    };
    const std::vector<TGrupo>& Grupos() const { return FGrupos; }

    void PrepararMes(int AMes);

    TProjecao Projecao(const TChave& AChave, int AAno) const;
    // Hundredths of a percent by which the budget departs from the updated base; 0 without a base.
    static std::int64_t Percentual(TCentavos ABase, int AIndice, TCentavos AOrcado);

  private:
    void AbrirConta(int AEmpresa, int AConta);
    TCentavos Planejado(const TChave& AChave, int AMes) const;
    TCentavos Orcar(const TChave& AChave, int AMes, int ACenario, TCentavos ABase) const;
    const TModeloConta& Modelo(const TChave& AChave) const { return *FPlano.Conta(AChave.Conta).Modelo; }

    const TPlano& FPlano;
    std::vector<TChave> FChaves;
    std::vector<TGrupo> FGrupos;
};

// Codes of the cost centres that share a model account.
std::vector<int> CodigosDosCentros(const TModeloConta& AModelo);
// Weights of the parts that share an amount, the largest first.
const std::vector<int>& PesosPorQuantidade(std::size_t AQuantidade);

} // namespace demo
