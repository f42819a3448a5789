#include "suite/desktop/look/EmptyState.h"

#include "suite/desktop/look/Icons.h"

#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace suite::desktop {

namespace {

constexpr int Picture = 96;

} // namespace

EmptyState::EmptyState(QAction& select, QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("convite"));
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(14);
    layout->addStretch(2);
    auto* picture = new QLabel(this);
    picture->setPixmap(programIcon().pixmap(Picture, Picture));
    picture->setAlignment(Qt::AlignCenter);
    layout->addWidget(picture);
    heading_ = new QLabel(this);
    auto font = heading_->font();
    font.setPointSizeF(font.pointSizeF() * 1.7);
    font.setBold(true);
    heading_->setFont(font);
    heading_->setAlignment(Qt::AlignCenter);
    layout->addWidget(heading_);
    text_ = new QLabel(this);
    text_->setAlignment(Qt::AlignCenter);
    layout->addWidget(text_);
    auto* button = new QPushButton(select.text(), this);
    button->setObjectName(QStringLiteral("conviteSelecionar"));
    button->setIcon(select.icon());
    button->setMinimumSize(200, 40);
    button->setDefault(true);
    connect(button, &QPushButton::clicked, &select, &QAction::trigger);
    layout->addWidget(button, 0, Qt::AlignHCenter);
    auto* hint = new QLabel(QStringLiteral("Ctrl+N ou F2"), this);
    hint->setForegroundRole(QPalette::PlaceholderText);
    hint->setAlignment(Qt::AlignCenter);
    layout->addWidget(hint);
    layout->addStretch(3);
    setSelected(false);
}

void EmptyState::setSelected(bool selected) {
    heading_->setText(selected ? QStringLiteral("Nenhuma linha à vista")
                               : QStringLiteral("O orçado e o realizado, lado a lado"));
    text_->setText(selected ? QStringLiteral("A última seleção não trouxe linhas para mostrar aqui.\n"
                                             "Amplie o período, confira o cenário e os filtros, e selecione de novo.")
                            : QStringLiteral("Escolha o período, o cenário e os estabelecimentos. O programa compara\n"
                                             "as projeções com o que o diário contabilizou, conta a conta."));
}

} // namespace suite::desktop
