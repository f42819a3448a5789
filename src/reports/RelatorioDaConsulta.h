#pragma once

#include "datamodule/Un04618Dm.h"
#include "host/Relatorios.h"

namespace pct04618 {

// What the reports of the consultation have in common: the query module, the head, the rows, and how they begin.
class TRelatorioDaConsulta : public host::TDMTandorRelPadrao {
  public:
    TDM04618* FDm04618 = nullptr; // set by who made the report; not owned
    // What the rows were asked for, line by line; may be empty.
    std::vector<host::TCriterio> FCriterios;

  protected:
    TRelatorioDaConsulta();

    // Establishment, period and options of the head: of the consultation that gave the rows, or of the selection as it
    // stands, where the report has a statement of its own.
    enum class TLinhas { DaConsulta, Proprias };
    void PrepararCabecalho(TLinhas ALinhas);
    // The definition of a page as the report sets it, with the head's ruler in front of others.
    base::TDefinicaoRelatorio Definir(const std::string& ATitulo, base::TPapel APapel, bool AComFolha,
                                      std::vector<base::TRegua> AReguas) const;
    // Ready to print, with its rows.
    void Mostrar(base::TDefinicaoRelatorio ADefinicao, host::TRelatorioPronto::TFabrica AFabrica) const;
    base::TFaixa FaixaCriterios() const; // without elements where there are none

    host::TZTSQLDataSet SdsImpressao{"SdsImpressao"};
    host::TZTDataSetProvider DspImpressao{"DspImpressao", SdsImpressao};
    host::TZTClientDataSet CdsImpressao{"CdsImpressao", DspImpressao};
};

// A line below the report that its own bands do not have; over the head's ruler.
base::TFaixa FaixaObservacao(const std::string& ATexto);

inline constexpr const char* FormatoDuasDecimais = ",0.00;";
inline constexpr const char* FormatoQuatroDecimais = ",0.0000;";

} // namespace pct04618
