#include "suite/program/ScriptCommand.h"

#include "base/Falhas.h"
#include "base/Texto.h"
#include "host/Registro.h"
#include "suite/script/ScriptRunner.h"

#include <fstream>
#include <iostream>

namespace suite::program {

namespace {

// A failure that was told of outranks what the steps behind it ran into.
ExitCode play(std::istream& script, const host::TFabricaDeForm& window, const std::function<bool()>& cancelled) {
    script::ScriptRunner runner(script, std::cout, window, cancelled);
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

ExitCode runScript(const ScriptOptions& options, const std::function<bool()>& cancelled) {
    const auto window = host::FindClass("TForm04618");
    if (!window)
        throw base::TFalha("O módulo carregado não tem a janela de consulta.");
    if (options.file == "-")
        return play(std::cin, window, cancelled);
    std::ifstream file(options.file);
    return play(file, window, cancelled);
}

} // namespace suite::program
