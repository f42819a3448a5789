// The progress dialog as a terminal shows it.
#include "suite/terminal/TerminalProgress.h"

#include <gtest/gtest.h>

#include <sstream>

using suite::terminal::TerminalProgress;
using Evento = host::TEventoProgresso;

namespace {

std::string mostrar(bool terminal) {
    std::ostringstream saida;
    TerminalProgress progresso(saida, terminal);
    for (const auto& evento :
         {Evento{Evento::TTipo::Mostrar, 0, "", 0}, Evento{Evento::TTipo::Maximo, 0, "", 1},
          Evento{Evento::TTipo::Maximo, 1, "", 2}, Evento{Evento::TTipo::Texto, 0, "Janeiro", 0},
          Evento{Evento::TTipo::Passo, 0, "", 1}, Evento{Evento::TTipo::Texto, 1, "Somando.", 0},
          Evento{Evento::TTipo::Passo, 1, "", 2}, Evento{Evento::TTipo::Fechar, 0, "", 0},
          Evento{Evento::TTipo::Mostrar, 0, "", 0}, Evento{Evento::TTipo::Texto, 0, "Buscando", 0}})
        progresso.show(evento);
    return saida.str();
}

// What is left on screen: the control sequences that clear a line and switch wrapping are taken at their word.
std::string tela(const std::string& escrito) {
    std::string linhas;
    std::string linha;
    for (std::size_t i = 0; i < escrito.size(); ++i) {
        if (escrito[i] == '\033')
            while (!std::isalpha(static_cast<unsigned char>(escrito[++i]))) {
            }
        else if (escrito[i] == '\r')
            linha.clear();
        else if (linha += escrito[i]; escrito[i] == '\n')
            linhas += std::exchange(linha, "");
    }
    return linhas + linha;
}

TEST(TerminalProgress, NivelDeForaFicaEODeDentroSeRefaz) {
    EXPECT_EQ(tela(mostrar(true)), "Janeiro\nBuscando...");
    EXPECT_NE(mostrar(true).find("[##############################] Somando."), std::string::npos);
    EXPECT_EQ(mostrar(false), "");
}

TEST(TerminalProgress, NomesNaoMandamNoTerminal) {
    std::ostringstream saida;
    TerminalProgress progresso(saida, true);
    progresso.show(Evento{Evento::TTipo::Texto, 0, "Um\x1B]0;x\a", 0});
    progresso.show("Dois\u009B2J\n", 1, 1);
    progresso.show(Evento{Evento::TTipo::Passo, 1, "", 1});
    progresso.show(Evento{Evento::TTipo::Texto, 0, "Três\r", 0});
    for (const char* mostrado : {"Um␛]0;x␇...", "Dois\uFFFD2J␊", "Três␍\n"})
        EXPECT_NE(saida.str().find(mostrado), std::string::npos) << mostrado;
}

} // namespace
