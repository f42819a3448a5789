#include "core/Projecoes.h"

#include "base/Falhas.h"
#include "base/Texto.h"
#include "core/Lista.h"
#include "core/SqlProjecoes.h"
#include "core/Un04618Const.h"
#include "host/DbManager.h"
#include "host/Dialogos.h"
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

// A clause of the period; those that ask whether a header is monthly take that as their third argument.
std::string Clausula(const TSelecao& ASelecao, const char* ATexto) {
    return Format(
        ATexto, {GUtilGeral.FormataData(ASelecao.FDataInicio, true), GUtilGeral.FormataData(ASelecao.FDataFim, true)});
}
std::string ClausulaMensal(const TSelecao& ASelecao, const char* ATexto) {
    return Format(ATexto, {GUtilGeral.FormataData(ASelecao.FDataInicio, true),
                           GUtilGeral.FormataData(ASelecao.FDataFim, true), ProjecaoMensal});
}

std::string ClausulaPeriodo(const TSelecao& ASelecao) {
    switch (ASelecao.FDetalharSelecao) {
    case ModoAgrupandoPeriodos:
    case ModoPeriodoExato:
        return Clausula(ASelecao, MesmoMes(ASelecao.FDataInicio, ASelecao.FDataFim) ? sql::PeriodoExato
                                                                                    : sql::PeriodoIntermediarios);
    case ModoPeriodosEmColunas:
    case ModoMatricial:
    case ModoRazaoTotalizadores:
        return ASelecao.FAnoI == ASelecao.FAnoF
                   ? ClausulaMensal(ASelecao, sql::PeriodoMensais)
                   : Clausula(ASelecao, sql::PeriodoIntermediarios) + Format(sql::PeriodoVariosAnos, {ProjecaoMensal});
    default:
        return Clausula(ASelecao, sql::PeriodoIntermediarios);
    }
}

std::string CondicaoPeriodoDoCalculo(const TSelecao& ASelecao) {
    switch (ASelecao.FDetalharSelecao) {
    case ModoPeriodoExato:
        return Clausula(ASelecao, sql::PeriodoExato);
    case ModoPeriodosEmColunas:
        return ClausulaMensal(ASelecao, ASelecao.FDataInicio.Ano() != ASelecao.FDataFim.Ano() ? sql::CalculoVariosAnos
                                                                                              : sql::CalculoMensais);
    default:
        return ClausulaMensal(ASelecao, sql::CalculoGeral);
    }
}

} // namespace

std::optional<TInformacoesCtbOrcadaInf> BuscarProjecoes(const TSelecao& ASelecao) {
    const auto LPeriodo = ClausulaPeriodo(ASelecao);
    const std::int64_t LCenario = ASelecao.FCenario;
    const auto LTexto = ASelecao.FEhConsolidadoHolding
                            ? Format(sql::ListaProjecoesHolding, {ASelecao.FIDsEmpresasDaHolding, LCenario, LPeriodo,
                                                                  ASelecao.FIDsFiliaisDaHolding})
                            : Format(sql::ListaProjecoes, {ASelecao.FIDEmpresa, LCenario, LPeriodo});
    const auto LConsulta =
        host::BuscarInstanciaZTUtilsDbManager().AbrirConsultaSQL(LTexto, "BuscarListaInformacoesCtbOrcadaInf");
    if (LConsulta->IsEmpty() && ASelecao.FDetalharSelecao != ModoRazaoTotalizadores) {
        host::GZTUtilsDialogs.Informacao("Não foi encontrada projeção para o período informado.");
        return std::nullopt;
    }
    const bool LEmColunas =
        ASelecao.FDetalharSelecao == ModoPeriodosEmColunas || ASelecao.FDetalharSelecao == ModoMatricial;
    if (!LConsulta->IsEmpty() && LEmColunas && ASelecao.FAnoI != ASelecao.FAnoF &&
        GUtilGeral.EspacoEntreDatas(ASelecao.FDataInicio, ASelecao.FDataFim, "ANOS", "INTEGRAL") > MaximoAnos) {
        host::GZTUtilsDialogs.Confirmacao(
            "Para a opção 3 - Detalhando períodos em colunas ou 4 - Demonstrando de forma matricial com períodos em "
            "colunas, somente é permitida a visualização do detalhamento em 12 períodos. Por favor verifique os "
            "períodos informados.",
            BotaoCiente, "Confirmação:");
        throw base::Abort();
    }
    return LerProjecoes(*LConsulta);
}

bool ProjecaoDetalhadaPorFilial(const TSelecao& ASelecao) {
    auto& LConexao = host::ZTConnection();
    const auto LTransacao = LConexao.IniciarTransacaoSomenteLeitura();
    bool LDetalhado = false;
    {
        host::TZTSQLQuery LConsulta(LConexao.GetSQLConnection(), "CalculoDaProjecaoHeDetalhadoPorFilial");
        LConsulta.SQL = Format(sql::DetalheDaProjecao, {ASelecao.FIDEmpresa, std::int64_t{ASelecao.FCenario},
                                                        CondicaoPeriodoDoCalculo(ASelecao)});
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

} // namespace pct04618
