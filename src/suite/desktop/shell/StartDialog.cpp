#include "suite/desktop/shell/StartDialog.h"

#include "suite/desktop/look/Icons.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace suite::desktop {

namespace {

using Kind = DatabaseChoice::Kind;

constexpr int Indent = 28;
constexpr int FieldWidth = 380;

QLineEdit* makeField(const char* name, const QString& text, QWidget* parent) {
    auto* field = new QLineEdit(text, parent);
    field->setObjectName(QString::fromLatin1(name));
    field->setMinimumWidth(FieldWidth);
    return field;
}

} // namespace

StartDialog::StartDialog(const DatabaseChoice& offered, bool demoExists, QWidget* parent) : QDialog(parent) {
    setWindowTitle(QStringLiteral("Abrir banco de dados"));
    setWindowIcon(programIcon());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(22, 20, 22, 16);
    layout->setSpacing(10);
    auto* heading = new QLabel(QStringLiteral("Onde estão os dados?"), this);
    auto font = heading->font();
    font.setPointSizeF(font.pointSizeF() * 1.4);
    font.setBold(true);
    heading->setFont(font);
    layout->addWidget(heading);
    layout->addSpacing(4);

    kinds_ = new QButtonGroup(this);
    fileFields_ = makeFile(offered);
    serverFields_ = makeServer(offered);
    const auto add = [&](Kind kind, const char* name, Symbol symbol, const QString& caption, QWidget* below) {
        auto* button = new QRadioButton(caption, this);
        button->setObjectName(QString::fromLatin1(name));
        button->setIcon(icon(symbol));
        button->setIconSize({22, 22});
        button->setChecked(offered.kind == kind);
        kinds_->addButton(button, static_cast<int>(kind));
        layout->addWidget(button);
        below->setContentsMargins(Indent, 0, 0, 6);
        layout->addWidget(below);
    };
    auto* demo =
        new QLabel(demoExists ? QStringLiteral("Um grupo de indústrias de móveis inventado, para conhecer o programa.")
                              : QStringLiteral("Um grupo de indústrias de móveis inventado, para conhecer o "
                                               "programa. É criado agora, em alguns segundos."),
                   this);
    demo->setForegroundRole(QPalette::PlaceholderText);
    add(Kind::Demo, "demonstracao", Symbol::Demo, QStringLiteral("&Empresa de demonstração"), demo);
    add(Kind::File, "arquivo", Symbol::File, QStringLiteral("A&rquivo de banco de dados"), fileFields_);
    add(Kind::Server, "servidor", Symbol::Server, QStringLiteral("&Servidor"), serverFields_);

    refusal_ = new QLabel(this);
    refusal_->setObjectName(QStringLiteral("recusa"));
    refusal_->setStyleSheet(QStringLiteral("color:#c0392b"));
    refusal_->hide();
    layout->addWidget(refusal_);
    layout->addSpacing(6);
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    direct_ = new QCheckBox(QStringLiteral("Abrir este &direto da próxima vez"), this);
    direct_->setObjectName(QStringLiteral("direto"));
    auto* open = new QPushButton(QStringLiteral("&Abrir"), this);
    open->setObjectName(QStringLiteral("abrir"));
    open->setDefault(true);
    auto* leave = new QPushButton(QStringLiteral("Sair"), this);
    for (auto* button : {open, leave})
        button->setMinimumWidth(96);
    row->addWidget(direct_);
    row->addSpacing(24);
    row->addStretch(1);
    row->addWidget(open);
    row->addWidget(leave);
    layout->addLayout(row);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    connect(open, &QPushButton::clicked, this, &StartDialog::accept);
    connect(leave, &QPushButton::clicked, this, &QDialog::reject);
    connect(kinds_, &QButtonGroup::idToggled, this, [this] { follow(); });
    follow();
}

