#pragma once

#include "suite/firebird/Target.h"
#include "suite/program/Login.h"

#include <functional>
#include <optional>
#include <string>

namespace suite::program {

// What the selection dialog is to be filled with. Empty: left as the rules leave it.
struct ConsultOptions {
    std::string view = "balanco";
    std::string mode;
    std::string from;
    std::string to;
    std::string scenario;
    std::string statement;
    std::string totalizers;
    std::string establishments;
    bool groupEstablishments = false;
    std::string centres;
    std::string accounts;
    std::string companies;
    std::string details;
    std::string lines;
    std::string percentage;
    bool difference = false;
    bool idlePeriods = false;
    std::string totals;       // the answer where totals exist: consultar or reatualizar
    std::string dependencies; // the answer where a statement depends on others: selecionado or todos
    std::string format = "tabela";
    bool criteria = false; // before the rows of a csv
    std::string output;    // a file; empty for standard output
};

// The two deeds of the actuals dialog, and with what it is filled.
struct ActualsOptions {
    bool remove = false; // else update
    std::string from;
    std::string to;
    std::string scenarios = "0";
    std::string confront = "mensais";
    std::string establishment;
    bool totals = false;    // of update: regenerates those that the run has made stale
    bool confirmed = false; // of remove: does not ask
    std::string format = "tabela";
};

struct DemoOptions {
    std::string destination; // empty: the user's data folder
    int scale = 1;
};

struct ScriptOptions {
    std::string file; // "-": standard input
};

// A command line, read. One of the commands is set, or none for the window.
struct Options {
    std::string database; // empty: the demo database
    firebird::Credentials credentials;
    LoginRequest login;
    std::optional<ConsultOptions> consult;
    std::optional<ConsultOptions> print; // its report
    std::optional<ActualsOptions> actuals;
    std::optional<DemoOptions> demo;
    std::optional<ScriptOptions> script;
    bool verify = false;
};

// What is left to do after reading the command line: run, or end with a text already known.
struct ParsedLine {
    std::optional<Options> options;
    std::string text; // help or version for standard output, or what is wrong for standard error
    bool failed = false;
};

// The version is asked for only where the line does. Throws base::TFalha when the password file cannot be read.
ParsedLine parseCommandLine(int argc, const char* const* argv, const std::function<std::string()>& version);

// Where the demo database of this user lives. Throws base::TFalha as userFolder does.
std::filesystem::path defaultDemoFile();

} // namespace suite::program
