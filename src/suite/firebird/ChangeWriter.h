#pragma once

namespace host {
class TZTClientDataSet;
}

namespace suite::firebird {

class Transaction;

// Writes the pending changes of a dataset into the table that its provider names: a new row with all its columns of
// that table that have a value, a changed row by its key fields alone (null equal to null). An update that does not
// meet exactly one row is a base::TFalha.
void writeChanges(Transaction& transaction, const host::TZTClientDataSet& dataSet);

} // namespace suite::firebird
