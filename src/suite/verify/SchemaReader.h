#pragma once

#include "suite/firebird/Transaction.h"

#include <map>
#include <string>
#include <vector>

namespace suite::verify {

enum class ColumnType { Whole16, Whole32, Whole64, Float, Text, Blob, Date, Timestamp, Other };

struct FoundColumn {
    ColumnType type = ColumnType::Other; // a whole number with decimals is a NUMERIC
    int decimals = 0;
    int length = 0; // of a text, in characters
    bool notNull = false;
    bool hasDefault = false;
    bool filledOnInsert = false; // an identity, or met by an active BEFORE INSERT trigger
};

enum class TableKind { Stored, View, ClearedOnCommit, Other };

struct FoundTable {
    TableKind kind = TableKind::Other;
    std::map<std::string, FoundColumn, std::less<>> columns;
};

struct FoundIndex {
    std::string name;
    std::string table;
    bool active = true;
    bool ascending = true;
    std::vector<std::string> columns; // empty for an expression
    std::string expression;           // its beginning, as it was written
};

// What a database says of the tables that are expected, and of all its indexes.
struct Schema {
    std::map<std::string, FoundTable, std::less<>> tables;
    std::vector<FoundIndex> indexes;
};

Schema readSchema(firebird::Transaction& transaction);

} // namespace suite::verify
