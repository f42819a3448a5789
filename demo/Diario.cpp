#include "demo/Diario.h"

#include <algorithm>
#include <cstdlib>

namespace demo {

namespace {

using base::Inteiro;

constexpr TCentavos MenorValorRepartido = 30'000; // below that a month has one entry
constexpr int UltimoDiaUtil = 28;
constexpr std::string_view ContaDeEncerramento = "2.3.03.001";
constexpr std::string_view ContaDoHistoricoLongo = "4.3.03.003";
constexpr int MesDoHistoricoLongo = 5;

// What tells a draw from another of the same line and month.
enum TSorteio { RuidoDoMes = 11, PesoDaNota, DiaDaNota, TextoDaNota, LivroNulo, HaEstorno };

// The normal book is written as 0 or as nothing at all.
int LivroNormal(std::int64_t ASemente, int AMes) { return Sortear({ASemente, AMes, LivroNulo}) % 4 == 0 ? 0 : -1; }

} // namespace

TDiario::TDiario(suite::firebird::Transaction& ATransacao, TOrcamento& AOrcamento)
    : FOrcamento(AOrcamento), FDiario(ATransacao, "CO01_DIARIO",
                                      {"IDDIARIO", "IDFILIAL", "IDPLANO", "IDPLANOSUB", "DATA", "VALOR", "TPLANCTO",
                                       "ORIGEM", "TPCTB", "HISTORICO"}),
      FCusto(ATransacao, "CO01_DIARIOCUSTO", {"IDDIARIO", "IDCENTROCUSTO", "VALOR"}) {}

const TConta& TDiario::Conta(const TChave& AChave) const { return FOrcamento.Plano().Conta(AChave.Conta); }

// Roughly what the month books: the budget of the normal scenario, the departure that the account was given, noise.
TCentavos TDiario::Alvo(const TChave& AChave, int AMes) const {
    const auto& LModelo = *Conta(AChave).Modelo;
    auto LAlvo = AChave.Mes(AMes).Orcado[0];
    if ((LModelo.Marcas & SemOrcamento) != 0) {
        const auto LPeso = PesosDoAno(LModelo.Sazonal)[static_cast<std::size_t>(AMes % MesesPorAno)];
        LAlvo = Proporcao(AChave.Mensal, LPeso, 1000);
    }
    const int LRuido = SortearEntre(-30, 30, {AChave.Semente, AMes, RuidoDoMes});
    return Proporcao(Proporcao(LAlvo, 1000 + LModelo.Desvio, 1000), 1000 + LRuido, 1000);
}

void TDiario::GravarMes(int AMes, TAndamento& AAndamento) {
    for (const auto& LGrupo : FOrcamento.Grupos()) {
        auto& LChave = FOrcamento.Chaves()[LGrupo.Primeira];
        if (LChave.Filial < 0)
            GravarGrupoGlobal(AMes, LChave);
        else
            GravarGrupo(AMes, LGrupo);
        AAndamento.Avancar();
    }
}

void TDiario::GravarGrupo(int AMes, const TOrcamento::TGrupo& AGrupo) {
    std::vector<TCentavos> LAlvos;
    for (auto i = AGrupo.Primeira; i < AGrupo.Fim; ++i)
        LAlvos.push_back(Alvo(FOrcamento.Chaves()[i], AMes));
    Repetir(AMes, AGrupo, FOrcamento.Chaves()[AGrupo.Primeira].Filial, LAlvos);
    if (FOrcamento.Chaves()[AGrupo.Primeira].Empresa == 0)
        Ajustes(AMes, AGrupo);
}

void TDiario::GravarGrupoGlobal(int AMes, TChave& AChave) {
    const auto& LEmpresa = Empresa(AChave.Empresa);
    const auto LCodigos = CodigosDosCentros(*Conta(AChave).Modelo);
    const auto LPesos = PesosDasFiliais(LEmpresa, LCodigos.empty() ? 0 : LCodigos.front());
    const auto LPorFilial = Repartir(Alvo(AChave, AMes), LPesos);
    const auto LLugar = static_cast<std::size_t>(&AChave - FOrcamento.Chaves().data());
    for (std::size_t f = 0; f < LPorFilial.size(); ++f)
        Repetir(AMes, {LLugar, LLugar + 1}, LEmpresa.PrimeiraFilial + static_cast<int>(f), {LPorFilial[f]});
}

// The entries of one account in one establishment and month: each takes its part of every line.
void TDiario::Repetir(int AMes, const TOrcamento::TGrupo& AGrupo, int AFilial, const std::vector<TCentavos>& AAlvos) {
    const auto& LPrimeira = FOrcamento.Chaves()[AGrupo.Primeira];
    const auto& LConta = Conta(LPrimeira);
    const auto LNatureza = LConta.Modelo->Natureza;
    const auto& LModo = ModoLancamento(LNatureza);
    TCentavos LTotal = 0;
    for (const auto LAlvo : AAlvos)
        LTotal += LAlvo;
    if (LTotal == 0)
        return;
    const auto LSemente = static_cast<std::int64_t>(Sortear({LPrimeira.Semente, AFilial, AMes}) >> 1);
    std::vector<int> LPesos;
    for (int i = 0; i < (std::abs(LTotal) < MenorValorRepartido ? 1 : LModo.PorMes); ++i)
        LPesos.push_back(SortearEntre(700, 1300, {LSemente, i, PesoDaNota}));
    std::vector<std::vector<TCentavos>> LPartes;
    for (const auto LAlvo : AAlvos)
        LPartes.push_back(Repartir(LAlvo, LPesos));

    for (std::size_t i = 0; i < LPesos.size(); ++i) {
        const auto LNota = static_cast<std::int64_t>(i);
        TLancamento LLancamento{
            Filial(AFilial).Id,
            LPrimeira.Conta,
            LPrimeira.Sub,
            LModo.FimDoMes ? UltimoDia(AMes) : Dia(AMes, SortearEntre(1, UltimoDiaUtil, {LSemente, LNota, DiaDaNota})),
            LModo.Origem,
            LivroNormal(LSemente, AMes),
            Historico(LNatureza, LConta.Nome, LTotal > 0, AMes, Sortear({LSemente, LNota, TextoDaNota})),
            LModo.Contrapartida,
            {}};
        if (LConta.Modelo->Classif == ContaDoHistoricoLongo && AMes == MesDoHistoricoLongo)
            LLancamento.Historico = HistoricoLongo(LConta.Nome);
        TCentavos LValor = 0;
        for (auto k = AGrupo.Primeira; k < AGrupo.Fim; ++k) {
            auto& LChave = FOrcamento.Chaves()[k];
            const auto LParte = LPartes[k - AGrupo.Primeira][i];
            LChave.Mes(AMes).Realizado += LParte;
            LValor += LParte;
            for (const auto& LQuota : Quotas(LChave, LParte))
                LLancamento.Quotas.push_back(LQuota);
        }
        Lancar(LLancamento, LValor);
        if (LModo.Origem == Compras && Sortear({LSemente, LNota, HaEstorno}) % 25 == 0)
            Estorno(LLancamento, LValor);
    }
}

// Shares of an amount of a line: its own centre, or where the company's budget knows none those of the account.
std::vector<TDiario::TQuota> TDiario::Quotas(const TChave& AChave, TCentavos AValor) const {
    std::vector<TQuota> LQuotas;
    if (AChave.Centro >= 0) {
        LQuotas.push_back({CentroCusto(AChave.Centro).Id, AValor});
    } else if (const auto LNatureza = Conta(AChave).Modelo->Natureza;
               LNatureza == TNatureza::Servico || LNatureza == TNatureza::Pessoal) {
        const auto LCodigos = CodigosDosCentros(*Conta(AChave).Modelo);
        const auto LPartes = Repartir(AValor, PesosPorQuantidade(LCodigos.size()));
        for (std::size_t i = 0; i < LCodigos.size(); ++i)
            LQuotas.push_back({CentroCusto(LugarDoCentro(LCodigos[i])).Id, LPartes[i]});
    }
    return LQuotas;
}

// Entries of the two other books, on top of the normal depreciation.
void TDiario::Ajustes(int AMes, const TOrcamento::TGrupo& AGrupo) {
    const auto& LPrimeira = FOrcamento.Chaves()[AGrupo.Primeira];
    const auto& LConta = Conta(LPrimeira);
    if (LConta.Modelo->Natureza != TNatureza::Depreciacao)
        return;
    const auto LAjuste = [&](int ATpCtb, int APorMil, const std::string& ATexto) {
        TLancamento LLancamento{Filial(LPrimeira.Filial).Id,
                                LPrimeira.Conta,
                                LPrimeira.Sub,
                                UltimoDia(AMes),
                                Manual,
                                ATpCtb,
                                ATexto + " " + Competencia(AMes) + " - " + LConta.Nome,
                                "1.2.04.001",
                                {}};
        TCentavos LTotal = 0;
        for (auto k = AGrupo.Primeira; k < AGrupo.Fim; ++k) {
            auto& LChave = FOrcamento.Chaves()[k];
            const auto LValor = Proporcao(LChave.Mes(AMes).Realizado, APorMil, 1000);
            if (ATpCtb == 1 && AMes < MesesPorAno)
                LChave.Societario2023 += LValor;
            for (const auto& LQuota : Quotas(LChave, LValor))
                LLancamento.Quotas.push_back(LQuota);
            LTotal += LValor;
        }
        Lancar(LLancamento, LTotal);
    };
    LAjuste(1, 80, "Ajuste societário");
    if (MesNoAno(AMes) % 3 == 0)
        LAjuste(2, 120, "Ajuste fiscal");
}

// An entry made twice and taken back: debit and credit cancel out.
void TDiario::Estorno(const TLancamento& AModelo, TCentavos AValor) {
    auto LLancamento = AModelo;
    LLancamento.Historico = "Lançamento em duplicidade - " + AModelo.Historico;
    Lancar(LLancamento, AValor);
    LLancamento.Historico = "Estorno de lançamento em duplicidade - " + AModelo.Historico;
    for (auto& LQuota : LLancamento.Quotas)
        LQuota.Valor = -LQuota.Valor;
    Lancar(LLancamento, -AValor);
}

void TDiario::GravarEncerramento() {
    const auto LContas = FOrcamento.Plano().Analiticas("3.1.01");
    for (const auto& LGrupo : FOrcamento.Grupos()) {
        const auto& LPrimeira = FOrcamento.Chaves()[LGrupo.Primeira];
        const auto& LEmpresa = Empresa(LPrimeira.Empresa);
        if ((LPrimeira.Filial >= 0 && LPrimeira.Filial != LEmpresa.PrimeiraFilial) ||
            std::find(LContas.begin(), LContas.end(), LPrimeira.Conta) == LContas.end())
            continue;
        constexpr int LDezembro = MesesPorAno - 1;
        TLancamento LLancamento{Filial(LEmpresa.PrimeiraFilial).Id,
                                LPrimeira.Conta,
                                LPrimeira.Sub,
                                UltimoDia(LDezembro),
                                Encerramento,
                                -1,
                                "Encerramento do exercício de 2023 - " + Conta(LPrimeira).Nome,
                                ContaDeEncerramento,
                                {}};
        TCentavos LTotal = 0;
        for (auto k = LGrupo.Primeira; k < LGrupo.Fim; ++k) {
            const auto& LChave = FOrcamento.Chaves()[k];
            TCentavos LDoAno = 0;
            for (int LMes = 0; LMes <= LDezembro; ++LMes)
                LDoAno -= LChave.Mes(LMes).Realizado;
            for (const auto& LQuota : Quotas(LChave, LDoAno))
                LLancamento.Quotas.push_back(LQuota);
            LTotal += LDoAno;
        }
        Lancar(LLancamento, LTotal);
    }
}

void TDiario::Lancar(const TLancamento& ALancamento, TCentavos AValor) {
    if (AValor == 0)
        return;
    LancarLado(ALancamento, ALancamento.Conta, AValor, true);
    LancarLado(ALancamento, FOrcamento.Plano().Lugar(ALancamento.Contrapartida), -AValor, false);
}

void TDiario::LancarLado(const TLancamento& ALancamento, int AConta, TCentavos AValor, bool AComQuotas) {
    const int LSinal = AValor < 0 ? -1 : 1;
    FDiario.Linha({Inteiro(FProximo), Inteiro(ALancamento.Filial), Inteiro(FOrcamento.Plano().Conta(AConta).Id),
                   AComQuotas ? ChaveOuNulo(ALancamento.Sub) : base::Nulo, ALancamento.Data, Dinheiro(LSinal * AValor),
                   Inteiro(LSinal), Inteiro(ALancamento.Origem),
                   ALancamento.TpCtb < 0 ? base::Nulo : Inteiro(ALancamento.TpCtb), ALancamento.Historico});
    if (AComQuotas)
        for (const auto& LQuota : ALancamento.Quotas)
            if (LQuota.Valor != 0)
                FCusto.Linha({Inteiro(FProximo), Inteiro(LQuota.Centro), Dinheiro(LSinal * LQuota.Valor)});
    ++FProximo;
}

void TDiario::Terminar() {
    FDiario.Terminar();
    FCusto.Terminar();
}

} // namespace demo
