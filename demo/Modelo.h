#pragma once

#include <array>
#include <span>
#include <string_view>

namespace demo {

// What an account is, and with that the manner of its entries: their texts, their number and the other side.
enum class TNatureza {
    Titulo,      // synthetic, no entries of its own
    Patrimonial, // balance sheet, only the other side of entries
    Venda,
    Servico, // bought
    Compra,
    Pessoal,
    Tributo,
    Banco,
    Depreciacao,
    Provisao,
    Investimento, // balance sheet, but confronted with its budget
};

// Twelve weights in thousandths, January first, which add up to 12,000.
enum class TSazonal { Plana, Vendas, Folha, Energia, Trimestral, InicioDoAno, Feiras };
using TPesosDoAno = std::array<int, 12>;
const TPesosDoAno& PesosDoAno(TSazonal ASazonal);

// Set where an account departs from the rule.
enum TMarca : unsigned {
    Informado = 1,     // the budget is typed in, not worked out from the base
    BaseOriginal = 2,  // the base is taken as it is, without an index
    SemOrcamento = 4,  // booked and never budgeted
    SemFinalidade = 8, // not configured as revenue or expense
};

struct TModeloConta {
    std::string_view Classif;
    std::string_view Nome;
    TNatureza Natureza = TNatureza::Titulo;
    int MilPorMes = 0; // thousands of reais a month in the holding, all establishments; a revenue is negative
    TSazonal Sazonal = TSazonal::Plana;
    int Desvio = 0;                 // thousandths by which the actual runs over (+) or under (-) its budget
    std::string_view Centros = {};  // codes of the cost centres that share it, the largest share first
    std::string_view Empresas = {}; // codes of the companies that use it
    std::string_view Subs = {};     // sub-accounts, separated by ";", the largest share first
    unsigned Marcas = 0;
};

// The second upward link of an account: it discharges its value there as well.
struct TDescarga {
    std::string_view Classif;
    std::string_view Superior;
};

std::span<const TModeloConta> ContasPatrimoniais();
std::span<const TModeloConta> ContasDeReceita();
std::span<const TModeloConta> ContasDeCusto();
std::span<const TModeloConta> ContasDeDespesa();
std::span<const TModeloConta> ContasGerenciais();
std::span<const TDescarga> Descargas();

} // namespace demo
