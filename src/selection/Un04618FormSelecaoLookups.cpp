#include "base/Texto.h"
#include "host/DbManager.h"
#include "host/Servicos.h"
#include "host/Utilidades.h"
#include "selection/SqlSelecao.h"
#include "selection/Un04618FormSelecao.h"

namespace pct04618 {

void TForm04618Selecao::LigarEventosDosLookups() {
    using TBusca = host::TZTLookupEx::TBusca;
    LkpPesquisaPerOrcConsulta.AntesDeBuscar = [this](TBusca& ABusca) {
        ABusca.Condicao = " CO01_CTBORCADAINF.IDEMPRESA = " + std::to_string(FIDEmpresa);
    };
    LkpPesquisaPerOrcConsulta.BuscaAchou = [this] {
        auto& LAchado = LkpPesquisaPerOrcConsulta.GetResultSet();
        DeDataIni.SetDate(LAchado.FieldByName("DATAINICIO").AsDateTime().value_or(base::TDataHora()));
        DeDataFim.SetDate(LAchado.FieldByName("DATAFIM").AsDateTime().value_or(base::TDataHora()));
        if (DeDataIni.PodeReceberFoco())
            host::TZTUtilsControls::AtribuirFocoControle(DeDataIni);
    };
    LkpEmpresa.AntesDeBuscar = [this](TBusca& ABusca) { LkpEmpresaAntesDeBuscar(ABusca); };
    LkpTotalizadorDemonstConfig.AntesDeBuscar = [this](TBusca& ABusca) {
        ABusca.Condicao = "CO01_DEMACTOT.IDDEMAC = " + std::to_string(LkpRelatorioDemonstConfig.GetID());
    };
    LkpEstabelecimento.IDEmpresa = [this] { return FIDEmpresa; };
    LkpEstabelecimento.BuscaAchou = [this] { AtualizarInformacoesIDsFilialSelecionados(); };
    LkpEstabelecimento.BuscaNaoAchou = [this] { FDm04618.FIDFilial = 0; };
    LkpEstabelecimento.OnExit = [this] { LkpEstabelecimentoExit(); };
    LkpCentroCusto.IDEmpresa = [this] { return host::GUtilContabil().BuscarIDEmpresaCCusto(FIDEmpresa); };
    LkpContas.IDEmpresaPlano = [this] {
        return host::BuscarInstanciaZTEmpresaLogada().BuscarIDEmpresaPlano(FIDEmpresa);
    };
    LkpContas.CondicaoPesquisaConta = [] { return std::string("CO01_PLANO.TPCONTA = 3"); };
}

void TForm04618Selecao::LkpEmpresaAntesDeBuscar(host::TZTLookupEx::TBusca& ABusca) const {
    ABusca.Instrucao = base::Format(sql::EmpresasDaHolding, {FDm04618.FIDEmpresa});
}

void TForm04618Selecao::LkpEstabelecimentoExit() {
    ChkAgruparValFiliais.SetEnabled(LkpEstabelecimento.GetID() == 0);
    if (LkpEstabelecimento.GetID() > 0)
        ChkAgruparValFiliais.SetChecked(false);
    FDm04618.FIDFilial = LkpEstabelecimento.GetID();
    if (ChkAgruparValFiliais.Enabled())
        host::TZTUtilsControls::AtribuirFocoControle(ChkAgruparValFiliais);
    else if (LkpCentroCusto.PodeReceberFoco())
        host::TZTUtilsControls::AtribuirFocoControle(LkpCentroCusto);
}

void TForm04618Selecao::AtualizarInformacoesIDsFilialSelecionados() {
    if (FDm04618.FListaIDsFilial)
        FDm04618.FListaIDsFilial->clear();
    const auto& LMarcados = LkpEstabelecimento.GetResultSetMultiSelecao();
    if (!LMarcados.Active())
        FDm04618.FIDFilial = LkpEstabelecimento.GetID();
    else if (LMarcados.IsEmpty())
        FDm04618.FIDFilial = 0;
    else
        FDm04618.FListaIDsFilial = host::BuscarInstanciaZTUtilsDbManager().ListaDeCampo(LMarcados, "IDFILIAL");
}

} // namespace pct04618
