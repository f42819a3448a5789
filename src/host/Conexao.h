#pragma once

#include "base/Falhas.h"
#include "host/Colunas.h"
#include "host/Exportar.h"

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace host {

class TZTClientDataSet;

// A transaction as its holder sees it. A holder that lets go of an open one rolls it back.
class HOST_API TZTTransacao {
  public:
    TZTTransacao() = default;
    TZTTransacao(const TZTTransacao&) = delete;
    TZTTransacao& operator=(const TZTTransacao&) = delete;
    virtual ~TZTTransacao() = default;
    virtual bool Aberta() const = 0;
};

// A text to run, with the name under which its failure is reported.
struct HOST_API TInstrucao {
    std::string Nome;
    std::string Texto;
};

// The rows of an open select, forward only. It lives no longer than the connection.
class HOST_API TCursor {
  public:
    TCursor() = default;
    TCursor(const TCursor&) = delete;
    TCursor& operator=(const TCursor&) = delete;
    virtual ~TCursor() = default;
    virtual const std::vector<TDescricaoColuna>& Colunas() const = 0;
    // Appends up to AMaximo rows to the columns, which are those of Colunas in order. Returns how many; 0 at the end.
    virtual std::size_t Ler(TColunas& ADestino, std::size_t AMaximo) = 0;
};

// The connection below ZTConnection, as SQL datasets and plain queries hold it. Whatever runs here joins the open
// transaction, that is the one begun last and not yet ended; without one a select reads in a read-only transaction
// of its own. Failures raise TFalhaBanco.
class HOST_API TSQLConnection {
  public:
    virtual ~TSQLConnection() = default;
    virtual std::unique_ptr<TCursor> AbrirCursor(const TInstrucao& AInstrucao) = 0;
    // Throws TFalha when no transaction is open.
    virtual void ExecuteDirect(const std::string& ATexto) = 0;
};

struct HOST_API TResultStatus {
    bool Sucesso = true;
    std::string Mensagem;                        // why not, for the user
    std::optional<base::TFalhaBanco> Causa = {}; // where it was the database that failed
};

// The suite's database connection.
class HOST_API TZTConnection {
  public:
    virtual ~TZTConnection() = default;

    // Read committed; a write waits a bounded time for another's lock.
    virtual std::unique_ptr<TZTTransacao> IniciarTransacao() = 0;
    virtual std::unique_ptr<TZTTransacao> IniciarTransacaoSomenteLeitura() = 0;
    // Commits. May raise; the transaction is then still open and is to be cancelled.
    virtual void FinalizarTransacao(TZTTransacao& ATransacao) = 0;
    // Rolls back. Does nothing to a transaction that has ended.
    virtual void CancelarTransacao(TZTTransacao& ATransacao) = 0;

    // Runs the statements in order and stops at the first failure, which is reported and not raised. Durable: they
    // are one transaction of their own, committed on return. Otherwise they join the open transaction, and what ran
    // before a failure stays in it for its holder to cancel.
    virtual TResultStatus ExecutouSQL(std::span<const TInstrucao> AInstrucoes, bool ADuravel) = 0;

    // Writes the pending changes of all datasets. Returns a message for each failure; none means that all is written
    // and the datasets have no pending change left. Durable: one transaction of their own, and nothing is stored
    // where something failed. Otherwise they join the open transaction, which its holder then cancels.
    virtual std::vector<std::string> AplicarAlteracoesNoBD(std::span<TZTClientDataSet* const> ADataSets,
                                                           bool ADuravel) = 0;

    virtual TSQLConnection& GetSQLConnection() = 0;
    // Next key of the table, from its generator.
    virtual std::int64_t BuscarProximoID(std::string_view ATabela) = 0;
};

} // namespace host
