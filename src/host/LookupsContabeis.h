#pragma once

#include "host/Exportar.h"
#include "host/Lookup.h"

namespace host {

// The suite's ready-made search fields. Each asks its owner for the company before it searches.

class HOST_API TframeZTLookupFilial : public TZTLookupEx {
  public:
    TframeZTLookupFilial(std::string ANome, std::string ATextoZero, bool AMultiSelecao = true);
    std::function<std::int64_t()> IDEmpresa;
};

class HOST_API TFrameZTTandorLookupCentroCusto : public TZTLookupEx {
  public:
    TFrameZTTandorLookupCentroCusto(std::string ANome, std::string ATextoZero);
    std::function<std::int64_t()> IDEmpresa; // whose cost centres serve
};

// An account, title accounts included.
class HOST_API TLookupConta : public TZTLookupEx {
  public:
    explicit TLookupConta(std::string ANome);
    std::function<std::int64_t()> IDEmpresaPlano;       // whose chart serves
    std::function<std::string()> CondicaoPesquisaConta; // further condition, may be absent
    // Classification of the one account found, empty without one.
    std::string GetClassifContab() const;
};

} // namespace host
