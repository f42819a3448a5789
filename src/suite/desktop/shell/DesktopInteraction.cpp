#include "suite/desktop/shell/DesktopInteraction.h"

#include "host/Servicos.h"
#include "paper/BandPages.h"
#include "suite/desktop/form/DialogWindow.h"
#include "suite/desktop/form/LookupWindow.h"
#include "suite/desktop/look/Text.h"
#include "suite/desktop/preview/PreviewWindow.h"
#include "suite/desktop/shell/Failures.h"
#include "suite/desktop/shell/MessageDialog.h"
#include "suite/paint/grid/TablePages.h"
#include "suite/paint/report/ReportFile.h"

#include <QApplication>

#include <utility>

namespace suite::desktop {

namespace {

constexpr std::chrono::milliseconds BusyAfter{1200}; // a call this long gets a window with Cancel
constexpr int TurnEvery = 40;                        // milliseconds, while a progress window tells its steps

QStyle::StandardPixmap iconOf(host::TNivelMensagem level) {
    switch (level) {
    case host::TNivelMensagem::Erro:
        return QStyle::SP_MessageBoxCritical;
    case host::TNivelMensagem::Confirmacao:
        return QStyle::SP_MessageBoxQuestion;
    default:
        return QStyle::SP_MessageBoxInformation;
    }
}

} // namespace

DesktopInteraction::DesktopInteraction(Aside& aside, std::function<void()> cancelStatement) : aside_(aside) {
    progress_ = std::make_unique<ProgressWindow>(nullptr);
    busy_ = std::make_unique<ProgressWindow>(nullptr);
    progress_->onCancel = cancelStatement;
    busy_->onCancel = std::move(cancelStatement);
    busy_->setObjectName(QStringLiteral("aguarde"));
    aside_.admits = [this](const QWidget& window) { return &window == progress_.get() || &window == busy_.get(); };
    aside_.onWaiting = [this](auto since) { waiting(since); };
    aside_.onWaited = [this] { waited(); };
    lastTurn_.start();
}

DesktopInteraction::~DesktopInteraction() {
    aside_.admits = {};
    aside_.onWaiting = {};
    aside_.onWaited = {};
}

void DesktopInteraction::attach(QWidget* window, FormBinding* binding) {
    dialogs_.clear();
    window_ = window;
    binding_ = binding;
}

QWidget* DesktopInteraction::front() const {
    auto* modal = QApplication::activeModalWidget();
    return modal ? modal : window_;
}

int DesktopInteraction::Mensagem(const host::TMensagem& message) {
    MessageContent content;
    content.icon = iconOf(message.Nivel);
    content.title = fromUtf8(message.Titulo);
    content.text = fromMessage(message.Texto);
    for (const auto& button : message.Botoes)
        content.buttons.append(fromUtf8(button));
    content.defaultCode = message.Padrao;
    content.details = message.Causa ? fromUtf8(message.Causa->Diagnostico()) : fromMessage(message.Detalhes);
    return MessageDialog(content, front()).ask();
}

void DesktopInteraction::Progresso(const host::TEventoProgresso& event) {
    if (event.Tipo == host::TEventoProgresso::TTipo::Mostrar)
        progress_->standBefore(front());
    progress_->apply(event);
    turnNowAndThen();
}

bool DesktopInteraction::ProgressoCancelado() {
    turnNowAndThen();
    return progress_->cancelled();
}

void DesktopInteraction::turnNowAndThen() {
    if (lastTurn_.elapsed() < TurnEvery)
        return;
    ProcessarMensagens();
}

void DesktopInteraction::ProcessarMensagens() {
    aside_.turn(progress_->isVisible() ? Aside::UserInput::Dropped : Aside::UserInput::Waits);
    lastTurn_.restart();
}

void DesktopInteraction::waiting(std::chrono::milliseconds since) {
    const bool told = progress_->isVisible() || busy_->isVisible();
    if (told == waitCursor_) {
        waitCursor_ = !told;
        told ? QGuiApplication::restoreOverrideCursor() : QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    }
    if (told || since < BusyAfter)
        return;
    busy_->standBefore(front());
    busy_->showBusy(QStringLiteral("Aguardando o banco de dados..."));
}

void DesktopInteraction::waited() {
    if (std::exchange(waitCursor_, false))
        QGuiApplication::restoreOverrideCursor();
    if (busy_->isVisible())
        busy_->finish();
}

DialogWindow& DesktopInteraction::dialogOf(host::TFormZTTandorPadraoResult& form) {
    auto& dialog = dialogs_[&form];
    if (!dialog) {
        dialog = std::make_unique<DialogWindow>(form, window_);
        dialog->binding().onFailure = onFailure;
    }
    return *dialog;
}

void DesktopInteraction::MostrarModal(host::TFormZTTandorPadraoResult& form) {
    auto& dialog = dialogOf(form);
    if (std::exchange(confirmNext_, false))
        dialog.binding().attempt([&] { form.Executar(form.Acao("actOK")); });
    if (form.Aberto())
        dialog.run();
    if (form.Aberto()) // the program is ending
        form.Executar(form.Acao("actSair"));
}

bool DesktopInteraction::Falha(const base::TFalha& failure) {
    if (onFailure)
        onFailure(failure);
    return true;
}

void DesktopInteraction::show(const PreviewContent& content) {
    PreviewWindow preview(content, front());
    preview.onFailure = [&](const std::exception& failure) { showFailure(failure, {}, &preview); };
    preview.run();
}

void DesktopInteraction::MostrarRelatorio(const host::TImpressao& print) {
    const auto made = host::Servicos().Agora ? host::Servicos().Agora() : base::TDataHora();
    const auto document = paint::documentOf(print.Relatorio, program, made);
    const auto as = [&](paint::ReportFormat format) {
        return [&, format](const std::filesystem::path& file) {
            paint::writeReport(print.Relatorio, file, format, document);
        };
    };
    show({QStringLiteral("Visualizando"),
          document,
          [&] { return std::make_unique<paper::BandPages>(print.Relatorio, paint::paperMeasure()); },
          {{QStringLiteral(".xlsx"), QStringLiteral("Planilha"), as(paint::ReportFormat::Xlsx)},
           {QStringLiteral(".html"), QStringLiteral("Página"), as(paint::ReportFormat::Html)},
           {QStringLiteral(".txt"), QStringLiteral("Texto"), as(paint::ReportFormat::Text)}}});
}

void DesktopInteraction::MostrarImpressaoGrade(const host::TImpressaoGrade& print) {
    const auto* table = tableInView ? tableInView() : nullptr;
    if (!table)
        return;
    auto heading = headingOf(*table);
    if (heading.criteria.empty())
        heading.criteria.emplace_back();
    heading.criteria.front().Valor = print.Titulo;
    auto document = paint::documentOf(heading);
    document.title = print.Documento;
    show({fromUtf8(print.Legenda),
          std::move(document),
          [&] {
              return std::make_unique<paint::TablePages>(*table, heading, print.Papel, paint::paperMeasure(),
                                                         paint::TablePages::Foot::None);
          },
          {}});
}

void DesktopInteraction::Focar(host::TControle& control) {
    for (const auto& [form, dialog] : dialogs_)
        if (dialog->binding().has(control))
            return dialog->binding().focus(control);
    if (binding_ && binding_->has(control))
        binding_->focus(control);
}

void DesktopInteraction::Pesquisar(host::TZTLookupEx& lookup) { searchIn(lookup, front()); }

} // namespace suite::desktop
