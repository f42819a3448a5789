#include "suite/desktop/grid/GridPane.h"

#include "suite/desktop/grid/FilterRow.h"
#include "suite/desktop/grid/GridView.h"

#include <QKeyEvent>

namespace suite::desktop {

namespace {

constexpr auto Ctrl = Qt::ControlModifier;
constexpr auto Shift = Qt::ShiftModifier;

bool is(Qt::KeyboardModifiers modifiers, Qt::KeyboardModifiers wanted) {
    return (modifiers & ~Qt::KeypadModifier) == wanted;
}

} // namespace

// Keys that hold wherever the focus is in the pane, and those of the cells. On most keyboards "+" is reached with
// Shift, so that Ctrl+"=" enlarges and Ctrl+Shift+"=" expands.
bool GridPane::handleKey(int key, Qt::KeyboardModifiers modifiers, bool inCells) {
    const bool plus = key == Qt::Key_Plus || key == Qt::Key_Equal;
    const bool minus = key == Qt::Key_Minus || key == Qt::Key_Underscore;
    if (is(modifiers, Ctrl | Shift) && (plus || minus))
        expandAll(plus);
    else if (is(modifiers, Ctrl) && (plus || minus))
        zoom(plus ? 1 : -1);
    else if (is(modifiers, Ctrl) && key == Qt::Key_0)
        zoom(0);
    else if (is(modifiers, Ctrl) && key == Qt::Key_F)
        search({});
    else if (key == Qt::Key_F3)
        findNext((modifiers & Shift) == 0);
    else if (is(modifiers, Ctrl) && key == Qt::Key_L)
        filters_->focus(currentColumn());
    else if (is(modifiers, Ctrl | Shift) && key == Qt::Key_L)
        clearFilters();
    else
        return inCells && handleCellKey(key, modifiers);
    return true;
}

bool GridPane::handleCellKey(int key, Qt::KeyboardModifiers modifiers) {
    const auto current = view_->currentIndex();
    const bool onGroup = current.isValid() && model_->isGroup(current.row());
    const bool plain = is(modifiers, Qt::NoModifier);
    if (key == Qt::Key_C && is(modifiers, Ctrl))
        copy(true);
    else if (key == Qt::Key_C && is(modifiers, Ctrl | Shift))
        copy(false);
    else if (key == Qt::Key_G && is(modifiers, Ctrl) && current.isValid())
        groupBy(std::string(model_->column(current.column()).Campo), true);
    else if (key == Qt::Key_K && is(modifiers, Ctrl))
        chooseColumns();
    else if ((key == Qt::Key_Up || key == Qt::Key_Down) && is(modifiers, Qt::AltModifier))
        sortBy(currentColumn(), key == Qt::Key_Down, false);
    else if ((key == Qt::Key_Left || key == Qt::Key_Right) && is(modifiers, Qt::AltModifier))
        moveColumn(currentColumn(), currentColumn() + (key == Qt::Key_Left ? -1 : 1));
    else if (key == Qt::Key_Space && is(modifiers, Shift) && current.isValid())
        view_->selectionModel()->select(current, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    else if (onGroup && plain && (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space))
        toggle(current.row());
    else if (onGroup && plain && (key == Qt::Key_Plus || key == Qt::Key_Minus)) {
        if (model_->isOpen(current.row()) != (key == Qt::Key_Plus))
            toggle(current.row());
    } else if (key == Qt::Key_Menu || (key == Qt::Key_F10 && is(modifiers, Shift)))
        openMenu(view_->viewport()->mapToGlobal(view_->visualRect(current).bottomLeft()), -1);
    else
        return false;
    return true;
}

bool GridPane::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const auto* press = static_cast<QKeyEvent*>(event);
        if (handleKey(press->key(), press->modifiers(), watched == view_))
            return true;
    }
    if (event->type() == QEvent::ShortcutOverride && watched == view_) {
        // The grid's own keys go before a window's shortcuts of the same name.
        const auto* press = static_cast<QKeyEvent*>(event);
        const bool zooms = press->key() == Qt::Key_Plus || press->key() == Qt::Key_Minus || press->key() == Qt::Key_0;
        if (press->key() == Qt::Key_F3 || ((press->modifiers() & Ctrl) != 0 && zooms) ||
            press->matches(QKeySequence::Copy) || press->matches(QKeySequence::Find)) {
            event->accept();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace suite::desktop
