#include "suite/program/Session.h"

#include "base/Falhas.h"
#include "host/Registro.h"
#include "suite/program/Outputs.h"
#include "suite/program/UserFolder.h"

namespace suite::program {

Session::Session(const LoginRequest& request, host::TZTConnection& connection, host::TInteracao& interaction,
                 Layouts layouts)
    : layouts_(layoutFolder) {
    host::TServicos services;
    services.Conexao = &connection;
    services.Interacao = &interaction;
    connected_.emplace(services);
    login_.emplace(request);
    services.EmpresaLogada = &*login_;
    services.Contabil = &*login_;
    services.Sistema = &*login_;
    services.Agora = [] { return originNow({}).made; };
    if (layouts == Layouts::OfUser)
        services.Leiautes = &layouts_;
    loggedIn_.emplace(services);
}

std::unique_ptr<host::TFormZTTandorPadraoSelecao> Session::makeWindow() {
    const auto factory = host::FindClass("TForm04618");
    if (!factory)
        throw base::TFalha("O módulo carregado não tem a janela de consulta.");
    return factory();
}

} // namespace suite::program
