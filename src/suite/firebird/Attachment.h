#pragma once

#include "suite/firebird/Api.h"
#include "suite/firebird/Target.h"

#include <string>

namespace suite::firebird {

// One attachment to one database. All calls but cancel belong to one thread at a time. Failures raise
// base::TFalhaBanco. The destructor detaches and does not throw.
class Attachment {
  public:
    Attachment(const Target& target, const Credentials& credentials);
    // Makes a new database for the embedded engine: character set ISO8859_1, collation PT_BR, dialect 3, and while it
    // is open through this object no forced writes (a load that is cut off is thrown away whole).
    static Attachment create(const Target& target);
    Attachment(Attachment&&) noexcept = default;
    Attachment& operator=(Attachment&&) = delete;
    ~Attachment();

    // Writes what is pending to the disk and ends. May raise, unlike the destructor.
    void detach();
    // Ends the running statement of another thread with base::TTipoFalhaBanco::Cancelado. Does nothing when idle.
    void cancel() noexcept;
    // Takes back a cancel that came too late for its statement and would hit the next one.
    void clearPendingCancel() noexcept;

    Firebird::IAttachment* handle() const { return handle_.get(); }

  private:
    explicit Attachment(Ref<Firebird::IAttachment> handle) : handle_(std::move(handle)) {}

    Ref<Firebird::IAttachment> handle_;
    std::string unsafeFile_; // made by create and still without forced writes
};

} // namespace suite::firebird
