#include "suite/desktop/preview/PreviewWindow.h"

#include "base/ArquivoInteiro.h"
#include "base/Texto.h"
#include "suite/desktop/look/Text.h"
#include "suite/desktop/look/UserSettings.h"
#include "suite/desktop/preview/PageMarks.h"
#include "suite/desktop/preview/PageOutline.h"
#include "suite/desktop/preview/PageThumbnails.h"
#include "suite/desktop/preview/PrintDialog.h"

#include "base/Falhas.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QLocale>
#include <QSpinBox>
#include <QSplitter>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace suite::desktop {

namespace {

constexpr const char* FolderSetting = "imprimir/pasta";
constexpr const char* ZoomSetting = "imprimir/zoom";
constexpr const char* WindowState = "visualizacao";
constexpr int SideWidth = 190;
constexpr double Percents[] = {0.5, 0.75, 1, 1.25, 1.5, 2, 3};

QKeySequence keys(const char* text) { return QKeySequence(QString::fromLatin1(text)); }

QString percent(double zoom) { return QStringLiteral("%1 %").arg(qRound(zoom * 100)); }

// Without what a name of a file may not have.
QString fileNameOf(const std::string& title) {
    auto name = fromUtf8(title).toLower();
    for (auto& letter : name)
        if (QStringLiteral("/\\:*?\"<>|").contains(letter))
            letter = QLatin1Char(' ');
    return name.simplified();
}

} // namespace

PreviewWindow::PreviewWindow(const PreviewContent& content, QWidget* parent)
    : QDialog(parent, Qt::Window | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint), content_(content),
      store_(content_.pages()), view_(new PageView(store_, this)), side_(new QTabWidget(this)),
      bar_(new QToolBar(this)), told_(new QLabel(this)) {
    setObjectName(QStringLiteral("Visualizacao"));
    setWindowTitle(content_.caption + QStringLiteral(" - ") + fromUtf8(content_.document.title));
    makeSide();
    makeBar();
    auto* splitter = new QSplitter(this);
    splitter->addWidget(side_);
    splitter->addWidget(view_);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({SideWidth, 10 * SideWidth});
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(bar_);
    column->addWidget(splitter, 1);
    connect(&store_, &PageStore::grown, this, [this] { grown(); });
    connect(view_, &PageView::pageChanged, this, [this] { showPage(); });
    connect(view_, &PageView::zoomChanged, this, [this] { showZoom(); });
    if (const auto state = settings::state(WindowState); state.isEmpty())
        setWindowState(Qt::WindowMaximized);
    else
        restoreGeometry(state);
    const auto zoom = settings::value(ZoomSetting);
    if (zoom == QStringLiteral("pagina"))
        view_->setFit(PageView::Fit::Page);
    else if (zoom.toDouble() > 0)
        view_->setZoom(zoom.toDouble());
    grown();
    showZoom();
    view_->setFocus();
}

PreviewWindow::~PreviewWindow() {
    settings::keepState(WindowState, saveGeometry());
    settings::keepValue(ZoomSetting, view_->fit() == PageView::Fit::Width  ? QStringLiteral("largura")
                                     : view_->fit() == PageView::Fit::Page ? QStringLiteral("pagina")
                                                                           : QString::number(view_->zoom()));
}

void PreviewWindow::makeSide() {
    outline_ = new PageOutline(store_, this);
    auto* model = new PageThumbnails(store_, devicePixelRatioF(), this);
    thumbnails_ = new QListView(this);
    thumbnails_->setObjectName(QStringLiteral("Miniaturas"));
    thumbnails_->setAccessibleName(QStringLiteral("Miniaturas das páginas"));
    thumbnails_->setModel(model);
    thumbnails_->setViewMode(QListView::IconMode);
    thumbnails_->setIconSize(model->pictureSize());
    thumbnails_->setGridSize(model->pictureSize() + QSize(24, 30));
    thumbnails_->setUniformItemSizes(true);
    thumbnails_->setMovement(QListView::Static);
    thumbnails_->setResizeMode(QListView::Adjust);
    connect(thumbnails_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& now) {
        if (now.isValid() && now.row() != view_->currentPage())
            view_->goTo(now.row());
    });
    connect(outline_, &PageOutline::chosen, this, [this](int page, int y) { view_->goTo(page, y); });
    side_->addTab(thumbnails_, QStringLiteral("&Páginas"));
    side_->addTab(outline_, QStringLiteral("Í&ndice"));
}

QAction* PreviewWindow::add(const char* name, const QString& text, const QString& tip, const QKeySequence& sequence,
                            const std::function<void()>& deed) {
    auto* action = bar_->addAction(text);
    action->setObjectName(QString::fromLatin1(name));
    action->setShortcut(sequence);
    action->setToolTip(QStringLiteral("%1 (%2)").arg(tip, sequence.toString(QKeySequence::NativeText)));
    connect(action, &QAction::triggered, this, deed);
    return action;
}

