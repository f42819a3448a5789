#include "base/Passageiros.h"

#include <algorithm>
#include <mutex>
#include <unistd.h>
#include <vector>

namespace base {

namespace {

std::mutex Trava;
std::vector<const TPassageiro*> Todos;

void Remover(const char* ACaminho) noexcept {
    if (::unlink(ACaminho) != 0)
        ::rmdir(ACaminho);
}

} // namespace

TPassageiro::TPassageiro(std::filesystem::path ACaminho) : FCaminho(std::move(ACaminho)) {
    const std::lock_guard LGuarda(Trava);
    Todos.push_back(this);
}

TPassageiro::~TPassageiro() {
    const std::lock_guard LGuarda(Trava);
    if (std::erase(Todos, this) > 0)
        Remover(FCaminho.c_str());
}

void TPassageiro::Soltar() {
    const std::lock_guard LGuarda(Trava);
    std::erase(Todos, this);
}

void RemoverPassageiros() noexcept {
    // Held by the thread that ended here it is never given back; a half-written list is not read.
    if (!Trava.try_lock())
        return;
    std::for_each(Todos.rbegin(), Todos.rend(), [](const auto* P) { Remover(P->Caminho().c_str()); });
    Todos.clear();
    Trava.unlock();
}

} // namespace base
