#include "suite/desktop/grid/GridPane.h"

#include "suite/desktop/grid/FilterRow.h"
#include "suite/desktop/grid/GridFooter.h"
#include "suite/desktop/grid/GroupPanel.h"
#include "suite/desktop/grid/SearchBar.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include <cmath>

namespace suite::desktop {

void GridPane::build() {
    view_->setAccessibleName(QStringLiteral("Linhas da consulta"));
    view_->installEventFilter(this);
    view_->setContextMenuPolicy(Qt::CustomContextMenu);
    view_->frozen().setContextMenuPolicy(Qt::CustomContextMenu);
    options_->setObjectName(QStringLiteral("OpcoesDaGrade"));
    zeros_->setObjectName(QStringLiteral("OcultarZeradas"));
    clear_->setObjectName(QStringLiteral("LimparFiltros"));
    count_->setObjectName(QStringLiteral("ContagemDeLinhas"));
    auto* top = new QHBoxLayout;
    top->addWidget(groups_, 1);
    top->addWidget(options_);
    auto* bottom = new QHBoxLayout;
    bottom->setContentsMargins(6, 2, 6, 2);
    bottom->addWidget(count_, 1);
    bottom->addWidget(zeros_);
    bottom->addWidget(clear_);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    all->addLayout(top);
    all->addWidget(search_);
    all->addWidget(view_, 1);
    all->addWidget(footer_);
    all->addWidget(across_);
    all->addLayout(bottom);
    setFocusProxy(view_);
}

void GridPane::connectView() {
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
    for (auto* header : {&view_->header(), &view_->frozen().header()}) {
        header->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(header, &BandHeader::sortAsked, this,
                [this](int column, bool together) { sortBy(column, std::nullopt, together); });
        connect(header, &BandHeader::moveAsked, this, &GridPane::moveColumn);
        connect(header, &QHeaderView::sectionHandleDoubleClicked, this, &GridPane::fitColumn);
        connect(header, &BandHeader::carried, groups_, &GroupPanel::setInviting);
        connect(header, &BandHeader::carriedOut, this, [this](int column, const QPoint& global) {
            if (groups_->rect().contains(groups_->mapFromGlobal(global))) {
                groupBy(std::string(model_->column(column).Campo), true);
                return;
            }
            // From one header to the other; the one on top goes first.
            for (auto* onto : {&view_->frozen().header(), &view_->header()})
                if (const auto at = onto->mapFromGlobal(global); onto->isVisible() && onto->rect().contains(at)) {
                    moveColumn(column, onto->logicalIndexAt(at));
                    return;
                }
        });
        connect(header, &QWidget::customContextMenuRequested, this,
                [this, header](const QPoint& at) { openMenu(header->mapToGlobal(at), header->logicalIndexAt(at)); });
    }
    connect(&view_->header(), &QHeaderView::sectionResized, this, [this](int column, int, int width) {
        if (settingWidths_ || column >= model_->columnCount() || width == 0)
            return;
        const auto& field = model_->column(column).Campo;
        widths_[field] = static_cast<int>(std::lround(width / scale()));
        ownWidths_.insert(field);
    });
    for (GridTable* table : std::initializer_list<GridTable*>{view_, &view_->frozen()})
        connect(table, &QWidget::customContextMenuRequested, this,
                [this, table](const QPoint& at) { openMenu(table->viewport()->mapToGlobal(at), -1); });
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
    connect(zeros_, &QCheckBox::toggled, this, &GridPane::arrangeRows);
    connect(clear_, &QPushButton::clicked, this, &GridPane::clearFilters);
    auto* menu = new QMenu(options_);
    options_->setMenu(menu);
    connect(menu, &QMenu::aboutToShow, this, [this, menu] {
        menu->clear();
        fillMenu(*menu);
    });
}

} // namespace suite::desktop
