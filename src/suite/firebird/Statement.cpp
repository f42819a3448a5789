#include "base/Falhas.h"
#include "suite/firebird/Attachment.h"
#include "suite/firebird/Blocker.h"
#include "suite/firebird/Charset.h"
#include "suite/firebird/Cursor.h"
#include "suite/firebird/Parameters.h"
#include "suite/firebird/StatementShared.h"
#include "suite/firebird/Transaction.h"

#include <chrono>

namespace suite::firebird {

namespace {

constexpr unsigned Dialect = 3;

} // namespace

Statement::Shared::~Shared() {
    if (handle) {
        Status status;
        handle->free(status.get());
        if (!status.failed())
            static_cast<void>(handle.release()); // a successful free has released it
    }
}

std::string Statement::Shared::readBlob(ISC_QUAD id) const {
    Ref<Firebird::IBlob> blob(call(name, [&](auto* status) {
        return transaction->attachment().handle()->openBlob(status, transaction->handle(), &id, 0, nullptr);
    }));
    std::string text;
    char part[8192];
    for (;;) {
        unsigned length = 0;
        const int answer =
            call(name, [&](auto* status) { return blob->getSegment(status, sizeof part, part, &length); });
        if (answer == Firebird::IStatus::RESULT_NO_DATA)
            break;
        text.append(part, length);
    }
    call(name, [&](auto* status) { blob->close(status); });
    static_cast<void>(blob.release());
    return text;
}

Statement::Statement(Transaction& transaction, std::string_view sql, std::string name)
    : shared_(std::make_shared<Shared>()) {
    shared_->name = std::move(name);
    const auto text = toLatin1(sql, "instrução " + shared_->name);
    shared_->handle.reset(call(shared_->name, [&](auto* status) {
        return transaction.attachment().handle()->prepare(
            status, transaction.handle(), static_cast<unsigned>(text.size()), text.data(), Dialect,
            Firebird::IStatement::PREPARE_PREFETCH_METADATA | Firebird::IStatement::PREPARE_PREFETCH_AFFECTED_RECORDS);
    }));
    shared_->input.reset(call(shared_->name, [&](auto* status) { return shared_->handle->getInputMetadata(status); }));
    shared_->output.reset(
        call(shared_->name, [&](auto* status) { return shared_->handle->getOutputMetadata(status); }));
}

Statement::~Statement() = default;
Statement::Statement(Statement&&) noexcept = default;

void Statement::nameParameters(std::vector<std::string> labels) { labels_ = std::move(labels); }

void Statement::execute(Transaction& transaction, std::span<const base::TValor> parameters) {
    auto message = inputMessage(shared_->input.get(), parameters, shared_->name, labels_);
    shared_->transaction = &transaction;
    // The engine waits for another's lock, but when the other commits it gives up instead of going on with what was
    // committed. The failed statement has left nothing, so it may run again as long as the wait would have lasted.
    const auto end = std::chrono::steady_clock::now() + LockTimeout - std::chrono::seconds(1); // the clocks differ
    for (;;) {
        try {
            call(shared_->name, [&](auto* status) {
                shared_->handle->execute(status, transaction.handle(), shared_->input.get(), message.data(), nullptr,
                                         nullptr);
            });
            return;
        } catch (const base::TFalhaBanco& failure) {
            if (failure.Tipo() != base::TTipoFalhaBanco::Bloqueio)
                throw;
            if (std::chrono::steady_clock::now() >= end)
                throw withBlocker(transaction.attachment(), failure);
        }
    }
}

std::uint64_t Statement::affectedRows() const {
    return call(shared_->name, [&](auto* status) { return shared_->handle->getAffectedRecords(status); });
}

Cursor Statement::open(Transaction& transaction, std::span<const base::TValor> parameters) {
    auto message = inputMessage(shared_->input.get(), parameters, shared_->name, labels_);
    shared_->transaction = &transaction;
    Ref<Firebird::IResultSet> rows(call(shared_->name, [&](auto* status) {
        return shared_->handle->openCursor(status, transaction.handle(), shared_->input.get(), message.data(),
                                           shared_->output.get(), 0);
    }));
    return {shared_, std::move(rows)};
}

bool Statement::isSelect() const {
    const auto flags = call(shared_->name, [&](auto* status) { return shared_->handle->getFlags(status); });
    return (flags & Firebird::IStatement::FLAG_HAS_CURSOR) != 0;
}

std::string Statement::plan() const {
    const char* text = call(shared_->name, [&](auto* status) { return shared_->handle->getPlan(status, FB_FALSE); });
    return text ? toUtf8(text) : std::string();
}

void execute(Transaction& transaction, std::string_view sql, std::string name) {
    Statement(transaction, sql, std::move(name)).execute(transaction);
}

host::TColunas queryRows(Transaction& transaction, std::string_view sql, std::string name,
                         std::span<const base::TValor> parameters) {
    Statement statement(transaction, sql, std::move(name));
    auto cursor = statement.open(transaction, parameters);
    host::TColunas columns(cursor.columns().begin(), cursor.columns().end());
    while (cursor.read(columns, 4096) > 0) {
    }
    return columns;
}

base::TValor queryValue(Transaction& transaction, std::string_view sql, std::string name,
                        std::span<const base::TValor> parameters) {
    Statement statement(transaction, sql, std::move(name));
    auto cursor = statement.open(transaction, parameters);
    host::TColunas columns(cursor.columns().begin(), cursor.columns().end());
    return cursor.read(columns, 1) == 0 ? base::TValor{} : columns.front().Valor(0);
}

} // namespace suite::firebird
