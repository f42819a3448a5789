#pragma once

#include "host/Empresa.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace suite::program {

// Who asks to be logged in, by codes; without one the lowest there is.
struct LoginRequest {
    std::optional<std::int64_t> company;       // SC00_EMPRESA.EMPRESA
    std::optional<std::int64_t> establishment; // SC00_FILIAL.FILIAL, inside the company
    std::optional<std::int64_t> user;          // US09_USUARIO.CODIGO
    std::string logFolder;                     // empty: a folder of the user's
};

// The logged company, establishment and user, and what the suite knows of companies. Reads through the host's
// connection, which must be installed. The constructor throws base::TFalha when there is no such company,
// establishment or user.
class Login final : public host::TZTEmpresaLogada, public host::TUtilContabil, public host::TUtilSistema {
  public:
    explicit Login(const LoginRequest& request);

    std::int64_t GetIDEmpresa() const override { return company_.IDEmpresa; }
    std::int64_t BuscarIDEmpresaPlano(std::int64_t company) const override;
    std::int64_t BuscarIDHolding(std::int64_t company) const override;
    host::TDadosEmpresa BuscarDadosEmpresa(std::int64_t company) const override;
    std::int64_t BuscarIDEmpresaCCusto(std::int64_t company) const override;
    bool BuscarEmpresaUtilizaCtbPorCentroCusto(std::int64_t company) const override;
    std::int64_t GetIDFilialLogada() const override { return establishment_; }
    std::int64_t GetIDUsuarioLogado() const override { return user_; }
    std::string BuscarPastaPadraoLogSistema() const override;

    const host::TDadosEmpresa& company() const { return company_; }

  private:
    std::int64_t ownerOf(const char* table, std::int64_t company) const;

    host::TDadosEmpresa company_;
    std::int64_t establishment_ = 0;
    std::int64_t user_ = 0;
    std::filesystem::path logFolder_; // empty: the user's, looked for when it is asked for
};

} // namespace suite::program
