#include "suite/firebird/Parameters.h"

#include "base/Falhas.h"
#include "suite/firebird/Charset.h"
#include "suite/firebird/Wire.h"

#include <limits>
#include <stdexcept>

namespace suite::firebird {

namespace {

struct Slot {
    unsigned type;
    unsigned length;
    int scale;
    std::string label;
};

[[noreturn]] void refuse(const Slot& slot, const std::string& why) {
    throw base::TFalha("O valor de " + slot.label + " não pode ser gravado: " + why + ".");
}

std::int64_t units(const Slot& slot, const base::TValor& value) {
    std::optional<base::TDecimal> number;
    if (const auto* decimal = std::get_if<base::TDecimal>(&value))
        number = *decimal;
    else if (const auto* text = std::get_if<std::string>(&value))
        number = base::TDecimal::De(*text);
    if (!number)
        refuse(slot, "\"" + TextoDe(value) + "\" não é um número");
    try {
        return number->ComEscala(slot.scale).Unidades;
    } catch (const std::overflow_error&) {
        refuse(slot, "número grande demais");
    }
}

template <class T>
void storeInteger(unsigned char* cell, const Slot& slot, const base::TValor& value) {
    const auto number = units(slot, value);
    if (number < std::numeric_limits<T>::min() || number > std::numeric_limits<T>::max())
        refuse(slot, "número grande demais");
    store(cell, static_cast<T>(number));
}

double real(const Slot& slot, const base::TValor& value) {
    if (const auto* number = std::get_if<double>(&value))
        return *number;
    if (const auto* decimal = std::get_if<base::TDecimal>(&value))
        return std::stod(decimal->Texto());
    refuse(slot, "\"" + TextoDe(value) + "\" não é um número");
}

ISC_TIMESTAMP stamp(const Slot& slot, const base::TValor& value) {
    const auto* date = std::get_if<base::TDataHora>(&value);
    if (!date)
        refuse(slot, "\"" + TextoDe(value) + "\" não é uma data");
    return dateToWire(*date);
}

void storeText(unsigned char* cell, const Slot& slot, const base::TValor& value) {
    const auto bytes = toLatin1(TextoDe(value), slot.label);
    if (bytes.size() > slot.length)
        refuse(slot, "texto com mais de " + std::to_string(slot.length) + " caracteres");
    if (slot.type == SQL_VARYING) {
        store(cell, static_cast<ISC_USHORT>(bytes.size()));
        std::memcpy(cell + sizeof(ISC_USHORT), bytes.data(), bytes.size());
    } else {
        std::memset(cell, ' ', slot.length);
        std::memcpy(cell, bytes.data(), bytes.size());
    }
}

void storeValue(unsigned char* cell, const Slot& slot, const base::TValor& value) {
    switch (slot.type) {
    case SQL_SHORT:
        return storeInteger<std::int16_t>(cell, slot, value);
    case SQL_LONG:
        return storeInteger<std::int32_t>(cell, slot, value);
    case SQL_INT64:
        return storeInteger<std::int64_t>(cell, slot, value);
    case SQL_FLOAT:
        return store(cell, static_cast<float>(real(slot, value)));
    case SQL_DOUBLE:
        return store(cell, real(slot, value));
    case SQL_TYPE_DATE:
        return store(cell, stamp(slot, value).timestamp_date);
    case SQL_TIMESTAMP:
        return store(cell, stamp(slot, value));
    case SQL_TEXT:
    case SQL_VARYING:
        return storeText(cell, slot, value);
    default:
        refuse(slot, "o tipo da coluna não é aceito");
    }
}

} // namespace

std::vector<unsigned char> inputMessage(Firebird::IMessageMetadata* metadata, std::span<const base::TValor> values,
                                        const std::string& statement, const std::vector<std::string>& labels) {
    Status status; // descriptions of a prepared statement: no call of these goes to the database
    const unsigned count = metadata->getCount(status.get());
    if (count != values.size())
        throw std::logic_error(statement + ": " + std::to_string(count) + " parameters, " +
                               std::to_string(values.size()) + " values");
    std::vector<unsigned char> message(metadata->getMessageLength(status.get()));
    for (unsigned i = 0; i < count; ++i) {
        const auto& value = values[i];
        const bool null = EhNulo(value);
        store(message.data() + metadata->getNullOffset(status.get(), i), static_cast<short>(null ? -1 : 0));
        if (null)
            continue;
        const Slot slot{metadata->getType(status.get(), i), metadata->getLength(status.get(), i),
                        -metadata->getScale(status.get(), i),
                        labels.empty() ? statement + ", parâmetro " + std::to_string(i + 1)
                                       : labels[i % labels.size()]};
        storeValue(message.data() + metadata->getOffset(status.get(), i), slot, value);
    }
    status.check(statement);
    return message;
}

} // namespace suite::firebird
