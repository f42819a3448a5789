#include "host/Depurador.h"

#include "host/Falhas.h"
#include "host/Servicos.h"

#include <filesystem>
#include <fstream>

namespace host {

bool ProcessoSobDepurador() {
    std::ifstream LSituacao("/proc/self/status");
    for (std::string LLinha; std::getline(LSituacao, LLinha);)
        if (LLinha.rfind("TracerPid:", 0) == 0)
            return LLinha.find_first_of("123456789") != std::string::npos;
    return false;
}

void GravarParaDepuracao(const std::string& ANome, const std::string& ATexto) {
    if (!ProcessoSobDepurador())
        return;
    const auto LPasta = GUtilSistema().BuscarPastaPadraoLogSistema();
    std::error_code LIgnorado; // the file that cannot be written tells it
    std::filesystem::create_directories(LPasta, LIgnorado);
    const auto LArquivo = LPasta + ANome;
    std::ofstream LSaida(LArquivo, std::ios::binary);
    LSaida << ATexto;
    LSaida.close();
    if (!LSaida)
        throw TFalha("Não foi possível gravar o arquivo de depuração " + LArquivo + ".");
}

} // namespace host
