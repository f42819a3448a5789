#pragma once

#include "host/Grade.h"

namespace pct04618 {

// A label in a colour of its own. The same colour for font and background makes it a swatch.
class TLabelColorido final : public host::TLabel {
  public:
    TLabelColorido(std::string ANome, host::TCor AFonte, std::optional<host::TCor> AFundo = std::nullopt)
        : TLabel(std::move(ANome)), FFonte(AFonte), FFundo(AFundo) {}
    host::TCor Fonte() const { return FFonte; }
    std::optional<host::TCor> Fundo() const { return FFundo; }

  private:
    host::TCor FFonte;
    std::optional<host::TCor> FFundo;
};

} // namespace pct04618
