#pragma once

#include "host/Exportar.h"

#include <functional>
#include <memory>
#include <vector>

namespace host {

// Listening to something: it ends with the last copy of this, whichever side goes first.
class [[nodiscard]] TAssinatura {
  public:
    TAssinatura() = default;

  private:
    friend class TOuvintes;
    explicit TAssinatura(std::shared_ptr<std::function<void()>> AOuvinte) : FOuvinte(std::move(AOuvinte)) {}
    std::shared_ptr<std::function<void()>> FOuvinte;
};

// Who listens to something. Who comes while they are told hears the next time; who goes hears no more.
class HOST_API TOuvintes {
  public:
    TAssinatura Assinar(std::function<void()> AOuvinte);
    void Avisar() const;

  private:
    std::vector<std::weak_ptr<std::function<void()>>> FOuvintes;
};

} // namespace host
