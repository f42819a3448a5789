#include "suite/desktop/shell/MainWindow.h"

#include "suite/desktop/chart/ChartPane.h"
#include "suite/desktop/grid/GridPane.h"
#include "suite/desktop/look/EmptyState.h"
#include "suite/desktop/look/Icons.h"
#include "suite/desktop/look/Text.h"
#include "suite/desktop/look/UserSettings.h"
#include "suite/desktop/shell/Failures.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QScreen>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>

namespace suite::desktop {

namespace {

constexpr int SecondsOfMessage = 8;

} // namespace

MainWindow::MainWindow(host::TFormZTTandorPadraoSelecao& form, WindowServices services)
    : form_(form), services_(std::move(services)), binding_(std::make_unique<FormBinding>(form, *this)),
      views_{{"DbgCtbOrcada",
              "GdlConsultarProj",
              "PnlLegenda",
              {"LblCorRecRealizMaiorProj", "LblRecRealizMaiorProj", "LblCorRecRealizMenorProj", "LblRecRealizMenorProj",
               "LblCorDespRealizMaiorProj", "LblDespRealizMaiorProj", "LblCorDespRealizMenorProj",
               "LblDespRealizMenorProj"}},
             {"DbgMostraCtbOrcMensal",
              "GdlMostraCtbOrcMensal",
              "PnlLegendaGradeOrcMensal",
              {"LblLegendaGradeOrcMensal"}}} {
    setObjectName(fromUtf8(form.Nome()));
    setWindowTitle(QStringLiteral("%1 - %2").arg(fromUtf8(form.Titulo()), fromUtf8(services_.company)));
    setWindowIcon(programIcon());
    binding_->onFailure = [this](const std::exception& failure) { fail(failure); };
    makeActions();
    makeToolBar();
    makeMenus();
    makeBody();
    makeStatus();
    refresh();
    const auto screen = QGuiApplication::primaryScreen()->availableSize();
    resize(screen.boundedTo(QSize(1280, 800)));
    restoreGeometry(settings::state("janela/geometria"));
    splitter_->restoreState(settings::state("janela/divisao"));
}

MainWindow::~MainWindow() {
    settings::keepState("janela/geometria", saveGeometry());
    settings::keepState("janela/divisao", splitter_->saveState());
}

QWidget* MainWindow::makeLegend(const View& view, QWidget* parent) {
    auto* legend = new QWidget(parent);
    legend->setObjectName(QString::fromLatin1(view.legend));
    auto* row = new QHBoxLayout(legend);
    row->setContentsMargins(12, 5, 12, 5);
    row->setSpacing(6);
    for (const auto& name : view.labels) {
        row->addWidget(binding_->widget(name));
        const auto* swatch = dynamic_cast<const host::TLabelColorido*>(&form_.Controle(name));
        if (!swatch || !swatch->Amostra())
            row->addSpacing(14);
    }
    row->addStretch(1);
    return legend;
}

void MainWindow::makeBody() {
    auto* body = new QWidget(this);
    auto* column = new QVBoxLayout(body);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);

    auto* title = new QLabel(body);
    title->setObjectName(QStringLiteral("PnlTitulo"));
    title->setTextFormat(Qt::PlainText);
    title->setContentsMargins(12, 8, 12, 8);
    auto font = title->font();
    font.setPointSizeF(font.pointSizeF() * 1.1);
    font.setBold(true);
    title->setFont(font);
    title->setBackgroundRole(QPalette::AlternateBase);
    title->setAutoFillBackground(true);
    auto& titleControl = form_.Controle("PnlTitulo");
    binding_->follow(titleControl, [title, &titleControl] {
        title->setText(fromMessage(titleControl.Caption()));
        title->setVisible(titleControl.Visible());
    });
    column->addWidget(title);

    splitter_ = new QSplitter(body);
    splitter_->setChildrenCollapsible(false);
    auto* grids = new QWidget(splitter_);
    grids->setObjectName(QStringLiteral("PnlGrades"));
    auto* stack = new QVBoxLayout(grids);
    stack->setContentsMargins(0, 0, 0, 0);
    column->addWidget(splitter_, 1);
    for (auto& view : views_) {
        auto* grid = binding_->widget(view.grid);
        stack->addWidget(grid, 1);
        view.pane = qobject_cast<GridPane*>(grid);
        if (view.pane) {
            if (auto* layouts = dynamic_cast<host::TZTDbGridDevLeiaute*>(&form_.Controle(view.layouts)))
                view.pane->setLayouts(*layouts);
            connect(view.pane, &GridPane::linesChanged, this, [this] { showRows(); });
        }
        auto* legend = makeLegend(view, body);
        column->addWidget(legend);
        binding_->follow(form_.Controle(view.grid), [this] { refresh(); });
        auto& legendControl = form_.Controle(view.legend);
        binding_->follow(legendControl, [legend, &legendControl] { legend->setVisible(legendControl.Visible()); });
    }
    empty_ = new EmptyState(*select_, grids);
    stack->addWidget(empty_, 1);
    chart_ = new ChartPane(splitter_);
    setSidePane(chart_);
    setCentralWidget(body);
}

