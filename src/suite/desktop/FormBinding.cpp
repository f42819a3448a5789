#include "suite/desktop/FormBinding.h"

#include "suite/desktop/GridPane.h"

#include <QWidget>

namespace suite::desktop {

FormBinding::FormBinding(host::TForm& form, QWidget& window) : form_(form), window_(window) {}

QWidget* FormBinding::widget(std::string_view name) {
    auto* grid = dynamic_cast<host::TGrade*>(&form_.Controle(name));
    auto& made = widgets_[form_.Controle(name).Nome()];
    if (!made)
        made = grid ? new GridPane(*grid, &window_) : new QWidget(&window_);
    return made;
}

std::vector<std::string> FormBinding::unbound() const {
    std::vector<std::string> names;
    for (const auto* control : form_.Controles())
        if (!widgets_.contains(control->Nome()))
            names.push_back(control->Nome());
    return names;
}

bool FormBinding::has(const host::TControle& control) const {
    for (const auto* own : form_.Controles())
        if (own == &control)
            return true;
    return false;
}

void FormBinding::focus(const host::TControle&) {}

void FormBinding::attempt(const std::function<void()>& deed) {
    try {
        deed();
    } catch (const std::exception& failure) {
        if (onFailure)
            onFailure(failure);
    }
}

} // namespace suite::desktop
