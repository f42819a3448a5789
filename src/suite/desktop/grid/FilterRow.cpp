#include "suite/desktop/grid/FilterRow.h"

#include "suite/desktop/look/Text.h"

#include <QKeyEvent>

#include <algorithm>

namespace suite::desktop {

FilterRow::FilterRow(GridView& view, const GridModel& model, QObject* keys)
    : QObject(&view), view_(view), grid_(model), keys_(keys) {
    connect(&view, &GridView::arranged, this, &FilterRow::place);
}

QLineEdit* FilterRow::make(const std::string& field) {
    auto* edit = new QLineEdit(&view_.header());
    edit->setObjectName(QStringLiteral("Filtro") + fromUtf8(field));
    edit->setClearButtonEnabled(true);
    edit->setFrame(true);
    edit->setTextMargins(0, 0, 0, 0);
    edit->installEventFilter(this);
    edit->installEventFilter(keys_);
    connect(edit, &QLineEdit::textChanged, this, [this, field](const QString& text) {
        if (text.trimmed().isEmpty())
            texts_.erase(field);
        else
            texts_[field] = toUtf8(text);
        Q_EMIT changed();
    });
    return edit;
}

void FilterRow::columnsChanged() {
    byColumn_.clear();
    for (int i = 0; i < grid_.columnCount(); ++i) {
        const auto& column = grid_.column(i);
        auto& edit = edits_[grid_.field(i)];
        if (!edit)
            edit = make(grid_.field(i));
        edit->setAccessibleName(QStringLiteral("Filtro de ") + fromUtf8(column.heading));
        edit->setToolTip(column.right() ? QStringLiteral("Parte do número, ou >10, <=5,5, =0, <>0, 10..20")
                                        : QStringLiteral("Parte do texto; = procura o texto inteiro"));
        byColumn_.push_back(edit);
    }
    bool lost = false; // a column that is not in view filters nothing
    for (auto& [field, edit] : edits_)
        if (std::find(byColumn_.begin(), byColumn_.end(), edit) == byColumn_.end()) {
            edit->hide();
            const QSignalBlocker quiet(edit);
            edit->clear();
            lost = texts_.erase(field) != 0 || lost;
        }
    place();
    if (lost)
        Q_EMIT changed();
}

void FilterRow::place() {
    for (std::size_t i = 0; i < byColumn_.size() && i < grid_.table().columns().size(); ++i) {
        const int column = static_cast<int>(i);
        auto& header = view_.headerOf(column);
        auto* edit = byColumn_[i];
        if (edit->parentWidget() != &header) {
            const bool focused = edit->hasFocus();
            edit->setParent(&header);
            if (focused)
                edit->setFocus();
        }
        const int height = header.filterHeight();
        edit->setGeometry(header.sectionViewportPosition(column) + 1, header.height() - height,
                          header.sectionSize(column) - 3, height - 2);
        edit->setVisible(height > 0);
    }
}

void FilterRow::clear() {
    const bool any = !texts_.empty();
    for (auto& [field, edit] : edits_) {
        const QSignalBlocker quiet(edit);
        edit->clear();
    }
    texts_.clear();
    if (any)
        Q_EMIT changed();
}

void FilterRow::focus(int column) {
    if (column >= 0 && static_cast<std::size_t>(column) < byColumn_.size()) {
        byColumn_[static_cast<std::size_t>(column)]->setFocus(Qt::ShortcutFocusReason);
        byColumn_[static_cast<std::size_t>(column)]->selectAll();
    }
}

int FilterRow::columnOf(const QObject* edit) const {
    return static_cast<int>(std::find(byColumn_.begin(), byColumn_.end(), edit) - byColumn_.begin());
}

bool FilterRow::key(QLineEdit& edit, int key, Qt::KeyboardModifiers modifiers) {
    const int column = columnOf(&edit);
    if (column >= grid_.columnCount())
        return false;
    switch (key) {
    case Qt::Key_Escape:
        if (!edit.text().isEmpty())
            edit.clear();
        else
            Q_EMIT left(column);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
        Q_EMIT left(column);
        return true;
    case Qt::Key_Period: // of the numeric pad, the decimal one
        if ((modifiers & Qt::KeypadModifier) == 0 || !grid_.column(column).right())
            return false;
        edit.insert(QStringLiteral(","));
        return true;
    default:
        return false;
    }
}

bool FilterRow::eventFilter(QObject* watched, QEvent* event) {
    auto* edit = qobject_cast<QLineEdit*>(watched);
    if (edit && event->type() == QEvent::KeyPress) {
        const auto* press = static_cast<QKeyEvent*>(event);
        if (key(*edit, press->key(), press->modifiers()))
            return true;
    }
    if (edit && event->type() == QEvent::FocusIn)
        if (const int column = columnOf(edit); column < grid_.columnCount() && grid_.rowCount() > 0)
            view_.scrollTo(grid_.index(std::max(0, view_.currentIndex().row()), column));
    return QObject::eventFilter(watched, event);
}

} // namespace suite::desktop
