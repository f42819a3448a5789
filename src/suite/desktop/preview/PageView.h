#pragma once

#include "suite/desktop/preview/PageStore.h"

#include <QAbstractScrollArea>
#include <QCache>
#include <QPixmap>

#include <optional>
#include <string>

namespace suite::desktop {

// A text of a page.
struct TextPlace {
    int page = 0; // from 0
    std::size_t text = 0;
};

// Pages below one another, at any size. A click marks the text under it, a double click its line; what is marked is
// copied by Ctrl+C.
class PageView : public QAbstractScrollArea {
    Q_OBJECT

  public:
    enum class Fit { Width, Page, None };

    // The store outlives the view.
    PageView(PageStore& pages, QWidget* parent);

    Fit fit() const { return fit_; }
    double zoom() const; // 1: as large as the paper
    void setFit(Fit fit);
    void setZoom(double zoom); // within what can be read; where the view stands stays in view
    void zoomBy(double factor) { setZoom(zoom() * factor); }

    int currentPage() const; // from 0, that at the top of the view
    void goTo(int page, paper::Length y = 0);
    // Marks the text and brings it into view.
    void mark(const TextPlace& place);
    const std::optional<TextPlace>& marked() const { return marked_; }
    QString markedText() const;
    // Texts with these words are painted with a ground; passed through base::SemAcentos. Empty for none.
    void highlight(std::string wanted);
    void copy() const;

  Q_SIGNALS:
    void pageChanged(int page);
    void zoomChanged();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    double scale() const; // pixels of a micrometre
    QSize pageSize() const;
    QRect pageRect(int page) const; // in the viewport
    std::optional<TextPlace> textUnder(QPoint point) const;
    const QPixmap& picture(int page);
    void layOut();
    void resized(double before);

    PageStore& pages_;
    Fit fit_ = Fit::Width;
    double zoom_ = 1;
    QCache<int, QPixmap> pictures_;
    int known_ = 0; // pages laid out
    int current_ = 0;
    std::optional<TextPlace> marked_;
    bool markedLine_ = false;
    std::string wanted_;
};

} // namespace suite::desktop
