#include "host/Servicos.h"
#include "selection/DefinicoesLookups.h"
#include "selection/Un04618FormSelecao.h"

namespace pct04618 {

namespace {

void Legendar(std::initializer_list<std::pair<host::TControle*, const char*>> ALegendas) {
    for (const auto& [LControle, LTexto] : ALegendas)
        LControle->SetCaption(LTexto);
}

void Desabilitar(std::initializer_list<host::TControle*> AControles) {
    for (auto* LControle : AControles)
        LControle->SetEnabled(false);
}

} // namespace

TForm04618Selecao::TForm04618Selecao(TDM04618& ADm04618)
    : TFormZTTandorPadraoResult("TForm04618Selecao", "Selecionar períodos projetados"), FDm04618(ADm04618),
      FIDEmpresa(host::BuscarInstanciaZTEmpresaLogada().GetIDEmpresa()),
      LkpPesquisaPerOrcConsulta("LkpPesquisaPerOrcConsulta", LookupPesquisaPerOrcConsulta()),
      LkpEmpresa("LkpEmpresa", LookupEmpresa()),
      LkpRelatorioDemonstConfig("LkpRelatorioDemonstConfig", LookupRelatorioDemonstConfig()),
      LkpTotalizadorDemonstConfig("LkpTotalizadorDemonstConfig", LookupTotalizadorDemonstConfig()),
      LkpUsuarioAtrib("LkpUsuarioAtrib", LookupUsuarioAtrib()), LkpSubConta("LkpContas.SubConta", LookupSubConta()) {
    ConfigurarControles();
    LigarEventos();
    LigarEventosDosLookups();
    LigarTeclas();
    // The lists of the modes arise before the first showing, so that OK at once finds a mode.
    AtualizarItensEValuesDetalhamentosTiposDeRelatorios();
    // The order of the form, which is the order of its tabs but for the search of periods, which comes last.
    Registrar({&ActCancelar,
               &BtnCancelar,
               &LblEmpresa,
               &LkpEmpresa,
               &LblDataInicial,
               &DeDataIni,
               &LblDataFinal,
               &DeDataFim,
               &LblSelecionar,
               &CbSelecionar,
               &LblDetalharSelecao,
               &CbDetalharSelecao,
               &LblRelatorioDemonstConfig,
               &LkpRelatorioDemonstConfig,
               &LblTotalizadorDemonstConfig,
               &LkpTotalizadorDemonstConfig,
               &LblUsuarioAtrib,
               &LkpUsuarioAtrib,
               &LblDetalharTotalizadores,
               &PnlDetalharTotalizadores,
               &ChkDetalharTotalizadoresEstab,
               &ChkDetalharTotalizadoresCCusto,
               &ChkDetalharTotalizadoresContas,
               &LblDetalharPercentualTots,
               &PnlDetalharPercentual,
               &ChkDetPercRealizadoXOrcado,
               &ChkDetPercRealizadoXBase,
               &ChkDetPercAnaliseVertical,
               &LblCalcularPercentual,
               &PnlCalcularPercentual,
               &ChkCalcularPercentualTotal,
               &ChkCalcularPercentualDiferenca,
               &LblEstabelecimento,
               &LkpEstabelecimento,
               &ChkAgruparValFiliais,
               &LblCentroCusto,
               &LkpCentroCusto,
               &ChkDetalharCCustoOrcamento,
               &ChkDetalharSomenteCCustoTitulo,
               &LblContas,
               &LkpContas,
               &LkpSubConta,
               &LblDetalharLinhas,
               &PnlDetalharLinhas,
               &ChkLinhaVlrBase,
               &ChkLinhaVlrOrcado,
               &ChkLinhaVlrRealizado,
               &LblDetalharValLacto,
               &PnlDetalharValLancto,
               &ChkValLctoContasContabeis,
               &ChkValLctoCentrosCustos,
               &ChkImpColorido,
               &ChkPerSemMov,
               &LblCenario,
               &CbCenario,
               &LblPesquisaPerOrcConsulta,
               &LkpPesquisaPerOrcConsulta});
}

void TForm04618Selecao::ConfigurarControles() {
    Legendar({{&ActOK, "&Selecionar"},
              {&ActSair, "&Sair [Esc]"},
              {&ActCancelar, "Cancelar"},
              {&BtnCancelar, "Cancelar"},
              {&LblPesquisaPerOrcConsulta, "Pesquisa (F11):"},
              {&LblEmpresa, "Empresa:"},
              {&LblDataInicial, "Data inicial:"},
              {&LblDataFinal, "Data Final :"},
              {&LblSelecionar, "Visualizar:"},
              {&LblDetalharSelecao, "Detalhar:"},
              {&LblRelatorioDemonstConfig, "Relatório:"},
              {&LblTotalizadorDemonstConfig, "Totalizador:"},
              {&LblUsuarioAtrib, "Usuários/Atribuições:"},
              {&LblDetalharTotalizadores, "Detalhar por totalizadores:"},
              {&ChkDetalharTotalizadoresEstab, "Estabelecimentos"},
              {&ChkDetalharTotalizadoresCCusto, "Centros de custo"},
              {&ChkDetalharTotalizadoresContas, "Contas contábeis"},
              {&LblDetalharPercentualTots, "Calcular (%) dos totalizadores:"},
              {&ChkDetPercRealizadoXOrcado, "Valor realizado x orçado"},
              {&ChkDetPercRealizadoXBase, "Valor realizado x base"},
              {&ChkDetPercAnaliseVertical, "Análise vertical (totalizadores)"},
              {&LblCalcularPercentual, "Calcular percentual:"},
              {&ChkCalcularPercentualTotal, "Pelo Realizado total"},
              {&ChkCalcularPercentualDiferenca, "Pelo valor da diferença"},
              {&LblEstabelecimento, "Estabelecimento:"},
              {&ChkAgruparValFiliais, "Agrupar valores dos estabelecimentos"},
              {&LblCentroCusto, "Centros de custo:"},
              {&ChkDetalharCCustoOrcamento, "Detalhar centros de custo com base nos valores do orçamento"},
              {&ChkDetalharSomenteCCustoTitulo, "Detalhar somente centros de custo titulo"},
              {&LblContas, "Contas:"},
              {&LblDetalharLinhas, "Detalhar linhas:"},
              {&ChkLinhaVlrBase, "Base"},
              {&ChkLinhaVlrOrcado, "Orçado"},
              {&ChkLinhaVlrRealizado, "Realizado"},
              {&LblDetalharValLacto, "Detalhar valores lançamentos:"},
              {&ChkValLctoContasContabeis, "Contas Contábeis"},
              {&ChkValLctoCentrosCustos, "Centros de custo"},
              {&ChkImpColorido, "Imprimir contas ou totalizadores de forma destacada"},
              {&ChkPerSemMov, "Mostrar períodos sem movimento"},
              {&LblCenario, "Cenário:"}});
    Desabilitar({&LblEmpresa,
                 &LkpEmpresa,
                 &LblRelatorioDemonstConfig,
                 &LkpRelatorioDemonstConfig,
                 &LblTotalizadorDemonstConfig,
                 &LkpTotalizadorDemonstConfig,
                 &LblUsuarioAtrib,
                 &LkpUsuarioAtrib,
                 &LblDetalharTotalizadores,
                 &PnlDetalharTotalizadores,
                 &ChkDetalharTotalizadoresEstab,
                 &ChkDetalharTotalizadoresCCusto,
                 &ChkDetalharTotalizadoresContas,
                 &LblDetalharPercentualTots,
                 &PnlDetalharPercentual,
                 &ChkDetPercRealizadoXOrcado,
                 &ChkDetPercRealizadoXBase,
                 &ChkDetPercAnaliseVertical,
                 &LblCalcularPercentual,
                 &PnlCalcularPercentual,
                 &ChkCalcularPercentualTotal,
                 &ChkCalcularPercentualDiferenca,
                 &LblEstabelecimento,
                 &LkpEstabelecimento,
                 &ChkAgruparValFiliais,
                 &LblCentroCusto,
                 &LkpCentroCusto,
                 &ChkDetalharCCustoOrcamento,
                 &ChkDetalharSomenteCCustoTitulo,
                 &LblContas,
                 &LkpContas,
                 &LblDetalharLinhas,
                 &PnlDetalharLinhas,
                 &ChkLinhaVlrBase,
                 &ChkLinhaVlrOrcado,
                 &ChkLinhaVlrRealizado,
                 &LblDetalharValLacto,
                 &PnlDetalharValLancto,
                 &ChkValLctoContasContabeis,
                 &ChkValLctoCentrosCustos,
                 &ChkImpColorido});
    LkpSubConta.SetVisible(false);
    for (auto* LMarcado : {&ChkDetPercRealizadoXOrcado, &ChkCalcularPercentualTotal, &ChkLinhaVlrBase,
                           &ChkLinhaVlrOrcado, &ChkLinhaVlrRealizado, &ChkValLctoContasContabeis})
        LMarcado->SetChecked(true);
    CbSelecionar.SetItens(
        {"1 - Orçamentária com base no balanço", "2 - Orçamentária com base nas demonstrações configuráveis"},
        {"1", "2"});
    CbCenario.SetItens({"0 - Condições normais - Previsão normal", "1 - Condições favoráveis - Previsão otimista ",
                        "2 - Condições adversas - Previsão pessimista"},
                       {"0", "1", "2"});
}

void TForm04618Selecao::LigarEventos() {
    CbSelecionar.OnExit = [this] { AtualizarItensEValuesDetalhamentosTiposDeRelatorios(); };
    CbDetalharSelecao.OnChange = [this] { AtualizarChkImpColorido(); };
    CbDetalharSelecao.OnExit = [this] { CbDetalharSelecaoExit(); };
    LkpRelatorioDemonstConfig.OnExit = [this] { HabilitarDetalhamentosCCustoOrcamento(); };
    ChkDetalharTotalizadoresContas.OnExit = [this] {
        HabilitarCamposReferentesASelecaoDeContas();
        HabilitarCamposReferentesASelecaoDeCentroDeCusto();
    };
    ChkDetalharTotalizadoresCCusto.OnClick = ChkDetalharTotalizadoresCCusto.OnExit = [this] {
        HabilitarCamposReferentesASelecaoDeCentroDeCusto();
        HabilitarDetalhamentosCCustoOrcamento();
    };
    ChkDetalharTotalizadoresEstab.OnClick =
        ChkDetalharTotalizadoresEstab.OnExit = [this] { HabilitarCamposReferentesASelecaoDeEstabelecimento(); };
    ChkDetPercRealizadoXOrcado.OnClick = [this] {
        ChkDetPercClick(ChkDetPercRealizadoXOrcado, {&ChkDetPercRealizadoXBase, &ChkDetPercAnaliseVertical},
                        {&ChkLinhaVlrRealizado, &ChkLinhaVlrOrcado}, TDetalhePercentual::dpRealizadoXOrcado);
    };
    ChkDetPercRealizadoXBase.OnClick = [this] {
        ChkDetPercClick(ChkDetPercRealizadoXBase, {&ChkDetPercRealizadoXOrcado, &ChkDetPercAnaliseVertical},
                        {&ChkLinhaVlrRealizado, &ChkLinhaVlrBase}, TDetalhePercentual::dpRealizadoXBase);
    };
    ChkDetPercAnaliseVertical.OnClick = [this] {
        ChkDetPercClick(ChkDetPercAnaliseVertical, {&ChkDetPercRealizadoXOrcado, &ChkDetPercRealizadoXBase}, {},
                        TDetalhePercentual::dpVertical);
    };
    const auto LRetomar = [this](host::TZTCheckBox& ACaixa, TDetalhePercentual ADetalhe) {
        ACaixa.OnExit = [this, &ACaixa, ADetalhe] {
            if (ACaixa.Checked())
                FDm04618.FDetalharPercentual = ADetalhe;
        };
    };
    LRetomar(ChkDetPercRealizadoXOrcado, TDetalhePercentual::dpRealizadoXOrcado);
    LRetomar(ChkDetPercRealizadoXBase, TDetalhePercentual::dpRealizadoXBase);
    LRetomar(ChkDetPercAnaliseVertical, TDetalhePercentual::dpVertical);

    const auto LExcluir = [](host::TZTCheckBox& AUma, host::TZTCheckBox& AOutra) {
        AUma.OnClick = [&AUma, &AOutra] { AOutra.SetChecked(!AUma.Checked()); };
        AOutra.OnClick = [&AUma, &AOutra] { AUma.SetChecked(!AOutra.Checked()); };
    };
    LExcluir(ChkCalcularPercentualTotal, ChkCalcularPercentualDiferenca);
    LExcluir(ChkValLctoContasContabeis, ChkValLctoCentrosCustos);
    ChkCalcularPercentualTotal.OnExit = ChkCalcularPercentualDiferenca.OnExit = [this] {
        FDm04618.FCalcularPercentualDiferenca = ChkCalcularPercentualDiferenca.Checked();
    };

    // A line that a percentage needs cannot be dropped.
    const auto LExigir = [](host::TZTCheckBox& ALinha, std::vector<host::TZTCheckBox*> APercentuais) {
        ALinha.OnClick = [&ALinha, LPercentuais = std::move(APercentuais)] {
            for (const auto* LPercentual : LPercentuais)
                if (!ALinha.Checked() && LPercentual->Enabled() && LPercentual->Checked())
                    ALinha.SetChecked(true);
        };
    };
    LExigir(ChkLinhaVlrBase, {&ChkDetPercRealizadoXBase});
    LExigir(ChkLinhaVlrOrcado, {&ChkDetPercRealizadoXOrcado});
    LExigir(ChkLinhaVlrRealizado, {&ChkDetPercRealizadoXBase, &ChkDetPercRealizadoXOrcado});

    ChkDetalharCCustoOrcamento.OnClick = [this] {
        ChkDetalharSomenteCCustoTitulo.SetEnabled(ChkDetalharCCustoOrcamento.Checked());
        ChkDetalharSomenteCCustoTitulo.SetChecked(false);
    };
    ChkDetalharSomenteCCustoTitulo.OnClick = [this] {
        if (!ChkDetalharCCustoOrcamento.Checked())
            ChkDetalharSomenteCCustoTitulo.SetChecked(false);
    };
}

} // namespace pct04618
