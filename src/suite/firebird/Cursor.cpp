#include "suite/firebird/Cursor.h"

#include "base/Falhas.h"
#include "suite/firebird/Attachment.h"
#include "suite/firebird/Charset.h"
#include "suite/firebird/StatementShared.h"
#include "suite/firebird/Wire.h"

#include <algorithm>

namespace suite::firebird {

namespace {

using host::TTipoColuna;

TTipoColuna columnType(unsigned type, const std::string& name) {
    switch (type) {
    case SQL_TEXT:
    case SQL_VARYING:
    case SQL_BLOB:
        return TTipoColuna::Texto;
    case SQL_SHORT:
    case SQL_LONG:
    case SQL_INT64:
    case SQL_BOOLEAN:
        return TTipoColuna::Inteiro;
    case SQL_FLOAT:
    case SQL_DOUBLE:
        return TTipoColuna::Real;
    case SQL_TYPE_DATE:
        return TTipoColuna::Data;
    case SQL_TIMESTAMP:
        return TTipoColuna::DataHora;
    default:
        throw base::TFalha("A coluna " + name + " tem um tipo que o programa não lê.");
    }
}

bool isAscii(std::string_view bytes) {
    // Eight at a time: nearly all text is ASCII, and this is the inner loop of every fetch.
    std::size_t i = 0;
    for (; i + 8 <= bytes.size(); i += 8)
        if ((load<std::uint64_t>(reinterpret_cast<const unsigned char*>(bytes.data()) + i) & 0x8080808080808080U) != 0)
            return false;
    for (; i < bytes.size(); ++i)
        if ((static_cast<unsigned char>(bytes[i]) & 0x80U) != 0)
            return false;
    return true;
}

} // namespace

Cursor::Cursor(std::shared_ptr<Statement::Shared> statement, Ref<Firebird::IResultSet> rows)
    : statement_(std::move(statement)), rows_(std::move(rows)) {
    auto* const metadata = statement_->output.get();
    const auto& name = statement_->name;
    const auto ask = [&](auto&& question) { return call(name, question); };
    const unsigned count = ask([&](auto* s) { return metadata->getCount(s); });
    row_.resize(ask([&](auto* s) { return metadata->getMessageLength(s); }));
    for (unsigned i = 0; i < count; ++i) {
        host::TDescricaoColuna column;
        column.Nome = toUtf8(ask([&](auto* s) { return metadata->getAlias(s, i); }));
        column.Tabela = toUtf8(ask([&](auto* s) { return metadata->getRelation(s, i); }));
        const unsigned type = ask([&](auto* s) { return metadata->getType(s, i); });
        column.Tipo = columnType(type, column.Nome);
        const unsigned length = ask([&](auto* s) { return metadata->getLength(s, i); });
        column.Escala = -ask([&](auto* s) { return metadata->getScale(s, i); });
        column.Tamanho = column.Tipo == TTipoColuna::Texto && type != SQL_BLOB ? static_cast<int>(length) : 0;
        columns_.push_back(std::move(column));
        decoders_.push_back({type, ask([&](auto* s) { return metadata->getOffset(s, i); }),
                             ask([&](auto* s) { return metadata->getNullOffset(s, i); }), length});
    }
}

Cursor::Cursor(Cursor&&) noexcept = default;

Cursor::~Cursor() {
    if (rows_) {
        Status status;
        rows_->close(status.get());
        if (!status.failed())
            static_cast<void>(rows_.release()); // a successful close has released it
    }
}

std::size_t Cursor::read(host::TColunas& target, std::size_t maximum) {
    if (beforeCall)
        beforeCall(statement_->name);
    Status status;
    std::size_t count = 0;
    for (; count < maximum && !ended_; ++count) {
        const int answer = rows_->fetchNext(status.get(), row_.data());
        status.check(statement_->name);
        if (answer != Firebird::IStatus::RESULT_OK) {
            ended_ = true; // a fetch behind the end is an error
            break;
        }
        for (std::size_t i = 0; i < decoders_.size(); ++i)
            decode(decoders_[i], target[i]);
    }
    return count;
}

void Cursor::decode(const Decoder& decoder, host::TColuna& column) {
    const unsigned char* const cell = row_.data() + decoder.offset;
    if (load<short>(row_.data() + decoder.nullOffset) != 0) {
        column.AcrescentarNulo();
        return;
    }
    switch (decoder.type) {
    case SQL_SHORT:
        column.AcrescentarUnidades(load<std::int16_t>(cell));
        break;
    case SQL_LONG:
        column.AcrescentarUnidades(load<std::int32_t>(cell));
        break;
    case SQL_INT64:
        column.AcrescentarUnidades(load<std::int64_t>(cell));
        break;
    case SQL_BOOLEAN:
        column.AcrescentarUnidades(*cell != 0 ? 1 : 0);
        break;
    case SQL_FLOAT:
        column.AcrescentarReal(static_cast<double>(load<float>(cell)));
        break;
    case SQL_DOUBLE:
        column.AcrescentarReal(load<double>(cell));
        break;
    case SQL_TYPE_DATE:
        column.AcrescentarUnidades(dateFromWire(load<ISC_DATE>(cell), 0).Decimos());
        break;
    case SQL_TIMESTAMP: {
        const auto stamp = load<ISC_TIMESTAMP>(cell);
        column.AcrescentarUnidades(dateFromWire(stamp.timestamp_date, stamp.timestamp_time).Decimos());
        break;
    }
    case SQL_VARYING:
        decodeText({reinterpret_cast<const char*>(cell) + sizeof(ISC_USHORT), load<ISC_USHORT>(cell)}, column);
        break;
    case SQL_TEXT: {
        // The blanks that fill a CHAR are the wire's, not the value's.
        std::string_view bytes(reinterpret_cast<const char*>(cell), decoder.length);
        bytes.remove_suffix(bytes.size() - (bytes.find_last_not_of(' ') + 1));
        decodeText(bytes, column);
        break;
    }
    default: // SQL_BLOB: columnType let no other through
        decodeText(statement_->readBlob(load<ISC_QUAD>(cell)), column);
    }
}

void Cursor::decodeText(std::string_view bytes, host::TColuna& column) {
    if (isAscii(bytes)) {
        column.AcrescentarTexto(bytes);
        return;
    }
    text_ = toUtf8(bytes);
    column.AcrescentarTexto(text_);
}

} // namespace suite::firebird
