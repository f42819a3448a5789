#include "suite/firebird/Connection.h"

#include "base/Falhas.h"
#include "host/DataSet.h"
#include "suite/firebird/ChangeWriter.h"
#include "suite/firebird/Cursor.h"

#include <algorithm>
#include <optional>

namespace suite::firebird {

// A transaction in the hands of the module. While it is open it is the connection's open transaction, unless a later
// one is.
class Connection::Held final : public host::TZTTransacao {
  public:
    Held(Connection& owner, TransactionMode mode) : transaction(owner.attachment_, mode), owner_(&owner) {
        owner_->open_.push_back(this);
    }
    ~Held() override { leave(); }
    bool Aberta() const override { return transaction.state() == Transaction::State::Open; }
    void leave() {
        if (owner_)
            std::erase(owner_->open_, this);
        owner_ = nullptr;
    }
    void orphan() {
        transaction.rollback();
        owner_ = nullptr;
    }

    Transaction transaction;

  private:
    Connection* owner_;
};

namespace {

class DataSetCursor final : public host::TCursor {
  public:
    // Without a transaction given the cursor reads in one of its own.
    DataSetCursor(Attachment& attachment, Transaction* transaction, const host::TInstrucao& statement) {
        if (!transaction)
            transaction = &own_.emplace(attachment, TransactionMode::ReadOnly);
        cursor_.emplace(Statement(*transaction, statement.Texto, statement.Nome).open(*transaction));
    }
    const std::vector<host::TDescricaoColuna>& Colunas() const override { return cursor_->columns(); }
    std::size_t Ler(host::TColunas& target, std::size_t maximum) override { return cursor_->read(target, maximum); }

  private:
    std::optional<Transaction> own_;
    std::optional<Cursor> cursor_;
};

constexpr const char* GeneratorQuery = R"(
    SELECT FIRST 1 G.RDB$GENERATOR_NAME
      FROM RDB$GENERATORS G
      LEFT JOIN RDB$DEPENDENCIES D
        ON D.RDB$DEPENDED_ON_NAME = G.RDB$GENERATOR_NAME
       AND D.RDB$DEPENDED_ON_TYPE = 14
       AND D.RDB$DEPENDENT_TYPE = 2
      LEFT JOIN RDB$TRIGGERS T
        ON T.RDB$TRIGGER_NAME = D.RDB$DEPENDENT_NAME
     WHERE G.RDB$GENERATOR_NAME = ?
        OR (T.RDB$RELATION_NAME = ?
            AND T.RDB$TRIGGER_TYPE = 1)
     ORDER BY CASE WHEN G.RDB$GENERATOR_NAME = ? THEN 0 ELSE 1 END)";

} // namespace

std::string findGenerator(Transaction& transaction, const std::string& table) {
    const base::TValor byName = "GEN_" + table;
    const base::TValor parameters[] = {byName, table, byName};
    return TextoDe(queryValue(transaction, GeneratorQuery, "gerador de " + table, parameters));
}

Connection::~Connection() {
    // Whoever still holds a transaction keeps an ended one.
    for (auto* held : open_)
        held->orphan();
}

std::unique_ptr<host::TZTTransacao> Connection::begin(TransactionMode mode) {
    return std::make_unique<Held>(*this, mode);
}

std::unique_ptr<host::TZTTransacao> Connection::IniciarTransacao() { return begin(TransactionMode::ReadWrite); }

std::unique_ptr<host::TZTTransacao> Connection::IniciarTransacaoSomenteLeitura() {
    return begin(TransactionMode::ReadOnly);
}

void Connection::FinalizarTransacao(host::TZTTransacao& transaction) {
    auto& held = dynamic_cast<Held&>(transaction);
    held.transaction.commit();
    held.leave();
}

void Connection::CancelarTransacao(host::TZTTransacao& transaction) {
    auto& held = dynamic_cast<Held&>(transaction);
    held.transaction.rollback();
    held.leave();
}

Transaction* Connection::openTransaction() const { return open_.empty() ? nullptr : &open_.back()->transaction; }

std::unique_ptr<host::TCursor> Connection::AbrirCursor(const host::TInstrucao& statement) {
    return std::make_unique<DataSetCursor>(attachment_, openTransaction(), statement);
}

Transaction& Connection::writeTransaction(std::optional<Transaction>& own, bool durable) {
    auto* transaction = durable ? &own.emplace(attachment_, TransactionMode::ReadWrite) : openTransaction();
    if (!transaction)
        throw base::TFalha("Não há transação aberta para a gravação.");
    return *transaction;
}

void Connection::ExecuteDirect(const std::string& text) {
    std::optional<Transaction> none;
    execute(writeTransaction(none, false), text, "ExecuteDirect");
}

host::TResultStatus Connection::ExecutouSQL(std::span<const host::TInstrucao> statements, bool durable) {
    try {
        std::optional<Transaction> own;
        auto& transaction = writeTransaction(own, durable);
        for (const auto& statement : statements)
            execute(transaction, statement.Texto, statement.Nome);
        if (own)
            own->commit();
        return {};
    } catch (const base::TFalhaBanco& failure) {
        return {false, failure.what(), failure};
    } catch (const base::TFalha& failure) {
        return {false, failure.what()};
    }
}

std::vector<std::string> Connection::AplicarAlteracoesNoBD(std::span<host::TZTClientDataSet* const> dataSets,
                                                           bool durable) {
    try {
        std::optional<Transaction> own;
        auto& transaction = writeTransaction(own, durable);
        for (const auto* dataSet : dataSets)
            writeChanges(transaction, *dataSet);
        if (own)
            own->commit();
    } catch (const base::TFalha& failure) {
        return {failure.what()};
    }
    for (auto* dataSet : dataSets)
        dataSet->AlteracoesAplicadas();
    return {};
}

Statement& Connection::nextKeyOf(Transaction& transaction, const std::string& table) {
    if (const auto known = nextKeys_.find(table); known != nextKeys_.end())
        return known->second;
    const auto generator = findGenerator(transaction, table);
    if (generator.empty())
        throw base::TFalha("A tabela " + table + " não tem gerador de chaves neste banco de dados.");
    return nextKeys_
        .emplace(table, Statement(transaction, "SELECT GEN_ID(\"" + generator + "\", 1) FROM RDB$DATABASE",
                                  "próxima chave de " + table))
        .first->second;
}

// A key once given is never given again, whatever becomes of the transaction in which it was asked for.
std::int64_t Connection::BuscarProximoID(std::string_view table) {
    std::optional<Transaction> own;
    auto* open = openTransaction();
    auto& transaction = open ? *open : own.emplace(attachment_, TransactionMode::ReadOnly);
    auto cursor = nextKeyOf(transaction, std::string(table)).open(transaction);
    host::TColunas key(cursor.columns().begin(), cursor.columns().end());
    cursor.read(key, 1);
    return std::get<base::TDecimal>(key.front().Valor(0)).Unidades;
}

} // namespace suite::firebird
