#pragma once

#include "base/Falhas.h"
#include "host/Exportar.h"

#include <optional>
#include <string>
#include <vector>

namespace host {

class TControle;
class TFormZTTandorPadraoResult;
class TZTLookupEx;

enum class TNivelMensagem { Informacao, Erro, Confirmacao };

// A message or a question. A message has one button and its answer is not read.
struct HOST_API TMensagem {
    TNivelMensagem Nivel = TNivelMensagem::Informacao;
    std::string Titulo;
    std::string Texto; // line breaks are carriage returns
    std::vector<std::string> Botoes;
    int Padrao = 6;                              // result code of the default button
    std::optional<base::TFalhaBanco> Causa = {}; // of the database, where the message tells of its failure
};

struct HOST_API TEventoProgresso {
    enum class TTipo { Mostrar, Fechar, Titulo, Texto, Maximo, Passo };
    TTipo Tipo = TTipo::Mostrar;
    int Nivel = 0;
    std::string Texto; // of Titulo and Texto
    int Valor = 0;     // of Maximo the maximum, 0 for a bar of unknown length; of Passo the position after it
};

// Everything that stops for the user or shows itself beside the grids goes through here: a desktop answers with
// windows, a script from its queue, a terminal with text.
class HOST_API TInteracao {
  public:
    virtual ~TInteracao() = default;
    // Returns when the user has closed it: 6, 7 or 2 for the first, second or third button.
    virtual int Mensagem(const TMensagem& AMensagem) = 0;
    virtual void Progresso(const TEventoProgresso& AEvento) = 0;
    // True once the user has cancelled the progress dialog in view.
    virtual bool ProgressoCancelado() = 0;
    // Shows a dialog and returns when it has closed.
    virtual void MostrarModal(TFormZTTandorPadraoResult& AForm) = 0;
    virtual void Focar(TControle& AControle) = 0;
    // Opens the search of a lookup; the user picks, marks or leaves it.
    virtual void Pesquisar(TZTLookupEx& ALookup) = 0;
    // Lets what waits in the window's queue happen.
    virtual void ProcessarMensagens() = 0;
};

} // namespace host
