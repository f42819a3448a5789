#pragma once

#include "host/Conexao.h"
#include "host/Empresa.h"
#include "host/Exportar.h"
#include "host/Interacao.h"

#include <functional>

namespace host {

class TArmazemLeiautes;

// What the program gives the module to work with. The program owns all of it, and keeps it until the module's windows
// are gone.
struct HOST_API TServicos {
    TZTConnection* Conexao = nullptr;
    TInteracao* Interacao = nullptr;
    TZTEmpresaLogada* EmpresaLogada = nullptr;
    TUtilContabil* Contabil = nullptr;
    TUtilSistema* Sistema = nullptr;
    TArmazemLeiautes* Leiautes = nullptr;   // may be absent: no layouts are kept
    std::function<base::TDataHora()> Agora{}; // the time that stands on paper; may be absent: none does
};

// Makes services the current ones for as long as it lives.
class HOST_API TInstalacaoServicos {
  public:
    explicit TInstalacaoServicos(const TServicos& AServicos);
    ~TInstalacaoServicos();
    TInstalacaoServicos(const TInstalacaoServicos&) = delete;
    TInstalacaoServicos& operator=(const TInstalacaoServicos&) = delete;

  private:
    TServicos FAnteriores;
};

HOST_API const TServicos& Servicos();

// The suite's globals, by the names under which the module knows them. std::logic_error without the service.
HOST_API TZTConnection& ZTConnection();
HOST_API TZTEmpresaLogada& BuscarInstanciaZTEmpresaLogada();
HOST_API TUtilContabil& GUtilContabil();
HOST_API TUtilSistema& GUtilSistema();

} // namespace host
