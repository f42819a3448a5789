#include "suite/program/ScriptCommand.h"

#include "base/Falhas.h"
#include "base/Texto.h"
#include "suite/program/Session.h"
#include "suite/script/ScriptRunner.h"

#include <fstream>
#include <iostream>

namespace suite::program {

namespace {

// A failure that was told of outranks what the steps behind it ran into.
ExitCode play(std::istream& script, const exporting::Output& output, const std::function<bool()>& cancelled) {
    script::ScriptRunner runner(script, std::cout, Session::makeWindow, output, cancelled);
    auto code = ExitCode::Done;
    try {
        runner.run();
    } catch (const script::ScriptFailure& failure) {
        std::cout.flush();
        std::cerr << base::LinhasSemControles(failure.what()) << "\n";
        code = failure.kind() == script::ScriptFailure::Kind::WrongStep ? ExitCode::WrongUse : ExitCode::Refused;
    }
    if (const auto& failure = runner.toldFailure())
        std::rethrow_exception(failure);
    if (code == ExitCode::Done && !std::cout)
        throw base::TFalha("Não foi possível escrever o resultado na saída.");
    return code;
}

} // namespace

ExitCode runScript(const ScriptOptions& options, const exporting::Output& output,
                   const std::function<bool()>& cancelled) {
    if (options.file == "-")
        return play(std::cin, output, cancelled);
    std::ifstream file(options.file);
    return play(file, output, cancelled);
}

} // namespace suite::program
