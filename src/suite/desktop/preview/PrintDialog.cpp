#include "suite/desktop/preview/PrintDialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

namespace suite::desktop {

namespace {

constexpr int MostCopies = 99;

QSpinBox* number(int most, int value, const char* name, const QString& caption, QWidget* parent) {
    auto* box = new QSpinBox(parent);
    box->setObjectName(QString::fromLatin1(name));
    box->setAccessibleName(caption);
    box->setRange(1, most);
    box->setValue(value);
    return box;
}

} // namespace

PrintDialog::PrintDialog(const QStringList& printers, int pages, int current, QWidget* parent)
    : QDialog(parent), printer_(new QComboBox(this)),
      copies_(number(MostCopies, 1, "EdtCopias", QStringLiteral("Cópias"), this)),
      first_(number(pages, 1, "EdtPaginaInicial", QStringLiteral("Da página"), this)),
      last_(number(pages, pages, "EdtPaginaFinal", QStringLiteral("Até a página"), this)) {
    setWindowTitle(QStringLiteral("Imprimir"));
    printer_->setObjectName(QStringLiteral("CbImpressora"));
    printer_->addItems(printers);
    auto* range = new QHBoxLayout;
    range->addWidget(first_);
    range->addWidget(new QLabel(QStringLiteral("a"), this));
    range->addWidget(last_);
    auto* only = new QPushButton(QStringLiteral("Só a página &atual"), this);
    only->setAutoDefault(false);
    connect(only, &QPushButton::clicked, this, [this, current] {
        first_->setValue(current);
        last_->setValue(current);
    });
    range->addWidget(only);
    // The range stays one, whichever end is moved.
    connect(first_, &QSpinBox::valueChanged, last_, [this](int value) { last_->setMinimum(value); });
    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("&Impressora:"), printer_);
    form->addRow(QStringLiteral("&Cópias:"), copies_);
    form->addRow(QStringLiteral("&Páginas:"), range);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("Imprimir"));
    buttons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("Cancelar"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
    setLayout(form);
}

spooler::Job PrintDialog::job() const {
    return {printer_->currentText(), {}, copies_->value(), first_->value(), last_->value()};
}

} // namespace suite::desktop
