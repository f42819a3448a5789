#pragma once

#include "base/DataHora.h"

#include <ibase.h>

#include <cstring>

namespace suite::firebird {

// Values as they lie in a message buffer, which need not be aligned.
template <class T>
T load(const unsigned char* from) {
    T value;
    std::memcpy(&value, from, sizeof value);
    return value;
}
template <class T>
void store(unsigned char* to, T value) {
    std::memcpy(to, &value, sizeof value);
}

// The engine counts days from 1858-11-17, the host from 1899-12-30; both count ten-thousandths of a second.
constexpr std::int64_t DaysBetweenEpochs = 15018;

inline base::TDataHora dateFromWire(ISC_DATE day, ISC_TIME time) {
    return base::TDataHora::DeDecimos((day - DaysBetweenEpochs) * base::TDataHora::DecimosPorDia + time);
}
inline ISC_TIMESTAMP dateToWire(base::TDataHora value) {
    const auto midnight = value.SemHora().Decimos();
    return {static_cast<ISC_DATE>(midnight / base::TDataHora::DecimosPorDia + DaysBetweenEpochs),
            static_cast<ISC_TIME>(value.Decimos() - midnight)};
}

} // namespace suite::firebird
