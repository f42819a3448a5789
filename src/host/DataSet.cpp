#include "host/DataSet.h"

#include "base/Falhas.h"

#include <algorithm>
#include <numeric>
#include <stdexcept>

namespace host {

namespace {

constexpr std::size_t LinhasPorLeitura = 4096;

} // namespace

TField::TField(TDataSet& ADataSet, std::size_t AIndice) : FDataSet(&ADataSet), FIndice(AIndice) {}

const TDescricaoColuna& TField::Descricao() const { return FDataSet->FColunas[FIndice].Descricao(); }

base::TValor TField::Valor() const {
    if (const auto* LEdicao = FDataSet->LinhaEmEdicao())
        return (*LEdicao)[FIndice];
    return FDataSet->FColunas[FIndice].Valor(FDataSet->LinhaAtual());
}

bool TField::IsNull() const { return base::EhNulo(Valor()); }

std::optional<std::int64_t> TField::AsInt64() const {
    const base::TValor LValor = Valor();
    if (base::EhNulo(LValor))
        return std::nullopt;
    auto LDecimal = std::get_if<base::TDecimal>(&LValor) ? std::optional(std::get<base::TDecimal>(LValor))
                                                         : base::TDecimal::De(base::TextoDe(LValor));
    if (!LDecimal || !(LDecimal->ComEscala(0) == *LDecimal))
        throw base::TFalha("O valor \"" + base::TextoDe(LValor) + "\" do campo " + Nome() +
                           " não é um número inteiro.");
    return LDecimal->ComEscala(0).Unidades;
}

std::optional<base::TDecimal> TField::AsDecimal() const {
    const base::TValor LValor = Valor();
    if (base::EhNulo(LValor))
        return std::nullopt;
    if (const auto* LDecimal = std::get_if<base::TDecimal>(&LValor))
        return *LDecimal;
    throw base::TFalha("O campo " + Nome() + " não tem um número exato.");
}

base::TMoeda TField::AsMoedaOuZero() const {
    const auto LDecimal = AsDecimal();
    return LDecimal ? base::TMoeda(*LDecimal) : base::TMoeda();
}

std::optional<base::TDataHora> TField::AsDateTime() const {
    const base::TValor LValor = Valor();
    if (base::EhNulo(LValor))
        return std::nullopt;
    if (const auto* LData = std::get_if<base::TDataHora>(&LValor))
        return *LData;
    throw base::TFalha("O campo " + Nome() + " não tem uma data.");
}

std::string TField::AsString() const { return base::TextoDe(Valor()); }

void TField::Atribuir(const base::TValor& AValor) {
    FDataSet->AtribuirEmEdicao(FIndice, FDataSet->FColunas[FIndice].Converter(AValor));
}

void TDataSet::AtribuirEmEdicao(std::size_t, const base::TValor&) {
    throw std::logic_error(FNome + " is not in edit or insert");
}

void TDataSet::MudarEstado(TEstadoDataSet AEstado) {
    FEstado = AEstado;
    FOuvintes.Avisar();
}

void TDataSet::Open() {
    if (Active())
        return;
    {
        const auto LCursor = AbrirCursor();
        TColunas LColunas(LCursor->Colunas().begin(), LCursor->Colunas().end());
        while (LCursor->Ler(LColunas, LinhasPorLeitura) != 0)
            continue;
        FColunas = std::move(LColunas);
    }
    for (std::size_t I = 0; I < FColunas.size(); ++I) {
        FCampos.emplace_back(*this, I);
        FPorNome.try_emplace(FColunas[I].Descricao().Nome, I);
    }
    FOrdem.resize(FColunas.empty() ? 0 : FColunas.front().Tamanho());
    std::iota(FOrdem.begin(), FOrdem.end(), 0U);
    AoCarregar();
    First();
    MudarEstado(TEstadoDataSet::Navegando);
    if (!AfterOpen)
        return;
    try {
        AfterOpen(*this);
    } catch (...) {
        Close();
        throw;
    }
}

void TDataSet::Close() {
    if (!Active())
        return;
    FColunas.clear();
    FOrdem = {};
    FCampos.clear();
    FPorNome.clear();
    FPosicao = 0;
    FEof = FBof = true;
    AoFechar();
    MudarEstado(TEstadoDataSet::Fechado);
}

void TDataSet::Posicionar(std::size_t APosicao) {
    FPosicao = APosicao;
    FEof = FBof = FOrdem.empty();
}

void TDataSet::IrPara(std::size_t ARecNo) {
    if (ARecNo == 0 || ARecNo > FOrdem.size())
        throw std::out_of_range(FNome + " has no row " + std::to_string(ARecNo));
    Posicionar(ARecNo - 1);
}

void TDataSet::First() {
    Posicionar(0);
    FBof = true;
}

void TDataSet::Last() {
    Posicionar(FOrdem.empty() ? 0 : FOrdem.size() - 1);
    FEof = true;
}

void TDataSet::Next() {
    if (FPosicao + 1 < FOrdem.size())
        Posicionar(FPosicao + 1);
    else
        FEof = true;
}

void TDataSet::Prior() {
    if (FPosicao > 0)
        Posicionar(FPosicao - 1);
    else
        FBof = true;
}

std::size_t TDataSet::LinhaAtual() const {
    if (FOrdem.empty())
        throw base::TFalha("O conjunto de dados " + FNome + " não tem registro atual.");
    return FOrdem[FPosicao];
}

TField& TDataSet::FieldByName(std::string_view ANome) {
    const auto LAchado = FPorNome.find(ANome);
    if (LAchado == FPorNome.end())
        throw base::TFalha("O conjunto de dados " + FNome + " não tem o campo " + std::string(ANome) + ".");
    return FCampos[LAchado->second];
}

const TField* TDataSet::FindField(std::string_view ANome) const {
    const auto LAchado = FPorNome.find(ANome);
    return LAchado == FPorNome.end() ? nullptr : &FCampos[LAchado->second];
}

std::int64_t TDataSet::GetInt64FieldValue(std::string_view ANome) {
    const auto LValor = FieldByName(ANome).AsInt64();
    if (!LValor)
        throw base::TFalha("O campo " + std::string(ANome) + " de " + FNome + " está vazio.");
    return *LValor;
}

std::unique_ptr<TCursor> TZTSQLQuery::AbrirCursor() { return FConexao.AbrirCursor({Nome(), SQL}); }

} // namespace host
