#pragma once

#include "host/Formularios.h"

#include <string>
#include <string_view>

namespace suite::script {

// What a user does to a form, by the names of its controls. An unknown name, a disabled control, or a value that the
// kind of control does not take is a host::TFalha.
class FormDriver {
  public:
    explicit FormDriver(host::TForm& form) : form_(form) {}

    // Types or picks. Check box: "1" or "0"; date: "dd/mm/aaaa" or nothing; combo: the value; lookup: a code, "#KEY" for
    // the record with that key, "{7,9}" or "{#100,#200}" for records marked in its search, "{}" marked and then none.
    void define(std::string_view control, const std::string& value);
    void leave(std::string_view control);
    void click(std::string_view action);

  private:
    host::TForm& form_;
};

} // namespace suite::script
