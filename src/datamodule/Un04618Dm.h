#pragma once

#include "core/Un04618Selecao.h"
#include "host/Dialogos.h"
#include "host/Formularios.h"

#include <string>

namespace pct04618 {

// The query module: the current selection, the datasets through which every query and update runs, and the operations
// that turn the selection into SQL, by the names under which dialogs and reports know them. What they do is written in
// the rooms below, over the selection alone. One for each consultation window. It validates nothing: an operation reads
// the fields as they stand at the moment of the call and trusts them. Reads pass their failures on.
class TDM04618 : public host::TDmZTTandorPadrao, public TSelecao {
  public:
    TDM04618();
    ~TDM04618() override;

    // Period of the last commit: the dates of the selection follow the dialog, and the rows do not.
    base::TDataHora FInicioConsulta;
    base::TDataHora FFimConsulta;
    // Of the last result with periods in columns: what its columns are, where two have the same name; else empty.
    std::vector<TPeriodoEmColuna> FPeriodosDeMesmoNome;

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
    bool CalculoDaProjecaoHeDetalhadoPorFilial() const;
    // Loads CdsFiliais with the establishments of FIDEmpresa.
    void CarregarFiliais();
    // One step on a level of the dialog. When the user has cancelled: a message, the dialog closed, and an abort.
    void IncrementarBarraProgresso(std::int32_t ANivel, host::TZTBarraProgressoDlg& AZTBarraProgressoDlg) const;
    // The statement of modes 1 and 2. Runs nothing. LListaIDs must not be empty.
    std::string BuscarDadosOrcamentariaComBaseNoBalanco() const;
    // Mode 3: loads the dataset, whose SQL side is ASqlDataSet, with each period as a column and a row for
    // each line type that is on; at least one must be. AImpPerComMov: periods without a value row have a column too.
    // LListaIDs must not be empty, and dpVertical is for a configurable statement only. The text stays in the dataset.
    void BuscarDadosOrcamentariaBalancoOuDemonstConfigDemonstPeriodosEmColunas(host::TZTClientDataSet& ADataSet,
                                                                               host::TZTSQLDataSet& ASqlDataSet,
                                                                               bool AImpPerComMov);
    // Loads the caller's dataset with the headers of LListaIDs: for mode 3 each of them, else their distinct periods in
    // order.
    void BuscarCabecalhoOrcamentaria(host::TZTClientDataSet& ADataSet, TDetalharSelecao ADetalharSelecao) const;
    // Rebuilds the total rows of the statement FIDDemac, and if the user wants it of those that it depends on, in each
    // projection of LListaIDs, which must not be empty. A projection stands rebuilt or as it was: a
    // failure or a cancel is shown and aborts, and what was done before stays.
    void GerarTotalizacoesDemonstracoesConfiguraveis() const;
    // Sets the actual value of all rows of the projections (a list for an IN) to 0, and says so. A failure leaves
    // everything as it was, is shown, and aborts.
    void RemoverValorRealizado(const std::string& AIDsOrcadaInf);

  private:
    void CdsMostraCtbOrcadaAfterOpen(host::TDataSet& ADataSet);
    void CdsMostraCtbOrcMensalAfterOpen(host::TDataSet& ADataSet);
    void CdsCtbOrcadaVlrNewRecord();
    void DspCtbOrcadaVlrGetTableName(std::string& ATableName);
    void DataModuleDestroy();
};

} // namespace pct04618
