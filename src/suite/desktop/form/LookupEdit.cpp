#include "suite/desktop/form/LookupEdit.h"

#include "suite/desktop/look/ElidedLabel.h"
#include "suite/desktop/look/Icons.h"
#include "suite/desktop/look/Text.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>

namespace suite::desktop {

LookupEdit::LookupEdit(host::TZTLookupEx& lookup, QWidget* parent)
    : QWidget(parent), lookup_(lookup), code_(new QLineEdit(this)), search_(new QToolButton(this)),
      description_(new ElidedLabel(this)) {
    constexpr int Characters = 11;
    code_->setFixedWidth(fontMetrics().horizontalAdvance(QLatin1Char('0')) * Characters);
    search_->setIcon(icon(Symbol::Search));
    search_->setToolTip(QStringLiteral("Pesquisar (F4)"));
    search_->setAccessibleName(QStringLiteral("Pesquisar"));
    search_->setFocusPolicy(Qt::NoFocus);
    search_->setFixedSize(code_->sizeHint().height(), code_->sizeHint().height());
    description_->setFrameShape(QFrame::StyledPanel);
    description_->setMargin(2);
    description_->setFixedHeight(code_->sizeHint().height());
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    row->addWidget(code_);
    row->addWidget(search_);
    row->addWidget(description_, 1);
    setFocusProxy(code_);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    code_->installEventFilter(this);
    connect(code_, &QLineEdit::textEdited, this, [this] { typed_ = true; });
    connect(search_, &QToolButton::clicked, this, &LookupEdit::searchAsked);
    follow();
}

void LookupEdit::setButtonOnly() {
    code_->hide();
    description_->hide();
    search_->setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(search_);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void LookupEdit::follow() {
    typed_ = false;
    code_->setText(fromUtf8(lookup_.Codigo()));
    description_->setWholeText(fromUtf8(lookup_.Texto()));
    code_->setAccessibleDescription(description());
}

QString LookupEdit::description() const { return description_->wholeText(); }

bool LookupEdit::commit() {
    if (!typed_)
        return true;
    typed_ = false;
    const auto code = toUtf8(code_->text());
    if (code == lookup_.Codigo())
        return true;
    lookup_.Digitar(code);
    const bool unknown = lookup_.GetID() <= 0 && !lookup_.Codigo().empty();
    return !unknown || lookup_.Definicao().TextoNaoAchou.empty();
}

bool LookupEdit::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonDblClick && code_->isEnabled()) {
        Q_EMIT searchAsked();
        return true;
    }
    if (event->type() == QEvent::KeyPress) {
        const auto key = static_cast<QKeyEvent*>(event)->key();
        if ((key == Qt::Key_Delete || key == Qt::Key_Backspace) && code_->text().isEmpty() && !typed_) {
            Q_EMIT dropAsked();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void LookupEdit::keyPressEvent(QKeyEvent* event) {
    const bool altDown = event->key() == Qt::Key_Down && event->modifiers() == Qt::AltModifier;
    if (altDown || (event->key() == Qt::Key_F4 && event->modifiers() == Qt::NoModifier))
        Q_EMIT searchAsked();
    else
        QWidget::keyPressEvent(event);
}

void LookupEdit::mousePressEvent(QMouseEvent* event) {
    focusProxy()->setFocus(Qt::MouseFocusReason);
    QWidget::mousePressEvent(event);
}

} // namespace suite::desktop
