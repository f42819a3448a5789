#include "suite/desktop/preview/PageThumbnails.h"

#include "suite/desktop/preview/PagePicture.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace suite::desktop {

namespace {

constexpr double LongSide = 120; // of a picture, in pixels
constexpr int PicturesKept = 60;

} // namespace

PageThumbnails::PageThumbnails(PageStore& pages, double ratio, QObject* parent)
    : QAbstractListModel(parent), pages_(pages), ratio_(ratio), pictures_(PicturesKept) {
    connect(&pages_, &PageStore::grown, this, [this] { grow(); });
    grow();
}

QSize PageThumbnails::pictureSize() const {
    const auto sheet = pages_.sheet();
    const auto scale = LongSide / std::max(sheet.width, sheet.height);
    return {static_cast<int>(std::lround(sheet.width * scale)), static_cast<int>(std::lround(sheet.height * scale))};
}

void PageThumbnails::grow() {
    if (pages_.count() == rows_)
        return;
    beginInsertRows({}, rows_, pages_.count() - 1);
    rows_ = pages_.count();
    endInsertRows();
}

QVariant PageThumbnails::data(const QModelIndex& index, int role) const {
    if (role == Qt::DisplayRole)
        return QString::number(index.row() + 1);
    if (role == Qt::TextAlignmentRole)
        return int{Qt::AlignHCenter};
    if (role == Qt::AccessibleTextRole)
        return QStringLiteral("Página %1").arg(index.row() + 1);
    if (role != Qt::DecorationRole)
        return {};
    if (const auto* kept = pictures_.object(index.row()))
        return *kept;
    const auto size = pictureSize();
    auto* made = new QPixmap(QPixmap::fromImage(
        pictureOf(pages_.page(index.row()), size, static_cast<double>(size.width()) / pages_.sheet().width, ratio_)));
    QPainter frame(made);
    frame.setPen(Qt::gray);
    frame.drawRect(QRect(QPoint(0, 0), size - QSize(1, 1)));
    frame.end();
    pictures_.insert(index.row(), made);
    return *made;
}

} // namespace suite::desktop
