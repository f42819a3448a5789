#include "reports/RelatorioDaConsulta.h"

#include "host/Servicos.h"

#include <algorithm>

namespace pct04618 {

namespace {

// Criteria that the head of a page tells, beside the first one, which is a title.
constexpr const char* NoCabecalho[] = {"Empresa", "Período", "Estabelecimentos"};

} // namespace

TRelatorioDaConsulta::TRelatorioDaConsulta() {
    SdsImpressao.SetSQLConnection(host::ZTConnection().GetSQLConnection());
    DspImpressao.PermiteCommandText = true;
}

void TRelatorioDaConsulta::PrepararCabecalho(TLinhas ALinhas) {
    const auto& LDm = *FDm04618;
    FIDFilialCabecalho = LDm.FIDFilial > 0 ? LDm.FIDFilial : host::GUtilSistema().GetIDFilialLogada();
    if (LDm.FIDFilial <= 0)
        FTodasAsFiliais = true;
    if (LDm.FListaIDsFilial)
        FIDsFiliaisCabecalho = *LDm.FListaIDsFilial;
    FInicioCabecalho = ALinhas == TLinhas::DaConsulta ? LDm.FInicioConsulta : LDm.FDataInicio;
    FFimCabecalho = ALinhas == TLinhas::DaConsulta ? LDm.FFimConsulta : LDm.FDataFim;
    SetIDFilialADetalhar(LDm.FIDFilial);
}

base::TDefinicaoRelatorio TRelatorioDaConsulta::Definir(const std::string& ATitulo, base::TPapel APapel, bool AComFolha,
                                                        std::vector<base::TRegua> AReguas) const {
    base::TDefinicaoRelatorio LDefinicao;
    LDefinicao.Titulo = ATitulo;
    LDefinicao.Papel = APapel;
    LDefinicao.Reguas.push_back(ReguaCabecalho());
    for (auto& LRegua : AReguas)
        LDefinicao.Reguas.push_back(std::move(LRegua));
    LDefinicao.Rodape = Rodape(APapel.Paisagem, AComFolha);
    for (const auto& LCriterio : FCriterios)
        LDefinicao.Criterios += (LDefinicao.Criterios.empty() ? "" : "; ") + LCriterio.Nome + ": " + LCriterio.Valor;
    return LDefinicao;
}

void TRelatorioDaConsulta::Mostrar(base::TDefinicaoRelatorio ADefinicao,
                                   host::TRelatorioPronto::TFabrica AFabrica) const {
    const host::TRelatorioPronto LRelatorio(std::move(ADefinicao), std::move(AFabrica));
    host::Servicos().Interacao->MostrarRelatorio({LRelatorio, CdsImpressao});
}

base::TFaixa TRelatorioDaConsulta::FaixaCriterios() const {
    base::TFaixa LFaixa;
    LFaixa.Nome = "Criterios";
    std::string LTexto;
    for (std::size_t I = 1; I < FCriterios.size(); ++I)
        if (std::find(std::begin(NoCabecalho), std::end(NoCabecalho), FCriterios[I].Nome) == std::end(NoCabecalho))
            LTexto += (LTexto.empty() ? "" : "; ") + FCriterios[I].Nome + ": " + FCriterios[I].Valor;
    if (LTexto.empty())
        return LFaixa;
    LFaixa.Elementos.push_back(
        host::ElementoTexto("LblCriterios", LTexto, {0, host::TDMTandorRelPadrao::ReguaDoCabecalho, 0, 3}));
    LFaixa.Elementos.back().Cabimento = base::TCabimento::Quebra;
    return LFaixa;
}

base::TFaixa FaixaObservacao(const std::string& ATexto) {
    base::TFaixa LFaixa;
    LFaixa.Nome = "Observacao";
    LFaixa.Especie = base::TEspecieFaixa::Sumario;
    LFaixa.Elementos.push_back(
        host::ElementoTexto("LblObservacao", ATexto, {0, host::TDMTandorRelPadrao::ReguaDoCabecalho, 0, 3}));
    LFaixa.Elementos.back().Cabimento = base::TCabimento::Quebra;
    return LFaixa;
}

} // namespace pct04618
