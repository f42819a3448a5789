#include "suite/firebird/Transaction.h"

#include "suite/firebird/Attachment.h"

#include <ibase.h>

#include <array>

namespace suite::firebird {

namespace {

constexpr std::array<unsigned char, 5> ReadOnlyBlock{isc_tpb_version3, isc_tpb_read, isc_tpb_read_committed,
                                                     isc_tpb_rec_version, isc_tpb_nowait};
constexpr std::array<unsigned char, 8> ReadWriteBlock{isc_tpb_version3,
                                                      isc_tpb_write,
                                                      isc_tpb_read_committed,
                                                      isc_tpb_rec_version,
                                                      isc_tpb_wait,
                                                      isc_tpb_lock_timeout,
                                                      1,
                                                      static_cast<unsigned char>(LockTimeout.count())};

} // namespace

Transaction::Transaction(Attachment& attachment, TransactionMode mode) : attachment_(&attachment) {
    const bool readOnly = mode == TransactionMode::ReadOnly;
    const auto* block = readOnly ? ReadOnlyBlock.data() : ReadWriteBlock.data();
    const auto length = static_cast<unsigned>(readOnly ? ReadOnlyBlock.size() : ReadWriteBlock.size());
    handle_.reset(call("início da transação",
                       [&](auto* status) { return attachment.handle()->startTransaction(status, length, block); }));
}

Transaction::~Transaction() { rollback(); }

void Transaction::commit() {
    call("confirmação da transação", [&](auto* status) { handle_->commit(status); });
    static_cast<void>(handle_.release()); // a successful commit has released it
    state_ = State::Committed;
}

void Transaction::rollback() noexcept {
    if (state_ != State::Open)
        return;
    Status status;
    handle_->rollback(status.get());
    if (!status.failed())
        static_cast<void>(handle_.release());
    handle_.reset(); // after a failure, of a lost connection say, the server has rolled back by itself
    state_ = State::RolledBack;
}

} // namespace suite::firebird
