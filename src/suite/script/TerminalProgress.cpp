#include "suite/script/TerminalProgress.h"

namespace suite::script {

namespace {

constexpr std::size_t BarWidth = 30;
constexpr auto Pause = std::chrono::milliseconds(100);

} // namespace

void TerminalProgress::show(const host::TEventoProgresso& event) {
    using Kind = host::TEventoProgresso::TTipo;
    switch (event.Tipo) {
    case Kind::Fechar:
        return clear();
    case Kind::Texto:
        text_ = event.Texto;
        return draw(text_ + "...");
    case Kind::Maximo:
        maximum_ = event.Valor;
        return;
    case Kind::Passo:
        return show(text_, static_cast<std::size_t>(event.Valor), static_cast<std::size_t>(maximum_));
    case Kind::Mostrar:
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

void TerminalProgress::draw(const std::string& line) {
    if (terminal_)
        out_ << "\r\033[K" << line << std::flush;
}

void TerminalProgress::clear() { draw(""); }

} // namespace suite::script
