#include "consultation/NomesDosPeriodos.h"

#include <map>
#include <set>

namespace pct04618 {

namespace {

std::string Ano(const TPeriodoEmColuna& APeriodo) { return " " + std::to_string(APeriodo.Inicio.Ano()); }

std::string Datas(const TPeriodoEmColuna& APeriodo) {
    return " (" + APeriodo.Inicio.Texto() + " a " + APeriodo.Fim.Texto() + ")";
}

std::string BalancoRef(const TPeriodoEmColuna& APeriodo) {
    if (APeriodo.InicioBalancoRef.Vazia() || APeriodo.FimBalancoRef.Vazia())
        return " (sem base)";
    return " (base de " + APeriodo.InicioBalancoRef.Texto() + " a " + APeriodo.FimBalancoRef.Texto() + ")";
}

} // namespace

std::vector<std::string> NomesUnicos(std::vector<std::string> ANomes, const std::vector<TPeriodoEmColuna>& APeriodos) {
    for (const auto LDistinguir : {Ano, Datas, BalancoRef}) {
        std::map<std::string, std::set<std::string>> LVariantes;
        for (std::size_t I = 0; I < APeriodos.size(); ++I)
            LVariantes[ANomes[I]].insert(LDistinguir(APeriodos[I]));
        for (std::size_t I = 0; I < APeriodos.size(); ++I)
            if (LVariantes.at(ANomes[I]).size() > 1)
                ANomes[I] += LDistinguir(APeriodos[I]);
    }
    return ANomes;
}

} // namespace pct04618
