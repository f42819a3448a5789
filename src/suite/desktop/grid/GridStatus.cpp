#include "suite/desktop/grid/GridStatus.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>

namespace suite::desktop {

namespace {

QString counted(std::size_t number) {
    return QLocale(QLocale::Portuguese, QLocale::Brazil).toString(static_cast<qulonglong>(number));
}

} // namespace

GridStatus::GridStatus(QWidget* parent)
    : QWidget(parent), count_(new QLabel(this)), zeros_(new QCheckBox(QStringLiteral("&Ocultar linhas zeradas"), this)),
      clear_(new QPushButton(QStringLiteral("Limpar &filtros"), this)) {
    zeros_->setObjectName(QStringLiteral("OcultarZeradas"));
    clear_->setObjectName(QStringLiteral("LimparFiltros"));
    count_->setObjectName(QStringLiteral("ContagemDeLinhas"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(6, 2, 6, 2);
    row->addWidget(count_, 1);
    row->addWidget(zeros_);
    row->addWidget(clear_);
    connect(zeros_, &QCheckBox::toggled, this, &GridStatus::zerosChanged);
    connect(clear_, &QPushButton::clicked, this, &GridStatus::clearAsked);
}

bool GridStatus::withoutZeros() const { return zeros_->isChecked(); }

void GridStatus::setWithoutZeros(bool on) { zeros_->setChecked(on); }

void GridStatus::tell(std::optional<std::size_t> all, std::size_t shown, bool byFilters) {
    const bool filtered = byFilters || withoutZeros();
    clear_->setEnabled(filtered);
    if (!all)
        count_->clear();
    else if (filtered)
        count_->setText(QStringLiteral("Mostrando %1 de %2 linhas").arg(counted(shown), counted(*all)));
    else
        count_->setText(*all == 1 ? QStringLiteral("1 linha") : QStringLiteral("%1 linhas").arg(counted(*all)));
}

std::vector<QWidget*> GridStatus::stops() const { return {zeros_, clear_}; }

} // namespace suite::desktop
