#pragma once

#include "host/Formularios.h"

#include <QObject>

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

class QWidget;

namespace suite::desktop {

// The widgets of a form: each carries the name of its control and follows it (enabled, visible, caption, value, items);
// what the user does goes back as the form's operation, a click, a value, a key, the leaving of a field. No rule stands
// here.
class FormBinding : public QObject {
    Q_OBJECT

  public:
    // Form and window must outlive the binding; a form is bound once.
    FormBinding(host::TForm& form, QWidget& window);

    host::TForm& form() const { return form_; }
    // The widget of a control or the button of an action, made at the first call; the window owns it. Throws TFalha for
    // a name that the form does not have.
    QWidget* widget(std::string_view name);
    // Controls of the form that have no widget yet.
    std::vector<std::string> unbound() const;
    // Whether the control is one of this form's.
    bool has(const host::TControle& control) const;
    // What a rule asks for. A control whose widget is disabled or hidden gets none.
    void focus(const host::TControle& control);

    // Runs a deed of the user; a failure that reaches the window goes to onFailure.
    void attempt(const std::function<void()>& deed);
    std::function<void(const std::exception& failure)> onFailure;

  private:
    host::TForm& form_;
    QWidget& window_;
    std::map<std::string, QWidget*, std::less<>> widgets_;
};

} // namespace suite::desktop
