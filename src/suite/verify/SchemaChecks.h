#pragma once

#include "suite/verify/ExpectedSchema.h"
#include "suite/verify/SchemaReader.h"

namespace suite::verify {

// Lines of a verification, for the owner of the database.
using Findings = std::vector<std::string>;

// Each check adds what would stop an operation; that of the indexes, what would make it slow.

// Tables, columns and their types. A column that does not fit is taken out of the schema: no later check rests on it.
void checkTables(Schema& schema, Findings& findings);
// The value table fills its own key, and no row of a written table is refused for a value that it does not have.
void checkInserts(const Schema& schema, Findings& findings);
void checkIndexes(const Schema& schema, Findings& findings);

std::vector<std::string> words(std::string_view list);
// Whether the schema has all of these columns of the table.
bool has(const Schema& schema, std::string_view table, std::string_view columns);

} // namespace suite::verify
