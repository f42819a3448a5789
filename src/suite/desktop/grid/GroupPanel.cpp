#include "suite/desktop/grid/GroupPanel.h"

#include "suite/desktop/look/Text.h"
#include "suite/table/Columns.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QToolButton>

#include <algorithm>

namespace suite::desktop {

GroupPanel::GroupPanel(QWidget* parent) : QWidget(parent), row_(new QHBoxLayout(this)), hint_(new QLabel(this)) {
    setObjectName(QStringLiteral("PainelDeGrupos"));
    setAccessibleName(QStringLiteral("Agrupamento"));
    row_->setContentsMargins(6, 3, 6, 3);
    row_->addWidget(hint_);
    row_->addStretch(1);
    setMinimumHeight(fontMetrics().height() + 16);
}

void GroupPanel::show(const host::TGrade& grid) {
    for (auto* button : buttons_)
        button->deleteLater();
    buttons_.clear();
    const auto& all = grid.Colunas();
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < all.size(); ++i)
        if (all[i].Grupo >= 0)
            places.push_back(i);
    std::stable_sort(places.begin(), places.end(),
                     [&](std::size_t a, std::size_t b) { return all[a].Grupo < all[b].Grupo; });
    hint_->setText(places.empty() ? QStringLiteral("Arraste para cá o título de uma coluna para agrupar por ela")
                                  : QStringLiteral("Agrupado por:"));
    for (const auto place : places) {
        auto* button = new QToolButton(this);
        const auto title = fromUtf8(table::headingOf(all[place]));
        button->setObjectName(QStringLiteral("Grupo") + fromUtf8(all[place].Campo));
        button->setText(title + QStringLiteral("  ✕"));
        button->setToolTip(QStringLiteral("Deixar de agrupar por %1").arg(title));
        button->setAccessibleName(button->toolTip());
        button->setFocusPolicy(Qt::StrongFocus);
        connect(button, &QToolButton::clicked, this, [this, field = all[place].Campo] { Q_EMIT removeAsked(field); });
        row_->insertWidget(row_->count() - 1, button);
        buttons_.push_back(button);
    }
}

void GroupPanel::setInviting(bool on) {
    inviting_ = on;
    update();
}

void GroupPanel::paintEvent(QPaintEvent* event) {
    QWidget::paintEvent(event);
    if (!inviting_)
        return;
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2, Qt::DashLine));
    painter.drawRect(rect().adjusted(1, 1, -2, -2));
}

} // namespace suite::desktop
