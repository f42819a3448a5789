#include "actuals/SqlProjecoesRealizado.h"
#include "actuals/Un04618FormAtualizarRealizado.h"
#include "host/Servicos.h"
#include "host/Utilidades.h"

namespace pct04618 {

namespace {

host::TDefinicaoLookup LookupPesquisaRealizado() {
    return {
        .Titulo = "Pesquisa orçamentos",
        .CampoPesquisa = "IDCTBORCADAINF",
        .CampoChave = "IDCTBORCADAINF",
        .CampoDescricao = "DESCTPCENARIO",
        .Ordem = "DATAINICIO",
        .Instrucao = sql::PesquisaRealizado,
        .Colunas = {{"FILIAL", "Filial"},
                    {"DATAINICIO", "Data inicial"},
                    {"DATAFIM", "Data final"},
                    {"DESCTPCENARIO", "Cenário"},
                    {"TPDETALHE", "Tipo detalhamento"},
                    {"TPCCUSTO", "Det. c. custo"},
                    {"DATAIBALANCOREF", "Data ini balanc ref"},
                    {"DATAFBALANCOREF", "Data fim balanc ref"},
                    {"MESESPROJETADOS", "Meses proj."},
                    {"IDCTBORCADAINF", "Registro"},
                    {"TPCTB", "Tipo Contabilidade"}},
        .TextoNaoAchou = "Período inválido",
    };
}

bool VaiAdiante(host::TTecla ATecla) { return ATecla == host::TTecla::Enter || ATecla == host::TTecla::Baixo; }

} // namespace

TForm04618AtualizarRealizado::TForm04618AtualizarRealizado(TDM04618& ADm04618)
    : TFormZTTandorPadraoCalculos("TForm04618AtualizarRealizado", "Atualizar Realizado"), FDm04618(ADm04618),
      LkpPesquisaRealizado("LkpPesquisaRealizado", LookupPesquisaRealizado()), ActImprimir("actImprimir", [] {}),
      ActGerarTotais("ActGerarTotais", [this] { ActGerarTotaisExecute(); }) {
    ConfigurarControles();
    LigarEventos();
    Registrar({&FTabelas.Projecoes.Ds, &FTabelas.NaoEntraram.Ds, &FTabelas.Defasadas.Ds});
    // The order of the tabs, but for the search of periods, which comes last.
    Registrar({&LblDataInicial,
               &DeDataInicial,
               &LblDataFinal,
               &DeDataFinal,
               &LblFilial,
               &LkpFilial,
               &LblCenario,
               &ChkCenarioNormal,
               &ChkCenarioOtimista,
               &ChkCenarioPessimista,
               &LblConfrontarProjecoes,
               &RgConfrontarProjecoes,
               &ChkDetalharRealizadoPorFilial,
               &ChkDetRealizCCusto,
               &LblPesquisaRealizado,
               &LkpPesquisaRealizado,
               &ActImprimir,
               &ActGerarTotais,
               &FTabelas.Projecoes.Dbg,
               &FTabelas.NaoEntraram.Dbg,
               &FTabelas.Defasadas.Dbg});
}

void TForm04618AtualizarRealizado::ConfigurarControles() {
    const std::pair<host::TControle*, const char*> LLegendas[] = {
        {&ActExecutar, "&Executar"},
        {&ActExcluir, "E&xcluir"},
        {&ActSair, "&Sair [Esc]"},
        {&LblPesquisaRealizado, "Pesquisa (F11):"},
        {&LblDataInicial, "Data inicial:"},
        {&LblDataFinal, "Data final:"},
        {&LblFilial, "Estabelecimento:"},
        {&LblCenario, "Cenário:"},
        {&ChkCenarioNormal, "Normal"},
        {&ChkCenarioOtimista, "Otimista"},
        {&ChkCenarioPessimista, "Pessimista"},
        {&LblConfrontarProjecoes, "Confrontar projeções:"},
        {&ChkDetalharRealizadoPorFilial, "Detalhar as projeções por estabelecimento"},
        {&ChkDetRealizCCusto, "Detalhar as projeções por centros de custo"}};
    for (const auto& [LControle, LTexto] : LLegendas)
        LControle->SetCaption(LTexto);
    ActExecutar.SetHint("Executar atualização do valor realizado.");
    ActExcluir.SetHint("Excluir valor realizado.");
    ChkCenarioNormal.SetChecked(true);
    RgConfrontarProjecoes.SetItens({"Mensais", "Período informado"}, {"0", "1"});
    ChkDetRealizCCusto.SetEnabled(false); // it shows what the projection says
    ActOK.SetVisible(false);              // the frame's; this dialog has its own
    ActImprimir.SetEnabled(false);
    ActImprimir.SetVisible(false);
}

void TForm04618AtualizarRealizado::LigarEventos() {
    LkpPesquisaRealizado.AntesDeBuscar = [this](host::TZTLookupEx::TBusca& ABusca) {
        ABusca.Condicao = " CO01_CTBORCADAINF.IDEMPRESA =" + std::to_string(FDm04618.FIDEmpresa);
    };
    LkpPesquisaRealizado.BuscaAchou = [this] { LkpPesquisaRealizadoBuscaAchou(); };
    LkpFilial.IDEmpresa = [this] { return FDm04618.FIDEmpresa; };
    LkpFilial.OnExit = [this] { LkpFilialExit(); };
    LkpFilial.OnKeyDown = [this](host::TTecla ATecla) {
        const bool LExecuta = VaiAdiante(ATecla) && !ChkDetalharRealizadoPorFilial.Enabled();
        if (LExecuta)
            Executar(ActExecutar);
        return LExecuta;
    };
    ChkDetalharRealizadoPorFilial.OnKeyDown = [this](host::TTecla ATecla) {
        const bool LExecuta = VaiAdiante(ATecla) && EhUltimoControleAtivo(ChkDetalharRealizadoPorFilial);
        if (LExecuta)
            Executar(ActExecutar);
        return LExecuta;
    };
    RgConfrontarProjecoes.OnExit = [this] { RgConfrontarProjecoesExit(); };
}

// Of the group of fields.
bool TForm04618AtualizarRealizado::EhUltimoControleAtivo(const host::TControle& AControle) const {
    return host::TZTUtilsControls::EhUltimoControleAtivo(
        AControle, {&DeDataInicial, &DeDataFinal, &LkpFilial, &ChkCenarioNormal, &ChkCenarioOtimista,
                    &ChkCenarioPessimista, &RgConfrontarProjecoes, &ChkDetalharRealizadoPorFilial});
}

bool TForm04618AtualizarRealizado::FormKeyDown(host::TTecla ATecla) {
    if (ATecla != host::TTecla::F11)
        return TFormZTTandorPadraoCalculos::FormKeyDown(ATecla);
    host::Servicos().Interacao->Pesquisar(LkpPesquisaRealizado);
    return true;
}

} // namespace pct04618
