#pragma once

#include "host/Colunas.h"
#include "suite/firebird/Api.h"

#include <memory>
#include <span>
#include <string>
#include <vector>

namespace suite::firebird {

class Transaction;
class Cursor;

// A prepared statement. The text is UTF-8; a character that the attachment's ISO8859_1 lacks is an error that names
// the statement, or in a parameter its position. The name stands in every error of the statement.
class Statement {
  public:
    Statement(Transaction& transaction, std::string_view sql, std::string name);
    ~Statement();
    Statement(Statement&&) noexcept;

    // What errors call the parameters, in order; starts again from the first when there are more parameters.
    void nameParameters(std::vector<std::string> labels);
    // Runs a statement without a cursor. A parameter is converted to the type the engine expects.
    void execute(Transaction& transaction, std::span<const base::TValor> parameters = {});
    std::uint64_t affectedRows() const;
    // Rows of a select or a selectable block. The cursor keeps the statement alive, not the transaction.
    Cursor open(Transaction& transaction, std::span<const base::TValor> parameters = {});
    bool isSelect() const;
    std::string plan() const;

    struct Shared;

  private:
    std::shared_ptr<Shared> shared_;
    std::vector<std::string> labels_;
};

// Runs one statement without parameters and rows.
void execute(Transaction& transaction, std::string_view sql, std::string name);
// All rows of a select at once.
host::TColunas queryRows(Transaction& transaction, std::string_view sql, std::string name,
                         std::span<const base::TValor> parameters = {});
// The one value of the first row; NULL where there is no row.
base::TValor queryValue(Transaction& transaction, std::string_view sql, std::string name,
                        std::span<const base::TValor> parameters = {});

} // namespace suite::firebird
