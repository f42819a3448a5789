#include "host/Depurador.h"

#include "base/ArquivoInteiro.h"
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
    base::GravarArquivoInteiro(LArquivo, [&](const auto& ACaminho) {
        std::ofstream LSaida(ACaminho, std::ios::binary);
        LSaida.exceptions(std::ios::failbit | std::ios::badbit);
        LSaida << ATexto;
        LSaida.close();
    });
}

} // namespace host
