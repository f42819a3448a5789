#include "suite/desktop/form/FormBinding.h"

#include "base/Falhas.h"
#include "host/Grade.h"
#include "suite/desktop/form/ControlWidgets.h"
#include "suite/desktop/form/DateEdit.h"
#include "suite/desktop/form/LookupEdit.h"
#include "suite/desktop/look/Text.h"

#include <QLineEdit>

#include <utility>

namespace suite::desktop {

namespace {

QWidget* inputOf(QWidget* widget) { return widget->focusProxy() ? widget->focusProxy() : widget; }

QString hintFor(const host::TControle& control) {
    if (dynamic_cast<const host::TZTDateEdit*>(&control))
        return QStringLiteral("Data no formato dd/mm/aaaa; F4 abre o calendário");
    if (dynamic_cast<const host::TZTComboBox*>(&control))
        return QStringLiteral("Lista de opções; F4 abre a lista");
    return {};
}

} // namespace

FormBinding::FormBinding(host::TForm& form, QWidget& window) : form_(form), window_(window) {
    window_.installEventFilter(this);
}

QWidget* FormBinding::widget(std::string_view name) {
    auto& control = form_.Controle(name);
    auto& made = widgets_[control.Nome()];
    if (!made) {
        made = makeWidget(control, *this, &window_);
        made->setObjectName(fromUtf8(control.Nome()));
        tie(control, *made);
        nameFor(control, *made);
    }
    return made;
}

void FormBinding::follow(host::TControle& control, const std::function<void()>& show) {
    followed_.push_back(control.AoMudar(show));
    show();
}

void FormBinding::tie(host::TControle& control, QWidget& widget) {
    if (auto* target = labelled(form_, control); target && dynamic_cast<host::TLabel*>(&control)) {
        if (const auto known = widgets_.find(target->Nome()); known != widgets_.end() && known->second)
            tieLabel(control, widget, *target, *known->second, *this);
        return;
    }
    if (const auto* label = labelOf(form_, control))
        if (const auto known = widgets_.find(label->Nome()); known != widgets_.end() && known->second)
            tieLabel(form_.Controle(label->Nome()), *known->second, control, widget, *this);
    // A grid keeps its keys, and labels and panels have none.
    if (dynamic_cast<host::TGrade*>(&control) || dynamic_cast<host::TLabel*>(&control) ||
        dynamic_cast<host::TPanel*>(&control))
        return;
    auto parts = widget.findChildren<QWidget*>();
    parts.push_back(&widget);
    for (auto* part : parts) {
        if (part->isWindow())
            continue;
        inputs_[part] = &control;
        part->installEventFilter(this);
    }
}

void FormBinding::nameFor(const host::TControle& control, QWidget& widget) const {
    auto name = spokenName(form_, control);
    const auto& all = form_.Controles();
    for (std::size_t i = 0; name.isEmpty() && i + 1 < all.size(); ++i)
        if (all[i] == &control) // a swatch has its text beside it
            name = spokenName(form_, *all[i + 1]);
    if (name.isEmpty())
        return; // a grid names itself and its parts
    for (auto* named : {&widget, inputOf(&widget)}) {
        named->setAccessibleName(name);
        if (const auto hint = hintFor(control); !hint.isEmpty())
            named->setAccessibleDescription(hint);
        else if (named->accessibleDescription().isEmpty())
            named->setAccessibleDescription(name);
    }
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

bool FormBinding::canTakeFocus(const QWidget& widget) const {
    return widget.isEnabledTo(&window_) && widget.isVisibleTo(&window_);
}

bool FormBinding::closed() const {
    const auto* dialog = dynamic_cast<const host::TFormZTTandorPadraoResult*>(&form_);
    return !window_.isVisible() || (dialog && !dialog->Aberto());
}

void FormBinding::focus(const host::TControle& control) {
    const auto known = widgets_.find(control.Nome());
    if (!has(control) || known == widgets_.end() || !canTakeFocus(*known->second))
        return;
    if (busy())
        asked_ = known->second;
    else
        place(known->second);
}

void FormBinding::focusFirst() {
    for (const auto* control : form_.Controles()) {
        const auto known = widgets_.find(control->Nome());
        if (known != widgets_.end() && canTakeFocus(*known->second) &&
            inputOf(known->second)->focusPolicy() != Qt::NoFocus && !dynamic_cast<const host::TAction*>(control))
            return place(known->second);
    }
}

void FormBinding::chainTabs() {
    tabs_.clear();
    for (const bool actions : {false, true})
        for (auto* control : form_.Controles()) {
            const auto known = widgets_.find(control->Nome());
            if (known == widgets_.end() || actions != (dynamic_cast<host::TAction*>(control) != nullptr) ||
                inputOf(known->second)->focusPolicy() == Qt::NoFocus)
                continue;
            if (!tabs_.empty())
                QWidget::setTabOrder(tabs_.back(), inputOf(known->second));
            tabs_.push_back(inputOf(known->second));
        }
}

void FormBinding::attempt(const std::function<void()>& deed) {
    const Deed running(*this);
    try {
        form_.Realizar(deed);
    } catch (const std::exception& failure) {
        if (onFailure)
            onFailure(failure);
    }
}

void FormBinding::execute(host::TAction& action) {
    const Deed running(*this);
    const bool ready = &action == giveUp_ || (actionsLeave_ ? leaveCurrent() : !current_ || commit(*current_));
    if (ready)
        attempt([&] { form_.Executar(action); });
}

void FormBinding::giveUpBy(host::TAction& action) {
    giveUp_ = &action;
    widget(action.Nome())->setFocusPolicy(Qt::TabFocus);
}

// What was typed goes to the control first.
bool FormBinding::commit(host::TControle& control) {
    const auto known = widgets_.find(control.Nome());
    auto* widget = known == widgets_.end() ? nullptr : known->second;
    if (auto* date = qobject_cast<DateEdit*>(widget))
        date->complete();
    auto* lookup = qobject_cast<LookupEdit*>(widget);
    return !lookup || lookup->commit();
}

bool FormBinding::leaveCurrent() {
    auto* leaving = std::exchange(current_, nullptr);
    if (!leaving)
        return true;
    const Deed running(*this);
    asked_ = nullptr;
    bool left = false;
    attempt([&] { left = commit(*leaving) && form_.SairDe(*leaving); });
    if (!left) {
        current_ = leaving;
        if (!asked_)
            asked_ = widgets_[leaving->Nome()];
    }
    return left;
}

void FormBinding::place(QWidget* widget) {
    if (!widget || !canTakeFocus(*widget))
        return;
    placing_ = true;
    auto* input = inputOf(widget);
    input->setFocus(Qt::OtherFocusReason);
    if (auto* line = qobject_cast<QLineEdit*>(input))
        line->selectAll();
    placing_ = false;
    entered(input);
}

// An action is no field: there is nothing to leave.
void FormBinding::entered(const QWidget* input) {
    const auto found = inputs_.find(input);
    current_ = found == inputs_.end() || dynamic_cast<host::TAction*>(found->second) ? nullptr : found->second;
}

void FormBinding::finish() {
    auto* const target = asked_.data();
    asked_ = nullptr;
    if (target && !closed())
        place(target);
    if (closed())
        current_ = nullptr;
    Q_EMIT acted();
}

} // namespace suite::desktop
