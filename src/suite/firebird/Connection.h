#pragma once

#include "host/Conexao.h"
#include "suite/firebird/Attachment.h"
#include "suite/firebird/Statement.h"
#include "suite/firebird/Transaction.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace suite::firebird {

// The generator of a table's keys: the one named GEN_ and the table, else one that a BEFORE INSERT trigger of the table
// uses. Empty where there is none.
std::string findGenerator(Transaction& transaction, const std::string& table);

// The host's connection over one attachment.
class Connection final : public host::TZTConnection, public host::TSQLConnection {
  public:
    Connection(const Target& target, const Credentials& credentials) : attachment_(target, credentials) {}
    ~Connection() override;

    std::unique_ptr<host::TZTTransacao> IniciarTransacao() override;
    std::unique_ptr<host::TZTTransacao> IniciarTransacaoSomenteLeitura() override;
    void FinalizarTransacao(host::TZTTransacao& transaction) override;
    void CancelarTransacao(host::TZTTransacao& transaction) override;
    host::TResultStatus ExecutouSQL(std::span<const host::TInstrucao> statements, bool durable) override;
    std::vector<std::string> AplicarAlteracoesNoBD(std::span<host::TZTClientDataSet* const> dataSets,
                                                   bool durable) override;
    host::TSQLConnection& GetSQLConnection() override { return *this; }
    std::int64_t BuscarProximoID(std::string_view table) override;

    std::unique_ptr<host::TCursor> AbrirCursor(const host::TInstrucao& statement) override;
    void ExecuteDirect(const std::string& text) override;

    Attachment& attachment() { return attachment_; }

  private:
    class Held;

    std::unique_ptr<host::TZTTransacao> begin(TransactionMode mode);
    Transaction* openTransaction() const; // null when there is none
    // The transaction of a write: one of its own where it is durable, else the open one. Throws without any.
    Transaction& writeTransaction(std::optional<Transaction>& own, bool durable);
    Statement& nextKeyOf(Transaction& transaction, const std::string& table);

    Attachment attachment_;
    std::vector<Held*> open_;                                // in the order of their beginning
    std::map<std::string, Statement, std::less<>> nextKeys_; // by table, prepared at first use
};

} // namespace suite::firebird
