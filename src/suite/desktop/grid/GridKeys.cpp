#include "suite/desktop/grid/GridKeys.h"

#include "suite/desktop/grid/GridPane.h"
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

GridKeys::GridKeys(GridPane& pane) : QObject(&pane), pane_(pane) {}

// On most keyboards "+" is reached with Shift, so that Ctrl+"=" enlarges and Ctrl+Shift+"=" expands.
bool GridKeys::handle(int key, Qt::KeyboardModifiers modifiers, bool inCells) {
    const bool plus = key == Qt::Key_Plus || key == Qt::Key_Equal;
    const bool minus = key == Qt::Key_Minus || key == Qt::Key_Underscore;
    if (is(modifiers, Ctrl | Shift) && (plus || minus))
        pane_.expandAll(plus);
    else if (is(modifiers, Ctrl) && (plus || minus))
        pane_.zoom(plus ? 1 : -1);
    else if (is(modifiers, Ctrl) && key == Qt::Key_0)
        pane_.zoom(0);
    else if (is(modifiers, Ctrl) && key == Qt::Key_F)
        pane_.search({});
    else if (key == Qt::Key_F3)
        pane_.findNext((modifiers & Shift) == 0);
    else if (is(modifiers, Ctrl) && key == Qt::Key_L)
        pane_.filterColumn(pane_.currentColumn());
    else if (is(modifiers, Ctrl | Shift) && key == Qt::Key_L)
        pane_.clearFilters();
    else
        return inCells && handleInCells(key, modifiers);
    return true;
}

bool GridKeys::handleInCells(int key, Qt::KeyboardModifiers modifiers) {
    auto& view = pane_.view();
    const auto current = view.currentIndex();
    const auto column = pane_.currentColumn();
    if (key == Qt::Key_C && is(modifiers, Ctrl))
        pane_.copy(true);
    else if (key == Qt::Key_C && is(modifiers, Ctrl | Shift))
        pane_.copy(false);
    else if (key == Qt::Key_G && is(modifiers, Ctrl) && current.isValid())
        pane_.groupBy(pane_.columnAt(column), true);
    else if (key == Qt::Key_K && is(modifiers, Ctrl))
        pane_.chooseColumns();
    else if ((key == Qt::Key_Up || key == Qt::Key_Down) && is(modifiers, Qt::AltModifier))
        pane_.sortBy(column, key == Qt::Key_Down, false);
    else if ((key == Qt::Key_Left || key == Qt::Key_Right) && is(modifiers, Qt::AltModifier))
        pane_.moveColumn(column, column + (key == Qt::Key_Left ? -1 : 1));
    else if (key == Qt::Key_Space && is(modifiers, Shift) && current.isValid())
        view.selectionModel()->select(current, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    else if (key == Qt::Key_Menu || (key == Qt::Key_F10 && is(modifiers, Shift)))
        pane_.openMenu(view.viewport()->mapToGlobal(view.visualRect(current).bottomLeft()), -1);
    else
        return current.isValid() && pane_.model().isGroup(current.row()) && is(modifiers, Qt::NoModifier) &&
               handleOnGroup(current.row(), key);
    return true;
}

bool GridKeys::handleOnGroup(int row, int key) {
    const bool signs = key == Qt::Key_Plus || key == Qt::Key_Minus;
    if (!signs && key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Space)
        return false;
    if (!signs || pane_.model().isOpen(row) != (key == Qt::Key_Plus))
        pane_.toggle(row);
    return true;
}

bool GridKeys::eventFilter(QObject* watched, QEvent* event) {
    const bool inCells = watched == &pane_.view();
    if (event->type() == QEvent::KeyPress) {
        const auto* press = static_cast<QKeyEvent*>(event);
        if (handle(press->key(), press->modifiers(), inCells))
            return true;
    }
    if (event->type() == QEvent::ShortcutOverride && inCells) {
        // The grid's own keys go before a window's shortcuts of the same name.
        const auto* press = static_cast<QKeyEvent*>(event);
        const bool zooms = press->key() == Qt::Key_Plus || press->key() == Qt::Key_Minus || press->key() == Qt::Key_0;
        if (press->key() == Qt::Key_F3 || ((press->modifiers() & Ctrl) != 0 && zooms) ||
            press->matches(QKeySequence::Copy) || press->matches(QKeySequence::Find)) {
            event->accept();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace suite::desktop
