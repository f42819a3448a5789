#pragma once

#include "host/Interacao.h"

#include <chrono>
#include <ostream>
#include <string>

namespace suite::script {

// The progress dialog as one line of a terminal, drawn over itself. Elsewhere it draws nothing.
class TerminalProgress {
  public:
    TerminalProgress(std::ostream& out, bool terminal) : out_(out), terminal_(terminal) {}

    void show(const host::TEventoProgresso& event);
    // A plain bar, for work that has no dialog.
    void show(const std::string& text, std::size_t done, std::size_t total);
    void clear();

  private:
    void draw(const std::string& line);

    std::ostream& out_;
    bool terminal_;
    std::string text_;
    int maximum_ = 0;
    std::chrono::steady_clock::time_point last_;
};

} // namespace suite::script
