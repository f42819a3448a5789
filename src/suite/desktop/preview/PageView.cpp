#include "suite/desktop/preview/PageView.h"

#include "suite/desktop/look/Text.h"
#include "suite/desktop/preview/PageMarks.h"
#include "suite/desktop/preview/PagePicture.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

namespace suite::desktop {

namespace {

constexpr int Gap = 12; // around a page, in pixels
constexpr double Inch = 25'400;
constexpr double LeastZoom = 0.1;
constexpr double MostZoom = 4;
constexpr int PicturesKept = 200'000; // in kilobytes
constexpr double Step = 1.2;          // of the wheel and the keys
const QColor HitColour(0xFF, 0xD5, 0x4F, 110);
const QColor MarkColour(0x2F, 0x6F, 0xB5, 90);

} // namespace

PageView::PageView(PageStore& pages, QWidget* parent)
    : QAbstractScrollArea(parent), pages_(pages), pictures_(PicturesKept) {
    setObjectName(QStringLiteral("Paginas"));
    setAccessibleName(QStringLiteral("Páginas do relatório"));
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setBackgroundRole(QPalette::Dark);
    viewport()->setAutoFillBackground(true);
    verticalScrollBar()->setSingleStep(40);
    horizontalScrollBar()->setSingleStep(40);
    connect(&pages_, &PageStore::grown, this, [this] { layOut(); });
    layOut();
}

double PageView::scale() const { return zoom() * logicalDpiX() / Inch; }

double PageView::zoom() const {
    if (fit_ == Fit::None)
        return zoom_;
    const auto sheet = pages_.sheet();
    const auto pixel = logicalDpiX() / Inch;
    const auto across = std::max(1, viewport()->width() - 2 * Gap) / (sheet.width * pixel);
    const auto down = std::max(1, viewport()->height() - 2 * Gap) / (sheet.height * pixel);
    return std::clamp(fit_ == Fit::Width ? across : std::min(across, down), LeastZoom, MostZoom);
}

QSize PageView::pageSize() const {
    const auto sheet = pages_.sheet();
    return {static_cast<int>(std::lround(sheet.width * scale())),
            static_cast<int>(std::lround(sheet.height * scale()))};
}

QRect PageView::pageRect(int page) const {
    const auto size = pageSize();
    const auto free = viewport()->width() - size.width() - 2 * Gap;
    return {Gap + (free > 0 ? free / 2 : -horizontalScrollBar()->value()),
            Gap + page * (size.height() + Gap) - verticalScrollBar()->value(), size.width(), size.height()};
}

void PageView::layOut() {
    const auto size = pageSize();
    known_ = pages_.count();
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setRange(0, std::max(0, Gap + known_ * (size.height() + Gap) - viewport()->height()));
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setRange(0, std::max(0, size.width() + 2 * Gap - viewport()->width()));
    viewport()->update();
}

int PageView::currentPage() const {
    const auto step = pageSize().height() + Gap;
    const auto middle = verticalScrollBar()->value() + viewport()->height() / 3;
    return std::clamp(middle / std::max(1, step), 0, std::max(0, known_ - 1));
}

void PageView::goTo(int page, paper::Length y) {
    const auto top = page * (pageSize().height() + Gap) + static_cast<int>(y * scale());
    verticalScrollBar()->setValue(y > 0 ? top - viewport()->height() / 4 : top);
}

void PageView::setFit(Fit fit) {
    const auto before = scale();
    fit_ = fit;
    resized(before);
}

void PageView::setZoom(double zoom) {
    const auto before = scale();
    fit_ = Fit::None;
    zoom_ = std::clamp(zoom, LeastZoom, MostZoom);
    resized(before);
}

void PageView::resized(double before) {
    const auto place = verticalScrollBar()->value() / before;
    pictures_.clear();
    layOut();
    verticalScrollBar()->setValue(static_cast<int>(place * scale()));
    Q_EMIT zoomChanged();
}

void PageView::resizeEvent(QResizeEvent*) {
    if (fit_ != Fit::None)
        pictures_.clear();
    const auto page = current_;
    layOut();
    if (fit_ != Fit::None) {
        goTo(page);
        Q_EMIT zoomChanged();
    }
}

void PageView::scrollContentsBy(int, int) {
    viewport()->update();
    if (const auto page = currentPage(); page != current_) {
        current_ = page;
        Q_EMIT pageChanged(page);
    }
}

const QPixmap& PageView::picture(int page) {
    if (auto* kept = pictures_.object(page))
        return *kept;
    auto* made =
        new QPixmap(QPixmap::fromImage(pictureOf(pages_.page(page), pageSize(), scale(), devicePixelRatioF())));
    pictures_.insert(page, made, made->width() * made->height() / 256);
    return *made;
}

void PageView::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    const auto step = pageSize().height() + Gap;
    const auto first = std::max(0, verticalScrollBar()->value() / step - 1);
    for (int i = first; i < known_; ++i) {
        const auto place = pageRect(i);
        if (place.top() > viewport()->height())
            break;
        if (!place.adjusted(-1, -1, 2, 2).intersects(event->rect()))
            continue;
        painter.drawPixmap(place.topLeft(), picture(i));
        painter.setPen(palette().color(QPalette::Shadow));
        painter.drawRect(place.adjusted(-1, -1, 0, 0));
        const auto ground = [&](const paper::Text& text, const QColor& colour) {
            const auto letters = placeOf(pages_.page(i), text);
            painter.fillRect(QRectF(place.left() + letters.left() * scale(), place.top() + letters.top() * scale(),
                                    letters.width() * scale(), letters.height() * scale()),
                             colour);
        };
        const auto& page = pages_.page(i);
        for (auto hit = wanted_.empty() ? std::nullopt : findText(page, 0, wanted_); hit;
             hit = findText(page, *hit + 1, wanted_))
            ground(page.texts[*hit], HitColour);
        if (marked_ && marked_->page == i)
            for (std::size_t t = 0; t < page.texts.size(); ++t)
                if (t == marked_->text || (markedLine_ && page.texts[t].baseline == page.texts[marked_->text].baseline))
                    ground(page.texts[t], MarkColour);
    }
}

