#include "suite/desktop/grid/GridPane.h"
#include "suite/desktop/look/Appearance.h"
#include "suite/desktop/look/Icons.h"
#include "suite/desktop/look/Text.h"
#include "suite/desktop/look/UserSettings.h"
#include "suite/desktop/shell/MainWindow.h"
#include "suite/desktop/shell/MessageDialog.h"

#include <QActionGroup>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

namespace suite::desktop {

namespace {

constexpr int IconSize = 22;
constexpr const char* LookSetting = "aparencia";
constexpr const char* NotHere = "Não faz parte deste módulo";

QKeySequence keys(const char* text) { return QKeySequence(QString::fromLatin1(text)); }

} // namespace

host::TAction* MainWindow::find(const char* name) const {
    for (auto* control : form_.Controles())
        if (control->Nome() == name)
            return dynamic_cast<host::TAction*>(control);
    return nullptr;
}

QAction* MainWindow::addAction(const char* name, const QString& text, const QKeySequence& sequence,
                               std::function<void()> deed) {
    auto* action = new QAction(text, this);
    action->setObjectName(QString::fromLatin1(name));
    action->setShortcut(sequence);
    connect(action, &QAction::triggered, this, [deed = std::move(deed)] { deed(); });
    return action;
}

// An action of the form with its caption and state; where the form has none, disabled, with the reason.
QAction* MainWindow::formAction(const char* name, const char* otherwise, const char* absent) {
    auto* model = find(name);
    auto* action = addAction(name, QString::fromUtf8(otherwise), {}, [this, model] {
        binding_->attempt([&] { form_.Executar(*model); });
        refresh();
    });
    if (!model) {
        action->setEnabled(false);
        action->setToolTip(QString::fromUtf8(absent));
        return action;
    }
    binding_->follow(*model, [model, action] {
        if (!model->Caption().empty())
            action->setText(fromUtf8(model->Caption()));
        action->setEnabled(model->Enabled());
        action->setVisible(model->Visible());
    });
    return action;
}

void MainWindow::makeActions() {
    auto& model = form_.Acao("ActSelecionar");
    select_ = addAction("ActSelecionar", fromUtf8(model.Caption()), {}, [this] { select(); });
    select_->setShortcuts({keys("Ctrl+N"), keys("F2")});
    select_->setToolTip(QStringLiteral("Escolher período, cenário e filtros (Ctrl+N ou F2)"));
    binding_->follow(model, [this, &model] { select_->setEnabled(model.Enabled()); });
    repeat_ = addAction("repetir", QStringLiteral("&Repetir a consulta"), keys("F5"), [this] { repeat(); });
    repeat_->setToolTip(QStringLiteral("Consultar de novo com a última seleção (F5)"));
    actual_ = formAction("ActAtualizarRealizado", "&Atualizar Realizado", NotHere);
    lastUpdate_ = addAction("ultimaAtualizacao", QStringLiteral("Última a&tualização do realizado..."), {}, [this] {
        MessageContent content;
        content.title = QStringLiteral("Última atualização do realizado");
        content.buttons = QStringList{QStringLiteral("OK")};
        content.text = fromMessage(form_.DescreverUltimaAtualizacao());
        MessageDialog(content, this).ask();
    });
    print_ = formAction("ActImprimir", "&Imprimir", NotHere);
    printReport_ = formAction("ActImprimirRelatorio", "&Relatório...", NotHere);
    printGrid_ = formAction("ActImprimirGrade", "&Grade...", NotHere);
    print_->setShortcut(QKeySequence::Print);
    print_->setToolTip(QStringLiteral("Imprimir o relatório da consulta (Ctrl+P)"));
    select_->setIcon(icon(Symbol::Select));
    repeat_->setIcon(icon(Symbol::Repeat));
    actual_->setIcon(icon(Symbol::Actual));
    print_->setIcon(icon(Symbol::Print));
    export_ = new ResultExport(services_.write, services_.formats, *this);
    export_->pane = [this] { return paneInView(); };
    export_->attempt = [this](const std::function<void()>& deed) { binding_->attempt(deed); };
    export_->tell = [this](const QString& text) { statusBar()->showMessage(text, 8000); };
    exportButton_ = export_->menu().menuAction();
    exportButton_->setIcon(icon(Symbol::Export));
}

void MainWindow::makeToolBar() {
    auto* bar = new QToolBar(QStringLiteral("Barra de botões"), this);
    bar->setObjectName(QStringLiteral("barra"));
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    bar->setIconSize({IconSize, IconSize});
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->addAction(select_);
    bar->addAction(repeat_);
    bar->addSeparator();
    auto* printMenu = new QMenu(this);
    printMenu->setToolTipsVisible(true);
    printMenu->addActions({printReport_, printGrid_});
    auto* printButton = new QToolButton(bar);
    printButton->setDefaultAction(print_);
    printButton->setMenu(printMenu);
    printButton->setPopupMode(QToolButton::MenuButtonPopup);
    printButton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->addWidget(printButton);
    auto* exportMenu = new QToolButton(bar);
    exportMenu->setDefaultAction(exportButton_);
    exportMenu->setPopupMode(QToolButton::InstantPopup);
    exportMenu->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->addWidget(exportMenu);
    bar->addSeparator();
    bar->addAction(actual_);
    for (auto* action : bar->actions())
        if (auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(action)))
            button->setObjectName(action->objectName());
    addToolBar(bar);
}

