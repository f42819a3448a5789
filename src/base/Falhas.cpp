#include "base/Falhas.h"

#include <algorithm>

namespace base {

const char* Abort::what() const noexcept { return "operação interrompida"; }

TFalhaBanco::TFalhaBanco(TTipoFalhaBanco ATipo, const std::string& AFrase, std::string AEstado,
                         std::vector<long> ACodigos, std::string AInstrucao, std::string ADetalhe)
    : TFalha(AFrase), FTipo(ATipo), FEstado(std::move(AEstado)), FCodigos(std::move(ACodigos)),
      FInstrucao(std::move(AInstrucao)), FDetalhe(std::move(ADetalhe)) {}

bool TFalhaBanco::Tem(long ACodigo) const {
    return std::find(FCodigos.begin(), FCodigos.end(), ACodigo) != FCodigos.end();
}

std::string TFalhaBanco::Diagnostico() const {
    std::string LTexto = "SQLSTATE " + FEstado;
    if (!FInstrucao.empty())
        LTexto += ", instrução " + FInstrucao;
    if (!FCodigos.empty()) {
        LTexto += ", códigos";
        for (long LCodigo : FCodigos)
            LTexto += " " + std::to_string(LCodigo);
    }
    return LTexto + ": " + FDetalhe;
}

} // namespace base
