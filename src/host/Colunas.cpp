#include "host/Colunas.h"

#include "base/Falhas.h"

#include <bit>
#include <functional>
#include <stdexcept>

namespace host {

namespace {

template <class T>
int Ordem(const T& A, const T& B) {
    return A < B ? -1 : (B < A ? 1 : 0);
}

int Ordem(const base::TValor& A, const base::TValor& B) {
    if (base::EhNulo(A) || base::EhNulo(B))
        return static_cast<int>(base::EhNulo(B)) - static_cast<int>(base::EhNulo(A));
    return std::visit(
        [](const auto& X, const auto& Y) {
            if constexpr (std::is_same_v<decltype(X), decltype(Y)>)
                return Ordem(X, Y);
            else
                return 0; // Converter has brought both sides to one type
        },
        A, B);
}

} // namespace

TColuna::TColuna(TDescricaoColuna ADescricao) : FDescricao(std::move(ADescricao)) {}

std::size_t TColuna::Bytes() const {
    return FNumeros.capacity() * sizeof(std::int64_t) + FNulos.capacity() * sizeof(std::uint64_t) +
           FCodigos.capacity() * sizeof(std::uint32_t) + FArena.capacity() +
           FInicios.capacity() * sizeof(std::uint64_t) + FTabela.capacity() * sizeof(std::uint32_t);
}

base::TValor TColuna::Valor(std::size_t ALinha) const {
    if (Nulo(ALinha))
        return {};
    switch (FDescricao.Tipo) {
    case TTipoColuna::Inteiro:
        return base::TDecimal{FNumeros[ALinha], FDescricao.Escala};
    case TTipoColuna::Real:
        return std::bit_cast<double>(FNumeros[ALinha]);
    case TTipoColuna::Data:
    case TTipoColuna::DataHora:
        return base::TDataHora::DeDecimos(FNumeros[ALinha]);
    case TTipoColuna::Texto:
        break;
    }
    return std::string(Texto(ALinha));
}

int TColuna::Comparar(std::size_t ALinha, std::size_t AOutra) const {
    if (Nulo(ALinha) || Nulo(AOutra))
        return static_cast<int>(Nulo(AOutra)) - static_cast<int>(Nulo(ALinha));
    switch (FDescricao.Tipo) {
    case TTipoColuna::Texto:
        return FCodigos[ALinha] == FCodigos[AOutra] ? 0 : Ordem(Texto(ALinha), Texto(AOutra));
    case TTipoColuna::Real:
        return Ordem(std::bit_cast<double>(FNumeros[ALinha]), std::bit_cast<double>(FNumeros[AOutra]));
    default:
        return Ordem(FNumeros[ALinha], FNumeros[AOutra]);
    }
}

int TColuna::Comparar(std::size_t ALinha, const base::TValor& AValor) const {
    return Ordem(Valor(ALinha), Converter(AValor));
}

void TColuna::MarcarNulo(std::size_t ALinha, bool ANulo) {
    const std::uint64_t LBit = std::uint64_t{1} << (ALinha % 64);
    FNulos[ALinha / 64] = ANulo ? FNulos[ALinha / 64] | LBit : FNulos[ALinha / 64] & ~LBit;
}

void TColuna::AbrirLinha(bool ANulo) {
    const std::size_t LLinha = FNumeros.size();
    if (LLinha % 64 == 0)
        FNulos.push_back(0);
    if (ANulo)
        FNulos.back() |= std::uint64_t{1} << (LLinha % 64);
}

void TColuna::AcrescentarNulo() {
    if (EhTexto()) {
        FCodigos.push_back(0);
        return;
    }
    AbrirLinha(true);
    FNumeros.push_back(0);
}

void TColuna::AcrescentarUnidades(std::int64_t AUnidades) {
    AbrirLinha(false);
    FNumeros.push_back(AUnidades);
}

void TColuna::AcrescentarReal(double AValor) { AcrescentarUnidades(std::bit_cast<std::int64_t>(AValor)); }

void TColuna::AcrescentarTexto(std::string_view AUtf8) {
    // Rows come sorted more often than not: the row above is the first guess.
    if (!FCodigos.empty() && FCodigos.back() != 0 && TextoDoCodigo(FCodigos.back()) == AUtf8)
        FCodigos.push_back(FCodigos.back());
    else
        FCodigos.push_back(CodigoDoTexto(AUtf8));
}

void TColuna::Acrescentar(const base::TValor& AValor) {
    AcrescentarNulo();
    if (!base::EhNulo(AValor))
        Atribuir(Tamanho() - 1, AValor);
}

void TColuna::Atribuir(std::size_t ALinha, const base::TValor& AValor) {
    const base::TValor LValor = Converter(AValor);
    if (EhTexto()) {
        FCodigos[ALinha] = base::EhNulo(LValor) ? 0 : CodigoDoTexto(std::get<std::string>(LValor));
        return;
    }
    MarcarNulo(ALinha, base::EhNulo(LValor));
    if (const auto* LDecimal = std::get_if<base::TDecimal>(&LValor))
        FNumeros[ALinha] = LDecimal->Unidades;
    else if (const auto* LData = std::get_if<base::TDataHora>(&LValor))
        FNumeros[ALinha] = LData->Decimos();
    else if (const auto* LReal = std::get_if<double>(&LValor))
        FNumeros[ALinha] = std::bit_cast<std::int64_t>(*LReal);
    else
        FNumeros[ALinha] = 0;
}

base::TValor TColuna::Converter(const base::TValor& AValor) const {
    if (base::EhNulo(AValor))
        return AValor;
    const auto* LTexto = std::get_if<std::string>(&AValor);
    const auto* LDecimal = std::get_if<base::TDecimal>(&AValor);
    try {
        switch (FDescricao.Tipo) {
        case TTipoColuna::Texto:
            return LTexto ? AValor : base::TValor(base::TextoDe(AValor));
        case TTipoColuna::Inteiro:
            if (LDecimal)
                return LDecimal->ComEscala(FDescricao.Escala);
            if (const auto LLido = LTexto ? base::TDecimal::De(*LTexto) : std::nullopt)
                return LLido->ComEscala(FDescricao.Escala);
            break;
        case TTipoColuna::Real:
            if (std::holds_alternative<double>(AValor))
                return AValor;
            if (LTexto || LDecimal)
                return std::stod(base::TextoDe(AValor));
            break;
        case TTipoColuna::Data:
        case TTipoColuna::DataHora:
            if (std::holds_alternative<base::TDataHora>(AValor))
                return AValor;
            break;
        }
    } catch (const std::logic_error&) {    // stod
    } catch (const std::overflow_error&) { // ComEscala
    }
    throw base::TFalha("O valor \"" + base::TextoDe(AValor) + "\" não serve para o campo " + FDescricao.Nome + ".");
}

std::uint32_t TColuna::CodigoDoTexto(std::string_view AUtf8) {
    if (FInicios.size() > FTabela.size() / 2)
        DobrarTabela();
    const std::size_t LMascara = FTabela.size() - 1;
    std::size_t LPosicao = std::hash<std::string_view>{}(AUtf8)&LMascara;
    while (const std::uint32_t LCodigo = FTabela[LPosicao]) {
        if (TextoDoCodigo(LCodigo) == AUtf8)
            return LCodigo;
        LPosicao = (LPosicao + 1) & LMascara;
    }
    const auto LNovo = static_cast<std::uint32_t>(FInicios.size() - 1);
    FArena.append(AUtf8);
    FInicios.push_back(FArena.size());
    FTabela[LPosicao] = LNovo;
    return LNovo;
}

void TColuna::DobrarTabela() {
    FTabela.assign(std::max<std::size_t>(16, FTabela.size() * 2), 0);
    const std::size_t LMascara = FTabela.size() - 1;
    for (std::uint32_t LCodigo = 1; LCodigo + 1 < FInicios.size(); ++LCodigo) {
        std::size_t LPosicao = std::hash<std::string_view>{}(TextoDoCodigo(LCodigo)) & LMascara;
        while (FTabela[LPosicao] != 0)
            LPosicao = (LPosicao + 1) & LMascara;
        FTabela[LPosicao] = LCodigo;
    }
}

} // namespace host
