#include "suite/desktop/grid/ColumnDialog.h"

#include "suite/desktop/grid/ColumnChanges.h"
#include "suite/desktop/look/Text.h"
#include "suite/table/Columns.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace suite::desktop {

ColumnDialog::ColumnDialog(std::vector<host::TColunaGrade> columns, QWidget* parent)
    : QDialog(parent), columns_(std::move(columns)), list_(new QListWidget(this)) {
    setWindowTitle(QStringLiteral("Colunas da grade"));
    auto* label = new QLabel(QStringLiteral("Colunas à &vista, na ordem da grade:"), this);
    label->setBuddy(list_);
    list_->setAccessibleName(QStringLiteral("Colunas à vista"));
    auto* up = new QPushButton(QStringLiteral("&Subir"), this);
    auto* down = new QPushButton(QStringLiteral("&Descer"), this);
    auto* buttons = new QDialogButtonBox(this);
    ok_ = buttons->addButton(QStringLiteral("OK"), QDialogButtonBox::AcceptRole);
    buttons->addButton(QStringLiteral("Cancelar"), QDialogButtonBox::RejectRole);
    auto* side = new QVBoxLayout;
    side->addWidget(up);
    side->addWidget(down);
    side->addStretch(1);
    auto* middle = new QHBoxLayout;
    middle->addWidget(list_, 1);
    middle->addLayout(side);
    auto* all = new QVBoxLayout(this);
    all->addWidget(label);
    all->addLayout(middle, 1);
    all->addWidget(new QLabel(QStringLiteral("Uma coluna fica dentro da sua faixa."), this));
    all->addWidget(buttons);
    connect(up, &QPushButton::clicked, this, [this] { move(-1); });
    connect(down, &QPushButton::clicked, this, [this] { move(1); });
    connect(list_, &QListWidget::itemChanged, this, &ColumnDialog::checked);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    resize(420, 480);
    fill(0);
}

void ColumnDialog::fill(std::size_t current) {
    const QSignalBlocker quiet(list_);
    list_->clear();
    offered_.clear();
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        if (!table::isOffered(columns_, i))
            continue;
        auto* item = new QListWidgetItem(fromUtf8(table::headingOf(columns_[i])), list_);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(columns_[i].Visivel ? Qt::Checked : Qt::Unchecked);
        offered_.push_back(i);
    }
    list_->setCurrentRow(static_cast<int>(current));
}

void ColumnDialog::move(int step) {
    const int row = list_->currentRow();
    const int other = row + step;
    if (row < 0 || other < 0 || static_cast<std::size_t>(other) >= offered_.size())
        return;
    const auto from = offered_[static_cast<std::size_t>(row)];
    const auto to = offered_[static_cast<std::size_t>(other)];
    if (columns_[from].Faixa != columns_[to].Faixa)
        return;
    columns_ = moved(std::move(columns_), from, to);
    fill(static_cast<std::size_t>(other));
}

void ColumnDialog::checked() {
    bool any = false;
    for (std::size_t i = 0; i < offered_.size(); ++i) {
        auto& column = columns_[offered_[i]];
        column.Visivel = list_->item(static_cast<int>(i))->checkState() == Qt::Checked;
        any = any || (column.Visivel && column.Grupo < 0);
    }
    ok_->setEnabled(any); // a grid without columns shows nothing to bring them back
}

} // namespace suite::desktop
