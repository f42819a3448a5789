#pragma once

#include "core/Un04618Types.h"
#include "host/Dialogos.h"
#include "host/Formularios.h"

#include <functional>
#include <optional>
#include <string>

namespace pct04618 {

// The query module: the current selection as plain fields, the datasets through which every query and update runs,
// and the operations that turn the selection into SQL. One for each consultation window. It validates nothing: an
// operation reads the fields as they stand at the moment of the call and trusts them. Reads pass their failures on.
//
// A condition field (FIDs...) is a chain of "column = id" terms joined by a carriage return and "OR ", without
// brackets; empty means no restriction. An id not above 0 means none chosen.
class TDM04618 : public host::TDmZTTandorPadrao {
  public:
    TDM04618();
    ~TDM04618() override;

    std::int32_t FDetalharSelecao = 0; // report mode 1 to 5, 0 for none
    TInformacoesCtbOrcadaInf FInformacoesCtbOrcadaInf;
    std::string FDescricaoRel; // title of the configurable statement, empty for none
    bool FDetalharLinhaVlrBase = false;
    base::TDataHora FDataFim;
    base::TDataHora FDataInicio;
    bool FDetalharCCustoComBaseOrc = false;
    bool FDetalharSomenteCCustoTitulo = false;
    bool FCalcularPercentualDiferenca = false; // 100 is subtracted from percentages
    bool FDetalharValorLctoCCusto = false;
    bool FDetalharLinhaVlrOrcado = false;
    bool FDetalharLinhaVlrRealizado = false;
    bool FAgruparValFiliais = false;       // establishments summed into one line
    bool FImprimirOrcamentariaBal = false; // over the chart of accounts; otherwise over a configurable statement
    bool FImprimirDetContasTotaliz = false;
    bool FImprimirDetFiliaisTotaliz = false;
    bool FImprimirDetCCustoTotaliz = false;
    std::int64_t FIDDemac = 0;
    std::string FIDsTotalizadores;
    std::string FIDsCentroCusto;
    std::string FIDsContas;
    std::string FIDsUsuariosAtrib;
    std::string FIDsUsuariosAtribGestor;
    std::string FIDsUsuariosAtribSupervisor;
    std::string FIDsEmpresasDaHolding;
    std::string FIDsFiliaisDaHolding;
    bool FEhConsolidadoHolding = false;
    std::int32_t FCenario = 0;
    std::int32_t FAnoI = 0; // years of the dates as of the last commit
    std::int32_t FAnoF = 0;
    std::int64_t FIDPlano = 0;  // the single account chosen
    std::string FClassificacao; // its classification
    std::int64_t FIDEmpresa = 0;
    std::int64_t FIDFilial = 0; // the single establishment chosen, 0 for all
    TDetalhePercentual FDetalharPercentual = TDetalhePercentual::dpRealizadoXOrcado;
    std::int64_t FIDEmpresaHolding = 0;
    std::int64_t FIDEmpresaPlano = 0;
    std::optional<TStringList> FListaIDsFilial; // keys of several chosen establishments; wins over FIDFilial

    // One chain each: SQL dataset, provider, client dataset. Code works on the client dataset.
    host::TZTSQLDataSet SdsMostraCtbOrcada{"SdsMostraCtbOrcada"};
    host::TZTDataSetProvider DspMostraCtbOrcada{"DspMostraCtbOrcada", SdsMostraCtbOrcada};
    host::TZTClientDataSet CdsMostraCtbOrcada{"CdsMostraCtbOrcada", DspMostraCtbOrcada};

    host::TZTSQLDataSet SdsMostraCtbOrcMensal{"SdsMostraCtbOrcMensal"};
    host::TZTDataSetProvider DspMostraCtbOrcMensal{"DspMostraCtbOrcMensal", SdsMostraCtbOrcMensal};
    host::TZTClientDataSet CdsMostraCtbOrcMensal{"CdsMostraCtbOrcMensal", DspMostraCtbOrcMensal};

    host::TZTSQLDataSet SdsFiliais{"SdsFiliais"};
    host::TZTDataSetProvider DspFiliais{"DspFiliais", SdsFiliais};
    host::TZTClientDataSet CdsFiliais{"CdsFiliais", DspFiliais};

    host::TZTSQLDataSet SdsCtbOrcadaInf{"SdsCtbOrcadaInf"};
    host::TZTDataSetProvider DspCtbOrcadaInf{"DspCtbOrcadaInf", SdsCtbOrcadaInf};
    host::TZTClientDataSet CdsCtbOrcadaInf{"CdsCtbOrcadaInf", DspCtbOrcadaInf};

