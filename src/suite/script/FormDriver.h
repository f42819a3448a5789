#pragma once

#include "base/Falhas.h"
#include "host/Formularios.h"

#include <string>
#include <string_view>

namespace suite::script {

// What no user could do: an unknown name, a disabled or hidden control, a value that the control does not take.
class WrongUse : public base::TFalha {
  public:
    using base::TFalha::TFalha;
};

// What a user does to a form (host::TForm::Realizar), by the names of its controls. What no user could do is a
// WrongUse.
class FormDriver {
  public:
    explicit FormDriver(host::TForm& form) : form_(form) {}

    // Types or picks. Check box: "1" or "0"; date: "dd/mm/aaaa" or nothing; combo: the value; lookup: a code, "#KEY"
    // for the record with that key, "{7,9}" or "{#100,#200}" for records marked in its search, "{}" marked and then
    // none.
    void define(std::string_view control, const std::string& value);
    void leave(std::string_view control);
    // On a check box, which changes, or on an action.
    void click(std::string_view name);
    void press(std::string_view control, host::TTecla key);

    // Throws WrongUse, which lists what there is.
    static host::TControle& control(const host::TForm& form, std::string_view name);

  private:
    host::TControle& usable(std::string_view name) const; // enabled and in view

    host::TForm& form_;
};

} // namespace suite::script
