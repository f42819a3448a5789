#pragma once

#include "host/Exportar.h"

#include <cstdint>
#include <string>

namespace host {

struct HOST_API TDadosEmpresa {
    std::int64_t IDEmpresa = 0;
    std::int64_t Codigo = 0;
    std::string Nome;
    bool EncabecaHolding = false; // another company names it as its holding
};

// The logged company.
class HOST_API TZTEmpresaLogada {
  public:
    virtual ~TZTEmpresaLogada() = default;
    virtual std::int64_t GetIDEmpresa() const = 0;
    // The company whose chart of accounts serves AIDEmpresa: itself when it has one, else its holding.
    virtual std::int64_t BuscarIDEmpresaPlano(std::int64_t AIDEmpresa) const = 0;
    // The company that heads the holding of AIDEmpresa; itself when it belongs to none.
    virtual std::int64_t BuscarIDHolding(std::int64_t AIDEmpresa) const = 0;
    // Throws TFalha when there is no such company.
    virtual TDadosEmpresa BuscarDadosEmpresa(std::int64_t AIDEmpresa) const = 0;
};

class HOST_API TUtilContabil {
  public:
    virtual ~TUtilContabil() = default;
    // The company whose cost centres serve AIDEmpresa: itself when it has any, else its holding.
    virtual std::int64_t BuscarIDEmpresaCCusto(std::int64_t AIDEmpresa) const = 0;
    // Whether there are cost centres for AIDEmpresa to book by.
    virtual bool BuscarEmpresaUtilizaCtbPorCentroCusto(std::int64_t AIDEmpresa) const = 0;
};

// Who is logged in, beside the company.
class HOST_API TUtilSistema {
  public:
    virtual ~TUtilSistema() = default;
    virtual std::int64_t GetIDFilialLogada() const = 0;
    virtual std::int64_t GetIDUsuarioLogado() const = 0;
    // The folder for what is kept to look into later, with a slash at its end; it need not exist yet.
    virtual std::string BuscarPastaPadraoLogSistema() const = 0;
};

} // namespace host
