#pragma once

namespace pct04618::sql {

// Amounts that go beyond what a type holds. An exact number is a 64-bit integer whatever precision it is declared with,
// and one that does not fit ends the whole statement: these fragments let it end in NULL, in its own line.

// A sum that cannot overflow is made of two: amounts up to 10^9 go into the low one as they are, and of a larger amount
// the multiples of 10^9 of its smallest unit go into the high one, which is NULL where there is none.
// %0:s an amount.
inline constexpr const char* ParteBaixa =
    "CASE WHEN %0:s BETWEEN -1000000000 AND 1000000000 THEN %0:s ELSE %0:s - %0:s / 1000000000 * 1000000000 END";
inline constexpr const char* ParteAlta =
    "CASE WHEN %0:s NOT BETWEEN -1000000000 AND 1000000000 THEN %0:s / 1000000000 END";

// %0:s low and %1:s high sum.
inline constexpr const char* SomaNoLimite =
    "CASE WHEN %1:s IS NULL THEN %0:s WHEN ABS(%0:s + %1:s * 1E9) < 9E16 THEN %0:s + %1:s * 1000000000 END";

// Whether the percentage of %0:s over %1:s, which is not zero, can be computed and is below %2:s.
inline constexpr const char* PercentualCabe = "%0:s BETWEEN -922337203685477.58 AND 922337203685477.58 AND "
                                              "ABS(%0:s / (%1:s * 1E0)) * 100 < %2:s";

// Behind the name of a line that lacks an amount.
inline constexpr const char* MarcaAlemDoLimite = " [valor além do limite]";
inline constexpr int TamanhoDaMarca = 23; // in characters

} // namespace pct04618::sql
