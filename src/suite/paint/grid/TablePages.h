#pragma once

#include "paper/Page.h"
#include "suite/export/Exporter.h"
#include "suite/paint/Painting.h"
#include "suite/paint/grid/TableRows.h"

namespace suite::paint {

// The pages of a table: the heading on the first, the head of the columns and the number on each. All its rows, those
// of closed groups too.
class TablePages final : public paper::PageSource {
  public:
    enum class Foot { Total, None };
    // The table outlives the pages.
    TablePages(const table::Table& table, const exporting::Heading& heading, const base::TPapel& sheet,
               paper::Measure measure, Foot foot = Foot::Total);

    paper::Sheet sheet() const override { return sheet_; }
    bool next(paper::Page& page) override;

  private:
    // In ems of the pages' letters.
    struct Room {
        double left;
        double top;
        double width;
    };
    struct Style {
        bool bold = false;
        base::TAlinhamento alignment = base::TAlinhamento::Esquerda;
        base::TCor ink = 0;
    };
    using Part = TableColumns::Part;

    void layHeading(const exporting::Heading& heading);
    double headingHeight() const;
    void setHeading(std::size_t part);
    void setHead(const Part& part);
    void setContinued(const Part& part, std::uint32_t group);
    void setRow(const Part& part, const TableRows::Row& row);
    void setLine(const Part& part, const TableRows::Row& row);
    void setSums(const Part& part, const TableRows::Row& row);
    void setFoot(std::size_t page, std::size_t part);
    void lines(const Room& room, const std::vector<std::string>& lines, const Style& style, double size = 1);
    void fill(const Room& room, double height, base::TCor colour);
    void rule(double left, double top, double width, double thick, base::TCor ink);
    paper::Length across(double ems) const;
    paper::Length down(double ems) const;

    const table::Table& table_;
    base::TPapel margins_;
    paper::Sheet sheet_;
    paper::Measure measure_;
    TableColumns columns_;
    TableRows rows_;
    std::string title_;
    std::vector<std::string> headings_; // below it
    double em_;                         // in micrometres
    double width_;                      // of a page in ems, and its height without the foot
    double height_;
    std::size_t next_ = 0;        // page, counted over the parts
    paper::Page* page_ = nullptr; // under way
    double top_ = 0;              // of what is set next
};

// What a table's document says of itself.
Document documentOf(const exporting::Heading& heading);

// What a table says on paper, A4 across. For Exporter::add: throws TFalha or std::system_error. The same table and
// heading give the same bytes.
void writeTablePdf(const table::Table& table, const std::filesystem::path& file, const exporting::Heading& heading);

} // namespace suite::paint
