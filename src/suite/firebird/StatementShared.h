#pragma once

#include "suite/firebird/Statement.h"

#include <ibase.h>

namespace suite::firebird {

// What a statement and its cursors hold in common: a cursor may outlive the statement object that opened it.
struct Statement::Shared {
    ~Shared();
    std::string readBlob(ISC_QUAD id) const;

    Transaction* transaction = nullptr; // of the last execution
    std::string name;
    Ref<Firebird::IStatement> handle;
    Ref<Firebird::IMessageMetadata> input;
    Ref<Firebird::IMessageMetadata> output;
};

} // namespace suite::firebird