    host::TZTSQLDataSet SdsDiario{"SdsDiario"};
    host::TZTDataSetProvider DspDiario{"DspDiario", SdsDiario};
    host::TZTClientDataSet CdsDiario{"CdsDiario", DspDiario};

    host::TZTSQLDataSet SdsExcluirCtbOrcadaVlr{"SdsExcluirCtbOrcadaVlr"};
    host::TZTDataSetProvider DspExcluirCtbOrcadaVlr{"DspExcluirCtbOrcadaVlr", SdsExcluirCtbOrcadaVlr};
    host::TZTClientDataSet CdsExcluirCtbOrcadaVlr{"CdsExcluirCtbOrcadaVlr", DspExcluirCtbOrcadaVlr};

    host::TZTSQLDataSet SdsCtbOrcadaVlr{"SdsCtbOrcadaVlr"};
    host::TZTDataSetProvider DspCtbOrcadaVlr{"DspCtbOrcadaVlr", SdsCtbOrcadaVlr};
    host::TZTClientDataSet CdsCtbOrcadaVlr{"CdsCtbOrcadaVlr", DspCtbOrcadaVlr};

    std::vector<host::TCampoDescrito> DescreverCampos() const override;
    std::vector<const host::TZTClientDataSet*> DataSets() const override;

    // Finds the projections that answer the selection, and stores a copy of the result in FInformacoesCtbOrcadaInf.
    // Without any, modes 1 to 4 show a message and leave the stored copy as it was. Over more than twelve years modes
    // 3 and 4 show a message and abort. A consolidated selection needs both conditions of the holding.
    TInformacoesCtbOrcadaInf BuscarListaInformacoesCtbOrcadaInf();
    // Whether a projection of the selection is detailed by establishment; False when there is none.
    bool CalculoDaProjecaoHeDetalhadoPorFilial();
    // Loads CdsFiliais with the establishments of FIDEmpresa.
    void CarregarFiliais();
    // One step on a level of the dialog. When the user has cancelled: ADesfazer, a message, the dialog closed, and an
    // abort.
    void IncrementarBarraProgresso(std::int32_t ANivel, host::TZTBarraProgressoDlg& AZTBarraProgressoDlg,
                                   const std::function<void()>& ADesfazer = {});
    // The same without the step.
    void PararSeCancelado(host::TZTBarraProgressoDlg& AZTBarraProgressoDlg,
                          const std::function<void()>& ADesfazer = {});
    // The statement of modes 1 and 2 (queries/). Runs nothing. LListaIDs must not be empty.
    std::string BuscarDadosOrcamentariaComBaseNoBalanco() const;
    // Mode 3 (queries/): loads the dataset, whose SQL side is ASqlDataSet, with each period as a column and a row for
    // each line type that is on; at least one must be. AImpPerComMov: periods without a value row have a column too.
    // LListaIDs must not be empty, and dpVertical is for a configurable statement only. The text stays in the dataset.
    void BuscarDadosOrcamentariaBalancoOuDemonstConfigDemonstPeriodosEmColunas(host::TZTClientDataSet& ADataSet,
                                                                               host::TZTSQLDataSet& ASqlDataSet,
                                                                               bool AImpPerComMov);
    // Loads the caller's dataset with the headers of LListaIDs: for mode 3 each of them, else their distinct periods in
    // order.
    void BuscarCabecalhoOrcamentaria(host::TZTClientDataSet& ADataSet, TDetalharSelecao ADetalharSelecao) const;
    // Rebuilds the total rows of the statement FIDDemac, and if the user wants it of those that it depends on, in each
    // projection of LListaIDs, which must not be empty (totalization/). A projection stands rebuilt or as it was: a
    // failure or a cancel is shown and aborts, and what was done before stays.
    void GerarTotalizacoesDemonstracoesConfiguraveis();
    // Sets the actual value of all rows of the projections (a list for an IN) to 0, and says so. A failure leaves
    // everything as it was, is shown, and aborts.
    void RemoverValorRealizado(const std::string& AIDsOrcadaInf);

  private:
    void CdsMostraCtbOrcadaAfterOpen(host::TDataSet& ADataSet);
    void CdsMostraCtbOrcMensalAfterOpen(host::TDataSet& ADataSet);
    void CdsCtbOrcadaInfNewRecord();
    void CdsCtbOrcadaVlrNewRecord();
    void DspCtbOrcadaVlrGetTableName(std::string& ATableName);
    void DataModuleDestroy();

    std::string ClausulaPeriodo() const;
    std::string CondicaoPeriodoDoCalculo() const;
};

} // namespace pct04618