void PageView::wheelEvent(QWheelEvent* event) {
    if ((event->modifiers() & Qt::ControlModifier) == 0)
        return QAbstractScrollArea::wheelEvent(event);
    zoomBy(event->angleDelta().y() > 0 ? Step : 1 / Step);
}

std::optional<TextPlace> PageView::textUnder(QPoint point) const {
    const auto page = (point.y() + verticalScrollBar()->value() - Gap / 2) / std::max(1, pageSize().height() + Gap);
    if (page < 0 || page >= known_)
        return {};
    const auto place = pageRect(page);
    const auto text =
        textAt(pages_.page(page), QPointF((point.x() - place.left()) / scale(), (point.y() - place.top()) / scale()));
    return text ? std::optional(TextPlace{page, *text}) : std::nullopt;
}

void PageView::mousePressEvent(QMouseEvent* event) {
    marked_ = textUnder(event->pos());
    markedLine_ = false;
    viewport()->update();
}

void PageView::mouseDoubleClickEvent(QMouseEvent* event) {
    marked_ = textUnder(event->pos());
    markedLine_ = marked_.has_value();
    viewport()->update();
}

void PageView::mark(const TextPlace& place) {
    marked_ = place;
    markedLine_ = false;
    const auto top =
        pageRect(place.page).top() + static_cast<int>(pages_.page(place.page).texts[place.text].baseline * scale());
    if (top < Gap * 2 || top > viewport()->height() - Gap)
        goTo(place.page, pages_.page(place.page).texts[place.text].baseline);
    viewport()->update();
}

QString PageView::markedText() const {
    if (!marked_)
        return {};
    const auto& page = pages_.page(marked_->page);
    return markedLine_ ? lineOf(page, marked_->text) : fromUtf8(page.text(page.texts[marked_->text]));
}

void PageView::highlight(std::string wanted) {
    wanted_ = std::move(wanted);
    viewport()->update();
}

void PageView::copy() const {
    if (marked_)
        QGuiApplication::clipboard()->setText(markedText());
}

void PageView::keyPressEvent(QKeyEvent* event) {
    const bool control = (event->modifiers() & Qt::ControlModifier) != 0;
    switch (event->key()) {
    case Qt::Key_Home:
        return goTo(control ? 0 : currentPage());
    case Qt::Key_End:
        return verticalScrollBar()->setValue(control ? verticalScrollBar()->maximum()
                                                     : (currentPage() + 1) * (pageSize().height() + Gap) -
                                                           viewport()->height());
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return zoomBy(Step);
    case Qt::Key_Minus:
        return zoomBy(1 / Step);
    case Qt::Key_C:
        if (control)
            return copy();
        [[fallthrough]];
    default:
        QAbstractScrollArea::keyPressEvent(event);
    }
}

} // namespace suite::desktop
