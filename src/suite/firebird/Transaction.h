#pragma once

#include "suite/firebird/Api.h"

#include <chrono>

namespace suite::firebird {

class Attachment;

// How long a write waits for another's lock.
inline constexpr std::chrono::seconds LockTimeout{10};

enum class TransactionMode {
    ReadOnly,  // read committed, holds nothing
    ReadWrite, // read committed; waits a bounded time for a lock
};

// One transaction. commit is explicit; the destructor rolls back what is still open and does not throw.
class Transaction {
  public:
    enum class State { Open, Committed, RolledBack };

    Transaction(Attachment& attachment, TransactionMode mode);
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    ~Transaction();

    void commit();            // on failure the transaction stays open
    void rollback() noexcept; // of an ended transaction: nothing
    State state() const { return state_; }

    Attachment& attachment() const { return *attachment_; }
    Firebird::ITransaction* handle() const { return handle_.get(); }

  private:
    Attachment* attachment_;
    Ref<Firebird::ITransaction> handle_;
    State state_ = State::Open;
};

} // namespace suite::firebird
