#include "demo/Projecoes.h"

#include "suite/firebird/Statement.h"

#include <algorithm>

namespace demo {

namespace {

using base::Inteiro;

constexpr int MesesPorTrimestre = 3;
constexpr int LivroNormal = 1;
constexpr int LivrosNormalESocietario = 3;
constexpr int ProjecaoTotal = 3;

int LugarNaLista(int AFilial) { return AFilial + 1; }

} // namespace

// The longer periods stand before the months: where an unordered read takes the last header of a year, it is a month.
TProjecoes::TProjecoes(const TOrcamento& AOrcamento) : FOrcamento(AOrcamento) {
    for (int LMes = 0; LMes < MesesProjetados; LMes += MesesPorAno) // the first year also confronts the corporate book
        FCabecalhos.push_back({0, -1, 0, LMes, MesesPorAno, LMes == 0 ? LivrosNormalESocietario : LivroNormal});
    for (int LMes = 0; LMes < MesesProjetados; LMes += MesesPorTrimestre)
        FCabecalhos.push_back({0, -1, 0, LMes, MesesPorTrimestre, LivroNormal});
    const auto LMensais = [&](int AEmpresa, int AFilial, int ACenario) {
        for (int LMes = 0; LMes < MesesProjetados; ++LMes)
            FCabecalhos.push_back({AEmpresa, AFilial, ACenario, LMes, 1, LivroNormal});
    };
    for (const int LEmpresa : {0, 1})
        for (int LCenario = 0; LCenario < Cenarios; ++LCenario)
            LMensais(LEmpresa, -1, LCenario);
    const auto& LTerceira = Empresa(2);
    for (int i = 0; i < LTerceira.QtdeFiliais; ++i)
        LMensais(2, LTerceira.PrimeiraFilial + i, 0);
}

std::size_t TProjecoes::Passos() const { return FCabecalhos.size() * FOrcamento.Chaves().size(); }

void TProjecoes::Gravar(suite::firebird::Transaction& ATransacao, TAndamento& AAndamento) {
    TCarga LCabecalhos(ATransacao, "CO01_CTBORCADAINF",
                       {"IDCTBORCADAINF", "IDEMPRESA", "IDFILIAL", "TPCENARIO", "DATAINICIO", "DATAFIM",
                        "DATAIBALANCOREF", "DATAFBALANCOREF", "MESESPROJETADOS", "TPDETALHE", "TPCCUSTO", "TPCTB"});
    TCarga LLinhas(ATransacao, "CO01_CTBORCADAVLR",
                   {"IDCTBORCADAVLR", "IDCTBORCADAINF", "IDEMPRESA", "IDFILIAL", "IDPLANO", "IDPLANOSUB",
                    "IDCENTROCUSTO", "TPBASEPROJ", "TPATUALIZBASE", "INDICEATBASE", "TPPROJECAO", "VLRBASE",
                    "VLRORCADO", "PERCORCADO", "VLRREALIZADO", "TIPOGERACAO"});
    std::int64_t LId = 0;
    for (const auto& LCabecalho : FCabecalhos) {
        AAndamento.SetTexto("Gravando as projeções da empresa " + std::to_string(LCabecalho.Empresa + 1) +
                            " a partir de " + Competencia(LCabecalho.Mes));
        GravarCabecalho(LCabecalhos, LCabecalho, ++LId);
        GravarLinhas(LLinhas, LCabecalho, LId, AAndamento);
        GravarSinteticas(LLinhas, LCabecalho, LId);
    }
    LCabecalhos.Terminar();
    LLinhas.Terminar();
    suite::firebird::execute(ATransacao,
                             "ALTER SEQUENCE GEN_CO01_CTBORCADAVLR RESTART WITH " + std::to_string(FProximo - 1),
                             "chave das projeções");
}

void TProjecoes::GravarCabecalho(TCarga& ACarga, const TCabecalho& ACabecalho, std::int64_t AId) const {
    const int LUltimo = ACabecalho.Mes + ACabecalho.Meses - 1;
    ACarga.Linha({Inteiro(AId), Inteiro(Empresa(ACabecalho.Empresa).Id),
                  ACabecalho.Filial < 0 ? base::Nulo : Inteiro(Filial(ACabecalho.Filial).Id),
                  Inteiro(ACabecalho.Cenario), Dia(ACabecalho.Mes, 1), UltimoDia(LUltimo), Dia(ACabecalho.Mes, 1, 1),
                  UltimoDia(LUltimo, 1), Inteiro(ACabecalho.Meses), Inteiro(ACabecalho.Empresa == 0 ? 2 : 1),
                  Inteiro(ACabecalho.Empresa == 0 ? 1 : 0), Inteiro(ACabecalho.TpCtb)});
}

TProjecoes::TLinha TProjecoes::Somar(const TChave& AChave, const TCabecalho& ACabecalho) const {
    TLinha LLinha;
    for (int LMes = ACabecalho.Mes; LMes < ACabecalho.Mes + ACabecalho.Meses; ++LMes) {
        const auto& LValores = AChave.Mes(LMes);
        LLinha.Base += LValores.Base;
        LLinha.Orcado += LValores.Orcado[static_cast<std::size_t>(ACabecalho.Cenario)];
        LLinha.Realizado += LValores.Realizado;
    }
    if (ACabecalho.TpCtb == LivrosNormalESocietario)
        LLinha.Realizado += AChave.Societario2023;
    return LLinha;
}

void TProjecoes::GravarLinhas(TCarga& ACarga, const TCabecalho& ACabecalho, std::int64_t AId, TAndamento& AAndamento) {
    const auto& LPlano = FOrcamento.Plano();
    FSinteticas.assign(Filiais().size() + 1, std::vector<TLinha>(LPlano.Contas().size()));
    const int LAno = AnoDoMes(ACabecalho.Mes);
    for (const auto& LChave : FOrcamento.Chaves()) {
        AAndamento.Avancar();
        if (LChave.Empresa != ACabecalho.Empresa || (ACabecalho.Filial >= 0 && LChave.Filial != ACabecalho.Filial))
            continue;
        const auto LLinha = Somar(LChave, ACabecalho);
        if (LLinha.Zero())
            continue;
        // Only a projection detailed by establishment names them on its rows.
        const int LFilial = ACabecalho.Empresa == 0 ? LChave.Filial : -1;
        for (const int LAcima : LPlano.Acima(LChave.Conta)) {
            auto& LTotal =
                FSinteticas[static_cast<std::size_t>(LugarNaLista(LFilial))][static_cast<std::size_t>(LAcima)];
            LTotal.Base += LLinha.Base;
            LTotal.Orcado += LLinha.Orcado;
            LTotal.Realizado += LLinha.Realizado;
        }
        const auto LProjecao = FOrcamento.Projecao(LChave, LAno);
        ACarga.Linha({Inteiro(FProximo++), Inteiro(AId), Inteiro(Empresa(LChave.Empresa).Id),
                      LFilial < 0 ? base::Nulo : Inteiro(Filial(LFilial).Id), Inteiro(LPlano.Conta(LChave.Conta).Id),
                      ChaveOuNulo(LChave.Sub), LChave.Centro < 0 ? base::Nulo : Inteiro(CentroCusto(LChave.Centro).Id),
                      Inteiro(LProjecao.TpBase), Inteiro(LProjecao.TpAtualizacao), base::TDecimal{LProjecao.Indice, 6},
                      Inteiro(LProjecao.Tipo), Dinheiro(LLinha.Base), Dinheiro(LLinha.Orcado),
                      Dinheiro(TOrcamento::Percentual(LLinha.Base, LProjecao.Indice, LLinha.Orcado)),
                      Dinheiro(LLinha.Realizado), Inteiro(LProjecao.Tipo)});
    }
}

void TProjecoes::GravarSinteticas(TCarga& ACarga, const TCabecalho& ACabecalho, std::int64_t AId) {
    const auto& LContas = FOrcamento.Plano().Contas();
    for (std::size_t LLugar = 0; LLugar < FSinteticas.size(); ++LLugar)
        for (std::size_t LConta = 0; LConta < LContas.size(); ++LConta) {
            const auto& LLinha = FSinteticas[LLugar][LConta];
            if (LLinha.Zero())
                continue;
            const int LBase = LContas[LConta].Classif.starts_with("3")   ? 0
                              : LContas[LConta].Classif.starts_with("4") ? 1
                                                                         : 2;
            ACarga.Linha({Inteiro(FProximo++), Inteiro(AId), Inteiro(Empresa(ACabecalho.Empresa).Id),
                          LLugar == 0 ? base::Nulo : Inteiro(Filiais()[LLugar - 1].Id), Inteiro(LContas[LConta].Id),
                          base::Nulo, base::Nulo, Inteiro(LBase), Inteiro(1), base::TDecimal{0, 6},
                          Inteiro(ProjecaoTotal), Dinheiro(LLinha.Base), Dinheiro(LLinha.Orcado),
                          Dinheiro(TOrcamento::Percentual(LLinha.Base, 0, LLinha.Orcado)), Dinheiro(LLinha.Realizado),
                          base::Nulo});
        }
}

} // namespace demo
