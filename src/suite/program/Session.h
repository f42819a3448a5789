#pragma once

#include "host/Conexao.h"
#include "host/Formularios.h"
#include "host/Servicos.h"
#include "suite/program/LayoutStore.h"
#include "suite/program/Login.h"

#include <memory>
#include <optional>

namespace suite::program {

// A user at a database: the host's services as long as it lives, the login, and the windows that it opens. The module
// must be loaded before a window is asked for and outlive it.
class Session {
  public:
    enum class Layouts { OfUser, None }; // a single consultation chooses none
    // Logs in; throws TFalha. Connection and interaction outlive the session.
    Session(const LoginRequest& request, host::TZTConnection& connection, host::TInteracao& interaction,
            Layouts layouts = Layouts::OfUser);

    const Login& login() const { return *login_; }
    // The consultation window of the module, made but not yet initialized.
    static std::unique_ptr<host::TFormZTTandorPadraoSelecao> makeWindow();

  private:
    LayoutStore layouts_;
    std::optional<host::TInstalacaoServicos> connected_;
    std::optional<Login> login_;
    std::optional<host::TInstalacaoServicos> loggedIn_;
};

} // namespace suite::program
