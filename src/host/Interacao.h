#pragma once

#include "base/Faixas.h"
#include "base/Falhas.h"
#include "host/Exportar.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace host {

class TControle;
class TDataSet;
class TFormZTTandorPadraoResult;
class TGrade;
class TZTLookupEx;

// The result codes of a message's buttons. A message with one button gives the first; giving up is the third.
struct TResposta {
    static constexpr int Primeira = 6;
    static constexpr int Segunda = 7;
    static constexpr int Terceira = 2;
    static constexpr std::array<int, 3> Todas{Primeira, Segunda, Terceira};
};

enum class TNivelMensagem { Informacao, Erro, Confirmacao };

// A message or a question. A message has one button and its answer is not read.
struct HOST_API TMensagem {
    TNivelMensagem Nivel = TNivelMensagem::Informacao;
    std::string Titulo;
    std::string Texto; // line breaks are carriage returns
    std::vector<std::string> Botoes;
    int Padrao = TResposta::Primeira;            // the default button
    std::optional<base::TFalhaBanco> Causa = {}; // of the database, where the message tells of its failure
    std::string Detalhes{};                      // for who asks for them: shown folded, or not at all
};

struct HOST_API TEventoProgresso {
    enum class TTipo { Mostrar, Fechar, Titulo, Texto, Maximo, Passo };
    TTipo Tipo = TTipo::Mostrar;
    int Nivel = 0;
    std::string Texto; // of Titulo and Texto
    int Valor = 0;     // of Maximo the maximum, 0 for a bar of unknown length; of Passo the position after it
};

// A report to be shown, and the rows that it prints. Both live until it has been.
struct HOST_API TImpressao {
    const base::TRelatorio& Relatorio;
    const TDataSet& Linhas;
};

// The picture of a grid to be shown.
struct HOST_API TImpressaoGrade {
    const TGrade& Grade;
    base::TPapel Papel;
    std::string Titulo;    // on paper
    std::string Documento; // name of the print job
    std::string Legenda;   // of the window
};

// Everything that stops for the user or shows itself beside the grids goes through here: a desktop answers with
// windows, a script from its queue, a terminal with text.
class HOST_API TInteracao {
  public:
    virtual ~TInteracao() = default;
    // Returns when the user has closed it, with his answer by its TResposta.
    virtual int Mensagem(const TMensagem& AMensagem) = 0;
    virtual void Progresso(const TEventoProgresso& AEvento) = 0;
    // True once the user has cancelled the progress dialog in view.
    virtual bool ProgressoCancelado() = 0;
    // Shows a dialog and returns when it has closed. What the user does in it runs through TForm::Realizar, which keeps
    // its failures: while the dialog is open one is told in it (Falha) and it stays open; one behind which the rules
    // have closed the dialog is thrown by ShowModal, so that nothing behind the dialog runs.
    virtual void MostrarModal(TFormZTTandorPadraoResult& AForm) = 0;
    // Shows a failure in the dialog in front, in which the user then goes on; false where there is nobody to go on.
    virtual bool Falha(const base::TFalha& AFalha) = 0;
    // Show a report or a grid on paper, and return when the user has done with it. A host without paper is a fault of
    // the program: std::logic_error.
    virtual void MostrarRelatorio(const TImpressao& AImpressao);
    virtual void MostrarImpressaoGrade(const TImpressaoGrade& AImpressao);
    virtual void Focar(TControle& AControle) = 0;
    // Opens the search of a lookup; the user picks, marks or leaves it.
    virtual void Pesquisar(TZTLookupEx& ALookup) = 0;
    // Lets what waits in the window's queue happen.
    virtual void ProcessarMensagens() = 0;
};

} // namespace host
