#include "suite/program/Login.h"

#include "base/Falhas.h"
#include "base/Texto.h"
#include "host/DbManager.h"
#include "suite/program/UserFolder.h"

namespace suite::program {

namespace {

using base::Format;

std::unique_ptr<host::TDataSet> query(const std::string& text, const char* name) {
    return host::BuscarInstanciaZTUtilsDbManager().AbrirConsultaSQL(text, name);
}

bool ownsRows(const char* table, std::int64_t company) {
    return !query(Format("SELECT FIRST 1 1 AS ACHOU FROM %s WHERE %s.IDEMPRESA = %d", {table, table, company}),
                  "dono do cadastro")
                ->IsEmpty();
}

// The key of the row with that code, or with the lowest one; a row without a code is nobody's choice.
std::int64_t find(const std::string& table, const std::string& key, const std::string& code, const std::string& where,
                  std::optional<std::int64_t> wanted, const char* what) {
    const auto column = table + "." + code;
    const auto rows =
        query("SELECT FIRST 1 " + table + "." + key + " FROM " + table + (where.empty() ? " WHERE " : where + " AND ") +
                  column + (wanted ? " = " + std::to_string(*wanted) : " IS NOT NULL") + " ORDER BY " + column,
              what);
    if (!rows->IsEmpty())
        return rows->GetInt64FieldValue(key);
    if (wanted)
        throw base::TFalha("Não existe " + std::string(what) + " com o código " + std::to_string(*wanted) +
                           " neste banco de dados. Verifique o código.");
    return 0;
}

void requireLogFolder(const std::filesystem::path& folder) {
    std::error_code failure;
    const auto status = std::filesystem::status(folder, failure);
    if (folder.empty() || std::filesystem::is_directory(status))
        return;
    if (status.type() == std::filesystem::file_type::not_found)
        throw base::TFalha("A pasta de log \"" + folder.string() + "\" não existe. Crie-a ou indique outra.");
    throw base::TFalha("A pasta de log \"" + folder.string() + "\" não pode ser usada: " +
                       (failure ? "verifique as permissões" : "é um arquivo") + ". Indique outra.");
}

} // namespace

Login::Login(const LoginRequest& request) : logFolder_(request.logFolder) {
    requireLogFolder(logFolder_);
    const auto company = find("SC00_EMPRESA", "IDEMPRESA", "EMPRESA", "", request.company, "empresa");
    if (company == 0)
        throw base::TFalha("O banco de dados não tem nenhuma empresa cadastrada.");
    company_ = BuscarDadosEmpresa(company);
    establishment_ = find("SC00_FILIAL", "IDFILIAL", "FILIAL", Format(" WHERE SC00_FILIAL.IDEMPRESA = %d", {company}),
                          request.establishment, "estabelecimento");
    user_ = find("US09_USUARIO", "IDUSUARIO", "CODIGO", "", request.user, "usuário");
}

// Most runs write no log: only a call needs a home.
std::string Login::BuscarPastaPadraoLogSistema() const {
    const auto folder = logFolder_.empty() ? userFolder("XDG_STATE_HOME", ".local/state") : logFolder_;
    return (folder / "").string();
}

std::int64_t Login::BuscarIDHolding(std::int64_t company) const {
    const auto rows =
        query(Format("SELECT SC00_EMPRESA.IDHOLDING FROM SC00_EMPRESA WHERE SC00_EMPRESA.IDEMPRESA = %d", {company}),
              "holding da empresa");
    return rows->IsEmpty() ? company : rows->FieldByName("IDHOLDING").AsInt64().value_or(company);
}

host::TDadosEmpresa Login::BuscarDadosEmpresa(std::int64_t company) const {
    const auto rows = query(Format(R"(
SELECT SC00_EMPRESA.EMPRESA,
       SC00_EMPRESA.NOME,
       (SELECT COUNT(*)
          FROM SC00_EMPRESA OUTRA
         WHERE OUTRA.IDHOLDING = SC00_EMPRESA.IDEMPRESA
           AND OUTRA.IDEMPRESA <> SC00_EMPRESA.IDEMPRESA) AS CONTROLADAS
  FROM SC00_EMPRESA
 WHERE SC00_EMPRESA.IDEMPRESA = %d)",
                                   {company}),
                            "dados da empresa");
    if (rows->IsEmpty())
        throw base::TFalha("A empresa de registro " + std::to_string(company) + " não existe.");
    return {company, rows->GetInt64FieldValue("EMPRESA"), rows->FieldByName("NOME").AsString(),
            rows->GetInt64FieldValue("CONTROLADAS") > 0};
}

std::int64_t Login::ownerOf(const char* table, std::int64_t company) const {
    return ownsRows(table, company) ? company : BuscarIDHolding(company);
}

std::int64_t Login::BuscarIDEmpresaPlano(std::int64_t company) const { return ownerOf("CO01_PLANO", company); }

std::int64_t Login::BuscarIDEmpresaCCusto(std::int64_t company) const { return ownerOf("CO01_CENTROCUSTO", company); }

bool Login::BuscarEmpresaUtilizaCtbPorCentroCusto(std::int64_t company) const {
    return ownsRows("CO01_CENTROCUSTO", BuscarIDEmpresaCCusto(company));
}

} // namespace suite::program
