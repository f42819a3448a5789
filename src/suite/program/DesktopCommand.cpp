#include "suite/program/DesktopCommand.h"

#include "base/Falhas.h"
#include "base/Texto.h"
#include "demo/Demo.h"
#include "host/DbManager.h"
#include "host/Lookup.h"
#include "host/Registro.h"
#include "host/Servicos.h"
#include "suite/export/GridExport.h"
#include "suite/firebird/Connection.h"
#include "suite/program/LayoutStore.h"
#include "suite/program/Module.h"
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

class Session final : public desktop::DesktopSession {
  public:
    Session(const LoginRequest& request, host::TZTConnection& connection, host::TInteracao& interaction)
        : layouts_(layoutFolder) {
        host::TServicos services;
        services.Conexao = &connection;
        services.Interacao = &interaction;
        connected_.emplace(services);
        login_.emplace(request);
        services.EmpresaLogada = &*login_;
        services.Contabil = &*login_;
        services.Sistema = &*login_;
        services.Leiautes = &layouts_;
        loggedIn_.emplace(services);
        const auto factory = host::FindClass("TForm04618");
        if (!factory)
            throw base::TFalha("O módulo carregado não tem a janela de consulta.");
        window_ = factory();
        window_->InitializeForm();
    }
    host::TFormZTTandorPadraoSelecao& window() override { return *window_; }
    Texts texts() const override {
        const auto& company = login_->company();
        return {std::to_string(company.Codigo) + " - " + company.Nome,
                codeAndName("SC00_FILIAL", "IDFILIAL", "FILIAL", login_->GetIDFilialLogada()),
                codeAndName("US09_USUARIO", "IDUSUARIO", "CODIGO", login_->GetIDUsuarioLogado())};
    }

  private:
    LayoutStore layouts_;
    std::optional<host::TInstalacaoServicos> connected_;
    std::optional<Login> login_;
    std::optional<host::TInstalacaoServicos> loggedIn_;
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

// The writers know the rows of a dataset in its own order: other rows, or another order, are a copy.
void exportLines(const host::TGrade& grid, const std::vector<std::uint32_t>& lines, const std::string& file,
                 std::span<const std::string> title) {
    const auto& all = *grid.DataSet();
    std::vector<std::size_t> rows;
    for (const auto line : lines)
        rows.push_back(all.LinhaDe(line));
    host::TDataSetEscolhido chosen(all.Nome());
    chosen.Carregar(all, std::move(rows));
    for (const auto& field : all.Fields())
        chosen.FieldByName(field.Nome()).FormatoExibicao = field.FormatoExibicao;
    host::TDataSource source("");
    source.DataSet = &chosen;
    host::TGrade copy(grid.Nome(), source);
    copy.SetColunas(grid.Colunas());
    copy.RegraDaCelula = grid.RegraDaCelula;
    exporting::exportGrid(copy, file, title);
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
    program.login = [request = options.login](host::TZTConnection& connection, host::TInteracao& interaction) {
        return std::make_unique<Session>(request, connection, interaction);
    };
    program.exportGrid = exportLines;
    program.formats = {
        {".xlsx", "&Planilha (.xlsx)"}, {".csv", "&Texto separado (.csv)"}, {".html", "Página (.&html)"}};
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
