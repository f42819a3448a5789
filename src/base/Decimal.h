#pragma once

#include "base/Exportar.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace base {

// An exact number as the database holds it: Unidades * 10^-Escala, Escala from 0 to 18.
struct BASE_API TDecimal {
    std::int64_t Unidades = 0;
    int Escala = 0;

    // Locale-free and exact: "12.50" for {1250, 2}.
    std::string Texto() const;
    // The inverse of Texto. Nothing when the text is no number or does not fit.
    static std::optional<TDecimal> De(std::string_view ATexto);
    // Half goes away from zero, as the database rounds. Throws std::overflow_error when the result does not fit.
    TDecimal ComEscala(int AEscala) const;
    bool Zero() const { return Unidades == 0; }

    friend BASE_API bool operator==(const TDecimal& A, const TDecimal& B);
    friend BASE_API bool operator<(const TDecimal& A, const TDecimal& B);
};

// The client's money: four decimal places, fixed; what has more rounds to nearest, a tie to the even last digit.
// Arithmetic that does not fit throws std::overflow_error.
class BASE_API TMoeda {
  public:
    TMoeda() = default;
    explicit TMoeda(const TDecimal& AValor);
    TDecimal Decimal() const { return {FUnidades, 4}; }

    friend BASE_API TMoeda operator+(TMoeda A, TMoeda B);
    friend BASE_API TMoeda operator-(TMoeda A, TMoeda B);
    friend bool operator==(TMoeda A, TMoeda B) { return A.FUnidades == B.FUnidades; }

  private:
    std::int64_t FUnidades = 0;
};

} // namespace base
