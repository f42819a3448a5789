#pragma once

#include "host/Formularios.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

class QKeyEvent;

namespace suite::desktop {

// The widgets of a form: each carries the name of its control and follows it (enabled, visible, caption, value, items);
// what the user does goes back as the form's operation, a click, a value, a key, the leaving of a field. No rule stands
// here.
//
// A field is left before the focus goes on, so that what its rules enable can be gone to, and once a visit. A refusal
// keeps the user where the rule wants him. While a deed of his runs, further ones are dropped.
class FormBinding : public QObject {
    Q_OBJECT

  public:
    // Form and window must outlive the binding; a form is bound once.
    FormBinding(host::TForm& form, QWidget& window);

    host::TForm& form() const { return form_; }
    // The widget of a control or the button of an action, made at the first call; the window owns it. Throws TFalha for
    // a name that the form does not have.
    QWidget* widget(std::string_view name);
    // Runs it now and at each change of the control, for as long as the binding lives.
    void follow(host::TControle& control, const std::function<void()>& show);
    // Controls of the form that have no widget yet.
    std::vector<std::string> unbound() const;
    // Whether the control is one of this form's.
    bool has(const host::TControle& control) const;
    // What a rule asks for. A control whose widget is disabled or hidden gets none. During a deed of the user the focus
    // goes there at the end of it.
    void focus(const host::TControle& control);
    // The first control, in the order of the form, that can take the focus.
    void focusFirst();
    // Makes the order of tabs that of the form, the actions last. Call when all widgets stand in their places.
    void chainTabs();

    // Runs a deed of the user (host::TForm::Realizar); a failure that passes it goes to onFailure.
    void attempt(const std::function<void()>& deed);
    std::function<void(const std::exception& failure)> onFailure;
    // Leaves the field in which the user is, then runs the action unless that was refused.
    void execute(host::TAction& action);
    // Leaves the field in which the user is; false when that was refused.
    bool leaveCurrent();
    // The actions of a bar that takes no focus: what was typed reaches its field, and no field is left for them.
    void actionsLeaveNothing() { actionsLeave_ = false; }
    // The action by which the user gives up: it leaves no field.
    void giveUpBy(host::TAction& action);
    bool busy() const { return deeds_ > 0; }

  Q_SIGNALS:
    void acted(); // a deed has ended, and none is under way any more

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    // Marks the time of a deed. What rules asked for meanwhile happens at the end of the outermost one.
    class Deed {
      public:
        explicit Deed(FormBinding& binding) : binding_(binding) { ++binding_.deeds_; }
        ~Deed() {
            if (--binding_.deeds_ == 0)
                binding_.finish();
        }
        Deed(const Deed&) = delete;
        Deed& operator=(const Deed&) = delete;

      private:
        FormBinding& binding_;
    };

    void tie(host::TControle& control, QWidget& widget);
    void nameFor(const host::TControle& control, QWidget& widget) const;
    bool closed() const;
    bool commit(host::TControle& control);
    bool mousePressed(host::TControle& control);
    bool keyPressed(QWidget& input, host::TControle& control, const QKeyEvent& event);
    bool goOnBy(QWidget& input, host::TControle& control, host::TTecla key);
    bool goToSearch(host::TControle& control);
    void moveOn(QWidget& input, bool forward);
    void toNeighbour(QWidget& input, bool forward);
    bool canTakeFocus(const QWidget& widget) const;
    void focusWentElsewhere();
    void entered(const QWidget* input);
    void place(QWidget* widget);
    void finish();

    host::TForm& form_;
    QWidget& window_;
    std::map<std::string, QWidget*, std::less<>> widgets_;
    std::vector<host::TAssinatura> followed_;
    std::vector<QWidget*> tabs_;                        // in their order; empty: the window's own order
    std::map<const QObject*, host::TControle*> inputs_; // the parts of widgets that take keys and the mouse
    host::TControle* current_ = nullptr;                // entered, and not yet left
    const host::TAction* giveUp_ = nullptr;
    QPointer<QWidget> asked_; // for the focus, by a rule
    int deeds_ = 0;           // under way, one in another
    int blocks_ = 0;          // times that a modal window stood before this one
    bool placing_ = false;
    bool actionsLeave_ = true;
    bool swallow_ = false; // the press of the mouse under way
};

} // namespace suite::desktop
