#include "host/Lookup.h"
#include "suite/desktop/form/FormBinding.h"
#include "suite/desktop/form/LookupEdit.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>

#include <algorithm>
#include <utility>

namespace suite::desktop {

namespace {

// The move of a widget's own Tab, which only a widget may ask for.
struct Mover : QWidget {
    static void move(QWidget& from, bool forward) { (from.*&Mover::focusNextPrevChild)(forward); }
};

// Another window or a popup took the focus or gave it back: the user is still in the field.
bool ofTheWindow(const QEvent& event, const QWidget& window) {
    const auto reason = static_cast<const QFocusEvent&>(event).reason();
    const auto* now = QApplication::focusWidget();
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
           reason == Qt::MenuBarFocusReason || (now && now->window() != window.window());
}

} // namespace

bool FormBinding::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &window_ && event->type() == QEvent::WindowBlocked)
        ++blocks_;
    const auto found = inputs_.find(watched);
    if (found == inputs_.end())
        return false;
    auto& input = *static_cast<QWidget*>(watched);
    auto& control = *found->second;
    switch (event->type()) {
    case QEvent::FocusIn:
        if (!busy() && !ofTheWindow(*event, window_))
            entered(&input);
        return false;
    case QEvent::FocusOut:
        if (&control == current_ && !busy() && !placing_ && input.isEnabled() && !closed() &&
            !ofTheWindow(*event, window_))
            focusWentElsewhere();
        return false;
    case QEvent::KeyPress:
        return busy() || keyPressed(input, control, *static_cast<QKeyEvent*>(event));
    case QEvent::MouseButtonPress:
        return busy() || swallow_ || mousePressed(control);
    case QEvent::MouseButtonDblClick:
        return busy();
    case QEvent::Wheel: // a value must not change because the pointer passes over it
        event->ignore();
        return busy() || !input.hasFocus();
    default:
        return false;
    }
}

// True when the press is dealt with. A disabled control can be pressed too: the rules of the field that is left for it
// may enable it.
bool FormBinding::mousePressed(host::TControle& control) {
    auto* target = widgets_[control.Nome()];
    if (&control == giveUp_ || (!actionsLeave_ && dynamic_cast<host::TAction*>(&control)))
        return false;
    if (&control == current_ || !current_) {
        if (target->isEnabled())
            entered(target);
        return false;
    }
    const bool was = target->isEnabled();
    const auto blocks = blocks_;
    const Deed running(*this);
    if (!leaveCurrent())
        return true;
    asked_ = nullptr; // the user has said where he goes
    if (was && blocks == blocks_)
        return false;
    asked_ = target; // a message stood between, or it could not be pressed before: he presses again
    return true;
}

bool FormBinding::keyPressed(QWidget& input, host::TControle& control, const QKeyEvent& event) {
    if (current_ != &control && input.hasFocus())
        entered(&input);
    if (event.key() == Qt::Key_Backtab || (event.key() == Qt::Key_Tab && event.modifiers() == Qt::NoModifier)) {
        moveOn(input, event.key() == Qt::Key_Tab);
        return true;
    }
    if (event.modifiers() & ~Qt::KeypadModifier)
        return false;
    auto* button = dynamic_cast<host::TAction*>(&control) ? qobject_cast<QAbstractButton*>(&input) : nullptr;
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!button)
            return goOnBy(input, control, host::TTecla::Enter);
        button->click();
        return true;
    case Qt::Key_Down:
        return !button && goOnBy(input, control, host::TTecla::Baixo);
    case Qt::Key_Escape:
        attempt([&] { form_.Teclar(control, host::TTecla::Esc); });
        return true;
    case Qt::Key_F11:
        if (!goToSearch(control))
            if (auto* lookup = qobject_cast<LookupEdit*>(widgets_[control.Nome()]))
                Q_EMIT lookup->searchAsked();
        return true;
    default:
        return false;
    }
}

// True when the form has a search of its own. The field is left by a focus that it asks for, as by any other.
bool FormBinding::goToSearch(host::TControle& control) {
    const Deed running(*this);
    bool consumed = true;
    attempt([&] { consumed = form_.Teclar(control, host::TTecla::F11); });
    if (auto* target = std::exchange(asked_, nullptr).data(); target && !closed() && leaveCurrent())
        asked_ = target;
    return consumed;
}

// Enter and cursor down: the rules first; where they ask for no other place, on to the next control. A rule that
// consumes the key keeps it from the form, not the user in the control. In a list, cursor down belongs to the list
// unless it is consumed.
bool FormBinding::goOnBy(QWidget& input, host::TControle& control, host::TTecla key) {
    const Deed running(*this);
    bool committed = false;
    bool consumed = false;
    attempt([&] {
        committed = commit(control);
        consumed = committed && form_.Teclar(control, key);
    });
    if (closed())
        return true;
    if (!committed) {
        asked_ = &input;
        return true;
    }
    if (auto* target = std::exchange(asked_, nullptr).data()) {
        if (leaveCurrent() && canTakeFocus(*target))
            asked_ = target;
        else if (!current_)
            moveOn(input, true);
    } else if (key == host::TTecla::Baixo && qobject_cast<QComboBox*>(&input)) {
        return consumed;
    } else {
        moveOn(input, true);
    }
    return true;
}

void FormBinding::moveOn(QWidget& input, bool forward) {
    const Deed running(*this);
    if (!leaveCurrent() || closed())
        return;
    if (forward && asked_ && canTakeFocus(*asked_))
        return; // the rule knows the next one
    asked_ = nullptr;
    toNeighbour(input, forward);
    entered(window_.focusWidget());
}

void FormBinding::toNeighbour(QWidget& input, bool forward) {
    const auto here = std::find(tabs_.begin(), tabs_.end(), &input);
    if (here == tabs_.end())
        return Mover::move(input, forward);
    const auto count = tabs_.size();
    auto place = static_cast<std::size_t>(here - tabs_.begin());
    for (std::size_t steps = 1; steps < count; ++steps) {
        place = (place + (forward ? 1 : count - 1)) % count;
        if (canTakeFocus(*tabs_[place]))
            return tabs_[place]->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    }
}

// The focus was moved by other means than keys and mouse on this form: a shortcut, another part of the window.
void FormBinding::focusWentElsewhere() {
    const Deed running(*this);
    const auto blocks = blocks_;
    const bool left = leaveCurrent();
    const QPointer<QWidget> target = std::exchange(asked_, nullptr);
    if (left && blocks == blocks_)
        return;
    // The change of focus under way must end first; a press that caused it has no further effect.
    swallow_ = true;
    QMetaObject::invokeMethod(
        this,
        [this, left, target] {
            swallow_ = false;
            if (!left)
                place(target);
        },
        Qt::QueuedConnection);
}

} // namespace suite::desktop
