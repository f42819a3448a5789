#pragma once

#include "base/Valor.h"
#include "host/Exportar.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace host {

enum class TTipoColuna : std::uint8_t { Inteiro, Real, Data, DataHora, Texto };

// What a result says of one of its columns. Escala counts decimal places of an Inteiro (0 to 18); Tamanho is the
// declared length of a Texto in characters. Tabela is the table the column comes from, empty for an expression.
struct HOST_API TDescricaoColuna {
    std::string Nome;
    TTipoColuna Tipo = TTipoColuna::Inteiro;
    int Escala = 0;
    int Tamanho = 0;
    std::string Tabela;
};

// One typed column of a result. Numbers and dates are 64-bit integers (unscaled units, ten-thousandths of a
// second), text is UTF-8 in an arena where equal texts are kept once. NULL is told apart in every type.
class HOST_API TColuna {
  public:
    explicit TColuna(TDescricaoColuna ADescricao);

    const TDescricaoColuna& Descricao() const { return FDescricao; }
    std::size_t Tamanho() const { return EhTexto() ? FCodigos.size() : FNumeros.size(); }
    std::size_t Bytes() const; // memory held

    bool Nulo(std::size_t ALinha) const {
        return EhTexto() ? FCodigos[ALinha] == 0 : (FNulos[ALinha / 64] >> (ALinha % 64) & 1) != 0;
    }
    // The cell as it is kept; meaningless where Nulo.
    std::int64_t Unidades(std::size_t ALinha) const { return FNumeros[ALinha]; }
    std::string_view Texto(std::size_t ALinha) const { return TextoDoCodigo(FCodigos[ALinha]); }
    // Equal texts have equal codes; 0 is NULL. For caches beside the column (sort keys, widths).
    std::uint32_t Codigo(std::size_t ALinha) const { return FCodigos[ALinha]; }

    base::TValor Valor(std::size_t ALinha) const;
    // Nulls first, then by value; texts by their bytes.
    int Comparar(std::size_t ALinha, std::size_t AOutra) const;
    int Comparar(std::size_t ALinha, const base::TValor& AValor) const;

    void AcrescentarNulo();
    void AcrescentarUnidades(std::int64_t AUnidades);
    void AcrescentarReal(double AValor);
    void AcrescentarTexto(std::string_view AUtf8);
    void Acrescentar(const base::TValor& AValor);
    void Atribuir(std::size_t ALinha, const base::TValor& AValor);

    // The value in the column's own type and scale: text that reads as a number or a date is converted, a number is
    // brought to the scale. Throws TFalha, which names the column, when that is not possible.
    base::TValor Converter(const base::TValor& AValor) const;

  private:
    bool EhTexto() const { return FDescricao.Tipo == TTipoColuna::Texto; }
    std::string_view TextoDoCodigo(std::uint32_t ACodigo) const {
        return std::string_view(FArena).substr(FInicios[ACodigo], FInicios[ACodigo + 1] - FInicios[ACodigo]);
    }
    void MarcarNulo(std::size_t ALinha, bool ANulo);
    void AbrirLinha(bool ANulo);
    std::uint32_t CodigoDoTexto(std::string_view AUtf8);
    void DobrarTabela();

    TDescricaoColuna FDescricao;
    std::vector<std::int64_t> FNumeros;
    std::vector<std::uint64_t> FNulos;
    std::vector<std::uint32_t> FCodigos;
    std::string FArena;
    std::vector<std::uint64_t> FInicios{0, 0}; // code 0 is NULL and empty
    std::vector<std::uint32_t> FTabela;        // open addressing over the arena
};

using TColunas = std::vector<TColuna>;

} // namespace host
