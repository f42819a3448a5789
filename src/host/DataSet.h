#pragma once

#include "host/Assinatura.h"
#include "host/Conexao.h"
#include "host/Exportar.h"

#include <deque>
#include <functional>
#include <map>
#include <optional>

namespace host {

class TDataSet;

enum class TEstadoDataSet { Fechado, Navegando, Editando, Inserindo };

// One field of an open dataset, reading and writing the current row. The object is the dataset's own and is made
// anew at each open. A getter gives nothing for NULL; a read of NULL as zero says so by name.
class HOST_API TField {
  public:
    TField(TDataSet& ADataSet, std::size_t AIndice);

    const TDescricaoColuna& Descricao() const;
    const std::string& Nome() const { return Descricao().Nome; }
    std::size_t Indice() const { return FIndice; }

    base::TValor Valor() const;
    bool IsNull() const;
    std::optional<std::int64_t> AsInt64() const; // throws TFalha where the value has a fraction or is no number
    std::int64_t AsInt64OuZero() const { return AsInt64().value_or(0); }
    std::optional<base::TDecimal> AsDecimal() const; // throws TFalha where the value is no exact number
    base::TMoeda AsMoedaOuZero() const;
    std::optional<base::TDataHora> AsDateTime() const;
    // The value as locale-free text, NULL as an empty one.
    std::string AsString() const;

    // The dataset must be in edit or insert. The value is converted to the field's type, or TFalha names the field.
    void Atribuir(const base::TValor& AValor);
    void Clear() { Atribuir(base::Nulo); }

    // Number formats for display and edit, empty for the field's plain form (FormatoNumerico.h).
    std::string FormatoExibicao;
    std::string FormatoEdicao;

  private:
    TDataSet* FDataSet;
    std::size_t FIndice;
};

// Rows loaded in full from a select, with a current row. Navigation follows the order of the result, or of the
// index where a dataset has one.
class HOST_API TDataSet {
  public:
    explicit TDataSet(std::string ANome) : FNome(std::move(ANome)) {}
    virtual ~TDataSet() = default;
    TDataSet(const TDataSet&) = delete;
    TDataSet& operator=(const TDataSet&) = delete;

    const std::string& Nome() const { return FNome; }
    bool Active() const { return FEstado != TEstadoDataSet::Fechado; }
    TEstadoDataSet State() const { return FEstado; }

    // Loads all rows and stands on the first. On failure the dataset is closed. Open of an open dataset does nothing.
    void Open();
    void Close(); // drops rows, fields and pending changes

    bool IsEmpty() const { return RecordCount() == 0; }
    std::size_t RecordCount() const { return FOrdem.size(); }
    // 1 to RecordCount; 0 without rows.
    std::size_t RecNo() const { return FOrdem.empty() ? 0 : FPosicao + 1; }
    void IrPara(std::size_t ARecNo);
    void First();
    void Last();
    void Next(); // past the last row only Eof changes
    void Prior();
    bool Eof() const { return FEof; }
    bool Bof() const { return FBof; }

    // Throws TFalha, which names dataset and field.
    TField& FieldByName(std::string_view ANome);
    const TField* FindField(std::string_view ANome) const;
    const std::deque<TField>& Fields() const { return FCampos; }
    // Throws TFalha when the field is NULL or the dataset stands on no row.
    std::int64_t GetInt64FieldValue(std::string_view ANome);

    // The rows as columns, and the row of the columns behind a position from 0 in the order of navigation.
    const TColunas& Colunas() const { return FColunas; }
    std::size_t LinhaDe(std::size_t APosicao) const { return FOrdem[APosicao]; }

    std::function<void(TDataSet&)> AfterOpen;
    // Told after each change of state: opened, closed, editing, back to browsing.
    TAssinatura AoMudarEstado(std::function<void()> AOuvinte) { return FOuvintes.Assinar(std::move(AOuvinte)); }

  protected:
    friend class TField;
    virtual std::unique_ptr<TCursor> AbrirCursor() = 0;
    virtual void AoCarregar() {}
    virtual void AoFechar() {}
    virtual const std::vector<base::TValor>* LinhaEmEdicao() const { return nullptr; }
    virtual void AtribuirEmEdicao(std::size_t ACampo, const base::TValor& AValor);
    void MudarEstado(TEstadoDataSet AEstado);
    std::size_t LinhaAtual() const; // throws TFalha without a current row
    void Posicionar(std::size_t APosicao);

    TColunas FColunas;
    std::vector<std::uint32_t> FOrdem; // rows in the order of navigation