void MainWindow::makeStatus() {
    const auto add = [this](const std::string& text, const QString& tip) {
        if (text.empty())
            return;
        auto* label = new QLabel(fromUtf8(text), this);
        label->setTextFormat(Qt::PlainText);
        label->setToolTip(tip);
        label->setContentsMargins(6, 1, 6, 1);
        statusBar()->addWidget(label);
    };
    add(services_.company, QStringLiteral("Empresa"));
    add(services_.establishment, QStringLiteral("Estabelecimento"));
    add(services_.user, QStringLiteral("Usuário"));
    const auto& database = services_.database;
    add(database.substr(database.rfind('/') + 1), QStringLiteral("Banco de dados: ") + fromUtf8(database));
    rows_ = new QLabel(this);
    rows_->setObjectName(QStringLiteral("linhas"));
    time_ = new QLabel(this);
    time_->setObjectName(QStringLiteral("segundos"));
    for (auto* label : {rows_, time_}) {
        label->setContentsMargins(6, 1, 6, 1);
        statusBar()->addPermanentWidget(label);
    }
    for (const auto* source : form_.Fontes())
        if (source->DataSet)
            dataChanges_.push_back(source->DataSet->AoMudarEstado([this] { refresh(); }));
}

void MainWindow::setSidePane(QWidget* pane) {
    splitter_->addWidget(pane);
    splitter_->setStretchFactor(0, 1);
    splitter_->setStretchFactor(1, 0);
    splitter_->setSizes({width(), pane->sizeHint().width()});
    pane->hide();
    side_->setVisible(true);
    connect(side_, &QAction::toggled, pane, &QWidget::setVisible);
}

GridPane* MainWindow::paneInView() const {
    const auto* grid = form_.GradeEmVista();
    for (const auto& view : views_)
        if (grid && grid->Nome() == view.grid)
            return view.pane;
    return nullptr;
}

void MainWindow::refresh() {
    if (!rows_ || !chart_)
        return;
    empty_->setVisible(!form_.GradeEmVista());
    lastUpdate_->setEnabled(!form_.DescreverUltimaAtualizacao().empty());
    empty_->setSelected(selected_);
    chart_->setPane(paneInView());
    showRows();
}

void MainWindow::showRows() {
    const auto* grid = form_.GradeEmVista();
    const auto* rows = grid ? grid->DataSet() : nullptr;
    const auto* pane = paneInView();
    const bool open = rows && rows->Active();
    const auto number = [](std::size_t value) { return QLocale().toString(static_cast<qulonglong>(value)); };
    const auto all = open ? rows->RecordCount() : 0;
    const auto shown = pane && open ? pane->lines().size() : all;
    rows_->setText(!open          ? QString()
                   : shown == all ? number(all) + (all == 1 ? QStringLiteral(" linha") : QStringLiteral(" linhas"))
                                  : QStringLiteral("%1 de %2 linhas").arg(number(shown), number(all)));
    time_->setText(open && services_.lastQuerySeconds
                       ? QStringLiteral("%1 s").arg(QLocale().toString(services_.lastQuerySeconds(), 'f', 2))
                       : QString());
    time_->setToolTip(QStringLiteral("Tempo da última consulta"));
    const bool exportable = pane && shown > 0;
    export_->setEnabled(exportable);
    exportButton_->setEnabled(exportable);
    exportButton_->setToolTip(exportable ? QStringLiteral("Exportar o que a grade mostra (Ctrl+E: planilha)")
                                         : QStringLiteral("Não há linhas para exportar"));
    repeat_->setEnabled(selected_ && services_.confirmNextModal);
}

void MainWindow::fail(const std::exception& failure) {
    if (isCancel(failure))
        statusBar()->showMessage(QStringLiteral("A operação foi cancelada."), SecondsOfMessage * 1000);
    auto* front = QApplication::activeModalWidget();
    showFailure(failure, services_.reconnect, front ? front : this);
}

void MainWindow::select() {
    binding_->attempt([this] { form_.Executar(form_.Acao("ActSelecionar")); });
    for (const auto* source : form_.Fontes())
        selected_ = selected_ || (source->DataSet && source->DataSet->Active());
    refresh();
}

void MainWindow::repeat() {
    services_.confirmNextModal(true);
    select();
    services_.confirmNextModal(false); // a failure may have come before the dialog
}

MainWindow::End MainWindow::run() {
    end_ = End::Closed;
    QEventLoop loop;
    closed_ = [&loop] { loop.quit(); };
    show();
    loop.exec();
    closed_ = {};
    return end_;
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (services_.busy()) {
        event->ignore();
        return;
    }
    event->accept();
    if (closed_)
        closed_();
}

} // namespace suite::desktop
