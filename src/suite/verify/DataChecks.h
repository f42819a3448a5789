#pragma once

#include "suite/verify/SchemaChecks.h"

namespace suite::verify {

// The connection finds a generator for the keys of the value table, and it stands behind the keys in use.
void checkGenerator(firebird::Transaction& transaction, const Schema& schema, Findings& findings);
// Parents and links that recursive statements walk must not lead back to where they began.
void checkCycles(firebird::Transaction& transaction, const Schema& schema, Findings& findings);
// Every projection says of which books its actuals are.
void checkBooks(firebird::Transaction& transaction, const Schema& schema, Findings& findings);

} // namespace suite::verify
