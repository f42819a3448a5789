#include "actuals/ResultadoRealizado.h"

namespace pct04618 {

const char* DescricaoDo(TDestino ADestino) {
    switch (ADestino) {
    case TDestino::OrigemExcluida:
        return "Origem 5 (encerramento do exercício)";
    case TDestino::OutroLivro:
        return "Livro que a projeção não confronta";
    case TDestino::ContaDeFora:
        return "Conta que não está na confrontação";
    case TDestino::SemQuota:
        return "Sem rateio por centro de custo";
    }
    return "";
}

std::int64_t TProjecaoAtualizada::Confrontados() const {
    auto LConfrontados = Lidos;
    for (const auto& LMovimento : Excluidos)
        LConfrontados -= LMovimento.Lancamentos;
    return LConfrontados;
}

std::string TResultadoRealizado::ListaIDs() const {
    std::string LIds;
    for (const auto& LProjecao : Projecoes)
        if (LProjecao.ComMovimento)
            LIds += (LIds.empty() ? "" : ", ") + std::to_string(LProjecao.IDCtbOrcadaInf);
    return LIds;
}

TMovimento TResultadoRealizado::Total(TDestino ADestino) const {
    TMovimento LTotal;
    for (const auto& LProjecao : Projecoes) {
        const auto& LMovimento = LProjecao.Excluidos[static_cast<std::size_t>(ADestino)];
        LTotal.Lancamentos += LMovimento.Lancamentos;
        LTotal.Debitos = LTotal.Debitos + LMovimento.Debitos;
        LTotal.Creditos = LTotal.Creditos + LMovimento.Creditos;
    }
    return LTotal;
}

} // namespace pct04618