void MainWindow::makeMenus() {
    auto* file = menuBar()->addMenu(QStringLiteral("&Arquivo"));
    file->addAction(addAction("outroBanco", QStringLiteral("Abrir &banco de dados..."), keys("Ctrl+O"), [this] {
        end_ = End::OtherDatabase;
        if (!close())
            end_ = End::Closed;
    }));
    auto* reconnect = addAction("conectar", QStringLiteral("Conectar &novamente"), {}, [this] {
        binding_->attempt([this] {
            services_.reconnect();
            statusBar()->showMessage(QStringLiteral("A conexão foi refeita."), 8000);
        });
    });
    reconnect->setEnabled(static_cast<bool>(services_.reconnect));
    file->addAction(reconnect);
    file->addSeparator();
    auto* print = file->addMenu(QStringLiteral("&Imprimir"));
    print->setToolTipsVisible(true);
    print->addActions({printReport_, printGrid_});
    file->addMenu(&export_->menu());
    file->addSeparator();
    file->addAction(addAction("sair", QStringLiteral("&Sair"), keys("Ctrl+Q"), [this] { close(); }));

    auto* query = menuBar()->addMenu(QStringLiteral("&Consulta"));
    query->addActions({select_, repeat_, actual_, lastUpdate_});

    view_ = menuBar()->addMenu(QStringLiteral("&Exibir"));
    looks_ = new QActionGroup(this);
    side_ = new QAction(QStringLiteral("&Gráfico ao lado"), this);
    side_->setObjectName(QStringLiteral("grafico"));
    side_->setCheckable(true);
    side_->setShortcut(keys("Ctrl+Shift+G"));
    side_->setVisible(false);
    connect(view_, &QMenu::aboutToShow, this, [this] { fillViewMenu(); });
    fillViewMenu();

    auto* help = menuBar()->addMenu(QStringLiteral("Aj&uda"));
    help->addAction(addAction("teclas", QStringLiteral("&Teclas..."), keys("F1"), [this] { showKeys(); }));
    help->addAction(addAction("sobre", QStringLiteral("&Sobre..."), {}, [this] { showAbout(); }));
}

// What the grid in view offers changes with it.
void MainWindow::fillViewMenu() {
    view_->clear();
    if (auto* pane = paneInView())
        pane->fillMenu(*view_);
    if (!view_->isEmpty())
        view_->addSeparator();
    view_->addAction(side_);
    auto* looks = view_->addMenu(QStringLiteral("&Aparência"));
    addLookActions(*looks);
    auto* full = findChild<QAction*>(QStringLiteral("telaCheia"));
    if (!full) {
        full = addAction("telaCheia", QStringLiteral("&Tela cheia"), keys("F11"),
                         [this] { setWindowState(windowState() ^ Qt::WindowFullScreen); });
        QWidget::addAction(full); // its key works before the menu has been opened
    }
    view_->addAction(full);
}

void MainWindow::addLookActions(QMenu& menu) {
    if (looks_->actions().isEmpty()) {
        const auto chosen = lookNamed(settings::value(LookSetting));
        for (const auto look : Looks) {
            auto* action = looks_->addAction(captionOf(look));
            action->setObjectName(QStringLiteral("aparencia-") + nameOf(look));
            action->setCheckable(true);
            action->setChecked(look == chosen);
            connect(action, &QAction::triggered, this, [look] {
                apply(look);
                settings::keepValue(LookSetting, nameOf(look));
            });
        }
    }
    menu.addActions(looks_->actions());
}

void MainWindow::showKeys() {
    MessageContent content;
    content.title = QStringLiteral("Teclas");
    content.buttons = {QStringLiteral("OK")};
    content.text = QStringLiteral("Ctrl+N ou F2\tSelecionar\n"
                                  "F5\tRepetir a consulta\n"
                                  "Ctrl+P\tImprimir\n"
                                  "Ctrl+E\tExportar para planilha\n"
                                  "Ctrl+Alt+C\tCopiar tudo, com títulos\n"
                                  "Ctrl+O\tAbrir outro banco de dados\n"
                                  "F11\tTela cheia; num campo de pesquisa, pesquisar\n"
                                  "Esc\tSair do diálogo\n"
                                  "Ctrl+Q\tSair do programa");
    MessageDialog(content, this).ask();
}

void MainWindow::showAbout() {
    MessageContent content;
    content.title = QStringLiteral("Sobre");
    content.text = fromUtf8(services_.version);
    content.buttons = {QStringLiteral("OK")};
    MessageDialog(content, this).ask();
}

} // namespace suite::desktop
