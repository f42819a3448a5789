#include "suite/desktop/form/DialogWindow.h"

#include "suite/desktop/form/DialogLayout.h"
#include "suite/desktop/look/Text.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QGuiApplication>
#include <QKeySequence>
#include <QPushButton>

#include <algorithm>

namespace suite::desktop {

namespace {

constexpr const char* Leave = "actSair"; // of the frame of all dialogs

} // namespace

DialogWindow::DialogWindow(host::TFormZTTandorPadraoResult& form, QWidget* parent)
    : QDialog(parent), binding_(form, *this), form_(form) {
    setObjectName(fromUtf8(form.Nome()));
    setWindowTitle(fromUtf8(form.Titulo()));
    const auto layout = layoutOf(form);
    placeWidgets(layout, binding_, *this);
    dressButtons(layout.buttons);
    binding_.giveUpBy(form_.Acao(Leave));
    if (dynamic_cast<const host::TFormZTTandorPadraoCalculos*>(&form)) {
        binding_.actionsLeaveNothing();
        for (const auto& name : layout.buttons)
            binding_.widget(name)->setFocusPolicy(Qt::NoFocus);
    }
    binding_.chainTabs();
    darkenDisabled();
}

// What is disabled is still read: half way between text and background, where styles go further.
void DialogWindow::darkenDisabled() {
    const auto text = QGuiApplication::palette().color(QPalette::Active, QPalette::WindowText);
    const auto window = QGuiApplication::palette().color(QPalette::Active, QPalette::Window);
    const QColor half((text.red() + window.red()) / 2, (text.green() + window.green()) / 2,
                      (text.blue() + window.blue()) / 2);
    if (palette().color(QPalette::Disabled, QPalette::WindowText) == half)
        return;
    QPalette colours; // all the others stay those of the application
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        colours.setColor(QPalette::Disabled, role, half);
    setPalette(colours);
}

void DialogWindow::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        darkenDisabled();
}

// Two buttons cannot share a mnemonic: the toolkit would then only move the focus between them.
void DialogWindow::dressButtons(const std::vector<std::string>& names) {
    std::vector<QKeySequence> taken;
    for (const auto& name : names) {
        auto* button = qobject_cast<QPushButton*>(binding_.widget(name));
        if (!button)
            continue;
        button->setDefault(&name == &names.front());
        const auto key = QKeySequence::mnemonic(button->text());
        if (std::find(taken.begin(), taken.end(), key) != taken.end())
            button->setText(button->text().remove(QLatin1Char('&')));
        else if (!key.isEmpty())
            taken.push_back(key);
    }
}

void DialogWindow::run() {
    if (!form_.Aberto())
        return;
    QEventLoop loop;
    const auto ended = connect(&binding_, &FormBinding::acted, this, [this, &loop] {
        if (!form_.Aberto())
            loop.quit();
    });
    setWindowModality(Qt::ApplicationModal);
    if (!focusWidget())
        binding_.focusFirst();
    show();
    activateWindow();
    loop.exec();
    disconnect(ended);
    if (auto* last = focusWidget())
        last->clearFocus(); // the next showing begins where its form says
    hide();
    if (parentWidget())
        parentWidget()->activateWindow(); // not every window manager gives the focus back
}

// Esc and the cross of the window are the form's own way out.
void DialogWindow::reject() {
    if (!form_.Aberto())
        QDialog::reject();
    else if (!binding_.busy())
        binding_.attempt([this] { form_.Executar(form_.Acao(Leave)); });
}

void DialogWindow::closeEvent(QCloseEvent* event) {
    if (!form_.Aberto())
        return QDialog::closeEvent(event);
    event->ignore();
    reject();
}

} // namespace suite::desktop
