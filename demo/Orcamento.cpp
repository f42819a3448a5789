#include "demo/Orcamento.h"

#include <array>
#include <charconv>

namespace demo {

namespace {

constexpr TCentavos CentavosPorMil = 100'000;
constexpr TCentavos DezReais = 1'000; // typed budgets are round

// What tells a draw from another of the same line and month.
enum TSorteio { PercentualDoAno = 1, RuidoDoPlano };

int IndiceDoAno(const TModeloConta& AModelo, int AAno) {
    if ((AModelo.Marcas & (BaseOriginal | SemOrcamento)) != 0)
        return 0;
    const bool LPrimeiro = AAno == PrimeiroAno;
    if (AModelo.Natureza == TNatureza::Pessoal) // wages follow their agreement, all else the price index
        return LPrimeiro ? 62'000 : 51'000;
    return LPrimeiro ? 57'500 : 45'000;
}

// Hundredths of a percent that a scenario adds.
int AjusteDoCenario(const TModeloConta& AModelo, int ACenario) {
    constexpr int LReceita[] = {0, 800, -1000};
    constexpr int LDespesa[] = {0, -300, 400};
    return (AModelo.MilPorMes < 0 ? LReceita : LDespesa)[ACenario];
}

} // namespace

std::vector<int> CodigosDosCentros(const TModeloConta& AModelo) {
    std::vector<int> LCodigos;
    const auto* LAtual = AModelo.Centros.data();
    const auto* const LFim = LAtual + AModelo.Centros.size();
    while (LAtual < LFim) {
        LAtual = std::from_chars(LAtual, LFim, LCodigos.emplace_back()).ptr;
        LAtual += LAtual < LFim ? 1 : 0;
    }
    return LCodigos;
}

const std::vector<int>& PesosPorQuantidade(std::size_t AQuantidade) {
    static const std::array<std::vector<int>, 3> LPesos{std::vector{100}, std::vector{60, 40}, std::vector{50, 30, 20}};
    return LPesos.at(AQuantidade - 1);
}

TOrcamento::TOrcamento(const TPlano& APlano, std::span<const TEmpresa> AEmpresas) : FPlano(APlano) {
    for (std::size_t LEmpresa = 0; LEmpresa < AEmpresas.size(); ++LEmpresa)
        for (std::size_t LConta = 0; LConta < FPlano.Contas().size(); ++LConta) {
            const auto& LModelo = *FPlano.Contas()[LConta].Modelo;
            if (LModelo.MilPorMes != 0 &&
                LModelo.Empresas.find(static_cast<char>('0' + AEmpresas[LEmpresa].Codigo)) != std::string_view::npos)
                AbrirConta(static_cast<int>(LEmpresa), static_cast<int>(LConta));
        }
}

// The holding details by establishment and cost centre, the second company not at all, the third by establishment.
void TOrcamento::AbrirConta(int AEmpresa, int AConta) {
    const auto& LEmpresa = Empresa(AEmpresa);
    const auto& LConta = FPlano.Conta(AConta);
    const auto LTotal = Proporcao(LConta.Modelo->MilPorMes * CentavosPorMil, LEmpresa.Porte, 1000);
    const auto LCodigos = CodigosDosCentros(*LConta.Modelo);
    const auto LSubs = LConta.Subs.empty() ? std::vector{0} : LConta.Subs;
    const auto LPorSub = Repartir(LTotal, PesosPorQuantidade(LSubs.size()));
    const bool LGlobal = LEmpresa.Codigo == 2;
    const bool LComCentros = LEmpresa.Codigo == 1 && !LCodigos.empty();

    const auto LPesosFiliais =
        LGlobal ? std::vector{1} : PesosDasFiliais(LEmpresa, LCodigos.empty() ? 0 : LCodigos.front());
    for (std::size_t s = 0; s < LSubs.size(); ++s) {
        const auto LPorFilial = Repartir(LPorSub[s], LPesosFiliais);
        for (std::size_t f = 0; f < LPorFilial.size(); ++f) {
            if (LPorFilial[f] == 0)
                continue;
            const auto LPrimeira = FChaves.size();
            const auto LPorCentro =
                LComCentros ? Repartir(LPorFilial[f], PesosPorQuantidade(LCodigos.size())) : std::vector{LPorFilial[f]};
            for (std::size_t c = 0; c < LPorCentro.size(); ++c) {
                const int LFilial = LGlobal ? -1 : LEmpresa.PrimeiraFilial + static_cast<int>(f);
                const int LCentro = LComCentros ? LugarDoCentro(LCodigos[c]) : -1;
                const auto LSemente = Sortear({AEmpresa, AConta, LSubs[s], LFilial, LCentro});
                FChaves.push_back({AEmpresa, AConta, LSubs[s], LFilial, LCentro,
                                   static_cast<std::int64_t>(LSemente >> 1), LPorCentro[c]});
            }
            FGrupos.push_back({LPrimeira, FChaves.size()});
        }
    }
}

TCentavos TOrcamento::Planejado(const TChave& AChave, int AMes) const {
    const auto& LPesos = PesosDoAno(Modelo(AChave).Sazonal);
    return Proporcao(AChave.Mensal, LPesos[static_cast<std::size_t>(AMes % MesesPorAno)], 1000);
}

TProjecao TOrcamento::Projecao(const TChave& AChave, int AAno) const {
    const auto& LModelo = Modelo(AChave);
    const int LBase = LModelo.Natureza == TNatureza::Investimento ? 3
                      : LModelo.Natureza == TNatureza::Banco      ? 2
                      : LModelo.MilPorMes < 0                     ? 0
                                                                  : 1;
    return {LBase, (LModelo.Marcas & BaseOriginal) != 0 ? 1 : 0, IndiceDoAno(LModelo, AAno),
            (LModelo.Marcas & (Informado | SemOrcamento)) != 0 ? 2 : 1};
}

TCentavos TOrcamento::Orcar(const TChave& AChave, int AMes, int ACenario, TCentavos ABase) const {
    const auto& LModelo = Modelo(AChave);
    const int LAno = AnoDoMes(AMes);
    const int LAjuste = AjusteDoCenario(LModelo, ACenario);
    if ((LModelo.Marcas & SemOrcamento) != 0)
        return 0;
    if ((LModelo.Marcas & Informado) != 0) {
        const auto LCrescido = Proporcao(Planejado(AChave, AMes), LAno == PrimeiroAno ? 1040 : 1092, 1000);
        return Proporcao(Proporcao(LCrescido, 10'000 + LAjuste, 10'000), 1, DezReais) * DezReais;
    }
    const int LPercentual = 25 * SortearEntre(-8, 16, {AChave.Semente, LAno, PercentualDoAno}) + LAjuste;
    const auto LAtualizada = Proporcao(ABase, 1'000'000 + IndiceDoAno(LModelo, LAno), 1'000'000);
    return Proporcao(LAtualizada, 10'000 + LPercentual, 10'000);
}

void TOrcamento::PrepararMes(int AMes) {
    for (auto& LChave : FChaves) {
        auto& LValores = LChave.Mes(AMes);
        LValores.Base = AMes >= MesesPorAno
                            ? LChave.Mes(AMes - MesesPorAno).Realizado
                            : Proporcao(Planejado(LChave, AMes),
                                        1000 + SortearEntre(-40, 40, {LChave.Semente, AMes, RuidoDoPlano}), 1000);
        for (int LCenario = 0; LCenario < Cenarios; ++LCenario)
            LValores.Orcado[static_cast<std::size_t>(LCenario)] = Orcar(LChave, AMes, LCenario, LValores.Base);
    }
}

std::int64_t TOrcamento::Percentual(TCentavos ABase, int AIndice, TCentavos AOrcado) {
    const auto LAtualizada = Proporcao(ABase, 1'000'000 + AIndice, 1'000'000);
    if (LAtualizada == 0)
        return 0;
    const auto LSinal = LAtualizada < 0 ? -1 : 1;
    return Proporcao(LSinal * AOrcado, 10'000, LSinal * LAtualizada) - 10'000;
}

} // namespace demo
