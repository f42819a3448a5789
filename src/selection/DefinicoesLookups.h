#pragma once

#include "host/Lookup.h"

#include <string>

namespace pct04618 {

// What is fixed in the search fields of the selection dialog.
host::TDefinicaoLookup LookupPesquisaPerOrcConsulta();
host::TDefinicaoLookup LookupEmpresa();
host::TDefinicaoLookup LookupRelatorioDemonstConfig();
host::TDefinicaoLookup LookupTotalizadorDemonstConfig();
host::TDefinicaoLookup LookupUsuarioAtrib();
host::TDefinicaoLookup LookupSubConta();

// The choice of a lookup as a SQL condition: a term for each marked record, or for the one record found; empty for
// none. A term is ACondicao and the text of ACampoID; between two stand a carriage return and "OR ". With
// ACondicaoFiltro only marked records count whose ACampoCondicaoFiltro has that text.
std::string BuscarIDsMultiselecao(host::TZTLookupEx& ALookupEx, const std::string& ACondicao,
                                  const std::string& ACampoID, const std::string& ACondicaoFiltro = {},
                                  const std::string& ACampoCondicaoFiltro = {});

} // namespace pct04618
