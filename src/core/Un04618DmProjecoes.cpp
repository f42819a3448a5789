#include "base/Falhas.h"
#include "base/Texto.h"
#include "core/SqlProjecoes.h"
#include "core/Un04618Const.h"
#include "core/Un04618Dm.h"
#include "host/DbManager.h"
#include "host/Servicos.h"
#include "host/Utilidades.h"

namespace pct04618 {

namespace {

using base::Format;
using host::GUtilGeral;

constexpr int MaximoAnos = 12;

bool MesmoMes(base::TDataHora A, base::TDataHora B) { return A.Ano() == B.Ano() && A.Mes() == B.Mes(); }

TInformacoesCtbOrcadaInf LerProjecoes(host::TDataSet& ADataSet) {
    TInformacoesCtbOrcadaInf LInformacoes;
    for (ADataSet.First(); !ADataSet.Eof(); ADataSet.Next()) {
        if (!LInformacoes.LListaIDs.empty())
            LInformacoes.LListaIDs += ", ";
        LInformacoes.LListaIDs += ADataSet.FieldByName("IDCTBORCADAINF").AsString();
        LInformacoes.TpCCusto = base::NumeroOuZero(ADataSet.FieldByName("TPCCUSTO").AsString());
    }
    LInformacoes.QtdePeriodos = static_cast<std::int32_t>(ADataSet.RecordCount());
    if (LInformacoes.QtdePeriodos == 1) {
        LInformacoes.DataIBalancoRef = ADataSet.FieldByName("DATAIBALANCOREF").AsDateTime().value_or(base::TDataHora());
        LInformacoes.DataFBalancoRef = ADataSet.FieldByName("DATAFBALANCOREF").AsDateTime().value_or(base::TDataHora());
    }
    return LInformacoes;
}

} // namespace

std::string TDM04618::ClausulaPeriodo() const {
    const auto LInicio = GUtilGeral.FormataData(FDataInicio, true);
    const auto LFim = GUtilGeral.FormataData(FDataFim, true);
    const auto LMontar = [&](const char* ATexto) { return Format(ATexto, {LInicio, LFim}); };
    switch (FDetalharSelecao) {
    case ModoAgrupandoPeriodos:
    case ModoPeriodoExato:
        return LMontar(MesmoMes(FDataInicio, FDataFim) ? sql::PeriodoExato : sql::PeriodoIntermediarios);
    case ModoPeriodosEmColunas:
    case ModoMatricial:
    case ModoRazaoTotalizadores:
        return FAnoI == FAnoF ? LMontar(sql::PeriodoMensais)
                              : LMontar(sql::PeriodoIntermediarios) + sql::PeriodoVariosAnos;
    default:
        return LMontar(sql::PeriodoIntermediarios);
    }
}

TInformacoesCtbOrcadaInf TDM04618::BuscarListaInformacoesCtbOrcadaInf() {
    const auto LTexto = FEhConsolidadoHolding
                            ? Format(sql::ListaProjecoesHolding, {FIDsEmpresasDaHolding, std::int64_t{FCenario},
                                                                  ClausulaPeriodo(), FIDsFiliaisDaHolding})
                            : Format(sql::ListaProjecoes, {FIDEmpresa, std::int64_t{FCenario}, ClausulaPeriodo()});
    const auto LConsulta =
        host::BuscarInstanciaZTUtilsDbManager().AbrirConsultaSQL(LTexto, "BuscarListaInformacoesCtbOrcadaInf");
    if (LConsulta->IsEmpty() && FDetalharSelecao != ModoRazaoTotalizadores) {
        host::GZTUtilsDialogs.Informacao("Não foi encontrada projeção para o período informado.");
        return {};
    }
    const bool LEmColunas = FDetalharSelecao == ModoPeriodosEmColunas || FDetalharSelecao == ModoMatricial;
    if (!LConsulta->IsEmpty() && LEmColunas && FAnoI != FAnoF &&
        GUtilGeral.EspacoEntreDatas(FDataInicio, FDataFim, "ANOS", "INTEGRAL") > MaximoAnos) {
        host::GZTUtilsDialogs.Confirmacao(
            "Para a opção 3 - Detalhando períodos em colunas ou 4 - Demonstrando de forma matricial com períodos em "
            "colunas, somente é permitida a visualização do detalhamento em 12 períodos. Por favor verifique os "
            "períodos informados.",
            BotaoCiente, "Confirmação:");
        throw base::Abort();
    }
    FInformacoesCtbOrcadaInf = LerProjecoes(*LConsulta);
    return FInformacoesCtbOrcadaInf;
}

std::string TDM04618::CondicaoPeriodoDoCalculo() const {
    const auto LTexto = [&] {
        switch (FDetalharSelecao) {
        case ModoPeriodoExato:
            return sql::PeriodoExato;
        case ModoPeriodosEmColunas:
            return FDataInicio.Ano() != FDataFim.Ano() ? sql::CalculoVariosAnos : sql::CalculoMensais;
        default:
            return sql::CalculoGeral;
        }
    }();
    return Format(LTexto, {GUtilGeral.FormataData(FDataInicio, true), GUtilGeral.FormataData(FDataFim, true)});
}

bool TDM04618::CalculoDaProjecaoHeDetalhadoPorFilial() {
    auto& LConexao = host::ZTConnection();
    const auto LTransacao = LConexao.IniciarTransacaoSomenteLeitura();
    bool LDetalhado = false;
    {
        host::TZTSQLQuery LConsulta(LConexao.GetSQLConnection(), "CalculoDaProjecaoHeDetalhadoPorFilial");
        LConsulta.SQL =
            Format(sql::DetalheDaProjecao, {FIDEmpresa, std::int64_t{FCenario}, CondicaoPeriodoDoCalculo()});
        LConsulta.Open(); // a failure leaves the transaction to its holder, who rolls it back
        LDetalhado =
            !LConsulta.IsEmpty() && LConsulta.FieldByName("TPDETALHE").AsInt64OuZero() == DetalhadaPorEstabelecimento;
    }
    try {
        LConexao.FinalizarTransacao(*LTransacao);
    } catch (const base::TFalha&) {
        LConexao.CancelarTransacao(*LTransacao); // it has only read: the answer stands
    }
    return LDetalhado;
}

void TDM04618::CarregarFiliais() {
    CdsFiliais.Close();
    CdsFiliais.CommandText = Format(sql::Filiais, {FIDEmpresa});
    CdsFiliais.Open();
}

} // namespace pct04618
