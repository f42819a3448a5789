#include "datamodule/Un04618Dm.h"

namespace pct04618 {

namespace {

base::TValor Numero(std::int64_t AValor) { return base::Inteiro(AValor); }
base::TValor Texto(const std::string& AValor) { return AValor; }
base::TValor Data(base::TDataHora AValor) { return AValor.Vazia() ? base::Nulo : base::TValor(AValor); }

base::TValor NomeDe(TDetalhePercentual AValor) {
    switch (AValor) {
    case TDetalhePercentual::dpRealizadoXOrcado:
        return "dpRealizadoXOrcado";
    case TDetalhePercentual::dpRealizadoXBase:
        return "dpRealizadoXBase";
    case TDetalhePercentual::dpVertical:
        return "dpVertical";
    }
    return base::Nulo;
}

std::vector<host::TCampoDescrito> Descrever(const TInformacoesCtbOrcadaInf& AInformacoes) {
    return {{"LListaIDs", Texto(AInformacoes.LListaIDs)},
            {"DataIBalancoRef", Data(AInformacoes.DataIBalancoRef)},
            {"DataFBalancoRef", Data(AInformacoes.DataFBalancoRef)},
            {"QtdePeriodos", Numero(AInformacoes.QtdePeriodos)},
            {"TpCCusto", Numero(AInformacoes.TpCCusto)}};
}

} // namespace

std::vector<host::TCampoDescrito> TDM04618::DescreverCampos() const {
    host::TConteudoDescrito LFiliais = base::Nulo;
    if (FListaIDsFilial)
        LFiliais = *FListaIDsFilial;
    return {{"FDetalharSelecao", Numero(FDetalharSelecao)},
            {"FInformacoesCtbOrcadaInf", Descrever(FInformacoesCtbOrcadaInf)},
            {"FDescricaoRel", Texto(FDescricaoRel)},
            {"FDetalharLinhaVlrBase", FDetalharLinhaVlrBase},
            {"FDataFim", Data(FDataFim)},
            {"FDataInicio", Data(FDataInicio)},
            {"FDetalharCCustoComBaseOrc", FDetalharCCustoComBaseOrc},
            {"FDetalharSomenteCCustoTitulo", FDetalharSomenteCCustoTitulo},
            {"FCalcularPercentualDiferenca", FCalcularPercentualDiferenca},
            {"FDetalharValorLctoCCusto", FDetalharValorLctoCCusto},
            {"FDetalharLinhaVlrOrcado", FDetalharLinhaVlrOrcado},
            {"FDetalharLinhaVlrRealizado", FDetalharLinhaVlrRealizado},
            {"FAgruparValFiliais", FAgruparValFiliais},
            {"FImprimirOrcamentariaBal", FImprimirOrcamentariaBal},
            {"FImprimirDetContasTotaliz", FImprimirDetContasTotaliz},
            {"FImprimirDetFiliaisTotaliz", FImprimirDetFiliaisTotaliz},
            {"FImprimirDetCCustoTotaliz", FImprimirDetCCustoTotaliz},
            {"FIDDemac", Numero(FIDDemac)},
            {"FIDsTotalizadores", Texto(FIDsTotalizadores)},
            {"FIDsCentroCusto", Texto(FIDsCentroCusto)},
            {"FIDsContas", Texto(FIDsContas)},
            {"FIDsUsuariosAtrib", Texto(FIDsUsuariosAtrib)},
            {"FIDsUsuariosAtribGestor", Texto(FIDsUsuariosAtribGestor)},
            {"FIDsUsuariosAtribSupervisor", Texto(FIDsUsuariosAtribSupervisor)},
            {"FIDsEmpresasDaHolding", Texto(FIDsEmpresasDaHolding)},
            {"FIDsFiliaisDaHolding", Texto(FIDsFiliaisDaHolding)},
            {"FEhConsolidadoHolding", FEhConsolidadoHolding},
            {"FCenario", Numero(FCenario)},
            {"FAnoI", Numero(FAnoI)},
            {"FAnoF", Numero(FAnoF)},
            {"FIDPlano", Numero(FIDPlano)},
            {"FClassificacao", Texto(FClassificacao)},
            {"FIDEmpresa", Numero(FIDEmpresa)},
            {"FIDFilial", Numero(FIDFilial)},
            {"FDetalharPercentual", NomeDe(FDetalharPercentual)},
            {"FIDEmpresaHolding", Numero(FIDEmpresaHolding)},
            {"FIDEmpresaPlano", Numero(FIDEmpresaPlano)},
            {"FListaIDsFilial", LFiliais}};
}

std::vector<const host::TZTClientDataSet*> TDM04618::DataSets() const {
    return {&CdsMostraCtbOrcada, &CdsMostraCtbOrcMensal,  &CdsFiliais,     &CdsCtbOrcadaInf,
            &CdsDiario,          &CdsExcluirCtbOrcadaVlr, &CdsCtbOrcadaVlr};
}

} // namespace pct04618
