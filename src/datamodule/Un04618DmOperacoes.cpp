#include "base/Falhas.h"
#include "base/Texto.h"
#include "core/Progresso.h"
#include "core/Projecoes.h"
#include "core/SqlProjecoes.h"
#include "datamodule/Un04618Dm.h"
#include "host/Servicos.h"
#include "queries/Balanco.h"
#include "queries/Cabecalho.h"
#include "queries/PeriodosEmColunas.h"
#include "totalization/GeradorTotalizacoes.h"

namespace pct04618 {

TInformacoesCtbOrcadaInf TDM04618::BuscarListaInformacoesCtbOrcadaInf() {
    const auto LInformacoes = BuscarProjecoes(*this);
    if (LInformacoes)
        FInformacoesCtbOrcadaInf = *LInformacoes;
    return LInformacoes.value_or(TInformacoesCtbOrcadaInf());
}

bool TDM04618::CalculoDaProjecaoHeDetalhadoPorFilial() const { return ProjecaoDetalhadaPorFilial(*this); }

void TDM04618::CarregarFiliais() {
    CdsFiliais.Close();
    CdsFiliais.CommandText = base::Format(sql::Filiais, {FIDEmpresa});
    CdsFiliais.Open();
}

void TDM04618::IncrementarBarraProgresso(std::int32_t ANivel, host::TZTBarraProgressoDlg& AZTBarraProgressoDlg) const {
    pct04618::IncrementarBarraProgresso(ANivel, AZTBarraProgressoDlg);
}

std::string TDM04618::BuscarDadosOrcamentariaComBaseNoBalanco() const { return InstrucaoBalanco(*this); }

void TDM04618::BuscarDadosOrcamentariaBalancoOuDemonstConfigDemonstPeriodosEmColunas(host::TZTClientDataSet& ADataSet,
                                                                                     host::TZTSQLDataSet& ASqlDataSet,
                                                                                     bool AImpPerComMov) {
    FPeriodosDeMesmoNome.clear();
    CarregarPeriodosEmColunas(*this, ADataSet, ASqlDataSet, AImpPerComMov);
    FPeriodosDeMesmoNome = BuscarPeriodosDeMesmoNome(*this, ADataSet, AImpPerComMov);
}

void TDM04618::BuscarCabecalhoOrcamentaria(host::TZTClientDataSet& ADataSet, TDetalharSelecao ADetalharSelecao) const {
    ADataSet.Close();
    ADataSet.CommandText = InstrucaoCabecalho(*this, ADetalharSelecao);
    ADataSet.Open();
}

void TDM04618::GerarTotalizacoesDemonstracoesConfiguraveis() const { TGeradorTotalizacoes(*this).Gerar(); }

void TDM04618::RemoverValorRealizado(const std::string& AIDsOrcadaInf) {
    CdsExcluirCtbOrcadaVlr.Close();
    auto& LConexao = host::ZTConnection();
    const auto LTransacao = LConexao.IniciarTransacao();
    try {
        SdsExcluirCtbOrcadaVlr.SQLConnection().ExecuteDirect(InstrucaoZerarRealizado(AIDsOrcadaInf));
        LConexao.FinalizarTransacao(*LTransacao);
        host::GZTUtilsDialogs.Informacao("Valores realizados excluídos com sucesso.");
    } catch (const std::exception& E) {
        LConexao.CancelarTransacao(*LTransacao);
        const auto* LFalha = dynamic_cast<const base::TFalhaBanco*>(&E);
        host::GZTUtilsDialogs.Erro(std::string("Não foi possível remover o valor realizado da projeção.\r\rErro: ") +
                                       E.what(),
                                   LFalha ? std::optional(*LFalha) : std::nullopt);
        throw base::Abort();
    }
    CdsExcluirCtbOrcadaVlr.Close();
}

} // namespace pct04618
