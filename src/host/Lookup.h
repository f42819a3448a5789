#pragma once

#include "host/Controles.h"
#include "host/DataSet.h"
#include "host/Exportar.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace host {

// Rows taken out of another dataset: a copy that stands by itself.
class HOST_API TDataSetEscolhido : public TDataSet {
  public:
    using TDataSet::TDataSet;
    // Closes, and opens again on those rows of the columns, in that order.
    void Carregar(const TDataSet& AOrigem, std::vector<std::size_t> ALinhas);

  protected:
    std::unique_ptr<TCursor> AbrirCursor() override;

  private:
    const TDataSet* FOrigem = nullptr;
    std::vector<std::size_t> FLinhas;
};

struct HOST_API TColunaLookup {
    std::string Campo;
    std::string Titulo;
};

// What is fixed in a search field.
struct HOST_API TDefinicaoLookup {
    std::string Titulo{};                 // of the search window
    std::string CampoPesquisa{};          // the code that a user types
    std::string CampoChave{};             // what GetID gives
    std::string CampoDescricao{};         // shown beside the code
    std::string Ordem{};                  // "CAMPO;CAMPO": order of the search
    std::string Instrucao{};              // select without a condition
    std::string Final{};                  // what stands behind the condition, an ORDER BY
    std::vector<TColunaLookup> Colunas{}; // of the search, in order
    bool MultiSelecao = false;
    bool PermiteZero = false;
    std::string TextoZero{};                                         // shown for zero or blank, where zero is allowed
    std::string TextoNaoAchou = "A informação digitada é inválida!"; // message for an unknown code; empty: none
    std::int64_t ValorInvalido = 0;                                  // what GetID gives after an unknown code
};

// Whether a typed text is that code; where the code is a number, its leading zeros do not count. NULL is no code.
HOST_API bool EhOCodigo(const base::TValor& ACodigo, std::string_view ATexto);

// One search field: a code with its description, the record found, and the records marked in its search where several
// may be chosen. Reads pass their failures on; a record without a key is one, and changes nothing.
class HOST_API TZTLookupEx : public TControle {
  public:
    static constexpr const char* TextoVarios = "Vários registros selecionados.";

    TZTLookupEx(std::string ANome, TDefinicaoLookup ADefinicao);

    const TDefinicaoLookup& Definicao() const { return FDefinicao; }
    // Key of the one record found; not above 0 when there is none.
    std::int64_t GetID() const { return FID; }
    // Stands on the record with that key, or on none if there is no such record. Tells nobody.
    void SetID(std::int64_t AID);
    // Forgets id, text and marked records.
    void Clear();
    // The one record found; closed without one.
    TDataSet& GetResultSet() { return FAchado; }
    const TDataSet& GetResultSet() const { return FAchado; }
    // The marked records; active only after the user has chosen by marking, even none.
    TDataSet& GetResultSetMultiSelecao() { return FMarcados; }
    const TDataSet& GetResultSetMultiSelecao() const { return FMarcados; }
    const std::string& Codigo() const { return FCodigo; } // as typed
    const std::string& Texto() const { return FTexto; }   // what stands beside it

    // Before each search: a condition, or a whole statement in the place of the defined one.
    struct TBusca {
        std::string Condicao;
        std::string Instrucao;
    };
    std::function<void(TBusca&)> AntesDeBuscar;
    std::function<void()> BuscaAchou;
    std::function<void()> BuscaNaoAchou;
    std::string TextoTodosMarcados; // shown when every record is marked; empty: TextoVarios

    // What the user does. All rows of the search, in its order; the caller shows them.
    std::unique_ptr<TZTClientDataSet> Pesquisar() const;
    // Positions from 1 of the rows of a search with that text in any of its columns, without regard to case and
    // accents.
    std::vector<std::size_t> Filtrar(const TDataSet& APesquisa, std::string_view ATexto) const;
    // Types a code. Unknown: the message, no record, and BuscaNaoAchou.
    void Digitar(const std::string& ACodigo);
    // Picks a row of a search, by its position from 1.
    void Escolher(TDataSet& APesquisa, std::size_t ARecNo);
    // Marks rows of a search, by their positions from 1; throws std::logic_error where only one may be chosen.
    void Marcar(TDataSet& APesquisa, const std::vector<std::size_t>& ARecNos);

  private:
    std::int64_t ChaveDe(TDataSet& APesquisa, std::size_t ARecNo) const; // throws TFalha for a record without one
    void Achar(TDataSet& APesquisa, std::size_t ARecNo);
    void MostrarTexto(std::string ACodigo, std::string ATexto);

    TDefinicaoLookup FDefinicao;
    std::int64_t FID = 0;
    std::string FCodigo;
    std::string FTexto;
    TDataSetEscolhido FAchado;
    TDataSetEscolhido FMarcados;
};

} // namespace host
