#include "suite/firebird/Script.h"

#include "suite/firebird/Statement.h"
#include "suite/firebird/Transaction.h"

#include <optional>
#include <string>

namespace suite::firebird {

namespace {

std::string_view trim(std::string_view text) {
    const auto first = text.find_first_not_of(" \t\r\n");
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

bool startsWith(std::string_view text, std::string_view word) {
    for (std::size_t i = 0; i < word.size(); ++i)
        if (i >= text.size() || std::toupper(static_cast<unsigned char>(text[i])) != word[i])
            return false;
    return text.size() == word.size() || text[word.size()] == ' ' || text[word.size()] == '\n';
}

// Splits a script into statements; the text of each comes without comments around it.
class Splitter {
  public:
    explicit Splitter(std::string_view script) : rest_(script) {}

    std::optional<std::string> next() {
        for (;;) {
            std::string statement(trim(take()));
            if (statement.empty() && rest_.empty())
                return std::nullopt;
            if (startsWith(statement, "SET TERM"))
                end_ = trim(std::string_view(statement).substr(8));
            else if (!statement.empty())
                return statement;
        }
    }

  private:
    std::string take() {
        std::string text;
        while (!rest_.empty()) {
            if (rest_.starts_with("--")) {
                skip(rest_.find('\n'));
            } else if (rest_.starts_with("/*")) {
                const auto close = rest_.find("*/");
                skip(close == std::string_view::npos ? close : close + 2);
            } else if (rest_.front() == '\'' || rest_.front() == '"') {
                const auto close = rest_.find(rest_.front(), 1);
                const auto length = close == std::string_view::npos ? rest_.size() : close + 1;
                text += rest_.substr(0, length);
                skip(length);
            } else if (rest_.starts_with(end_)) {
                skip(end_.size());
                break;
            } else {
                text += rest_.front();
                skip(1);
            }
        }
        return text;
    }
    void skip(std::size_t length) { rest_.remove_prefix(std::min(length, rest_.size())); }

    std::string_view rest_;
    std::string end_ = ";";
};

} // namespace

void runScript(Attachment& attachment, std::string_view script) {
    Splitter splitter(script);
    std::optional<Transaction> transaction;
    const auto commit = [&] {
        if (transaction)
            transaction->commit();
        transaction.reset();
    };
    while (const auto statement = splitter.next()) {
        if (startsWith(*statement, "COMMIT")) {
            commit();
            continue;
        }
        if (!transaction)
            transaction.emplace(attachment, TransactionMode::ReadWrite);
        execute(*transaction, *statement, statement->substr(0, statement->find('\n')));
        if (startsWith(*statement, "CREATE") || startsWith(*statement, "ALTER") || startsWith(*statement, "RECREATE") ||
            startsWith(*statement, "DROP"))
            commit();
    }
    commit();
}

} // namespace suite::firebird
