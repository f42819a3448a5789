#include "suite/desktop/shell/Desktop.h"

#include "base/Falhas.h"
#include "host/Servicos.h"
#include "suite/desktop/grid/GridPane.h"
#include "suite/desktop/look/Appearance.h"
#include "suite/desktop/look/Icons.h"
#include "suite/desktop/look/Text.h"
#include "suite/desktop/shell/DesktopInteraction.h"
#include "suite/desktop/shell/Failures.h"
#include "suite/desktop/shell/MainWindow.h"
#include "suite/desktop/shell/StartDialog.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <atomic>
#include <clocale>
#include <cstdlib>

namespace suite::desktop {

namespace {

constexpr const char* DirectSetting = "banco/direto";

std::atomic<bool> ending = false;
AsideConnection* current = nullptr; // of the window's thread alone

class DemoStopped {};

bool set(const char* variable) {
    const char* value = std::getenv(variable);
    return value && *value != '\0';
}

bool isThere(const std::filesystem::path& file) {
    std::error_code hidden; // what cannot be looked at is made, or told, when it is chosen
    return std::filesystem::exists(file, hidden);
}

// Asks which database, or takes the choice that the user wants without being asked. None: the user leaves.
std::optional<DatabaseChoice> choose(const DesktopProgram& program, bool ask) {
    auto choice = settings::database();
    if (!ask && settings::hasDatabase() && settings::value(DirectSetting) == QStringLiteral("sim"))
        return choice;
    StartDialog dialog(choice, isThere(program.demoFile));
    if (dialog.exec() != QDialog::Accepted)
        return {};
    choice = dialog.choice();
    settings::keepDatabase(choice);
    settings::keepValue(DirectSetting, dialog.openDirectly() ? QStringLiteral("sim") : QStringLiteral("não"));
    return choice;
}

DatabaseRequest requestOf(const DatabaseChoice& choice, const DesktopProgram& program) {
    switch (choice.kind) {
    case DatabaseChoice::Kind::File:
        return {toUtf8(choice.file), {}, {}};
    case DatabaseChoice::Kind::Server:
        return {toUtf8(choice.serverTarget()), toUtf8(choice.user), toUtf8(choice.password)};
    default:
        return {program.demoFile.string(), {}, {}};
    }
}

// False when the user has stopped it.
bool makeDemo(const DesktopProgram& program, Aside& aside) {
    using Type = host::TEventoProgresso::TTipo;
    std::atomic<bool> stop = false;
    ProgressWindow progress(nullptr);
    progress.onCancel = [&] { stop = true; };
    struct Admit {
        Aside& aside;
        ~Admit() { aside.admits = {}; }
    } const admit{aside};
    aside.admits = [&](const QWidget& window) { return &window == &progress; };
    progress.apply({Type::Titulo, 0, "Empresa de demonstração", 0});
    progress.apply({Type::Texto, 0, "Preparando...", 0});
    progress.apply({Type::Mostrar, 0, {}, 0});
    const auto show = [&](const std::string& text, std::size_t done, std::size_t total) {
        if (stop || ending)
            throw DemoStopped();
        QMetaObject::invokeMethod(
            &progress,
            [&progress, text, done, total] {
                progress.apply({Type::Texto, 0, text, 0});
                progress.apply({Type::Maximo, 0, {}, static_cast<int>(total)});
                progress.apply({Type::Passo, 0, {}, static_cast<int>(done)});
            },
            Qt::QueuedConnection);
    };
    try {
        aside.run([&] { program.makeDemo(show); });
    } catch (const DemoStopped&) {
        return false;
    }
    return true;
}

MainWindow::End show(const DesktopProgram& program, Aside& aside, const DatabaseRequest& request) {
    std::unique_ptr<AsideConnection> connection;
    DesktopInteraction interaction(aside, [&connection] {
        if (connection)
            connection->cancel();
    });
    const auto connect = [&] { return aside.run([&] { return program.connect(request); }); };
    connection = std::make_unique<AsideConnection>(aside, connect());
    current = connection.get();
    struct Forget {
        ~Forget() { current = nullptr; }
    } const forget;
    const auto session = program.login(request, *connection, interaction);
    const auto texts = session->texts();
    WindowServices services;
    services.company = texts.company;
    services.establishment = texts.establishment;
    services.user = texts.user;
    services.database = request.target;
    services.version = program.version;
    services.write = [&](const table::Table& table, const std::string& file) { session->write(table, file); };
    services.formats = program.formats;
    services.reconnect = [&] { connection->exchange(connect()); };
    services.confirmNextModal = [&](bool confirm) { interaction.confirmNextModal(confirm); };
    services.lastQuerySeconds = [&] { return connection->lastQuery().count(); };
    services.busy = [&] { return aside.running(); };
    MainWindow window(session->window(), services);
    interaction.attach(&window, &window.binding());
    interaction.program = program.version.substr(0, program.version.find('\n'));
    interaction.tableInView = [&] {
        const auto* pane = window.paneInView();
        return pane ? &pane->table() : nullptr;
    };
    interaction.headingOf = [&](const table::Table& table) {
        return exporting::headingOf(session->window(), table,
                                    {interaction.program, request.target, host::Servicos().Agora()});
    };
    interaction.onFailure = [&](const std::exception& failure) { window.fail(failure); };
    const auto end = window.run();
    interaction.attach(nullptr, nullptr); // dialogs go before the forms that they show
    return end;
}

void prepare(QApplication& application, QTranslator& texts) {
    QApplication::setApplicationName(QStringLiteral("orcreal"));
    QApplication::setDesktopFileName(QStringLiteral("orcreal"));
    QApplication::setQuitOnLastWindowClosed(false); // dialogs come before the window, and after it
    QApplication::setWindowIcon(programIcon());
    QLocale::setDefault(QLocale(QStringLiteral("pt_BR")));
    if (texts.load(QStringLiteral("qtbase_pt_BR"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        application.installTranslator(&texts);
    apply(lookNamed(settings::value("aparencia")));
}

} // namespace

bool hasDisplay() { return set("DISPLAY") || set("WAYLAND_DISPLAY") || set("QT_QPA_PLATFORM"); }

void runDesktop(const DesktopProgram& program) {
    int count = 1;
    char name[] = "orcreal";
    char* arguments[] = {name, nullptr};
    QApplication application(count, arguments);
    std::setlocale(LC_CTYPE, "C.UTF-8"); // names of files again, which the toolkit has just left to the environment
    QTranslator texts;
    prepare(application, texts);
    Aside aside;
    auto request = program.asked;
    for (bool ask = false; !ending;) {
        const bool asked = program.asked && !ask;
        try {
            if (!request) {
                const auto choice = choose(program, ask);
                if (!choice)
                    return;
                ask = true;
                if (choice->kind == DatabaseChoice::Kind::Demo && !isThere(program.demoFile) &&
                    !makeDemo(program, aside))
                    continue;
                request = requestOf(*choice, program);
            }
            if (show(program, aside, *request) == MainWindow::End::Closed)
                return;
            request.reset();
            ask = true;
        } catch (const std::exception& failure) {
            showFailure(failure, {}, nullptr);
            if (asked)
                throw;
            request.reset();
            ask = true;
        }
    }
}

void endDesktop() {
    ending = true;
    if (auto* application = QCoreApplication::instance())
        QMetaObject::invokeMethod(
            application,
            [] {
                if (current)
                    current->cancel();
                QCoreApplication::exit(0);
            },
            Qt::QueuedConnection);
}

} // namespace suite::desktop
