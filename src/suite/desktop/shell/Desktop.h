#pragma once

#include "suite/desktop/shell/AsideConnection.h"
#include "suite/desktop/shell/ResultExport.h"

#include "host/Formularios.h"
#include "host/Interacao.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace suite::desktop {

struct DatabaseRequest {
    std::string target; // as --banco takes it
    std::string user;
    std::string password;
};

// The module on an open database: services, login and window, gone together.
class DesktopSession {
  public:
    virtual ~DesktopSession() = default;
    virtual host::TFormZTTandorPadraoSelecao& window() = 0;
    struct Texts {
        std::string company, establishment, user;
    };
    virtual Texts texts() const = 0;
    // What the window's result says, with what it was asked for, by the file's ending. Throws base::TFalha.
    virtual void write(const table::Table& table, const std::string& file) = 0;
};

// What the desktop needs of the program around it.
struct DesktopProgram {
    std::string version;
    std::optional<DatabaseRequest> asked; // by the command line; the user is then not asked
    std::filesystem::path demoFile;       // empty for a user without a home
    // Makes the demo database in its file, and the folder for it. Called in another thread; an exception of progress
    // stops it.
    std::function<void(const std::function<void(const std::string& text, std::size_t done, std::size_t total)>&)>
        makeDemo;
    std::function<AsideConnection::Inner(const DatabaseRequest&)> connect; // in another thread
    // Connection and interaction outlive the session.
    std::function<std::unique_ptr<DesktopSession>(const DatabaseRequest&, host::TZTConnection&, host::TInteracao&)>
        login;
    std::vector<ExportFormat> formats; // that a session writes
};

// Whether there is a screen to open windows on.
bool hasDisplay();

// Shows the program's window until the user leaves. A database asked for by the command line that cannot be opened is
// shown, and then thrown.
void runDesktop(const DesktopProgram& program);

// Ends runDesktop from any thread: the statement under way is cancelled, and the windows close.
void endDesktop();

} // namespace suite::desktop
