#pragma once

#include <span>
#include <string_view>
#include <vector>

namespace suite::firebird {
class Transaction;
}

namespace demo {

// Keys are spread out so that none of them can be taken for a code or for the key of another table.
struct TEmpresa {
    int Id;
    int Codigo;
    std::string_view Nome;
    int Holding;        // key of the heading company, 0 where there is none
    int PrimeiraFilial; // place in Filiais
    int QtdeFiliais;
    int Porte; // size in thousandths of the holding company
};

struct TFilial {
    int Id;
    int Codigo;
    std::string_view Nome;
    std::string_view NomeFantasia;
};

struct TCentroCusto {
    int Id;
    int Codigo;
    std::string_view Classif;
    std::string_view Descricao;
    bool Titulo;
};

std::span<const TEmpresa> Empresas(); // the heading company, which owns chart and cost centres, comes first
std::span<const TFilial> Filiais();
std::span<const TCentroCusto> CentrosCusto();
// By place in the lists above.
const TEmpresa& Empresa(int ALugar);
const TFilial& Filial(int ALugar);
const TCentroCusto& CentroCusto(int ALugar);
inline const TEmpresa& Holding() { return Empresas().front(); }

// Place of a cost centre, by its code.
int LugarDoCentro(int ACodigo);
// How a cost centre's amounts fall on the establishments of a company, in thousandths; no centre: as administration.
std::vector<int> PesosDasFiliais(const TEmpresa& AEmpresa, int ACodigoCentro);

// Companies, establishments, cost centres, users and their attributions.
void GravarOrganizacao(suite::firebird::Transaction& ATransacao);

} // namespace demo
