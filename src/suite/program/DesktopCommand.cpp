#include "suite/program/DesktopCommand.h"

#include "base/Falhas.h"
#include "base/Texto.h"
#include "demo/Demo.h"
#include "host/DbManager.h"
#include "host/Lookup.h"
#include "suite/firebird/Connection.h"
#include "suite/program/Module.h"
#include "suite/program/Outputs.h"
#include "suite/program/Session.h"
#include "suite/program/UserFolder.h"

namespace suite::program {

namespace {

using desktop::DatabaseRequest;

constexpr const char* NoDisplay =
    "Não há tela para abrir a janela (DISPLAY e WAYLAND_DISPLAY não estão definidos). Use um comando do terminal: "
    "\"consultar\", \"roteiro\" ou \"demo\". Veja \"orcreal --ajuda\".";

// "1 - Matriz", of the row with that key.
std::string codeAndName(const char* table, const char* key, const char* code, std::int64_t id) {
    const auto rows = host::BuscarInstanciaZTUtilsDbManager().AbrirConsultaSQL(
        base::Format("SELECT %s AS CODIGO, NOME FROM %s WHERE %s = %d", {code, table, key, id}), "quem está conectado");
    if (rows->IsEmpty())
        return {};
    return rows->FieldByName("CODIGO").AsString() + " - " + rows->FieldByName("NOME").AsString();
}

class LoggedIn final : public desktop::DesktopSession {
  public:
    LoggedIn(const LoginRequest& request, std::string database, host::TZTConnection& connection,
             host::TInteracao& interaction)
        : session_(request, connection, interaction), database_(std::move(database)), window_(Session::makeWindow()) {
        window_->InitializeForm();
    }
    host::TFormZTTandorPadraoSelecao& window() override { return *window_; }
    Texts texts() const override {
        const auto& login = session_.login();
        const auto& company = login.company();
        return {std::to_string(company.Codigo) + " - " + company.Nome,
                codeAndName("SC00_FILIAL", "IDFILIAL", "FILIAL", login.GetIDFilialLogada()),
                codeAndName("US09_USUARIO", "IDUSUARIO", "CODIGO", login.GetIDUsuarioLogado())};
    }
    void write(const table::Table& table, const std::string& file) override {
        exporter().write(table, file, exporting::headingOf(*window_, table, originNow(database_)));
    }

  private:
    Session session_;
    std::string database_;
    std::unique_ptr<host::TFormZTTandorPadraoSelecao> window_;
};

// Whoever names a database needs no home, until he asks for the demo.
std::filesystem::path demoFileIfAny(const Options& options) {
    try {
        return defaultDemoFile();
    } catch (const base::TFalha&) {
        if (options.database.empty())
            throw;
        return {};
    }
}

desktop::AsideConnection::Inner connect(const DatabaseRequest& request) {
    const auto connection = std::make_shared<firebird::Connection>(
        firebird::Target(request.target), firebird::Credentials{request.user, request.password});
    return {connection, [connection] { connection->attachment().cancel(); },
            [connection] { connection->attachment().clearPendingCancel(); }};
}

} // namespace

desktop::DesktopProgram desktopProgram(const Options& options, const std::string& version) {
    desktop::DesktopProgram program;
    program.version = version;
    if (!options.database.empty())
        program.asked = DatabaseRequest{options.database, options.credentials.user, options.credentials.password};
    program.demoFile = demoFileIfAny(options);
    program.makeDemo = [](const auto& progress) {
        const auto file = defaultDemoFile();
        makeFolder(file.parent_path());
        demo::Criar({file, 1, progress});
    };
    program.connect = connect;
    program.login = [login = options.login](const DatabaseRequest& request, host::TZTConnection& connection,
                                            host::TInteracao& interaction) {
        return std::make_unique<LoggedIn>(login, request.target, connection, interaction);
    };
    program.formats = {{".xlsx", "&Planilha (.xlsx)"},
                       {".csv", "&Texto separado (.csv)"},
                       {".html", "Página (.&html)"},
                       {".pdf", "&Documento (.pdf)"}};
    return program;
}

ExitCode runDesktopCommand(const Options& options, Interrupt& interrupt) {
    if (!desktop::hasDisplay())
        throw base::TFalha(NoDisplay);
    const Module module(moduleFile());
    interrupt.onRequest(desktop::endDesktop);
    struct Detach {
        Interrupt& interrupt;
        ~Detach() { interrupt.onRequest({}); }
    } const detach{interrupt};
    desktop::runDesktop(desktopProgram(options, versionText(&module)));
    return interrupt.requested() ? ExitCode::Cancelled : ExitCode::Done;
}

} // namespace suite::program
