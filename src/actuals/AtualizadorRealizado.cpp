#include "actuals/AtualizadorRealizado.h"

#include "actuals/SqlProjecoesRealizado.h"
#include "base/Falhas.h"
#include "base/Texto.h"
#include "core/Lista.h"
#include "host/DbManager.h"
#include "host/Servicos.h"
#include "totalization/SqlExclusao.h"

#include <chrono>

namespace pct04618 {

void BuscarDadosCabecalhoOrcamentaria(TDM04618& ADm, int ACenarios, base::TDataHora ADataInicial,
                                      base::TDataHora ADataFinal, bool AIntervalo) {
    ADm.CdsCtbOrcadaInf.Close();
    ADm.CdsCtbOrcadaInf.CommandText =
        InstrucaoCabecalhosRealizado(ADm.FIDEmpresa, ACenarios, ADataInicial, ADataFinal, AIntervalo);
    ADm.CdsCtbOrcadaInf.Open();
}

namespace {

TProjecaoAtualizada Identificar(const TConfronto& AConfronto) {
    TProjecaoAtualizada LProjecao;
    LProjecao.IDCtbOrcadaInf = AConfronto.IDCtbOrcadaInf;
    LProjecao.DataInicio = AConfronto.DataInicio;
    LProjecao.DataFim = AConfronto.DataFim;
    LProjecao.Cenario = AConfronto.NomeDoCenario();
    return LProjecao;
}

} // namespace

TProjecaoAtualizada LerAntesDeExcluir(const TConfronto& AConfronto) {
    auto LProjecao = Identificar(AConfronto);
    LProjecao.ComMovimento = true;
    std::tie(LProjecao.Zeradas, LProjecao.Antes) = BuscarSituacao(AConfronto);
    return LProjecao;
}

TAtualizadorRealizado::TAtualizadorRealizado(TDM04618& ADm, const TPedidoRealizado& APedido,
                                             TResultadoRealizado& AResultado)
    : FDm04618(ADm), FPedido(APedido), FResultado(AResultado), FProgresso(2) {}

void TAtualizadorRealizado::AtualizarValoresRealizadosNoPeriodo() {
    FResultado = {};
    MontarPeriodos();
    ListarFiliais();
    RecusarProjecoes();
    FProgresso.MostrarBarraProgresso();
    FProgresso.SetTitulo("Contabilidade gerencial orçamentária");
    FProgresso.BuscarBarraProgresso(NivelPeriodos).SetValorMaximo(2 * static_cast<int>(FPeriodos.size()));
    for (const auto& LPeriodo : FPeriodos)
        AtualizarPeriodo(LPeriodo);
    BuscarDefasadas();
}

void TAtualizadorRealizado::AtualizarPeriodo(const TPeriodo& APeriodo) {
    FProgresso.BuscarBarraProgresso(NivelPeriodos)
        .SetTexto("Confrontando a Execução de " + APeriodo.Inicio.Texto() + " a " + APeriodo.Fim.Texto());
    AvancarOuCancelar(NivelPeriodos);
    BuscarDadosCabecalhoOrcamentaria(FDm04618, FPedido.Cenarios, APeriodo.Inicio, APeriodo.Fim, false);
    auto& LCabecalhos = FDm04618.CdsCtbOrcadaInf;
    for (LCabecalhos.First(); !LCabecalhos.Eof(); LCabecalhos.Next()) {
        FConfronto = TConfronto::Do(LCabecalhos, FPedido.IDFilial, FFiliais);
        try {
            AtualizarProjecao();
        } catch (const base::TFalha&) {
            FTransacao.reset(); // before whoever shows the failure does
            PararSeCancelado(); // which is how a statement ends that the user stops
            throw;
        }
    }
}

void TAtualizadorRealizado::AtualizarProjecao() {
    const auto LComeco = std::chrono::steady_clock::now();
    FAtualizada = Identificar(FConfronto);
    ReservarProjecao();
    BuscarDadosDiario();
    BuscarDestinosDoDiario();
    std::tie(FAtualizada.Zeradas, FAtualizada.Antes) = BuscarSituacao(FConfronto);
    auto& LDiario = FDm04618.CdsDiario;
    auto& LNivel = FProgresso.BuscarBarraProgresso(NivelProjecao);
    FAtualizada.ComMovimento = !LDiario.IsEmpty();
    if (FAtualizada.ComMovimento) {
        LNivel.SetTexto(base::Format("Cenário: %0:s - Gerando a execução de %1:s a %2:s",
                                     {FConfronto.NomeDoCenario(), FConfronto.DataInicio.SemHora().Texto(),
                                      FConfronto.DataFim.SemHora().Texto()}));
        LNivel.SetValorMaximo(2 * static_cast<int>(LDiario.RecordCount()));
        ZerarRealizadoDaProjecao();
        SomarDiarioNaProjecao();
    } else {
        FAtualizada.Zeradas = 0;
        FAtualizada.Observacao = "Sem movimento: mantido";
    }
    AvancarOuCancelar(NivelPeriodos);
    LNivel.SetTexto("Gerando os totalizadores... ");
    LNivel.SetValorMaximo(8);
    AvancarOuCancelar(NivelProjecao);
    InserirTotaisContasSinteticoEDeDescarga(TTotalizacao::ttAtualizacaoRealizado);
    FAtualizada.Depois = BuscarSituacao(FConfronto).second;
    ConfirmarProjecao();
    FAtualizada.Milissegundos =
        std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - LComeco).count();
    FResultado.Projecoes.push_back(FAtualizada);
}

