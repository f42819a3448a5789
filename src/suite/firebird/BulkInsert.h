#pragma once

#include "base/Valor.h"
#include "suite/firebird/Statement.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace suite::firebird {

// Inserts many rows into one table by parametrised blocks of a hundred, which is what is fast both embedded and over
// a network. The transaction is the caller's; rows are in the database after flush, which the destructor does not do.
class BulkInsert {
  public:
    BulkInsert(Transaction& transaction, std::string table, std::vector<std::string> columns);

    void add(std::span<const base::TValor> row); // one value a column, in order
    void flush();

  private:
    Statement prepare(std::size_t rows) const;

    Transaction* transaction_;
    std::string table_;
    std::vector<std::string> columns_;
    std::optional<Statement> fullBlock_;
    std::vector<base::TValor> pending_;
};

} // namespace suite::firebird
