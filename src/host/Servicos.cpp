#include "host/Servicos.h"

#include <stdexcept>

namespace host {

namespace {

TServicos GServicos;

template <class T>
T& Exigir(T* AServico, const char* ANome) {
    if (!AServico)
        throw std::logic_error(std::string("no service installed: ") + ANome);
    return *AServico;
}

} // namespace

TInstalacaoServicos::TInstalacaoServicos(const TServicos& AServicos) : FAnteriores(GServicos) { GServicos = AServicos; }

TInstalacaoServicos::~TInstalacaoServicos() { GServicos = FAnteriores; }

const TServicos& Servicos() { return GServicos; }

TZTConnection& ZTConnection() { return Exigir(GServicos.Conexao, "ZTConnection"); }
TZTEmpresaLogada& BuscarInstanciaZTEmpresaLogada() { return Exigir(GServicos.EmpresaLogada, "TZTEmpresaLogada"); }
TUtilContabil& GUtilContabil() { return Exigir(GServicos.Contabil, "GUtilContabil"); }
TUtilSistema& GUtilSistema() { return Exigir(GServicos.Sistema, "GUtilSistema"); }

} // namespace host
