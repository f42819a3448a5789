#include "suite/firebird/BulkInsert.h"

#include <algorithm>

namespace suite::firebird {

namespace {

constexpr std::size_t RowsPerBlock = 100;

} // namespace

BulkInsert::BulkInsert(Transaction& transaction, std::string table, std::vector<std::string> columns)
    : transaction_(&transaction), table_(std::move(table)), columns_(std::move(columns)) {}

void BulkInsert::add(std::span<const base::TValor> row) {
    if (row.size() != columns_.size())
        throw std::logic_error(table_ + ": a row needs " + std::to_string(columns_.size()) + " values");
    pending_.insert(pending_.end(), row.begin(), row.end());
    if (pending_.size() < RowsPerBlock * columns_.size())
        return;
    if (!fullBlock_)
        fullBlock_.emplace(prepare(RowsPerBlock));
    fullBlock_->execute(*transaction_, pending_);
    pending_.clear();
}

void BulkInsert::flush() {
    if (pending_.empty())
        return;
    prepare(pending_.size() / columns_.size()).execute(*transaction_, pending_);
    pending_.clear();
}

Statement BulkInsert::prepare(std::size_t rows) const {
    std::string list;
    for (const auto& column : columns_)
        list += (list.empty() ? "" : ", ") + column;
    std::string parameters;
    std::string inserts;
    for (std::size_t row = 0; row < rows; ++row) {
        std::string values;
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            const auto name = "P" + std::to_string(row * columns_.size() + i);
            parameters +=
                (parameters.empty() ? "" : ", ") + name + " TYPE OF COLUMN " + table_ + "." + columns_[i] + " = ?";
            values += (values.empty() ? ":" : ", :") + name;
        }
        inserts += "INSERT INTO " + table_ + " (" + list + ") VALUES (" + values + ");\n";
    }
    Statement block(*transaction_, "EXECUTE BLOCK (" + parameters + ") AS BEGIN\n" + inserts + "END",
                    "inclusão em " + table_);
    std::vector<std::string> labels;
    for (const auto& column : columns_)
        labels.push_back(table_ + "." + column);
    block.nameParameters(std::move(labels));
    return block;
}

} // namespace suite::firebird
