#pragma once

#include "host/Grade.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace pct04618 {

struct TSelecao;

// How the cells of the two result grids look: functions of one row's values and of what the query module was asked for.
// The same colour means different things in the two grids.
namespace cores {

inline constexpr host::TCor Vermelho = 0xFF0000;
inline constexpr host::TCor Azul = 0x0000FF;
inline constexpr host::TCor Roxo = 0x800080;
inline constexpr host::TCor VerdeAzulado = 0x008080;
inline constexpr host::TCor AzulForte = 0x7A96DF;
inline constexpr host::TCor AzulClaro = 0xD8E4F8;
inline constexpr host::TCor VerdeClaro = 0xC0DCC0;
inline constexpr host::TCor Preto = 0x000000;

} // namespace cores

// A cell of the balance grid. What is absent in the row is 0 or empty.
struct TCelulaBalanco {
    std::int32_t CtaTitulo = 0;
    std::string DeltaVariacao; // the value as text
    std::string RecDesp;       // as displayed
    std::string_view Coluna;   // field of the cell
    std::string Texto;         // as displayed; read only where a lone zero is not shown
    bool Selecionada = false;  // in the focused line, which is not coloured
};

// A cell of the periods grid, with the line types that were asked for.
struct TCelulaPeriodos {
    bool LinhaVlrBase = false;
    bool LinhaVlrOrcado = false;
    bool LinhaVlrRealizado = false;
    bool DetContasTotaliz = false;
    std::int32_t TipoLinha = 0; // 1 base, 2 budget, 3 actual
    std::int32_t CtaTitulo = 0;
    std::string IDPlano;
    std::string_view Coluna;
    std::string Texto;
    bool Selecionada = false;
};

host::TAparencia AparenciaDaCelula(const TCelulaBalanco& ACelula);
host::TAparencia AparenciaDaCelula(const TCelulaPeriodos& ACelula);

// The plain values that the rules read of a grid's cell, whether their columns are in view or not.
TCelulaBalanco LerCelulaBalanco(const host::TCelula& ACelula);
TCelulaPeriodos LerCelulaPeriodos(const host::TCelula& ACelula, const TSelecao& ASelecao);

} // namespace pct04618
