#pragma once

#include "base/Exportar.h"

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace base {

// A date with time of day. Zero means "no date" (a blank field); a date of the calendar is counted in
// ten-thousandths of a second from 1899-12-30.
class BASE_API TDataHora {
  public:
    static constexpr std::int64_t DecimosPorDia = 864'000'000;

    constexpr TDataHora() = default;
    static constexpr TDataHora DeDecimos(std::int64_t ADecimos) {
        TDataHora LData;
        LData.FDecimos = ADecimos;
        return LData;
    }
    // Nothing when the calendar has no such day or the year is not 1 to 9999.
    static std::optional<TDataHora> De(int AAno, int AMes, int ADia);
    // "dd/mm/aaaa", as a user types it. Nothing when it is no date.
    static std::optional<TDataHora> DeTexto(std::string_view ATexto);

    constexpr std::int64_t Decimos() const { return FDecimos; }
    constexpr bool Vazia() const { return FDecimos == 0; }
    // The three parts of a blank date are those of day zero; callers ask Vazia first.
    int Ano() const;
    int Mes() const;
    int Dia() const;
    TDataHora SemHora() const;
    TDataHora UltimoDiaDoMes() const;

    std::string Texto() const;    // "31/01/2024", with " 10:30:00" behind it when there is a time of day
    std::string TextoIso() const; // "2024-01-31", with " 10:30:00.0000" behind it when there is a time of day

    friend constexpr auto operator<=>(const TDataHora&, const TDataHora&) = default;

  private:
    std::int64_t FDecimos = 0;
};

} // namespace base
