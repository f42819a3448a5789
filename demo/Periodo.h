#pragma once

#include "base/DataHora.h"

#include <string>

namespace demo {

// The months of the demo count from January 2023.
constexpr int PrimeiroAno = 2023;
constexpr int MesesProjetados = 24;
constexpr int MesesComDiario = 21; // the journal ends in September 2024
constexpr int MesesPorAno = 12;

inline int AnoDoMes(int AMes) { return PrimeiroAno + AMes / MesesPorAno; }
inline int MesNoAno(int AMes) { return AMes % MesesPorAno + 1; }

inline base::TDataHora Dia(int AMes, int ADia, int AAnosAntes = 0) {
    return base::TDataHora::De(AnoDoMes(AMes) - AAnosAntes, MesNoAno(AMes), ADia).value();
}
inline base::TDataHora UltimoDia(int AMes, int AAnosAntes = 0) { return Dia(AMes, 1, AAnosAntes).UltimoDiaDoMes(); }

// "03/2024"
inline std::string Competencia(int AMes) { return Dia(AMes, 1).Texto().substr(3); }

} // namespace demo