void PreviewWindow::makeBar() {
    add("imprimir", QStringLiteral("&Imprimir..."), QStringLiteral("Imprimir"), keys("Ctrl+P"),
        [this] { attempt([this] { print(); }); });
    add("salvar", QStringLiteral("&Salvar..."), QStringLiteral("Salvar em PDF ou planilha"), keys("Ctrl+S"),
        [this] { attempt([this] { save(); }); });
    bar_->addSeparator();
    addPages();
    bar_->addSeparator();
    addZoom();
    bar_->addSeparator();
    addSearch();
    told_->setObjectName(QStringLiteral("Aviso"));
    told_->setMargin(6);
    bar_->addWidget(told_);
    auto* space = new QWidget(this);
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar_->addWidget(space);
    add("fechar", QStringLiteral("&Fechar"), QStringLiteral("Fechar"), keys("Esc"), [this] { close(); });
    for (auto* action : bar_->actions())
        if (auto* button = qobject_cast<QToolButton*>(bar_->widgetForAction(action)))
            button->setFocusPolicy(Qt::TabFocus);
}

void PreviewWindow::addPages() {
    add("anterior", QStringLiteral("◀"), QStringLiteral("Página anterior"), keys("Ctrl+PgUp"),
        [this] { view_->goTo(view_->currentPage() - 1); });
    number_ = new QSpinBox(this);
    number_->setObjectName(QStringLiteral("EdtPagina"));
    number_->setAccessibleName(QStringLiteral("Página"));
    number_->setKeyboardTracking(false);
    number_->setButtonSymbols(QAbstractSpinBox::NoButtons);
    number_->setMinimumWidth(56);
    connect(number_, &QSpinBox::valueChanged, this, [this](int page) {
        if (page - 1 != view_->currentPage())
            view_->goTo(page - 1);
    });
    bar_->addWidget(number_);
    count_ = new QLabel(this);
    count_->setObjectName(QStringLiteral("QuantasPaginas"));
    count_->setMargin(4);
    bar_->addWidget(count_);
    add("proxima", QStringLiteral("▶"), QStringLiteral("Página seguinte"), keys("Ctrl+PgDown"),
        [this] { view_->goTo(view_->currentPage() + 1); });
}

void PreviewWindow::addZoom() {
    zoom_ = new QComboBox(this);
    zoom_->setObjectName(QStringLiteral("CbZoom"));
    zoom_->setAccessibleName(QStringLiteral("Tamanho"));
    zoom_->setToolTip(QStringLiteral("Tamanho (+, -, Ctrl e a roda do mouse)"));
    zoom_->addItem(QStringLiteral("Largura da página"));
    zoom_->addItem(QStringLiteral("Página inteira"));
    for (const auto each : Percents)
        zoom_->addItem(percent(each), each);
    zoom_->setPlaceholderText(percent(3));
    zoom_->setMinimumContentsLength(16);
    connect(zoom_, &QComboBox::activated, this, [this](int index) {
        if (index < 2)
            view_->setFit(index == 0 ? PageView::Fit::Width : PageView::Fit::Page);
        else
            view_->setZoom(zoom_->itemData(index).toDouble());
    });
    bar_->addWidget(zoom_);
}

void PreviewWindow::addSearch() {
    auto* label = new QLabel(QStringLiteral("&Localizar:"), this);
    label->setMargin(4);
    bar_->addWidget(label);
    words_ = new QLineEdit(this);
    words_->setObjectName(QStringLiteral("EdtLocalizar"));
    words_->setAccessibleName(QStringLiteral("Localizar em todas as páginas"));
    words_->setClearButtonEnabled(true);
    words_->setMaximumWidth(220);
    label->setBuddy(words_);
    bar_->addWidget(words_);
    connect(words_, &QLineEdit::textChanged, this, [this](const QString& typed) {
        told_->clear();
        view_->highlight(base::SemAcentos(toUtf8(typed)));
    });
    add("achar", QStringLiteral("▼"), QStringLiteral("Próxima ocorrência"), keys("F3"), [this] { seek(true); });
    add("acharAntes", QStringLiteral("▲"), QStringLiteral("Ocorrência anterior"), keys("Shift+F3"),
        [this] { seek(false); });
    auto* search = new QAction(this);
    search->setShortcut(keys("Ctrl+F"));
    connect(search, &QAction::triggered, this, [this] {
        words_->setFocus(Qt::ShortcutFocusReason);
        words_->selectAll();
    });
    addAction(search);
}

void PreviewWindow::grown() {
    number_->setRange(1, std::max(1, store_.count()));
    count_->setText(store_.complete()
                        ? QStringLiteral("de %1").arg(QLocale().toString(store_.count()))
                        : QStringLiteral("de %1, preparando as demais...").arg(QLocale().toString(store_.count())));
    side_->setTabVisible(side_->indexOf(outline_), outline_->topLevelItemCount() > 0);
    if (store_.failure() && !std::exchange(failed_, true))
        QMetaObject::invokeMethod(
            this, [this] { attempt([this] { std::rethrow_exception(store_.failure()); }); }, Qt::QueuedConnection);
}