// A second run of the same projection waits here for the first and goes on behind it.
void TAtualizadorRealizado::ReservarProjecao() {
    const auto LFalhar = [this](const std::string& AErro, const std::optional<base::TFalhaBanco>& ACausa) {
        Falhar("Não foi possível reservar a projeção para atualizar o realizado; nada foi alterado nela.\r\rErros : " +
                   AErro,
               ACausa);
    };
    try {
        FTransacao = host::ZTConnection().IniciarTransacao();
    } catch (const base::TFalhaBanco& E) {
        LFalhar(E.what(), E);
    }
    const host::TInstrucao LInstrucoes[] = {
        {"ReservarProjecao", base::Format(sql::ReservarProjecao, {FConfronto.IDCtbOrcadaInf})}};
    const auto LEstado = host::ZTConnection().ExecutouSQL(LInstrucoes, false);
    if (!LEstado.Sucesso)
        LFalhar(LEstado.Mensagem, LEstado.Causa);
}

void TAtualizadorRealizado::ConfirmarProjecao() {
    try {
        host::ZTConnection().FinalizarTransacao(*FTransacao);
    } catch (const base::TFalhaBanco& E) {
        const bool LSemResposta = E.Tipo() == base::TTipoFalhaBanco::Conexao; // the server may have done it
        Falhar((LSemResposta ? "A conexão se perdeu enquanto o realizado da projeção era gravado; não se sabe se ficou "
                               "gravado. Atualize o realizado novamente.\r\rErros : "
                             : "Não foi possível gravar o realizado da projeção; ela ficou como estava.\r\rErros : ") +
                   std::string(E.what()),
               E);
    }
    FTransacao.reset();
}

void TAtualizadorRealizado::BuscarDefasadas() {
    const auto LIds = FResultado.ListaIDs();
    if (LIds.empty())
        return;
    const auto LDemonstracoes = host::BuscarInstanciaZTUtilsDbManager().AbrirConsultaSQL(
        base::Format(sql::DemonstracoesComTotais, {EstaNaLista("CO01_CTBORCADAVLR.IDCTBORCADAINF", LIds)}),
        "demonstrações com totais");
    for (; !LDemonstracoes->Eof(); LDemonstracoes->Next())
        FResultado.Defasadas.push_back({LDemonstracoes->GetInt64FieldValue("IDDEMAC"),
                                        LDemonstracoes->FieldByName("CODIGO").AsInt64OuZero(),
                                        LDemonstracoes->FieldByName("TITULO").AsString()});
}

void TAtualizadorRealizado::AvancarOuCancelar(int ANivel) {
    FProgresso.BuscarBarraProgresso(ANivel).AvancarProgresso(0);
    PararSeCancelado();
}

void TAtualizadorRealizado::PararSeCancelado() {
    if (!FProgresso.GetProcessoCancelado())
        return;
    FTransacao.reset(); // rolls back before the message: nobody else is to wait while it is read
    host::GZTUtilsDialogs.Informacao("Processo cancelado.");
    FProgresso.FecharBarraProgresso();
    host::Servicos().Interacao->ProcessarMensagens();
    throw base::Abort();
}

void TAtualizadorRealizado::Falhar(const std::string& AMensagem, const std::optional<base::TFalhaBanco>& ACausa) {
    FTransacao.reset();
    PararSeCancelado();
    host::GZTUtilsDialogs.Erro(AMensagem, ACausa);
    throw base::Abort();
}

} // namespace pct04618
