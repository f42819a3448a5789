#include "suite/desktop/shell/ProgressWindow.h"

#include "suite/desktop/look/Text.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimerEvent>
#include <QVBoxLayout>
#include <QWindow>

#include <utility>

namespace suite::desktop {

namespace {

using Event = host::TEventoProgresso::TTipo;

constexpr int Width = 460;
const QString CancelText = QStringLiteral("&Cancelar");

} // namespace

ProgressWindow::ProgressWindow(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("progresso"));
    setModal(true);
    setWindowModality(Qt::ApplicationModal);
    setMinimumWidth(Width);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 16, 18, 14);
    layout->setSpacing(12);
    bars_ = new QVBoxLayout;
    bars_->setSpacing(4);
    layout->addLayout(bars_);
    layout->addStretch(1);
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    time_ = new QLabel(this);
    time_->setObjectName(QStringLiteral("tempo"));
    time_->setForegroundRole(QPalette::PlaceholderText);
    question_ = new QLabel(QStringLiteral("Cancelar a operação em andamento?"), this);
    question_->setObjectName(QStringLiteral("pergunta"));
    goOn_ = new QPushButton(QStringLiteral("C&ontinuar"), this);
    goOn_->setObjectName(QStringLiteral("continuar"));
    cancel_ = new QPushButton(CancelText, this);
    cancel_->setObjectName(QStringLiteral("cancelar"));
    for (auto* button : {goOn_, cancel_})
        button->setAutoDefault(true);
    row->addWidget(time_);
    row->addWidget(question_);
    row->addStretch(1);
    row->addWidget(goOn_);
    row->addWidget(cancel_);
    layout->addLayout(row);
    connect(goOn_, &QPushButton::clicked, this, [this] { ask(false); });
    connect(cancel_, &QPushButton::clicked, this, &ProgressWindow::cancel);
    ask(false);
}

ProgressWindow::Level& ProgressWindow::level(int index) {
    while (levels_.size() <= static_cast<std::size_t>(index)) {
        const auto number = levels_.size();
        auto* text = new QLabel(this);
        text->setObjectName(QStringLiteral("texto%1").arg(number));
        text->setTextFormat(Qt::PlainText);
        text->setWordWrap(true);
        auto* bar = new QProgressBar(this);
        bar->setObjectName(QStringLiteral("barra%1").arg(number));
        bar->setRange(0, 0);
        if (number > 0)
            bars_->addSpacing(8);
        bars_->addWidget(text);
        bars_->addWidget(bar);
        levels_.push_back({text, bar});
    }
    return levels_[static_cast<std::size_t>(index)];
}

// Not as its parent: a window that goes must not take this one with it.
void ProgressWindow::standBefore(QWidget* window) { before_ = window && window != this ? window->window() : nullptr; }

void ProgressWindow::apply(const host::TEventoProgresso& event) {
    switch (event.Tipo) {
    case Event::Mostrar:
        begin();
        break;
    case Event::Fechar:
        finish();
        break;
    case Event::Titulo:
        setWindowTitle(fromMessage(event.Texto));
        break;
    case Event::Texto:
        level(event.Nivel).text->setText(fromMessage(event.Texto));
        break;
    case Event::Maximo:
        level(event.Nivel).bar->setRange(0, event.Valor);
        level(event.Nivel).bar->setValue(0);
        level(event.Nivel).bar->setFormat(QStringLiteral("%v de %m"));
        break;
    case Event::Passo:
        level(event.Nivel).bar->setValue(event.Valor);
        break;
    }
}

void ProgressWindow::showBusy(const QString& text) {
    setWindowTitle(QStringLiteral("Aguarde"));
    level(0).text->setText(text);
    begin();
    appear();
}

void ProgressWindow::begin() {
    cancelled_ = false;
    cancel_->setEnabled(true);
    ask(false);
    level(0); // never an empty window
    clock_.start();
    showTime();
    if (timer_ == 0)
        timer_ = startTimer(500);
    if (delay_ == 0 && !isVisible())
        delay_ = startTimer(ShowAfter);
}

void ProgressWindow::appear() {
    if (delay_ != 0)
        killTimer(std::exchange(delay_, 0));
    adjustSize();
    if (before_ && before_->windowHandle()) {
        winId(); // makes the native window
        windowHandle()->setTransientParent(before_->windowHandle());
        move(before_->frameGeometry().center() - rect().center());
    }
    show();
}

void ProgressWindow::finish() {
    hide();
    for (auto* timer : {&timer_, &delay_})
        if (*timer != 0)
            killTimer(std::exchange(*timer, 0));
    for (const auto& made : levels_) {
        delete made.text;
        delete made.bar;
    }
    levels_.clear();
    for (QLayoutItem* item = nullptr; (item = bars_->takeAt(0)) != nullptr;)
        delete item;
    setWindowTitle({});
}

void ProgressWindow::ask(bool asking) {
    time_->setVisible(!asking);
    question_->setVisible(asking);
    goOn_->setVisible(asking);
    cancel_->setText(asking ? QStringLiteral("Sim, &cancelar") : CancelText);
    (asking ? goOn_ : cancel_)->setFocus();
}

void ProgressWindow::cancel() {
    cancelled_ = true;
    ask(false);
    cancel_->setText(QStringLiteral("Cancelando..."));
    cancel_->setEnabled(false);
    if (onCancel)
        onCancel();
}

void ProgressWindow::showTime() {
    const auto seconds = clock_.elapsed() / 1000;
    time_->setText(QStringLiteral("Tempo decorrido: %1:%2")
                       .arg(seconds / 60, 2, 10, QLatin1Char('0'))
                       .arg(seconds % 60, 2, 10, QLatin1Char('0')));
}

void ProgressWindow::timerEvent(QTimerEvent* event) {
    if (event->timerId() == delay_)
        appear();
    else
        showTime();
}

void ProgressWindow::reject() {
    if (!cancelled_)
        ask(!question_->isVisible());
}

void ProgressWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (!cancelled_)
        ask(true);
}

} // namespace suite::desktop