QWidget* StartDialog::makeFile(const DatabaseChoice& offered) {
    auto* fields = new QWidget(this);
    auto* row = new QHBoxLayout(fields);
    row->setContentsMargins(Indent, 0, 0, 0);
    file_ = makeField("caminhoArquivo", offered.file, fields);
    file_->setPlaceholderText(QStringLiteral("/dados/suite.fdb"));
    auto* browse = new QPushButton(QStringLiteral("&Procurar..."), fields);
    browse->setAutoDefault(false);
    row->addWidget(file_, 1);
    row->addWidget(browse);
    connect(browse, &QPushButton::clicked, this, [this] {
        const auto chosen = QFileDialog::getOpenFileName(
            this, QStringLiteral("Banco de dados"), file_->text(),
            QStringLiteral("Bancos de dados Firebird (*.fdb *.FDB *.gdb *.GDB);;Todos os arquivos (*)"));
        if (!chosen.isEmpty())
            file_->setText(chosen);
    });
    return fields;
}

QWidget* StartDialog::makeServer(const DatabaseChoice& offered) {
    auto* fields = new QWidget(this);
    auto* form = new QFormLayout(fields);
    form->setContentsMargins(Indent, 0, 0, 0);
    host_ = makeField("servidorNome", offered.host, fields);
    host_->setPlaceholderText(QStringLiteral("servidor.empresa.com.br"));
    port_ = new QSpinBox(fields);
    port_->setRange(1, 65535);
    port_->setGroupSeparatorShown(false);
    port_->setValue(offered.port);
    path_ = makeField("servidorCaminho", offered.path, fields);
    path_->setPlaceholderText(QStringLiteral("caminho no servidor, ou apelido"));
    user_ = makeField("servidorUsuario", offered.user, fields);
    password_ = makeField("servidorSenha", {}, fields);
    password_->setEchoMode(QLineEdit::Password);
    form->addRow(QStringLiteral("&Nome ou endereço"), host_);
    form->addRow(QStringLiteral("&Porta"), port_);
    form->addRow(QStringLiteral("&Banco"), path_);
    form->addRow(QStringLiteral("&Usuário"), user_);
    form->addRow(QStringLiteral("Sen&ha (não é guardada)"), password_);
    return fields;
}

void StartDialog::follow() {
    const auto kind = static_cast<Kind>(kinds_->checkedId());
    fileFields_->setVisible(kind == Kind::File);
    serverFields_->setVisible(kind == Kind::Server);
    direct_->setVisible(kind != Kind::Server);
    refusal_->hide();
    if (kind == Kind::File)
        file_->setFocus();
    if (kind == Kind::Server)
        (host_->text().isEmpty() ? host_ : password_)->setFocus();
}

DatabaseChoice StartDialog::choice() const {
    DatabaseChoice choice;
    choice.kind = static_cast<Kind>(kinds_->checkedId());
    choice.file = file_->text().trimmed();
    choice.host = host_->text().trimmed();
    choice.port = port_->value();
    choice.path = path_->text().trimmed();
    choice.user = user_->text().trimmed();
    choice.password = password_->text();
    return choice;
}

bool StartDialog::openDirectly() const { return direct_->isVisibleTo(this) && direct_->isChecked(); }

void StartDialog::accept() {
    const auto chosen = choice();
    const auto refuse = [this](const char* why, QLineEdit* field) {
        refusal_->setText(QString::fromUtf8(why));
        refusal_->show();
        field->setFocus();
    };
    if (chosen.kind == Kind::File && chosen.file.isEmpty())
        return refuse("Informe o arquivo do banco de dados.", file_);
    if (chosen.kind == Kind::Server && chosen.host.isEmpty())
        return refuse("Informe o nome ou o endereço do servidor.", host_);
    if (chosen.kind == Kind::Server && chosen.path.isEmpty())
        return refuse("Informe o caminho do banco de dados no servidor.", path_);
    QDialog::accept();
}

} // namespace suite::desktop
