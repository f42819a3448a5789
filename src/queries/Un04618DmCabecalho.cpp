#include "base/Falhas.h"
#include "base/Texto.h"
#include "core/Un04618Const.h"
#include "core/Un04618Dm.h"
#include "host/Servicos.h"
#include "queries/Periodo.h"
#include "queries/SqlCabecalho.h"

namespace pct04618 {

using base::Format;

void TDM04618::BuscarCabecalhoOrcamentaria(host::TZTClientDataSet& ADataSet, TDetalharSelecao ADetalharSelecao) const {
    const auto& LProjecoes = FInformacoesCtbOrcadaInf.LListaIDs;
    ADataSet.Close();
    ADataSet.CommandText = ADetalharSelecao == ModoPeriodosEmColunas
                               ? Format(sql::CabecalhoPorProjecao, {LProjecoes})
                               : Format(sql::CabecalhoPorPeriodo, {LProjecoes, DescricaoDoPeriodo(7)});
    ADataSet.Open();
}

void TDM04618::RemoverValorRealizado(const std::string& AIDsOrcadaInf) {
    CdsExcluirCtbOrcadaVlr.Close();
    auto& LConexao = host::ZTConnection();
    const auto LTransacao = LConexao.IniciarTransacao();
    try {
        SdsExcluirCtbOrcadaVlr.SQLConnection().ExecuteDirect(Format(sql::ZerarRealizado, {AIDsOrcadaInf}));
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
