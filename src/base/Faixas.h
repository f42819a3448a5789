#pragma once

#include "base/Valor.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace base {

using TCor = std::uint32_t; // 0xRRGGBB

enum class TAlinhamento : std::uint8_t { Esquerda, Centro, Direita };

// What a text does that is wider than its place.
enum class TCabimento : std::uint8_t {
    Encolhe, // smaller letters
    Quebra,  // goes on in lines below, and its band grows
    Corta    // ends in a sign that more follows
};

enum class TEspecieElemento : std::uint8_t {
    Texto,
    FioVertical, // a rule at the left edge of its place, as high as the line of the band; at the right edge by Direita
    FioHorizontal, // a rule at the upper edge of its place; at the lower one by Direita
    Forma          // a filled rectangle from its line to the foot of the band, below everything else of it
};

// A place on a ruler of the report: the columns [Coluna, Coluna + Colunas) in a line of the band, both from 0.
struct BASE_API TLugar {
    std::uint8_t Linha = 0;
    std::uint8_t Regua = 0;
    std::uint8_t Coluna = 0;
    std::uint8_t Colunas = 1;
};

struct BASE_API TElementoFaixa {
    std::string Nome;
    std::string Texto; // as printed; empty for rules and shapes
    TLugar Lugar;
    TEspecieElemento Especie = TEspecieElemento::Texto;
    TAlinhamento Alinhamento = TAlinhamento::Esquerda;
    TCabimento Cabimento = TCabimento::Encolhe;
    bool Negrito = false;
    bool Folha = false;        // its text is the number of the page that it stands on
    bool Continua = false;     // says "(continuação)" where its band is repeated on a further page
    float Corpo = 1;           // size of its letters, relative to those of the report
    std::optional<TCor> Fundo; // of a shape its colour
    TValor Valor;              // the number or the date that the text says; NULL where it is a text alone
    std::string Formato;       // of Valor, a number (FormatoNumerico.h)
};

enum class TEspecieFaixa : std::uint8_t {
    CabecalhoPagina,
    CabecalhoGrupo,
    Detalhe,
    RodapeGrupo,
    Sumario,
    RodapePagina
};

// A band that prints: hidden elements are left out, a hidden band is not made at all.
struct BASE_API TFaixa {
    std::string Nome;
    TEspecieFaixa Especie = TEspecieFaixa::Detalhe;
    int Nivel = 0; // depth of its group from 1, hidden and empty groups counted; a detail has the innermost; 0 outside
    std::vector<TElementoFaixa> Elementos; // in the order of the report
    // Of a group's header. The group is what follows up to the next band that is further out, or to the next header of
    // the same depth.
    bool MantemJunto = false; // the group is on one page where a page can hold it
    bool Repete = false;      // the header stands again at the top of each page on which its group goes on
    bool NovaPagina = false;  // the band begins a page
    std::string Marcador;     // its entry in the outline, at depth Nivel; empty: none
};

// A column of a ruler: as wide as the widest of its samples in bold letters, and its share of the room that is left.
struct BASE_API TColunaRegua {
    std::vector<std::string> Amostras;
    double Peso = 0; // 0: no share
};
using TRegua = std::vector<TColunaRegua>;

// A4, margins in micrometres.
struct BASE_API TPapel {
    bool Paisagem = false;
    std::int32_t Topo = 10'000;
    std::int32_t Esquerda = 10'000;
    std::int32_t Direita = 10'000;
    std::int32_t Base = 5'000;
};

struct BASE_API TDefinicaoRelatorio {
    std::string Titulo;
    TPapel Papel;
    std::vector<TRegua> Reguas;
    TFaixa Rodape;         // of each page
    std::string Criterios; // what its rows were asked for, in a line
};

// The bands of a report from its first to its last, one at a time. The first one is a page header; another one follows
// wherever what it says changes. A page carries the last one that came before its first band.
class BASE_API TFluxoFaixas {
  public:
    virtual ~TFluxoFaixas() = default;
    virtual bool Proxima(TFaixa& AFaixa) = 0; // writes over it; false behind the last one
};

// A report whose rows are there. It may be walked as often as one likes, by several at a time.
class BASE_API TRelatorio {
  public:
    virtual ~TRelatorio() = default;
    virtual const TDefinicaoRelatorio& Definicao() const = 0;
    virtual std::unique_ptr<TFluxoFaixas> Faixas() const = 0; // outlived by the report
};

} // namespace base
