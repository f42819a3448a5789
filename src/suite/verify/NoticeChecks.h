#pragma once

#include "suite/verify/SchemaChecks.h"

namespace suite::verify {

// What the owner of a database should know, though it stops and slows nothing.

// Records that stand twice where the module takes one: which one counts is settled, but hardly what was meant.
void checkRepeats(firebird::Transaction& transaction, const Schema& schema, Findings& findings);
// Texts, codes and amounts that the columns of a consultation do not hold.
void checkLimits(firebird::Transaction& transaction, const Schema& schema, Findings& findings);

} // namespace suite::verify
