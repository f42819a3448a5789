#pragma once

#include "demo/Modelo.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace suite::firebird {
class Transaction;
}

namespace demo {

struct TConta {
    int Id;
    int Codigo;
    std::string Classif;
    std::string Nome;
    int Pai;      // place in the chart, -1 where there is none
    int Superior; // likewise
    const TModeloConta* Modelo;
    std::vector<int> Subs; // keys of its sub-accounts, the largest share first
    bool Titulo() const { return Modelo->Natureza == TNatureza::Titulo; }
    bool ComMovimento() const { return Modelo->MilPorMes != 0; }
};

// The chart of accounts of the holding. At a scale above 1 each account with movement has that many siblings less
// one, behind all other accounts, so that the accounts of scale 1 are the same at every scale.
class TPlano {
  public:
    explicit TPlano(int AEscala);

    const std::vector<TConta>& Contas() const { return FContas; }
    const TConta& Conta(int ALugar) const { return FContas[static_cast<std::size_t>(ALugar)]; }
    int Lugar(std::string_view AClassif) const; // throws std::logic_error
    // Accounts with movement at or below a classification of the model, their siblings of a larger scale included.
    std::vector<int> Analiticas(std::string_view AClassif) const;
    // Every synthetic account that a value of this account travels up to by either link, as often as it arrives there.
    const std::vector<int>& Acima(int AConta) const { return FAcima[static_cast<std::size_t>(AConta)]; }
    int IdDaSub(std::string_view ADescricao) const; // throws std::logic_error

    void Gravar(suite::firebird::Transaction& ATransacao) const;

  private:
    void Acrescentar(const TModeloConta& AModelo, std::string AClassif, std::string ANome);
    void Subir(int AConta, std::vector<int>& ADestino) const;
    void GravarFinalidades(suite::firebird::Transaction& ATransacao) const;

    std::vector<TConta> FContas;
    std::map<std::string, int, std::less<>> FPorClassif;
    std::map<std::string, int, std::less<>> FFilhas; // how many children a title has
    std::vector<std::string> FSubs;
    std::vector<std::vector<int>> FAcima;
};

} // namespace demo
