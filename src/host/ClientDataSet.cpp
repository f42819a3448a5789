#include "base/Falhas.h"
#include "host/DataSet.h"

#include <algorithm>
#include <numeric>
#include <stdexcept>

namespace host {

TSQLConnection& TZTSQLDataSet::SQLConnection() const {
    if (!FConexao)
        throw base::TFalha("O conjunto de dados " + FNome + " não está ligado a uma conexão.");
    return *FConexao;
}

TSQLConnection& TZTClientDataSet::Conexao() const {
    return FProvider ? FProvider->DataSet().SQLConnection() : *FConexao;
}

std::string TZTClientDataSet::TextoEfetivo() const {
    const bool LProprio = !FProvider || (FProvider->PermiteCommandText && !CommandText.empty());
    return LProprio ? CommandText : FProvider->DataSet().CommandText;
}

std::unique_ptr<TCursor> TZTClientDataSet::AbrirCursor() {
    const auto LTexto = TextoEfetivo();
    if (LTexto.empty())
        throw base::TFalha("O conjunto de dados " + Nome() + " não tem uma consulta.");
    return Conexao().AbrirCursor({Nome(), LTexto});
}

void TZTClientDataSet::AoFechar() {
    FEdicao.reset();
    FAlteracoes.clear();
}

void TZTClientDataSet::SetIndexFieldNames(std::string ACampos) {
    FIndice = std::move(ACampos);
    if (Active())
        Reordenar();
}

void TZTClientDataSet::Reordenar() {
    FCamposIndice.clear();
    for (std::size_t LInicio = 0; LInicio < FIndice.size();) {
        const auto LFim = std::min(FIndice.find(';', LInicio), FIndice.size());
        const auto LNome = std::string_view(FIndice).substr(LInicio, LFim - LInicio);
        const auto LColuna = std::find_if(FColunas.begin(), FColunas.end(),
                                          [&](const TColuna& C) { return C.Descricao().Nome == LNome; });
        if (LColuna == FColunas.end())
            throw base::TFalha("O índice de " + Nome() + " pede o campo " + std::string(LNome) +
                               ", que a consulta não traz.");
        FCamposIndice.push_back(static_cast<std::size_t>(LColuna - FColunas.begin()));
        LInicio = LFim + 1;
    }
    std::iota(FOrdem.begin(), FOrdem.end(), 0U);
    if (!FCamposIndice.empty())
        std::stable_sort(FOrdem.begin(), FOrdem.end(), [this](std::size_t A, std::size_t B) { return Antes(A, B); });
    First();
}

bool TZTClientDataSet::Antes(std::size_t ALinha, std::size_t AOutra) const {
    for (const auto LCampo : FCamposIndice)
        if (const int LOrdem = FColunas[LCampo].Comparar(ALinha, AOutra))
            return LOrdem < 0;
    return false;
}

bool TZTClientDataSet::FindKey(std::span<const base::TValor> AValores) {
    if (AValores.empty() || AValores.size() > FCamposIndice.size())
        throw std::logic_error(Nome() + ": key and index do not fit");
    const auto LComparar = [&](std::size_t ALinha) {
        for (std::size_t I = 0; I < AValores.size(); ++I)
            if (const int LOrdem = FColunas[FCamposIndice[I]].Comparar(ALinha, AValores[I]))
                return LOrdem;
        return 0;
    };
    const auto LAchado =
        std::partition_point(FOrdem.begin(), FOrdem.end(), [&](std::size_t ALinha) { return LComparar(ALinha) < 0; });
    if (LAchado == FOrdem.end() || LComparar(*LAchado) != 0)
        return false;
    Posicionar(static_cast<std::size_t>(LAchado - FOrdem.begin()));
    return true;
}

std::vector<base::TValor> TZTClientDataSet::ValoresDaLinha(std::size_t ALinha) const {
    std::vector<base::TValor> LValores;
    for (const auto& LColuna : FColunas)
        LValores.push_back(LColuna.Valor(ALinha));
    return LValores;
}

void TZTClientDataSet::Edit() {
    FEdicao = ValoresDaLinha(LinhaAtual());
    MudarEstado(TEstadoDataSet::Editando);
}

void TZTClientDataSet::Insert() {
    if (!Active())
        throw std::logic_error(Nome() + " is closed");
    FEdicao.emplace(FColunas.size());
    MudarEstado(TEstadoDataSet::Inserindo);
    try {
        if (OnNewRecord)
            OnNewRecord(*this);
    } catch (...) {
        Cancel();
        throw;
    }
}

void TZTClientDataSet::AtribuirEmEdicao(std::size_t ACampo, const base::TValor& AValor) {
    if (!FEdicao)
        throw std::logic_error(Nome() + " is not in edit or insert");
    (*FEdicao)[ACampo] = AValor;
}

void TZTClientDataSet::Post() {
    if (!FEdicao)
        throw std::logic_error(Nome() + " is not in edit or insert");
    const bool LNova = State() == TEstadoDataSet::Inserindo;
    const std::size_t LLinha = LNova ? FColunas.front().Tamanho() : LinhaAtual();
    if (LNova)
        FAlteracoes[LLinha].Inserida = true;
    else
        FAlteracoes.try_emplace(LLinha, TAlteracao{false, ValoresDaLinha(LLinha)});
    const bool LFica = !LNova && std::all_of(FCamposIndice.begin(), FCamposIndice.end(), [&](std::size_t I) {
        return FColunas[I].Comparar(LLinha, (*FEdicao)[I]) == 0;
    });
    for (std::size_t I = 0; I < FColunas.size(); ++I) {
        if (LNova)
            FColunas[I].Acrescentar((*FEdicao)[I]);
        else
            FColunas[I].Atribuir(LLinha, (*FEdicao)[I]);
    }
    FEdicao.reset();
    if (LFica) {
        MudarEstado(TEstadoDataSet::Navegando);
        return;
    }
    // The row takes its place in the index, which its new values have moved.
    if (!LNova)
        FOrdem.erase(std::find(FOrdem.begin(), FOrdem.end(), LLinha));
    auto LLugar = FOrdem.end();
    if (!FCamposIndice.empty())
        LLugar = std::upper_bound(FOrdem.begin(), FOrdem.end(), LLinha,
                                  [this](std::size_t A, std::size_t B) { return Antes(A, B); });
    LLugar = FOrdem.insert(LLugar, static_cast<std::uint32_t>(LLinha));
    Posicionar(static_cast<std::size_t>(LLugar - FOrdem.begin()));
    MudarEstado(TEstadoDataSet::Navegando);
}

void TZTClientDataSet::Cancel() {
    if (!FEdicao)
        return;
    FEdicao.reset();
    MudarEstado(TEstadoDataSet::Navegando);
}

} // namespace host