void PreviewWindow::showPage() {
    const QSignalBlocker quiet(number_);
    number_->setValue(view_->currentPage() + 1);
    thumbnails_->setCurrentIndex(thumbnails_->model()->index(view_->currentPage(), 0));
}

void PreviewWindow::showZoom() {
    if (view_->fit() != PageView::Fit::None)
        return zoom_->setCurrentIndex(view_->fit() == PageView::Fit::Width ? 0 : 1);
    const auto now = percent(view_->zoom());
    zoom_->setCurrentIndex(zoom_->findText(now));
    zoom_->setPlaceholderText(now);
}

// Enter in the fields goes on there, and Esc closes the window.
void PreviewWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (words_->hasFocus())
            seek((event->modifiers() & Qt::ShiftModifier) == 0);
        return;
    }
    QDialog::keyPressEvent(event);
}

std::optional<TextPlace> PreviewWindow::nextHit(const std::string& wanted, bool forward) const {
    const auto pages = store_.count();
    const auto start = view_->marked() ? view_->marked()->page : view_->currentPage();
    for (int step = 0; step <= pages; ++step) {
        const auto page = ((forward ? start + step : start - step) % pages + pages) % pages;
        const auto& sought = store_.page(page);
        const bool here = step == 0 && view_->marked();
        const auto hit = forward ? findText(sought, here ? view_->marked()->text + 1 : 0, wanted)
                                 : findTextBack(sought, here ? view_->marked()->text : sought.texts.size(), wanted);
        if (hit)
            return TextPlace{page, *hit};
    }
    return {};
}

void PreviewWindow::seek(bool forward) {
    const auto wanted = base::SemAcentos(toUtf8(words_->text()));
    if (wanted.empty() || store_.count() == 0)
        return;
    const auto hit = nextHit(wanted, forward);
    told_->setText(hit                 ? QString()
                   : store_.complete() ? QStringLiteral("Nada encontrado.")
                                       : QStringLiteral("Nada encontrado nas páginas já prontas."));
    if (hit)
        view_->mark(*hit);
}

void PreviewWindow::attempt(const std::function<void()>& deed) {
    try {
        deed();
    } catch (const std::exception& failure) {
        if (onFailure)
            onFailure(failure);
    }
}

void PreviewWindow::write(const std::filesystem::path& file) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    struct Restore {
        ~Restore() { QGuiApplication::restoreOverrideCursor(); }
    } const restore;
    const auto pages = content_.pages();
    paint::writePdf(*pages, file, content_.document);
}

void PreviewWindow::save() {
    QStringList kinds{QStringLiteral("Documento (*.pdf)")};
    for (const auto& other : content_.others)
        kinds.append(QStringLiteral("%1 (*%2)").arg(other.caption, other.ending));
    QFileDialog dialog(this, QStringLiteral("Salvar"), settings::value(FolderSetting, QDir::homePath()));
    dialog.setNameFilters(kinds);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    const auto takeEnding = [&](const QString& kind) {
        dialog.setDefaultSuffix(kind.section(QStringLiteral("*."), 1).chopped(1));
    };
    takeEnding(kinds.constFirst());
    connect(&dialog, &QFileDialog::filterSelected, &dialog, takeEnding);
    dialog.selectFile(fileNameOf(content_.document.title));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return;
    const auto file = dialog.selectedFiles().constFirst();
    settings::keepValue(FolderSetting, QFileInfo(file).absolutePath());
    saveAs(file);
    told_->setText(QStringLiteral("Salvo em %1").arg(QFileInfo(file).fileName()));
    told_->setToolTip(file);
}

void PreviewWindow::saveAs(const QString& file) {
    for (const auto& other : content_.others)
        if (file.endsWith(other.ending, Qt::CaseInsensitive))
            return other.write(toUtf8(file));
    if (!file.endsWith(QStringLiteral(".pdf"), Qt::CaseInsensitive))
        throw base::TFalha("Escolha um nome que termine em .pdf ou num dos outros formatos da lista.");
    base::GravarArquivoInteiro(toUtf8(file), [this](const std::filesystem::path& aside) { write(aside); });
}

void PreviewWindow::print() {
    const auto printers = spooler::printers();
    if (printers.isEmpty())
        throw base::TFalha("Nenhuma impressora foi encontrada neste computador. Instale uma, ou salve o relatório em "
                           "PDF e imprima-o em outro.");
    PrintDialog dialog(printers, std::max(1, store_.count()), view_->currentPage() + 1, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QTemporaryDir folder;
    if (!folder.isValid())
        throw base::TFalha("Não foi possível preparar a impressão: " + toUtf8(folder.errorString()));
    const auto file = folder.filePath(QStringLiteral("relatorio.pdf"));
    write(toUtf8(file));
    auto job = dialog.job();
    job.title = fromUtf8(content_.document.title);
    spooler::print(file, job);
    told_->setText(QStringLiteral("Enviado para %1").arg(job.printer));
}

void PreviewWindow::run() { exec(); }

} // namespace suite::desktop
