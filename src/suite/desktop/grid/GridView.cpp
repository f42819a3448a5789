#include "suite/desktop/grid/GridView.h"

#include <QMouseEvent>
#include <QScrollBar>

namespace suite::desktop {

GridTable::GridTable(GridModel& model, QWidget* parent)
    : QTableView(parent), grid_(model), header_(new BandHeader(model, this)) {
    setHorizontalHeader(header_);
    setShowGrid(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setFrameShape(QFrame::NoFrame);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ExtendedSelection);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerPixel);
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(8);
    setModel(&model);
}

void GridTable::mousePressEvent(QMouseEvent* event) {
    QTableView::mousePressEvent(event);
    const auto index = indexAt(event->pos());
    if (!index.isValid() || event->button() != Qt::LeftButton || !grid_.isGroup(index.row()))
        return;
    const int left = CellPainter::indent(grid_.level(index.row()));
    if (event->pos().x() >= left - 4 && event->pos().x() < left + CellPainter::arrowRoom(fontMetrics()))
        Q_EMIT toggleAsked(index.row());
}

void GridTable::mouseDoubleClickEvent(QMouseEvent* event) {
    const auto index = indexAt(event->pos());
    QTableView::mouseDoubleClickEvent(event);
    if (index.isValid() && event->button() == Qt::LeftButton && grid_.isGroup(index.row()))
        Q_EMIT toggleAsked(index.row());
}

void GridTable::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (current.row() != previous.row()) // the whole line looks different
        viewport()->update();
}

GridView::GridView(GridModel& model, QWidget* parent) : GridTable(model, parent) {
    painter_ = new CellPainter(model, *this);
    painter_->setParent(this);
    frozen_ = new GridTable(model, this);
    setItemDelegate(painter_);
    frozen_->setItemDelegate(painter_);
    auto* own = frozen_->selectionModel();
    frozen_->setSelectionModel(selectionModel());
    delete own;
    frozen_->setFocusPolicy(Qt::NoFocus);
    frozen_->setFocusProxy(this);
    frozen_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    frozen_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    frozen_->setAccessibleName(QStringLiteral("Colunas fixas"));
    frozen_->viewport()->installEventFilter(this);
    frozen_->hide();
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // it stands below the totals
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);

    connect(verticalScrollBar(), &QScrollBar::valueChanged, frozen_->verticalScrollBar(), &QScrollBar::setValue);
    connect(frozen_->verticalScrollBar(), &QScrollBar::valueChanged, verticalScrollBar(), &QScrollBar::setValue);
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        // What keeps its place while the rest scrolls: captions of bands and groups.
        header().viewport()->update();
        if (grid_.rows().groupCount() > 0) {
            viewport()->update();
            frozen_->viewport()->update();
        }
        Q_EMIT arranged();
    });
    connect(frozen_, &GridTable::toggleAsked, this, &GridTable::toggleAsked);
    connect(&header(), &QHeaderView::sectionResized, this, [this](int column, int, int width) {
        frozen_->setColumnWidth(column, width);
        placeFrozen();
        Q_EMIT arranged();
    });
    connect(&frozen_->header(), &QHeaderView::sectionResized, this, [this](int column, int, int width) {
        if (column < grid_.frozen() && width > 0)
            setColumnWidth(column, width);
    });
}

BandHeader& GridView::headerOf(int column) const {
    return column < grid_.frozen() && frozen_->isVisibleTo(this) ? frozen_->header() : header();
}

int GridView::covered() const {
    int width = 0;
    for (int i = 0; i < grid_.frozen(); ++i)
        width += columnWidth(i);
    return width;
}

void GridView::columnsChanged() {
    for (int i = 0; i < grid_.columnCount(); ++i) {
        frozen_->setColumnHidden(i, i >= grid_.frozen());
        if (i < grid_.frozen())
            frozen_->setColumnWidth(i, columnWidth(i));
    }
    placeFrozen();
    Q_EMIT header().geometriesChanged();
    Q_EMIT frozen_->header().geometriesChanged();
}

void GridView::placeFrozen() {
    const int width = covered();
    // Where there is no room left for the others nothing stays.
    const bool fits = width > 0 && width < viewport()->width() * 4 / 5;
    painter_->setCovered(fits ? width : 0);
    header().setCovered(fits ? width : 0);
    frozen_->setVisible(fits);
    if (fits) {
        frozen_->setGeometry(frameWidth(), frameWidth(), width, header().height() + viewport()->height());
        frozen_->raise();
    }
    Q_EMIT arranged();
}

void GridView::setRowHeight(int height) {
    verticalHeader()->setDefaultSectionSize(height);
    frozen_->verticalHeader()->setDefaultSectionSize(height);
}

void GridView::setFilterHeight(int height) {
    header().setFilterHeight(height);
    frozen_->header().setFilterHeight(height);
    updateGeometries();
}

void GridView::scrollTo(const QModelIndex& index, ScrollHint hint) {
    if (!index.isValid())
        return;
    if (index.column() < grid_.frozen() && frozen_->isVisibleTo(this)) {
        const int before = horizontalScrollBar()->value();
        QTableView::scrollTo(index, hint);
        horizontalScrollBar()->setValue(before);
        return;
    }
    QTableView::scrollTo(index, hint);
    if (const int hidden = frozen_->isVisibleTo(this) ? covered() - columnViewportPosition(index.column()) : 0;
        hidden > 0)
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - hidden);
}

void GridView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    placeFrozen();
}

void GridView::updateGeometries() {
    QTableView::updateGeometries();
    if (frozen_)
        placeFrozen();
}

void GridView::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        viewport()->update();
}

void GridView::wheelEvent(QWheelEvent* event) {
    if ((event->modifiers() & Qt::ControlModifier) != 0) {
        if (const int turn = event->angleDelta().y(); turn != 0)
            Q_EMIT zoomAsked(turn > 0 ? 1 : -1);
        event->accept();
        return;
    }
    QTableView::wheelEvent(event);
}

bool GridView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == frozen_->viewport() && event->type() == QEvent::Wheel) {
        wheelEvent(static_cast<QWheelEvent*>(event));
        return true;
    }
    return GridTable::eventFilter(watched, event);
}

QModelIndex GridView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    if (modifiers == Qt::ControlModifier && (action == MoveHome || action == MoveEnd) && model()->rowCount() > 0)
        return action == MoveHome ? model()->index(0, 0)
                                  : model()->index(model()->rowCount() - 1, model()->columnCount() - 1);
    return QTableView::moveCursor(action, modifiers);
}

} // namespace suite::desktop
