#pragma once

#include "host/Conexao.h"
#include "suite/firebird/Statement.h"

#include <memory>
#include <vector>

namespace suite::firebird {

// The rows of an open select, decoded into columns. The transaction must outlive it.
class Cursor {
  public:
    Cursor(std::shared_ptr<Statement::Shared> statement, Ref<Firebird::IResultSet> rows);
    Cursor(Cursor&&) noexcept;
    ~Cursor();

    const std::vector<host::TDescricaoColuna>& columns() const { return columns_; }
    // Appends up to maximum rows to the columns, which are those of columns() in order; 0 at the end.
    std::size_t read(host::TColunas& target, std::size_t maximum);

  private:
    struct Decoder {
        unsigned type;
        unsigned offset;
        unsigned nullOffset;
        unsigned length;
    };
    void decode(const Decoder& decoder, host::TColuna& column);
    void decodeText(std::string_view bytes, host::TColuna& column);

    std::shared_ptr<Statement::Shared> statement_;
    Ref<Firebird::IResultSet> rows_;
    std::vector<host::TDescricaoColuna> columns_;
    std::vector<Decoder> decoders_;
    std::vector<unsigned char> row_;
    bool ended_ = false;
    std::string text_; // decoded non-ASCII text, kept for its memory
};

} // namespace suite::firebird
