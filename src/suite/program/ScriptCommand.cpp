#include "suite/program/ScriptCommand.h"

#include "host/Falhas.h"
#include "host/Registro.h"
#include "suite/script/ScriptRunner.h"

#include <fstream>
#include <iostream>

namespace suite::program {

namespace {

ExitCode play(std::istream& script, const host::TFabricaDeForm& window, const std::function<bool()>& cancelled) {
    try {
        script::ScriptRunner(script, std::cout, window, cancelled).run();
    } catch (const script::ScriptFailure& failure) {
        std::cout.flush();
        std::cerr << failure.what() << "\n";
        return failure.kind() == script::ScriptFailure::Kind::WrongStep ? ExitCode::WrongUse : ExitCode::Refused;
    }
    if (!std::cout)
        throw host::TFalha("Não foi possível escrever o resultado na saída.");
    return ExitCode::Done;
}

} // namespace

ExitCode runScript(const ScriptOptions& options, const std::function<bool()>& cancelled) {
    const auto window = host::FindClass("TForm04618");
    if (!window)
        throw host::TFalha("O módulo carregado não tem a janela de consulta.");
    if (options.file == "-")
        return play(std::cin, window, cancelled);
    std::ifstream file(options.file);
    return play(file, window, cancelled);
}

} // namespace suite::program
