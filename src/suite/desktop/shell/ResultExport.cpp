#include "suite/desktop/shell/ResultExport.h"

#include "suite/desktop/grid/GridPane.h"
#include "suite/desktop/look/Text.h"
#include "suite/desktop/look/UserSettings.h"
#include "suite/desktop/shell/MessageDialog.h"

#include <QApplication>
#include <QDate>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QMenu>
#include <QUrl>

namespace suite::desktop {

namespace {

constexpr const char* FolderSetting = "exportar/pasta";
constexpr int OpenFile = host::TResposta::Primeira;

} // namespace

ResultExport::ResultExport(ExportFunction write, std::vector<ExportFormat> formats, QWidget& window)
    : QObject(&window), write_(std::move(write)), formats_(std::move(formats)), window_(window),
      menu_(new QMenu(QStringLiteral("E&xportar"), &window)) {
    menu_->setObjectName(QStringLiteral("PmExtensoesGrade"));
    for (const auto& format : formats_) {
        auto* action = menu_->addAction(fromUtf8(format.caption));
        action->setObjectName(QStringLiteral("exportar") + fromUtf8(format.ending));
        if (&format == &formats_.front())
            action->setShortcut(QKeySequence(QStringLiteral("Ctrl+E")));
        connect(action, &QAction::triggered, this, [this, &format] { attempt([&] { toFile(format); }); });
    }
    menu_->addSeparator();
    auto* clipboard = menu_->addAction(QStringLiteral("Área de &transferência"));
    clipboard->setObjectName(QStringLiteral("exportarTransferencia"));
    clipboard->setShortcut(QKeySequence(QStringLiteral("Ctrl+Alt+C")));
    connect(clipboard, &QAction::triggered, this, [this] { attempt([this] { toClipboard(); }); });
}

void ResultExport::setEnabled(bool enabled) {
    menu_->setEnabled(enabled);
    for (auto* action : menu_->actions())
        action->setEnabled(enabled);
}

void ResultExport::toFile(const ExportFormat& format) {
    const auto* shown = pane();
    if (!shown)
        return;
    const auto ending = fromUtf8(format.ending);
    const auto name = QStringLiteral("orçado x realizado %1%2").arg(QDate::currentDate().toString(Qt::ISODate), ending);
    QFileDialog dialog(&window_, QStringLiteral("Exportar"), settings::value(FolderSetting, QDir::homePath()),
                       QStringLiteral("%1 (*%2)").arg(fromUtf8(format.caption).remove(QLatin1Char('&')), ending));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(ending.mid(1));
    dialog.selectFile(name);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return;
    const auto file = dialog.selectedFiles().constFirst();
    settings::keepValue(FolderSetting, QFileInfo(file).absolutePath());
    write(*shown, file);
}

void ResultExport::write(const GridPane& shown, const QString& file) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    struct Restore {
        ~Restore() { QGuiApplication::restoreOverrideCursor(); }
    };
    {
        const Restore restore;
        write_(shown.table(), toUtf8(file));
    }
    tell(QStringLiteral("Exportado para %1").arg(file));
    MessageContent done;
    done.title = QStringLiteral("Exportar");
    done.text = QStringLiteral("%1 linhas exportadas para\n%2")
                    .arg(QLocale().toString(static_cast<qulonglong>(shown.lines().size())), file);
    done.buttons = {QStringLiteral("&Abrir"), QStringLiteral("&Fechar")};
    done.defaultCode = host::TResposta::Segunda;
    if (MessageDialog(done, &window_).ask() == OpenFile)
        QDesktopServices::openUrl(QUrl::fromLocalFile(file));
}

void ResultExport::toClipboard() {
    auto* shown = pane();
    if (!shown)
        return;
    shown->copyAll();
    tell(QStringLiteral("%1 linhas copiadas, com os títulos das colunas")
             .arg(QLocale().toString(static_cast<qulonglong>(shown->lines().size()))));
}

} // namespace suite::desktop