  private:
    std::string FNome;
    TEstadoDataSet FEstado = TEstadoDataSet::Fechado;
    std::deque<TField> FCampos;
    std::map<std::string, std::size_t, std::less<>> FPorNome;
    std::size_t FPosicao = 0;
    bool FEof = true;
    bool FBof = true;
    TOuvintes FOuvintes;
};

// A plain query on a connection.
class HOST_API TZTSQLQuery : public TDataSet {
  public:
    TZTSQLQuery(TSQLConnection& AConexao, std::string ANome) : TDataSet(std::move(ANome)), FConexao(AConexao) {}
    std::string SQL;

  protected:
    std::unique_ptr<TCursor> AbrirCursor() override;

  private:
    TSQLConnection& FConexao;
};

enum class TPapelCampo { Chave, Gravado };

// The SQL side of a chain: a text and the roles of the fields in an update. A role is given by field name; the key
// fields find the stored row, the written ones are only written.
class HOST_API TZTSQLDataSet {
  public:
    explicit TZTSQLDataSet(std::string ANome) : FNome(std::move(ANome)) {}
    const std::string& Nome() const { return FNome; }
    void SetSQLConnection(TSQLConnection& AConexao) { FConexao = &AConexao; }
    TSQLConnection& SQLConnection() const; // throws TFalha when there is none

    std::string CommandText;
    bool ParamCheck = true; // off: names with a colon in the text are the text's own
    std::map<std::string, TPapelCampo, std::less<>> Papeis;

  private:
    std::string FNome;
    TSQLConnection* FConexao = nullptr;
};

// Joins a SQL dataset and a client dataset.
class HOST_API TZTDataSetProvider {
  public:
    TZTDataSetProvider(std::string ANome, TZTSQLDataSet& ADataSet) : FNome(std::move(ANome)), FDataSet(&ADataSet) {}
    const std::string& Nome() const { return FNome; }
    TZTSQLDataSet& DataSet() const { return *FDataSet; }

    bool PermiteCommandText = false;  // poAllowCommandText: the client's text replaces that of the SQL dataset
    bool LocalizaSoPelaChave = false; // upWhereKeyOnly: an update finds its row by the key fields
    std::function<void(std::string& ATabela)> OnGetTableName;

  private:
    std::string FNome;
    TZTSQLDataSet* FDataSet;
};

// What is to be stored of one row: a new row, or the values it had before its first edit.
struct HOST_API TAlteracao {
    bool Inserida = false;
    std::vector<base::TValor> Antes;
};

// A client dataset: rows in memory, editable, with changes pending until the connection applies them.
class HOST_API TZTClientDataSet : public TDataSet {
  public:
    TZTClientDataSet(std::string ANome, TZTDataSetProvider& AProvider)
        : TDataSet(std::move(ANome)), FProvider(&AProvider) {}
    // For a dataset made by hand, without a provider: it reads only.
    TZTClientDataSet(std::string ANome, TSQLConnection& AConexao) : TDataSet(std::move(ANome)), FConexao(&AConexao) {}

    std::string CommandText;
    std::function<void(TZTClientDataSet&)> OnNewRecord;
    TZTDataSetProvider* Provider() const { return FProvider; }
    // The text that Open runs: CommandText where the provider allows it and there is one, else the SQL dataset's.
    std::string TextoEfetivo() const;

    // "CAMPO;CAMPO": order of navigation and fields of FindKey, NULL first. Empty for the order of the result.
    void SetIndexFieldNames(std::string ACampos);
    // Stands on the first row whose leading index fields have these values. False, without moving, when there is none.
    bool FindKey(std::span<const base::TValor> AValores);

    void Edit();
    void Insert(); // a new row of nulls; OnNewRecord runs on it before Insert returns
    void Post();
    void Cancel();

    // Pending changes by row of Colunas. What is posted stands here until the connection has stored it.
    const std::map<std::size_t, TAlteracao>& Alteracoes() const { return FAlteracoes; }
    void AlteracoesAplicadas() { FAlteracoes.clear(); }

  protected:
    std::unique_ptr<TCursor> AbrirCursor() override;
    void AoCarregar() override { Reordenar(); }
    void AoFechar() override;
    const std::vector<base::TValor>* LinhaEmEdicao() const override { return FEdicao ? &*FEdicao : nullptr; }
    void AtribuirEmEdicao(std::size_t ACampo, const base::TValor& AValor) override;

  private:
    TSQLConnection& Conexao() const;
    void Reordenar();
    bool Antes(std::size_t ALinha, std::size_t AOutra) const;
    std::vector<base::TValor> ValoresDaLinha(std::size_t ALinha) const;

    TZTDataSetProvider* FProvider = nullptr;
    TSQLConnection* FConexao = nullptr;
    std::string FIndice;
    std::vector<std::size_t> FCamposIndice;
    std::optional<std::vector<base::TValor>> FEdicao;
    std::map<std::size_t, TAlteracao> FAlteracoes;
};

} // namespace host
