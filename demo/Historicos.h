#pragma once

#include "demo/Modelo.h"

#include <cstdint>
#include <string>

namespace demo {

// Where an entry came from; the origin of closing entries never counts as actual.
enum TOrigem {
    Manual = 1,
    Faturamento = 2,
    Compras = 3,
    FolhaPagamento = 4,
    Encerramento = 5,
    Tesouraria = 6,
    Fiscal = 7
};

// What the nature of an account says of its entries.
struct TModoLancamento {
    TOrigem Origem;
    int PorMes;                     // entries a month on one account of one establishment
    std::string_view Contrapartida; // classification of the other side
    bool FimDoMes;                  // dated the last day, as payroll and depreciation are
};
const TModoLancamento& ModoLancamento(TNatureza ANatureza);

// The text of an ordinary entry.
std::string Historico(TNatureza ANatureza, const std::string& AConta, bool ADebito, int AMes, std::uint64_t ASorteio);
// One entry of the demo has a text longer than a report prints.
std::string HistoricoLongo(const std::string& AConta);

} // namespace demo
