#include "suite/desktop/grid/FilterRow.h"
#include "suite/desktop/grid/GridFooter.h"
#include "suite/desktop/grid/GridKeys.h"
#include "suite/desktop/grid/GridPane.h"
#include "suite/desktop/grid/GridStatus.h"
#include "suite/desktop/grid/GroupPanel.h"
#include "suite/desktop/grid/SearchBar.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

namespace suite::desktop {

void GridPane::build() {
    view_->setAccessibleName(QStringLiteral("Linhas da consulta"));
    view_->installEventFilter(keys_);
    options_->setObjectName(QStringLiteral("OpcoesDaGrade"));
    auto* top = new QHBoxLayout;
    top->addWidget(groups_, 1);
    top->addWidget(options_);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    all->addLayout(top);
    all->addWidget(search_);
    all->addWidget(view_, 1);
    all->addWidget(footer_);
    all->addWidget(across_);
    all->addWidget(status_);
    setFocusProxy(view_);
}

void GridPane::connectParts() {
    auto* inner = view_->horizontalScrollBar();
    connect(inner, &QScrollBar::rangeChanged, this, [this, inner](int least, int most) {
        across_->setRange(least, most);
        across_->setPageStep(inner->pageStep());
        across_->setSingleStep(inner->singleStep());
        across_->setVisible(most > least);
    });
    connect(inner, &QScrollBar::valueChanged, across_, &QScrollBar::setValue);
    connect(across_, &QScrollBar::valueChanged, inner, &QScrollBar::setValue);
    connect(view_, &GridTable::toggleAsked, this, &GridPane::toggle, Qt::QueuedConnection);
    connect(view_, &GridView::typed, this, &GridPane::search);
    connect(view_, &GridView::zoomAsked, this, &GridPane::zoom);
    for (GridTable* table : std::initializer_list<GridTable*>{view_, &view_->frozen()}) {
        connectHeader(table->header());
        table->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(table, &QWidget::customContextMenuRequested, this,
                [this, table](const QPoint& at) { openMenu(table->viewport()->mapToGlobal(at), -1); });
    }
    connect(view_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] {
        view_->frozen().viewport()->update();
        tellLine();
    });
    connect(filters_, &FilterRow::changed, this, &GridPane::arrangeRows);
    connect(filters_, &FilterRow::left, this, [this](int column) {
        if (model_->rowCount() > 0)
            view_->setCurrentIndex(model_->index(std::max(0, view_->currentIndex().row()), column));
        view_->setFocus();
    });
    connect(groups_, &GroupPanel::removeAsked, this,
            [this](const std::string& field) { groupBy(std::string(field), false); });
    connect(search_, &SearchBar::sought, this, &GridPane::findNext);
    connect(search_, &SearchBar::closed, this, [this] {
        search_->hide();
        view_->setFocus();
    });
    connect(status_, &GridStatus::zerosChanged, this, &GridPane::arrangeRows);
    connect(status_, &GridStatus::clearAsked, this, &GridPane::clearFilters);
    auto* menu = new QMenu(options_);
    options_->setMenu(menu);
    connect(menu, &QMenu::aboutToShow, this, [this, menu] {
        menu->clear();
        fillMenu(*menu);
    });
}

void GridPane::connectHeader(BandHeader& header) {
    header.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&header, &BandHeader::sortAsked, this,
            [this](int column, bool together) { sortBy(column, std::nullopt, together); });
    connect(&header, &BandHeader::moveAsked, this, &GridPane::moveColumn);
    connect(&header, &QHeaderView::sectionHandleDoubleClicked, this, &GridPane::fitColumn);
    connect(&header, &BandHeader::carried, groups_, &GroupPanel::setInviting);
    connect(&header, &BandHeader::carriedOut, this, &GridPane::drop);
    connect(&header, &QWidget::customContextMenuRequested, this,
            [this, &header](const QPoint& at) { openMenu(header.mapToGlobal(at), header.logicalIndexAt(at)); });
}

void GridPane::drop(int column, const QPoint& global) {
    if (groups_->rect().contains(groups_->mapFromGlobal(global))) {
        groupBy(columnAt(column), true);
        return;
    }
    // From one header to the other; the one on top goes first.
    for (auto* onto : {&view_->frozen().header(), &view_->header()})
        if (const auto at = onto->mapFromGlobal(global); onto->isVisible() && onto->rect().contains(at)) {
            moveColumn(column, onto->logicalIndexAt(at));
            return;
        }
}

} // namespace suite::desktop
