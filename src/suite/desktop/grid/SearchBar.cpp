#include "suite/desktop/grid/SearchBar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace suite::desktop {

SearchBar::SearchBar(QWidget* parent, QObject* watcher)
    : QWidget(parent), edit_(new QLineEdit(this)), result_(new QLabel(this)) {
    setObjectName(QStringLiteral("BuscaRapida"));
    auto* label = new QLabel(QStringLiteral("&Localizar:"), this);
    label->setBuddy(edit_);
    edit_->setObjectName(QStringLiteral("EdtLocalizar"));
    edit_->setAccessibleName(QStringLiteral("Localizar em todas as colunas"));
    edit_->setClearButtonEnabled(true);
    edit_->installEventFilter(this);
    edit_->installEventFilter(watcher);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(6, 2, 6, 2);
    row->addWidget(label);
    row->addWidget(edit_, 1);
    const auto button = [&](const QString& text, const QString& name, auto deed) {
        auto* made = new QToolButton(this);
        made->setText(text);
        made->setToolTip(name);
        made->setAccessibleName(name);
        made->setFocusPolicy(Qt::StrongFocus);
        connect(made, &QToolButton::clicked, this, deed);
        row->addWidget(made);
    };
    button(QStringLiteral("▲"), QStringLiteral("Anterior (Shift+F3)"), [this] { Q_EMIT sought(false, false); });
    button(QStringLiteral("▼"), QStringLiteral("Próximo (F3)"), [this] { Q_EMIT sought(true, false); });
    row->addWidget(result_, 1);
    button(QStringLiteral("✕"), QStringLiteral("Fechar (Esc)"), [this] { Q_EMIT closed(); });
    connect(edit_, &QLineEdit::textChanged, this, [this](const QString& typed) {
        result_->clear();
        if (!typed.isEmpty())
            Q_EMIT sought(true, true);
    });
    hide();
}

void SearchBar::open(const QString& text) {
    show();
    edit_->setFocus(Qt::ShortcutFocusReason);
    if (text.isEmpty())
        edit_->selectAll();
    else
        edit_->setText(text);
}

QString SearchBar::text() const { return edit_->text(); }

void SearchBar::tell(bool found) {
    result_->setText(found ? QString() : QStringLiteral("Nada encontrado nas linhas à vista."));
}

bool SearchBar::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const auto* press = static_cast<QKeyEvent*>(event);
        if (press->key() == Qt::Key_Escape) {
            Q_EMIT closed();
            return true;
        }
        if (press->key() == Qt::Key_Return || press->key() == Qt::Key_Enter) {
            Q_EMIT sought((press->modifiers() & Qt::ShiftModifier) == 0, false);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace suite::desktop
