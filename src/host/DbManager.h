#pragma once

#include "host/DataSet.h"
#include "host/Exportar.h"

namespace host {

// Datasets made by hand on the suite's connection. The caller owns what it is given.
class HOST_API TZTUtilsDbManager {
  public:
    // Takes a CommandText and opens.
    std::unique_ptr<TZTClientDataSet> CreateClientDataSetWithConnection(std::string ANome) const;
    // Runs a select and returns its open dataset; a failure names it ANome.
    std::unique_ptr<TDataSet> AbrirConsultaSQL(std::string ATexto, std::string ANome) const;
    // The field's text for each row, in order. The dataset's current row stays.
    std::vector<std::string> ListaDeCampo(const TDataSet& ADataSet, std::string_view ACampo) const;
};

HOST_API const TZTUtilsDbManager& BuscarInstanciaZTUtilsDbManager();

} // namespace host
