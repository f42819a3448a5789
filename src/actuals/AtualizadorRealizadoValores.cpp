#include "actuals/AtualizadorRealizado.h"
#include "base/Falhas.h"
#include "base/Texto.h"
#include "host/DbManager.h"
#include "host/Servicos.h"

#include <stdexcept>

namespace pct04618 {

namespace {

using base::TMoeda;
using base::TValor;

std::unique_ptr<host::TDataSet> Consultar(std::string ATexto, const char* ANome) {
    return host::BuscarInstanciaZTUtilsDbManager().AbrirConsultaSQL(std::move(ATexto), ANome);
}

// A key of the journal as a value row holds it: none is NULL.
TValor ChaveOuNulo(const host::TField& ACampo, bool APositiva) {
    const auto LChave = ACampo.AsInt64OuZero();
    return LChave > 0 || (!APositiva && LChave != 0) ? base::Inteiro(LChave) : base::Nulo;
}

// The sum is exact and rounded once.
TMoeda Saldo(const host::TField& ADebitos, const host::TField& ACreditos) {
    const auto LDebitos = ADebitos.AsDecimal().value_or(base::TDecimal());
    const auto LCreditos = ACreditos.AsDecimal().value_or(base::TDecimal());
    const int LEscala = std::max(LDebitos.Escala, LCreditos.Escala);
    base::TDecimal LSoma{0, LEscala};
    if (__builtin_add_overflow(LDebitos.ComEscala(LEscala).Unidades, LCreditos.ComEscala(LEscala).Unidades,
                               &LSoma.Unidades))
        throw std::overflow_error("saldo fora da faixa");
    return TMoeda(LSoma);
}

} // namespace

void TAtualizadorRealizado::BuscarDadosDiario() {
    FDm04618.CdsDiario.Close();
    FDm04618.CdsDiario.CommandText = InstrucaoSomasDoDiario(FDm04618, FConfronto);
    FDm04618.CdsDiario.Open();
}

void TAtualizadorRealizado::BuscarDestinosDoDiario() {
    const auto LDestinos = Consultar(InstrucaoDestinosDoDiario(FDm04618, FConfronto), "destinos do diário");
    for (; !LDestinos->Eof(); LDestinos->Next()) {
        const bool LDeFora = LDestinos->GetInt64FieldValue("DEFORA") == 1;
        FAtualizada.Lidos += LDestinos->GetInt64FieldValue("LIDOS");
        for (const auto& [LSufixo, LDestino] : {std::pair{"1", TDestino::OrigemExcluida},
                                                {"2", TDestino::OutroLivro},
                                                {"3", LDeFora ? TDestino::ContaDeFora : TDestino::SemQuota}}) {
            auto& LMovimento = FAtualizada.Excluidos.at(static_cast<std::size_t>(LDestino));
            const auto LCampo = [&, LQual = std::string(LSufixo)](const char* ANome) -> host::TField& {
                return LDestinos->FieldByName(ANome + LQual);
            };
            LMovimento.Lancamentos += LCampo("LIDOS").AsInt64OuZero();
            LMovimento.Debitos = LMovimento.Debitos + LCampo("DEBITOS").AsMoedaOuZero();
            LMovimento.Creditos = LMovimento.Creditos + LCampo("CREDITOS").AsMoedaOuZero();
        }
    }
}

std::pair<std::int64_t, TMoeda> BuscarSituacao(const TConfronto& AConfronto) {
    const auto LSituacao = Consultar(InstrucaoSituacao(AConfronto), "situação da projeção");
    if (LSituacao->IsEmpty())
        throw base::TFalha("A projeção de " + AConfronto.Periodo() + " foi excluída por outro usuário.");
    return {LSituacao->GetInt64FieldValue("LINHAS"), LSituacao->FieldByName("SOMA").AsMoedaOuZero()};
}

void TAtualizadorRealizado::ZerarRealizadoDaProjecao() {
    FDm04618.CdsExcluirCtbOrcadaVlr.Close();
    try {
        FDm04618.SdsExcluirCtbOrcadaVlr.SQLConnection().ExecuteDirect(InstrucaoZerar(FConfronto));
    } catch (const base::TFalha& E) {
        const auto* LFalha = dynamic_cast<const base::TFalhaBanco*>(&E);
        Falhar("Por problemas com o banco de dados a última operação foi perdida.\r\rRefaça a operação.",
               LFalha ? std::optional(*LFalha) : std::nullopt);
    }
    FDm04618.CdsExcluirCtbOrcadaVlr.Close();
}

void TAtualizadorRealizado::SomarDiarioNaProjecao() {
    auto& LDiario = FDm04618.CdsDiario;
    auto& LValores = FDm04618.CdsCtbOrcadaVlr;
    LValores.Close();
    LValores.CommandText = InstrucaoValores(FConfronto, false);
    LValores.Open();
    for (LDiario.First(); !LDiario.Eof(); LDiario.Next()) {
        AvancarOuCancelar(NivelProjecao);
        if (LDiario.FieldByName("DEBITOS").AsMoedaOuZero() != TMoeda() ||
            LDiario.FieldByName("CREDITOS").AsMoedaOuZero() != TMoeda())
            SomarLinhaDoDiario();
        AvancarOuCancelar(NivelProjecao);
    }
    host::TZTClientDataSet* const LDataSets[] = {&LValores};
    SalvarDadosBD(LDataSets);
}

// A key may come in several rows of the journal, so an amount is added to what stands there.
void TAtualizadorRealizado::SomarLinhaDoDiario() {
    auto& LDiario = FDm04618.CdsDiario;
    auto& LValores = FDm04618.CdsCtbOrcadaVlr;
    const TValor LComoVeio[] = {LDiario.FieldByName("IDFILIAL").Valor(), LDiario.FieldByName("IDPLANO").Valor(),
                                LDiario.FieldByName("IDPLANOSUB").Valor(),
                                LDiario.FieldByName("IDCENTROCUSTO").Valor()};
    // A row that an earlier amount has made keeps NULL where the journal has 0.
    const TValor LComoFica[] = {ChaveOuNulo(LDiario.FieldByName("IDFILIAL"), true),
                                ChaveOuNulo(LDiario.FieldByName("IDPLANO"), true),
                                ChaveOuNulo(LDiario.FieldByName("IDPLANOSUB"), false),
                                ChaveOuNulo(LDiario.FieldByName("IDCENTROCUSTO"), false)};
    if (LValores.FindKey(LComoVeio) || LValores.FindKey(LComoFica)) {
        LValores.Edit();
    } else {
        LValores.Insert();
        IdentificarLinha();
        std::size_t I = 0;
        for (const char* LCampo : {"IDFILIAL", "IDPLANO", "IDPLANOSUB", "IDCENTROCUSTO"})
            LValores.FieldByName(LCampo).Atribuir(LComoFica[I++]);
    }
    auto& LRealizado = LValores.FieldByName("VLRREALIZADO");
    try {
        LRealizado.Atribuir(
            (LRealizado.AsMoedaOuZero() + Saldo(LDiario.FieldByName("DEBITOS"), LDiario.FieldByName("CREDITOS")))
                .Decimal());
    } catch (const std::overflow_error&) {
        throw base::TFalha("O movimento de uma conta passa do maior valor que o realizado comporta; a projeção de " +
                           FConfronto.Periodo() + " ficou como estava.");
    }
    LValores.Post();
}

void TAtualizadorRealizado::IdentificarLinha() {
    auto& LValores = FDm04618.CdsCtbOrcadaVlr;
    LValores.FieldByName("IDCTBORCADAINF").Atribuir(base::Inteiro(FConfronto.IDCtbOrcadaInf));
    LValores.FieldByName("IDEMPRESA").Atribuir(base::Inteiro(FDm04618.FIDEmpresa));
}

void TAtualizadorRealizado::InserirTotaisContasSinteticoEDeDescarga(TTotalizacao ATotalizacao) {
    const auto LTotais = Consultar(InstrucaoTotaisDasContas(FConfronto), "totais das contas");
    if (LTotais->IsEmpty())
        return;
    auto& LValores = FDm04618.CdsCtbOrcadaVlr;
    LValores.Close();
    LValores.CommandText = InstrucaoValores(FConfronto, true);
    LValores.Open();
    for (; !LTotais->Eof(); LTotais->Next()) {
        const TValor LChave[] = {LTotais->FieldByName("IDFILIAL").Valor(), LTotais->FieldByName("IDPLANO").Valor()};
        if (LValores.FindKey(LChave))
            LValores.Edit();
        else
            LValores.Insert();
        IdentificarLinha();
        for (const char* LCampo : {"IDFILIAL", "IDPLANO"})
            LValores.FieldByName(LCampo).Atribuir(ChaveOuNulo(LTotais->FieldByName(LCampo), true));
        LValores.FieldByName("IDPLANOSUB").Clear();
        LValores.FieldByName("IDCENTROCUSTO").Clear();
        if (ATotalizacao != TTotalizacao::ttProjecaoOrcamentaria)
            LValores.FieldByName("VLRREALIZADO")
                .Atribuir(LTotais->FieldByName("VLRREALIZADO").AsMoedaOuZero().Decimal());
        LValores.Post();
    }
    host::TZTClientDataSet* const LDataSets[] = {&LValores};
    SalvarDadosBD(LDataSets);
}

void TAtualizadorRealizado::ContarAlteracoes(host::TZTClientDataSet& ADataSet) {
    const auto LRealizado = ADataSet.FieldByName("VLRREALIZADO").Indice();
    for (const auto& [LLinha, LAlteracao] : ADataSet.Alteracoes())
        if (LAlteracao.Inserida)
            ++FAtualizada.Novas;
        else if (ADataSet.Colunas()[LRealizado].Comparar(LLinha, LAlteracao.Antes[LRealizado]) != 0)
            ++FAtualizada.Alteradas;
}

void TAtualizadorRealizado::SalvarDadosBD(std::span<host::TZTClientDataSet* const> ADataSets) {
    for (auto* LDataSet : ADataSets)
        ContarAlteracoes(*LDataSet);
    const auto LMensagens = host::ZTConnection().AplicarAlteracoesNoBD(ADataSets, false);
    if (LMensagens.empty())
        return;
    std::string LTexto;
    for (const auto& LMensagem : LMensagens)
        LTexto += (LTexto.empty() ? "" : "\r") + LMensagem;
    for (auto* LDataSet : ADataSets)
        LDataSet->Cancel();
    Falhar(LTexto);
}

} // namespace pct04618
