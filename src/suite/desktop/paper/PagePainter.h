#pragma once

#include "suite/desktop/paper/PaperRows.h"
#include "suite/export/Exporter.h"

#include <QFont>
#include <QPainter>
#include <QPalette>

class QPagedPaintDevice;

namespace suite::desktop {

// Paints a table on the pages of a device: the heading on the first, the head of the columns and the number on each.
class PagePainter {
  public:
    PagePainter(const table::Table& table, const exporting::Heading& heading, QPagedPaintDevice& device);
    void paint();

  private:
    // In ems of the page's font.
    struct Room {
        double left;
        double top;
        double width;
    };
    struct Style {
        bool bold = false;
        Qt::AlignmentFlag alignment = Qt::AlignLeft;
        QColor ink = Qt::black;
    };
    using Part = paper::PaperColumns::Part;

    void layHeading(const exporting::Heading& heading);
    double headingHeight() const;
    void paintHeading(std::size_t part);
    void paintHead(const Part& part);
    void paintContinued(const Part& part, std::uint32_t group);
    void paintRow(const Part& part, const paper::PaperRows::Row& row);
    void paintLine(const Part& part, const paper::PaperRows::Row& row);
    void paintSums(const Part& part, const paper::PaperRows::Row& row);
    void paintFoot(std::size_t page, std::size_t part);
    void lines(const Room& room, const std::vector<std::string>& lines, const Style& style); // as they are
    void rule(double left, double top, double width, double thick, const QColor& ink);

    const table::Table& table_;
    QPagedPaintDevice& device_;
    QPainter painter_;
    paper::Measure measure_;
    paper::PaperColumns columns_;
    paper::PaperRows rows_;
    std::string title_;
    std::vector<std::string> headings_; // below it
    double em_;                         // in the device's units
    double width_;                      // of a page in ems, and its height without the foot
    double height_;
    double top_ = 0; // of what is painted next
    QPalette palette_;
    QFont plain_;
    QFont bold_;
    QFont large_;
};

} // namespace suite::desktop
