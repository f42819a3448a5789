#include "suite/desktop/shell/MessageDialog.h"

#include <QApplication>
#include <QClipboard>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QToolButton>

#include <algorithm>

namespace suite::desktop {

namespace {

constexpr int WidestText = 560;
constexpr int NarrowestText = 260;

// "Sim" and "Não" become "&Sim" and "&Não"; the second of two with the same letter takes its next one.
QString withLetter(const QString& caption, QString& taken) {
    if (caption.contains(QLatin1Char('&')))
        return caption;
    for (int i = 0; i < caption.size(); ++i)
        if (const auto letter = caption[i].toLower(); letter.isLetter() && !taken.contains(letter)) {
            taken += letter;
            return QString(caption).insert(i, QLatin1Char('&'));
        }
    return caption;
}

QChar letterOf(const QPushButton& button) {
    const auto mark = button.text().indexOf(QLatin1Char('&'));
    return mark < 0 || mark + 1 >= button.text().size() ? QChar() : button.text()[mark + 1].toLower();
}

QWidget* makeText(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setObjectName(QStringLiteral("texto"));
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    const int natural = label->sizeHint().width();
    label->setWordWrap(natural > WidestText);
    label->setMinimumWidth(std::clamp(natural, NarrowestText, WidestText));
    const int most = QGuiApplication::primaryScreen()->availableSize().height() * 6 / 10;
    if (label->heightForWidth(WidestText) <= most && label->sizeHint().height() <= most)
        return label;
    auto* scroll = new QScrollArea(parent);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setWidget(label);
    scroll->setMinimumSize(label->minimumWidth() + 30, most);
    return scroll;
}

} // namespace

MessageDialog::MessageDialog(const MessageContent& content, QWidget* parent)
    : QDialog(parent), text_(content.text), details_(content.details) {
    setWindowTitle(content.title);
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(18, 18, 18, 14);
    layout->setHorizontalSpacing(16);
    layout->setVerticalSpacing(12);
    auto* icon = new QLabel(this);
    const int size = style()->pixelMetric(QStyle::PM_MessageBoxIconSize);
    icon->setPixmap(style()->standardIcon(content.icon).pixmap(size, size));
    layout->addWidget(icon, 0, 0, Qt::AlignTop);
    layout->addWidget(makeText(content.text, this), 0, 1);
    layout->setColumnStretch(1, 1);
    if (!content.details.isEmpty())
        addDetails(content.details);
    addButtons(content);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void MessageDialog::addDetails(const QString& details) {
    auto* text = new QPlainTextEdit(details, this);
    text->setObjectName(QStringLiteral("detalhes"));
    text->setReadOnly(true);
    text->setMinimumSize(WidestText, fontMetrics().lineSpacing() * 8);
    text->hide();
    static_cast<QGridLayout*>(layout())->addWidget(text, 2, 0, 1, 2);
}

void MessageDialog::addButtons(const MessageContent& content) {
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    if (auto* details = findChild<QPlainTextEdit*>(QStringLiteral("detalhes"))) {
        auto* fold = new QToolButton(this);
        fold->setObjectName(QStringLiteral("abrirDetalhes"));
        fold->setText(QStringLiteral("&Detalhes"));
        fold->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        fold->setArrowType(Qt::RightArrow);
        fold->setCheckable(true);
        fold->setAutoRaise(true);
        fold->setFocusPolicy(Qt::StrongFocus);
        connect(fold, &QToolButton::toggled, this, [fold, details](bool open) {
            fold->setArrowType(open ? Qt::DownArrow : Qt::RightArrow);
            details->setVisible(open);
        });
        row->addWidget(fold);
    }
    row->addSpacing(24);
    row->addStretch(1);
    QString taken = details_.isEmpty() ? QString() : QStringLiteral("d");
    constexpr auto& Codes = host::TResposta::Todas;
    for (qsizetype i = 0; i < std::min<qsizetype>(content.buttons.size(), Codes.size()); ++i) {
        const int code = Codes[static_cast<std::size_t>(i)];
        auto* button = new QPushButton(withLetter(content.buttons[i], taken), this);
        button->setObjectName(QStringLiteral("botao%1").arg(code));
        button->setMinimumWidth(88);
        connect(button, &QPushButton::clicked, this, [this, code] { done(code); });
        row->addWidget(button);
        buttons_.append(button);
        escape_ = code;
        if (code == content.defaultCode || i == 0) {
            button->setDefault(true);
            button->setFocus();
        }
    }
    static_cast<QGridLayout*>(layout())->addLayout(row, 1, 0, 1, 2);
}

int MessageDialog::ask() {
    exec();
    return answer_;
}

// Esc and the window's own close come as 0.
void MessageDialog::done(int result) {
    answer_ = result == 0 ? escape_ : result;
    QDialog::done(result);
}

void MessageDialog::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        QGuiApplication::clipboard()->setText(details_.isEmpty() ? text_ : text_ + QStringLiteral("\n\n") + details_);
        return;
    }
    if (!event->text().isEmpty() && (event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == 0)
        for (auto* button : buttons_)
            if (letterOf(*button) == event->text()[0].toLower()) {
                button->click();
                return;
            }
    QDialog::keyPressEvent(event);
}

} // namespace suite::desktop
