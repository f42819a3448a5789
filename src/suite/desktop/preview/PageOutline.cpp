#include "suite/desktop/preview/PageOutline.h"

#include "suite/desktop/look/Text.h"

namespace suite::desktop {

namespace {

constexpr int PageRole = Qt::UserRole;
constexpr int PlaceRole = Qt::UserRole + 1;

} // namespace

PageOutline::PageOutline(PageStore& pages, QWidget* parent) : QTreeWidget(parent), pages_(pages) {
    setObjectName(QStringLiteral("Indice"));
    setAccessibleName(QStringLiteral("Índice do relatório"));
    setHeaderHidden(true);
    setUniformRowHeights(true);
    connect(this, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (item && hasFocus())
            Q_EMIT chosen(item->data(0, PageRole).toInt(), item->data(0, PlaceRole).toInt());
    });
    connect(this, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) {
        Q_EMIT chosen(item->data(0, PageRole).toInt(), item->data(0, PlaceRole).toInt());
    });
    connect(&pages_, &PageStore::grown, this, [this] { grow(); });
    grow();
}

void PageOutline::grow() {
    for (; read_ < pages_.count(); ++read_)
        for (const auto& mark : pages_.page(read_).marks) {
            while (!in_.empty() && in_.back().first >= mark.level)
                in_.pop_back();
            auto* item = in_.empty() ? new QTreeWidgetItem(this) : new QTreeWidgetItem(in_.back().second);
            item->setText(0, fromUtf8(mark.caption));
            item->setToolTip(0, item->text(0));
            item->setData(0, PageRole, read_);
            item->setData(0, PlaceRole, mark.y);
            if (in_.size() < 2)
                item->setExpanded(true);
            in_.emplace_back(mark.level, item);
        }
}

} // namespace suite::desktop
