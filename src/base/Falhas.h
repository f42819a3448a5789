#pragma once

#include "base/Exportar.h"

#include <exception>
#include <stdexcept>
#include <string>
#include <vector>

namespace base {

// The silent stop of an operation: whoever threw it has already told the user. It unwinds to the base of the
// form without a further message.
class BASE_API Abort : public std::exception {
  public:
    const char* what() const noexcept override;
};

// A failure whose text is a whole Portuguese sentence that a user can act on.
class BASE_API TFalha : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// What kind of database failure it was, as far as callers treat kinds differently.
enum class TTipoFalhaBanco { Comando, Conexao, Cancelado, Bloqueio };

// A failure reported by the database. what() is the sentence for the user; the rest is for whoever has to find
// the cause, and stands folded away wherever it is shown.
class BASE_API TFalhaBanco : public TFalha {
  public:
    TFalhaBanco(TTipoFalhaBanco ATipo, const std::string& AFrase, std::string AEstado, std::vector<long> ACodigos,
                std::string AInstrucao, std::string ADetalhe);

    TTipoFalhaBanco Tipo() const { return FTipo; }
    const std::string& Estado() const { return FEstado; }         // SQLSTATE, five characters
    const std::vector<long>& Codigos() const { return FCodigos; } // the engine's codes, outermost first
    const std::string& Instrucao() const { return FInstrucao; }   // name of the statement, may be empty
    const std::string& Detalhe() const { return FDetalhe; }       // the engine's own text
    bool Tem(long ACodigo) const;
    // SQLSTATE, codes, statement and the engine's text in one paragraph.
    std::string Diagnostico() const;

  private:
    TTipoFalhaBanco FTipo;
    std::string FEstado;
    std::vector<long> FCodigos;
    std::string FInstrucao;
    std::string FDetalhe;
};

} // namespace base
