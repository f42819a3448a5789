#pragma once

#include "host/Exportar.h"
#include "host/Formularios.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace host {

// How a cell is shown, beside its text. Without a colour the front end's own holds.
struct HOST_API TAparencia {
    bool Negrito = false;
    std::optional<TCor> Fonte;
    std::optional<TCor> Fundo;
    bool Vazio = false; // shows its background only
};

// What a column holds. By it, and never by a field's name, a face chooses what it sums, draws and marks.
enum class TPapelColuna : std::uint8_t {
    Comum,
    Nome,            // of the line
    Detalhe,         // a code that tells lines of one name apart; 0 says that there is none
    Dinheiro,        // an amount of one period or of the whole line; it sums down the lines
    Total,           // an amount that holds others of its line; it sums too
    Desvio,          // by how much the line is off its budget; it sums too
    Percentual,      // has no sum
    PercentualDesvio // has none either; the sign of the line stands beside it
};

struct HOST_API TColunaGrade {
    std::string Campo;
    std::string Titulo;
    std::string Faixa; // caption of the band above it, empty for none
    bool Visivel = true;
    std::string Formato;        // of numbers (FormatoNumerico.h); empty: the field's own
    int Grupo = -1;             // grouping level from 0, -1 for none
    bool Identificacao = false; // says which line it is, and stays in view when the others scroll
    TPapelColuna Papel = TPapelColuna::Comum;
    std::string Extenso = {}; // the title where no neighbour and no band explains it; empty: the title itself
    int Cede = 0;        // where room is narrow the highest gives way first; 0 stays
    // Fields of its line of which it is the sum, a "-" before one that is taken away; none: it stands for itself.
    std::vector<std::string> Parcelas = {};
};

// What the lines of a grid say of themselves, by the field that says it; an empty name: nothing says it.
struct HOST_API TRegraDasLinhas {
    std::string Titulo; // 1: a title, which holds the lines below it; another number: analytic; NULL: neither
    std::string Tipo;   // of a row among those of its line: 1 base, 2 budget, 3 actual
    std::vector<std::string> Chave; // rows with the same values here are of the same line
    std::string Conta;              // NULL: a totalizer, which holds accounts that stand beside it
    std::string Favoravel;          // below zero: worse than the budget
    std::string Nivel;              // a classification; each point in it is a level further down
};

class TGrade;

// One cell of a grid: a row by its position from 0 in the dataset's order, whatever the grid groups or sorts.
struct HOST_API TCelula {
    const TGrade* Grade = nullptr;
    std::size_t Posicao = 0;
    const TColunaGrade* Coluna = nullptr;
    bool Selecionada = false;

    // The row's value of any field, shown or not; NULL for a field that the dataset does not have.
    base::TValor Valor(std::string_view ACampo) const;
    // The cell's own text as it is displayed, "" for NULL.
    std::string Texto() const;
};

// A grid over a data source: columns by field name, and the rules of how a cell looks. It holds no rows.
class HOST_API TGrade : public TControle {
  public:
    TGrade(std::string ANome, TDataSource& AFonte) : TControle(std::move(ANome)), FFonte(AFonte) {}

    TDataSource& Fonte() const { return FFonte; }
    // Null while the data source has none.
    const TDataSet* DataSet() const { return FFonte.DataSet; }
    const std::vector<TColunaGrade>& Colunas() const { return FColunas; }
    void SetColunas(std::vector<TColunaGrade> AColunas);
    // That of the column's numbers: its own or its field's; empty for their plain form.
    std::string FormatoDe(const TColunaGrade& AColuna) const;
    // Throw TFalha for a field without a column.
    const TColunaGrade& Coluna(std::string_view ACampo) const;
    void MudarColuna(std::string_view ACampo, const std::function<void(TColunaGrade&)>& AMudanca);

    TRegraDasLinhas Linhas;
    // What the rules say by the font colour of a line, so that a face need not say it by colour alone.
    std::map<TCor, std::string> Significados;
    // The rule of the window; absent: plain cells.
    std::function<TAparencia(const TCelula&)> RegraDaCelula;
    TAparencia Aparencia(const TCelula& ACelula) const;
    TCelula Celula(std::size_t APosicao, const TColunaGrade& AColuna, bool ASelecionada = false) const {
        return {this, APosicao, &AColuna, ASelecionada};
    }

    // Asked of whoever shows the grid: open all groups.
    std::function<void()> AoExpandirTudo;
    void ExpandirTudo() const {
        if (AoExpandirTudo)
            AoExpandirTudo();
    }

  private:
    void Avisar();

    TDataSource& FFonte;
    std::vector<TColunaGrade> FColunas;
    std::uint64_t FVersao = 0; // of the columns: a change tells the listeners
};

// A value as a Brazilian reader expects it: numbers by the format (empty: a whole number plain, another with all its
// decimals), dates as dd/mm/aaaa, "" for NULL.
HOST_API std::string TextoExibido(const base::TValor& AValor, std::string_view AFormato);

} // namespace host
