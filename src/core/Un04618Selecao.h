#pragma once

#include "core/Un04618Types.h"

#include <optional>
#include <string>

namespace pct04618 {

// The current selection as plain fields. Statements are made of it, and nothing here validates: who reads the fields
// trusts them.
//
// A condition field (FIDs...) is a chain of "column = id" terms joined by a carriage return and "OR ", without
// brackets; empty means no restriction. An id not above 0 means none chosen.
struct TSelecao {
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
};

} // namespace pct04618
