#pragma once

#include "suite/desktop/preview/PageStore.h"

#include <QAbstractListModel>
#include <QCache>
#include <QPixmap>

namespace suite::desktop {

// Small pictures of the pages, painted when they come into view.
class PageThumbnails : public QAbstractListModel {
  public:
    PageThumbnails(PageStore& pages, double ratio, QObject* parent);

    QSize pictureSize() const;
    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
    QVariant data(const QModelIndex& index, int role) const override;

  private:
    void grow();

    PageStore& pages_;
    double ratio_;
    int rows_ = 0;
    mutable QCache<int, QPixmap> pictures_;
};

} // namespace suite::desktop
