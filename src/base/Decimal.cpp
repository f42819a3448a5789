#include "base/Decimal.h"

#include <limits>
#include <stdexcept>

namespace base {

namespace {

constexpr int MaximoEscala = 18;

std::int64_t Potencia10(int AExpoente) {
    std::int64_t LPotencia = 1;
    for (int I = 0; I < AExpoente; ++I)
        LPotencia *= 10;
    return LPotencia;
}

std::int64_t Multiplicar(std::int64_t A, std::int64_t B) {
    std::int64_t LResultado = 0;
    if (__builtin_mul_overflow(A, B, &LResultado))
        throw std::overflow_error("número fora da faixa de 64 bits");
    return LResultado;
}

enum class TEmpate { LongeDoZero, ParaOPar };

std::int64_t Dividir(std::int64_t AValor, std::int64_t ADivisor, TEmpate AEmpate) {
    std::int64_t LQuociente = AValor / ADivisor;
    const std::int64_t LResto = AValor % ADivisor;
    const std::int64_t LDistancia = (LResto < 0 ? -LResto : LResto);
    const std::int64_t LMetade = ADivisor / 2;
    const bool LEmpate = ADivisor % 2 == 0 && LDistancia == LMetade;
    const bool LSobe = LEmpate ? (AEmpate == TEmpate::LongeDoZero || LQuociente % 2 != 0) : LDistancia > LMetade;
    if (LSobe)
        LQuociente += AValor < 0 ? -1 : 1;
    return LQuociente;
}

std::int64_t Mudar(const TDecimal& AValor, int AEscala, TEmpate AEmpate) {
    if (AEscala >= AValor.Escala)
        return Multiplicar(AValor.Unidades, Potencia10(AEscala - AValor.Escala));
    return Dividir(AValor.Unidades, Potencia10(AValor.Escala - AEscala), AEmpate);
}

__extension__ using TLargo = __int128;

// Both sides at one scale, in 128 bits so that no pair of values overflows.
std::pair<TLargo, TLargo> Alinhar(const TDecimal& A, const TDecimal& B) {
    const int LEscala = std::max(A.Escala, B.Escala);
    return {static_cast<TLargo>(A.Unidades) * Potencia10(LEscala - A.Escala),
            static_cast<TLargo>(B.Unidades) * Potencia10(LEscala - B.Escala)};
}

} // namespace

std::string TDecimal::Texto() const {
    const bool LNegativo = Unidades < 0;
    const auto LMagnitude =
        LNegativo ? ~static_cast<std::uint64_t>(Unidades) + 1 : static_cast<std::uint64_t>(Unidades);
    std::string LDigitos = std::to_string(LMagnitude);
    if (Escala > 0) {
        if (LDigitos.size() <= static_cast<std::size_t>(Escala))
            LDigitos.insert(0, static_cast<std::size_t>(Escala) + 1 - LDigitos.size(), '0');
        LDigitos.insert(LDigitos.size() - static_cast<std::size_t>(Escala), 1, '.');
    }
    return LNegativo ? "-" + LDigitos : LDigitos;
}

std::optional<TDecimal> TDecimal::De(std::string_view ATexto) {
    TDecimal LValor;
    const bool LNegativo = !ATexto.empty() && ATexto.front() == '-';
    if (LNegativo)
        ATexto.remove_prefix(1);
    bool LPonto = false;
    bool LDigito = false;
    for (char C : ATexto) {
        if (C == '.' && !LPonto) {
            LPonto = true;
            continue;
        }
        if (C < '0' || C > '9' || LValor.Escala == MaximoEscala)
            return std::nullopt;
        const int LAlgarismo = C - '0';
        if (__builtin_mul_overflow(LValor.Unidades, std::int64_t{10}, &LValor.Unidades) ||
            __builtin_sub_overflow(LValor.Unidades, std::int64_t{LAlgarismo}, &LValor.Unidades))
            return std::nullopt;
        LValor.Escala += LPonto ? 1 : 0;
        LDigito = true;
    }
    // Collected below zero, where the range reaches one further.
    if (!LDigito || (!LNegativo && LValor.Unidades == std::numeric_limits<std::int64_t>::min()))
        return std::nullopt;
    if (!LNegativo)
        LValor.Unidades = -LValor.Unidades;
    return LValor;
}

TDecimal TDecimal::ComEscala(int AEscala) const { return {Mudar(*this, AEscala, TEmpate::LongeDoZero), AEscala}; }

bool operator==(const TDecimal& A, const TDecimal& B) {
    const auto [LA, LB] = Alinhar(A, B);
    return LA == LB;
}

bool operator<(const TDecimal& A, const TDecimal& B) {
    const auto [LA, LB] = Alinhar(A, B);
    return LA < LB;
}

TMoeda::TMoeda(const TDecimal& AValor) : FUnidades(Mudar(AValor, 4, TEmpate::ParaOPar)) {}

TMoeda operator+(TMoeda A, TMoeda B) {
    TMoeda LSoma;
    if (__builtin_add_overflow(A.FUnidades, B.FUnidades, &LSoma.FUnidades))
        throw std::overflow_error("soma fora da faixa do valor monetário");
    return LSoma;
}

TMoeda operator-(TMoeda A, TMoeda B) {
    TMoeda LDiferenca;
    if (__builtin_sub_overflow(A.FUnidades, B.FUnidades, &LDiferenca.FUnidades))
        throw std::overflow_error("diferença fora da faixa do valor monetário");
    return LDiferenca;
}

} // namespace base
