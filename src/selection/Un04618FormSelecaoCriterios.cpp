#include "base/Texto.h"
#include "core/Un04618Const.h"
#include "host/DbManager.h"
#include "host/Servicos.h"
#include "selection/Un04618FormSelecao.h"

namespace pct04618 {

namespace {

constexpr std::size_t MaximoPorExtenso = 5; // records that are named; the others are counted

std::string Registro(const std::string& ACodigo, const std::string& ADescricao) {
    return ACodigo + (ACodigo.empty() || ADescricao.empty() ? "" : " - ") + ADescricao;
}

// The choice of a lookup by code and description; empty for none.
std::string Escolhidos(const host::TZTLookupEx& ALookup) {
    const auto& LMarcados = ALookup.GetResultSetMultiSelecao();
    if (!LMarcados.Active())
        return ALookup.GetID() > 0 ? Registro(ALookup.Codigo(), ALookup.Texto()) : std::string();
    const auto& LDbManager = host::BuscarInstanciaZTUtilsDbManager();
    const auto LCodigos = LDbManager.ListaDeCampo(LMarcados, ALookup.Definicao().CampoPesquisa);
    const auto LDescricoes = LDbManager.ListaDeCampo(LMarcados, ALookup.Definicao().CampoDescricao);
    std::string LTexto;
    for (std::size_t I = 0; I < LCodigos.size() && I < MaximoPorExtenso; ++I)
        LTexto += (I > 0 ? "; " : "") + Registro(LCodigos[I], LDescricoes[I]);
    if (LCodigos.size() > MaximoPorExtenso)
        LTexto += " e mais " + std::to_string(LCodigos.size() - MaximoPorExtenso);
    return LTexto;
}

std::string Item(const host::TZTComboBox& ACombo) {
    const auto LIndice = ACombo.ItemIndex();
    return LIndice < 0 ? std::string() : base::Trim(ACombo.Itens()[static_cast<std::size_t>(LIndice)]);
}

void Juntar(std::string& ATexto, const char* ASeparador, bool AQuando, const std::string& AParte) {
    if (AQuando)
        ATexto += (ATexto.empty() ? "" : ASeparador) + AParte;
}

std::string Titulado(const host::TControle& ATitulo, const host::TControle& AControle) {
    return ATitulo.Caption() + " " + AControle.Caption();
}

} // namespace

// What is asked for is that of the query module, which has just taken it over; how it is called stands in the controls.
void TForm04618Selecao::GuardarCriterios() {
    auto& LDm = FDm04618;
    LDm.FInicioConsulta = LDm.FDataInicio;
    LDm.FFimConsulta = LDm.FDataFim;
    const bool LContas = LDm.FImprimirOrcamentariaBal;
    const bool LEmColunas = LDm.FDetalharSelecao == ModoPeriodosEmColunas;
    const auto LEmpresa = host::BuscarInstanciaZTEmpresaLogada().BuscarDadosEmpresa(LDm.FIDEmpresa);
    const auto LRelatorio = LContas ? std::string() : Escolhidos(LkpRelatorioDemonstConfig);
    FCriterios.clear();
    const auto LAcrescentar = [this](const char* ANome, const std::string& AValor) {
        if (!AValor.empty())
            FCriterios.push_back({ANome, AValor});
    };
    LAcrescentar("Consulta", "Orçado x realizado " +
                                 (LContas              ? "por conta"
                                  : LRelatorio.empty() ? "por demonstração"
                                                       : "- " + LRelatorio) +
                                 ": " + Item(CbDetalharSelecao));
    LAcrescentar("Empresa", Registro(std::to_string(LEmpresa.Codigo), LEmpresa.Nome));
    LAcrescentar("Período", LDm.FDataInicio.Texto() + " a " + LDm.FDataFim.Texto());
    LAcrescentar("Cenário", Item(CbCenario));
    LAcrescentar("Relatório", LRelatorio);
    LAcrescentar("Estabelecimentos", Escolhidos(LkpEstabelecimento));
    if (LContas || LDm.FImprimirDetContasTotaliz) { // totals pass both filters
        const bool LComAsDeBaixo = LDm.FIDPlano > 0 && !LEmColunas;
        LAcrescentar("Contas", Escolhidos(LkpContas) + (LComAsDeBaixo ? ", com as contas abaixo dela" : ""));
        LAcrescentar("Centros de custo", Escolhidos(LkpCentroCusto));
    }
    LAcrescentar("Totalizadores", LContas ? std::string() : Escolhidos(LkpTotalizadorDemonstConfig));
    LAcrescentar("Empresas da holding", LDm.FIDsEmpresasDaHolding.empty() ? std::string() : Escolhidos(LkpEmpresa));
    LAcrescentar("Linhas", LEmColunas ? LinhasMarcadas() : std::string());
    LAcrescentar("Opções", OpcoesMarcadas());
}

std::string TForm04618Selecao::LinhasMarcadas() const {
    std::string LLinhas;
    for (const auto* LLinha : {&ChkLinhaVlrBase, &ChkLinhaVlrOrcado, &ChkLinhaVlrRealizado})
        Juntar(LLinhas, ", ", LLinha->Checked(), LLinha->Caption());
    return LLinhas;
}

std::string TForm04618Selecao::OpcoesMarcadas() const {
    const auto& LDm = FDm04618;
    std::string LOpcoes;
    Juntar(LOpcoes, "; ", LDm.FAgruparValFiliais, ChkAgruparValFiliais.Caption());
    if (LDm.FDetalharSelecao != ModoPeriodosEmColunas)
        return LOpcoes;
    Juntar(LOpcoes, "; ", ChkPerSemMov.Checked(), ChkPerSemMov.Caption());
    const bool LVertical = LDm.FDetalharPercentual == TDetalhePercentual::dpVertical;
    if (!LDm.FImprimirOrcamentariaBal) {
        Juntar(LOpcoes, "; ", LDm.FImprimirDetContasTotaliz,
               Titulado(LblDetalharTotalizadores, ChkDetalharTotalizadoresContas));
        const auto& LCaixa = LVertical ? ChkDetPercAnaliseVertical
                             : LDm.FDetalharPercentual == TDetalhePercentual::dpRealizadoXBase
                                 ? ChkDetPercRealizadoXBase
                                 : ChkDetPercRealizadoXOrcado;
        Juntar(LOpcoes, "; ", true, Titulado(LblDetalharPercentualTots, LCaixa));
    }
    Juntar(LOpcoes, "; ", LDm.FCalcularPercentualDiferenca && !LVertical,
           Titulado(LblCalcularPercentual, ChkCalcularPercentualDiferenca));
    return LOpcoes;
}

} // namespace pct04618
