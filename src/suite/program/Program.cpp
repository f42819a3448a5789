#include "suite/program/Program.h"

#include "base/Falhas.h"
#include "base/Texto.h"
#include "demo/Demo.h"
#include "suite/firebird/Connection.h"
#include "suite/program/ActualsCommand.h"
#include "suite/program/ConsultCommand.h"
#include "suite/program/DesktopCommand.h"
#include "suite/program/Interrupt.h"
#include "suite/program/Module.h"
#include "suite/program/Options.h"
#include "suite/program/Outputs.h"
#include "suite/program/PrintCommand.h"
#include "suite/program/ScriptCommand.h"
#include "suite/program/Session.h"
#include "suite/program/UserFolder.h"
#include "suite/program/VerifyCommand.h"
#include "suite/terminal/Headless.h"
#include "suite/terminal/TerminalProgress.h"

#include <iostream>
#include <unistd.h>

namespace suite::program {

namespace {

class Cancelled {};

bool onTerminal() { return ::isatty(STDERR_FILENO) != 0; }

void makeDemo(const std::filesystem::path& file, int scale, Interrupt& interrupt) {
    terminal::TerminalProgress progress(std::cerr, onTerminal());
    try {
        demo::Criar({file, scale, [&](const std::string& text, std::size_t done, std::size_t total) {
                         if (interrupt.requested())
                             throw Cancelled();
                         progress.show(text, done, total);
                     }});
    } catch (...) {
        progress.clear();
        throw;
    }
    progress.clear();
}

ExitCode runDemo(const DemoOptions& options, Interrupt& interrupt) {
    const auto file = options.destination.empty() ? defaultDemoFile() : std::filesystem::path(options.destination);
    if (options.destination.empty())
        makeFolder(file.parent_path());
    makeDemo(file, options.scale, interrupt);
    std::cout << "Banco de demonstração criado em " << base::SemControles(std::filesystem::absolute(file).string())
              << "\n";
    return ExitCode::Done;
}

// The database asked for, or the user's demo database, which is made at its first use.
std::string databaseOf(const Options& options, Interrupt& interrupt) {
    if (!options.database.empty())
        return options.database;
    const auto file = defaultDemoFile();
    makeFolder(file.parent_path());
    if (!std::filesystem::exists(file)) {
        std::cerr << "Criando o banco de demonstração em " << base::SemControles(file.string()) << "\n";
        makeDemo(file, 1, interrupt);
    }
    return file.string();
}

ExitCode runOnDatabase(const Options& options, Interrupt& interrupt) {
    const firebird::Target target(databaseOf(options, interrupt));
    interrupt.boundWaits(target.embedded());
    firebird::Connection connection(target, options.credentials);
    interrupt.onRequest([&] { connection.attachment().cancel(); });
    struct Detach {
        Interrupt& interrupt;
        ~Detach() { interrupt.onRequest({}); }
    } const detach{interrupt};
    if (options.verify)
        return runVerify(connection.attachment());

    terminal::Headless interaction(std::cerr, onTerminal());
    interaction.onCancelQuery = [&] { return interrupt.requested(); };
    const Session session(options.login, connection, interaction,
                          options.consult || options.print ? Session::Layouts::None : Session::Layouts::OfUser);
    const Module module(moduleFile());
    const auto stop = [&] { return interrupt.requested(); };
    const auto origin = [&] { return originNow(target.text()); };
    const auto code = options.script    ? runScript(*options.script, {exporter(), origin}, stop)
                      : options.actuals ? runActuals(*options.actuals, interaction)
                      : options.print   ? runPrint(*options.print, origin, stop, interaction)
                                        : runConsult(*options.consult, {exporter(), origin}, interaction);
    return code != ExitCode::Done && interrupt.requested() ? ExitCode::Cancelled : code;
}

std::string versionOfAll() {
    try {
        const Module module(moduleFile());
        return versionText(&module);
    } catch (const base::TFalha& failure) {
        std::cerr << base::LinhasSemControles(failure.what()) << "\n";
        return versionText(nullptr);
    }
}

ExitCode runCommand(const Options& options, Interrupt& interrupt) {
    if (options.demo)
        return runDemo(*options.demo, interrupt);
    if (options.consult || options.print || options.actuals || options.script || options.verify)
        return runOnDatabase(options, interrupt);
    return runDesktopCommand(options, interrupt);
}

ExitCode report(const base::TFalhaBanco& failure) {
    std::cerr << base::LinhasSemControles(failure.what()) << "\n";
    const auto code = exitCodeOf(failure);
    if (code == ExitCode::DatabaseFailure)
        std::cerr << "(" << base::LinhasSemControles(failure.Diagnostico()) << ")\n";
    return code;
}

} // namespace

ExitCode run(int argc, const char* const* argv) {
    Interrupt interrupt;
    try {
        const auto line = parseCommandLine(argc, argv, versionOfAll);
        const auto text = base::LinhasSemControles(line.text);
        if (line.failed) {
            std::cerr << text;
            return ExitCode::WrongUse;
        }
        std::cout << text;
        const auto code = line.options ? runCommand(*line.options, interrupt) : ExitCode::Done;
        if (!std::cout.flush() && code == ExitCode::Done)
            throw base::TFalha("Não foi possível escrever o resultado na saída.");
        return code;
    } catch (const Cancelled&) {
        std::cerr << "A operação foi cancelada; nada ficou pela metade.\n";
        return ExitCode::Cancelled;
    } catch (const base::TFalhaBanco& failure) {
        return report(failure);
    } catch (const base::TFalha& failure) {
        std::cerr << base::LinhasSemControles(failure.what()) << "\n";
        return ExitCode::Refused;
    } catch (const std::exception& fault) {
        std::cerr << "O programa encontrou uma falha interna e parou: " << base::LinhasSemControles(fault.what())
                  << "\n";
        return ExitCode::Refused;
    }
}

} // namespace suite::program
