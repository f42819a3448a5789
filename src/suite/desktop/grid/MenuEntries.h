#pragma once

#include <QMenu>

namespace suite::desktop {

// Entries of a menu. A key stands behind a tab: it is shown, and whoever has the menu answers to it.
template <class Deed>
void addEntry(QMenu& menu, const QString& text, Deed deed, bool enabled = true) {
    auto* action = menu.addAction(text);
    action->setEnabled(enabled);
    QObject::connect(action, &QAction::triggered, &menu, deed);
}

template <class Deed>
void addMark(QMenu& menu, const QString& text, bool on, Deed deed) {
    auto* action = menu.addAction(text);
    action->setCheckable(true);
    action->setChecked(on);
    QObject::connect(action, &QAction::toggled, &menu, deed);
}

// A name that is not ours, without a key for its letters.
inline QString asEntry(QString name) { return name.replace(QLatin1Char('&'), QLatin1String("&&")); }

} // namespace suite::desktop
