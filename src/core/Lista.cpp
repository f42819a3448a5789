#include "core/Lista.h"

#include "base/Falhas.h"
#include "base/Texto.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace pct04618 {

namespace {

constexpr int MaximoDoIn = 1500;              // of the engine
constexpr std::int64_t MaximoDaFaixa = 30000; // signs of a literal
constexpr std::int64_t MaximoDoVao = 500;     // what is further apart is a range of its own
// Of a condition, of which a statement has up to ten: what the engine takes, with room left.
constexpr int MaximoDeFaixas = 300;
constexpr std::size_t MaximoDoTexto = 800'000;

// %0:s column, %1:d first and %2:d last number of a range, %3:s a sign for each number in it. The range is what an
// index serves; it is said again because the engine takes conditions in any order, and a position below 1 is an error.
constexpr const char* NaFaixa = "%0:s BETWEEN %1:d AND %2:d AND "
                                "SUBSTRING('%3:s' FROM IIF(%0:s BETWEEN %1:d AND %2:d, %0:s - %1:d + 1, NULL) FOR 1) = "
                                "'1'";

std::vector<std::int64_t> EmOrdem(std::string_view ALista) {
    std::vector<std::int64_t> LNumeros;
    while (!ALista.empty()) {
        const auto LFim = std::min(ALista.find(','), ALista.size());
        LNumeros.push_back(std::stoll(base::Trim(ALista.substr(0, LFim))));
        ALista.remove_prefix(std::min(LFim + 1, ALista.size()));
    }
    std::sort(LNumeros.begin(), LNumeros.end());
    return LNumeros;
}

} // namespace

// As so many terms a list is gone through for each row, and the engine ends at some ten thousand of them. A range with
// a sign for each of its numbers is one look at each row.
std::string EstaNaLista(const std::string& AColuna, std::string_view ALista) {
    if (std::count(ALista.begin(), ALista.end(), ',') < MaximoDoIn)
        return AColuna + " IN (" + std::string(ALista) + ")";
    const auto LNumeros = EmOrdem(ALista);
    std::string LCondicao;
    int LFaixas = 0;
    for (std::size_t I = 0; I < LNumeros.size();) {
        const auto LPrimeiro = LNumeros[I];
        std::string LSinais = "1";
        for (++I; I < LNumeros.size() && LNumeros[I] - LNumeros[I - 1] <= MaximoDoVao &&
                  LNumeros[I] - LPrimeiro < MaximoDaFaixa;
             ++I) {
            LSinais.resize(static_cast<std::size_t>(LNumeros[I] - LPrimeiro), '0');
            LSinais += '1';
        }
        LCondicao += (LCondicao.empty() ? "" : "\n        OR ") +
                     base::Format(NaFaixa, {AColuna, LPrimeiro, LNumeros[I - 1], LSinais});
        if (++LFaixas > MaximoDeFaixas || LCondicao.size() > MaximoDoTexto)
            throw base::TFalha("A seleção tem " + std::to_string(LNumeros.size()) +
                               " registros, mais do que cabe em uma consulta. Escolha um período menor ou marque menos "
                               "registros.");
    }
    return "(" + LCondicao + ")";
}

std::string EstaEntreMarcados(const std::string& ACadeia) {
    if (std::count(ACadeia.begin(), ACadeia.end(), '\r') < MaximoDoIn)
        return ACadeia;
    constexpr std::string_view LIgual = " = ";
    std::string LLista;
    for (auto I = ACadeia.find(LIgual); I != std::string::npos; I = ACadeia.find(LIgual, I)) {
        I += LIgual.size();
        LLista += (LLista.empty() ? "" : ",") + ACadeia.substr(I, ACadeia.find('\r', I) - I);
    }
    return EstaNaLista(ACadeia.substr(0, ACadeia.find(LIgual)), LLista);
}

} // namespace pct04618
