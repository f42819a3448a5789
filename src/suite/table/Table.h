#pragma once

#include "suite/table/Columns.h"
#include "suite/table/Rows.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace suite::table {

// What a user asks of a grid beyond its columns, by field. A field that the dataset does not have asks nothing.
struct Wish {
    struct Sort {
        std::string field;
        bool descending = false;
    };
    std::vector<Sort> sorts;
    std::map<std::string, std::string> filters; // as typed (Matcher.h)
    bool withoutZeros = false;                  // lines whose amounts in view are all 0 or NULL are left out
};

// A grid's result as every face shows it: which columns under which headings, which lines in which order below which
// groups, the text and the look of a cell, the sums. A face that is not on screen makes one of the grid and writes what
// it says; the window keeps one and changes its wish. It copies no value.
class Table {
  public:
    // The grid outlives the table. What its dataset holds is read at once, grouped as its columns say.
    explicit Table(const host::TGrade& grid, const Wish& wish = {});
    Table(const Table&) = delete;
    Table& operator=(const Table&) = delete;

    // The dataset has opened, closed or changed; the columns or the wish have changed.
    void load();
    void readColumns();
    void arrange(const Wish& wish = {});

    const host::TGrade& grid() const { return grid_; }
    const host::TDataSet& dataSet() const { return *grid_.DataSet(); } // while active
    bool active() const { return rows_.loaded(); }
    const std::vector<Column>& columns() const { return columns_; }      // on screen: in view and not grouped
    const std::vector<Column>& groups() const { return groups_; }        // by level
    const std::vector<Column>& columnsOfFiles() const { return files_; } // in view or grouped
    Rows& rows() { return rows_; }
    const Rows& rows() const { return rows_; }
    // Of all kept lines, by position in the dataset, in the order in which they are shown.
    const std::vector<std::uint32_t>& lines() const { return rows_.lines(); }

    // A cell of a line, by the line's place in lines(). An identification that the rule leaves to the first row of a
    // line stands where that row is not the one above.
    struct Cell {
        std::string text; // "" where the look is blank
        host::TAparencia look;
    };
    host::TAparencia look(std::size_t line, const Column& column, bool selected = false) const;
    Cell cell(std::size_t line, const Column& column, bool selected = false) const;
    base::TValor value(std::size_t line, const Column& column) const;

    std::string captionOf(const Rows::Group& group) const; // "Filial: 1 (12 linhas)"
    // The sum of a column over a set of lines (Rows::sums), "" for none; what stands in the way of one, "" for nothing.
    std::string sumText(std::size_t set, const Column& column) const;
    std::string reasonText(std::size_t set, const Column& column) const;
    // What stands before the sums over all lines: their name, or why there are none.
    std::string totalCaption(const std::vector<Column>& columns) const;

    // What the rules say by the font colour of a line.
    std::string meaning(std::size_t line) const;         // "" for nothing
    static std::string signOf(std::string_view meaning); // "R>" of "Receita realizada > projetada"
    bool showsSign(const Column& column) const;          // beside its value

    // "Conta/Tot.: 31; sem linhas zeradas", for whoever says what a result was asked for; "" for nothing.
    std::string describeFilters() const;
    std::string describeSorts() const;

  private:
    Rows::Arrangement arrangement() const;
    bool repeatsAbove(std::size_t line, const Column& column) const;

    const host::TGrade& grid_;
    Wish wish_;
    Rows rows_;
    std::vector<Column> columns_;
    std::vector<Column> groups_;
    std::vector<Column> files_;
};

} // namespace suite::table
