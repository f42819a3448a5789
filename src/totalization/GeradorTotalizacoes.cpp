#include "totalization/GeradorTotalizacoes.h"

#include "base/Falhas.h"
#include "base/Texto.h"
#include "core/Progresso.h"
#include "core/Un04618Const.h"
#include "host/DbManager.h"
#include "host/Servicos.h"
#include "queries/Cabecalho.h"
#include "totalization/SqlExclusao.h"

namespace pct04618 {

namespace {

constexpr int NumeroDeEtapas = 6;

} // namespace

TGeradorTotalizacoes::TGeradorTotalizacoes(const TSelecao& ASelecao)
    : FSelecao(ASelecao),
      FRelatorios(host::BuscarInstanciaZTUtilsDbManager().CreateClientDataSetWithConnection("relatórios a totalizar")),
      FProjecoes(host::BuscarInstanciaZTUtilsDbManager().CreateClientDataSetWithConnection("projeções a totalizar")),
      FProgresso(2) {}

void TGeradorTotalizacoes::Gerar() {
    FProjecoes->CommandText = InstrucaoCabecalho(FSelecao, ModoPeriodosEmColunas);
    FProjecoes->Open();
    RecusarCiclos();
    ConfirmarDependenciaRelatorios(*FRelatorios);
    BuscarRelatoriosATotalizar(*FRelatorios);
    if (FRelatorios->IsEmpty())
        return;
    FProgresso.SetTitulo("Demonstrações Configuráveis: Gerando totalizadores relatórios.");
    FProgresso.MostrarBarraProgresso();
    FProgresso.BuscarBarraProgresso(NivelProjecoes).SetValorMaximo(static_cast<int>(FRelatorios->RecordCount()));
    for (FRelatorios->First(); !FRelatorios->Eof(); FRelatorios->Next())
        GerarRelatorio();
    FProgresso.FecharBarraProgresso();
}

void TGeradorTotalizacoes::GerarRelatorio() {
    if (FProjecoes->IsEmpty())
        return;
    FProgresso.BuscarBarraProgresso(NivelProjecoes).SetValorMaximo(static_cast<int>(FProjecoes->RecordCount()));
    FProgresso.BuscarBarraProgresso(NivelEtapas).SetValorMaximo(NumeroDeEtapas);
    for (FProjecoes->First(); !FProjecoes->Eof(); FProjecoes->Next()) {
        GerarProjecao();
        FProgresso.BuscarBarraProgresso(NivelEtapas).SetValorMaximo(NumeroDeEtapas);
    }
}

void TGeradorTotalizacoes::GerarProjecao() {
    FProgresso.BuscarBarraProgresso(NivelProjecoes)
        .SetTexto("Gerando totalizações Relatório " + FRelatorios->FieldByName("CODIGO").AsString() + " para " +
                  Periodo());
    IncrementarBarraProgresso(NivelProjecoes, FProgresso);
    auto& LEtapas = FProgresso.BuscarBarraProgresso(NivelEtapas);
    LEtapas.SetTexto("Excluindo totalizações orçamentária " + Periodo());
    ReservarProjecao();
    ExcluirTotalizacoes();
    LEtapas.SetTexto("Gerando totalizações orçamentária " + Periodo());
    GerarDetalhamentosContas();
    GerarTotaisAnaliticosSomenteContas();
    GerarTotaisAnaliticosComOutrosEContas();
    GerarTotaisAnaliticosVinculados();
    GerarTotaisSinteticos();
    GerarTotaisSinteticosVinculados();
    ConfirmarProjecao();
}

void TGeradorTotalizacoes::ReservarProjecao() {
    constexpr const char* LMensagem =
        "Não foi possível reservar a projeção para gerar as totalizações; nada foi alterado nela.\r\rErros : ";
    try {
        FTransacao = host::ZTConnection().IniciarTransacao();
    } catch (const base::TFalhaBanco& E) {
        Falhar(LMensagem, E.what(), E);
    }
    FScript = base::Format(sql::ReservarProjecao, {Projecao()});
    Executar("ReservarProjecao", LMensagem);
}

void TGeradorTotalizacoes::ExcluirTotalizacoes() {
    FScript = base::Format(sql::ExcluirTotalizacoes, {Projecao(), Relatorio()});
    Executar("ExcluirTotalizacoes", "Não foi possível excluir as totalizações das Configurações de \rDemonstrações "
                                    "Contábeis.\r\rErros : ");
}

void TGeradorTotalizacoes::ConfirmarProjecao() {
    try {
        host::ZTConnection().FinalizarTransacao(*FTransacao);
    } catch (const base::TFalhaBanco& E) {
        const bool LSemResposta = E.Tipo() == base::TTipoFalhaBanco::Conexao; // the server may have done it
        Falhar(LSemResposta ? "A conexão se perdeu enquanto as totalizações da projeção eram gravadas; não se sabe se "
                              "ficaram gravadas. Gere os totais novamente.\r\rErros : "
                            : "Não foi possível gravar as totalizações da projeção; ela ficou como estava.\r\rErros : ",
               E.what(), E);
    }
    FTransacao.reset();
}

void TGeradorTotalizacoes::Executar(const char* ANome, const char* AMensagem) {
    const host::TInstrucao LInstrucoes[] = {{ANome, FScript}};
    const auto LResultado = host::ZTConnection().ExecutouSQL(LInstrucoes, false);
    if (!LResultado.Sucesso)
        Falhar(AMensagem, LResultado.Mensagem, LResultado.Causa);
}

void TGeradorTotalizacoes::Falhar(const char* AMensagem, const std::string& AErro,
                                  const std::optional<base::TFalhaBanco>& ACausa) {
    FTransacao.reset(); // rolls back before the message: nobody else is to wait while it is read
    PararSeCancelado(FProgresso);
    host::GZTUtilsDialogs.Erro(AMensagem + AErro, ACausa);
    throw base::Abort();
}

std::string TGeradorTotalizacoes::Periodo() const {
    const auto LDia = [this](const char* ACampo) {
        return FProjecoes->FieldByName(ACampo).AsDateTime().value_or(base::TDataHora()).SemHora().Texto();
    };
    return LDia("DATAINICIO") + " a " + LDia("DATAFIM");
}

} // namespace pct04618
