#pragma once

#include "host/Interacao.h"

#include <chrono>
#include <ostream>
#include <string>

namespace suite::terminal {

// The progress dialog on a terminal: the innermost level as one line drawn over itself, the texts of the levels around
// it as lines that stay. Elsewhere it draws nothing.
class TerminalProgress {
  public:
    TerminalProgress(std::ostream& out, bool terminal) : out_(out), terminal_(terminal) {}

    void show(const host::TEventoProgresso& event);
    // A plain bar, for work that has no dialog.
    void show(const std::string& text, std::size_t done, std::size_t total);
    void clear();

  private:
    void draw(const std::string& line);
    void keep(const std::string& line);

    std::ostream& out_;
    bool terminal_;
    std::string text_;
    int innermost_ = 0; // level of the dialog in view
    int maximum_ = 0;   // of that level
    std::chrono::steady_clock::time_point last_;
};

} // namespace suite::terminal
