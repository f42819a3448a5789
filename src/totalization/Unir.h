#pragma once

#include <array>

namespace pct04618::sql {

// One text out of literals, put together by the compiler: what two statements share is written once, and each statement
// still is a constant.
template <const auto&... Partes>
struct TUniao {
    static constexpr auto Texto = [] {
        std::array<char, (sizeof(Partes) + ... + 1) - sizeof...(Partes)> LTexto{};
        std::size_t LFim = 0;
        const auto LAcrescentar = [&](const auto& AParte) {
            for (std::size_t I = 0; I + 1 < sizeof(AParte); ++I)
                LTexto[LFim++] = AParte[I];
        };
        (LAcrescentar(Partes), ...);
        return LTexto;
    }();
};

template <const auto&... Partes>
inline constexpr const char* Unir = TUniao<Partes...>::Texto.data();

} // namespace pct04618::sql
