#include "suite/terminal/TerminalProgress.h"

#include "base/Texto.h"

namespace suite::terminal {

namespace {

constexpr std::size_t BarWidth = 30;
constexpr auto Pause = std::chrono::milliseconds(100);

} // namespace

void TerminalProgress::show(const host::TEventoProgresso& event) {
    using Kind = host::TEventoProgresso::TTipo;
    innermost_ = std::max(innermost_, event.Nivel);
    switch (event.Tipo) {
    case Kind::Mostrar:
        innermost_ = 0;
        return;
    case Kind::Fechar:
        return clear();
    case Kind::Texto:
        if (event.Nivel < innermost_)
            return keep(event.Texto);
        text_ = event.Texto;
        return draw(text_.ends_with('.') ? text_ : text_ + "...");
    case Kind::Maximo:
        if (event.Nivel == innermost_)
            maximum_ = event.Valor;
        return;
    case Kind::Passo:
        if (event.Nivel == innermost_)
            show(text_, static_cast<std::size_t>(event.Valor), static_cast<std::size_t>(maximum_));
        return;
    case Kind::Titulo:
        return;
    }
}

void TerminalProgress::show(const std::string& text, std::size_t done, std::size_t total) {
    const auto now = std::chrono::steady_clock::now();
    if (now - last_ < Pause && done < total)
        return;
    last_ = now;
    const auto filled = total == 0 ? 0 : std::min(BarWidth, BarWidth * done / total);
    draw("[" + std::string(filled, '#') + std::string(BarWidth - filled, '.') + "] " + text);
}

// Without wrapping: a line over two rows could not be drawn over.
void TerminalProgress::draw(const std::string& line) {
    if (terminal_)
        out_ << "\r\033[K\033[?7l" << base::SemControles(line) << "\033[?7h" << std::flush;
}

void TerminalProgress::keep(const std::string& line) {
    if (terminal_)
        out_ << "\r\033[K" << base::SemControles(line) << std::endl;
}

void TerminalProgress::clear() { draw(""); }

} // namespace suite::terminal
