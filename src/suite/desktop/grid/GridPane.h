#pragma once

#include "host/Grade.h"
#include "host/Leiaute.h"
#include "suite/desktop/grid/SortOrder.h"
#include "suite/table/Table.h"

#include <QWidget>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QMenu;
class QPushButton;
class QScrollBar;

namespace suite::desktop {

class BandHeader;
class FilterRow;
class GridFooter;
class GridKeys;
class GridLayouts;
class GridModel;
class GridSizes;
class GridStatus;
class GridView;
class GroupPanel;
class SearchBar;

// A grid on screen: bands, grouping, sorting, filter, frozen identification, totals, copy, zoom. It shows the dataset's
// columns as they are and copies no rows. What the user does to columns goes into the grid's columns, so that layouts
// and exports see it. Sizes, sorting and filter are the pane's own.
class GridPane : public QWidget {
    Q_OBJECT

  public:
    // Named after the grid. The grid must outlive the pane.
    explicit GridPane(host::TGrade& grid, QWidget* parent = nullptr);
    ~GridPane() override;

    host::TGrade& grid() const { return grid_; }
    GridView& view() const { return *view_; }
    const GridModel& model() const { return *model_; }
    // Adds the choice of layouts to the grid's menu. They must outlive the pane.
    void setLayouts(host::TZTDbGridDevLeiaute& layouts);
    GridLayouts* layouts() const { return layouts_.get(); } // null without them

    // What the pane shows. Filtered lines are left out, those of collapsed groups are in.
    const table::Table& table() const { return table_; }
    const std::vector<std::uint32_t>& lines() const { return table_.lines(); }
    std::optional<std::size_t> currentLine() const; // position in the dataset
    int currentColumn() const;                      // in view; 0 for none
    std::string columnAt(int index) const;          // field of a column in view, by its place there
    const SortOrder::List& sorts() const { return sorts_.list(); }
    bool hidesZeros() const;
    // Fills a menu with what can be done to the grid.
    void fillMenu(QMenu& menu);
    // Shows it, or that of a column (-1: none).
    void openMenu(const QPoint& global, int column);

    // What a user does, for menus and keys. Columns by their place in view.
    void sortBy(int column, std::optional<bool> descending, bool together); // nothing: as a click does
    void unsort();
    void groupBy(const std::string& field, bool on);
    void moveColumn(int from, int to);
    void showColumn(const std::string& field, bool on);
    void chooseColumns();
    void fitColumn(int column);
    void fitColumns();
    void expandAll(bool open);
    void toggle(int row); // a group
    void filterColumn(int column);
    void clearFilters();
    void hideZeros(bool on);
    void freeze(bool on);
    void zoom(int steps); // 0: back to the usual size
    void search(const QString& text);
    void findNext(bool forward, bool fromHere = false);
    void goTo(std::size_t position, int column); // a line by its position in the dataset, its groups opened
    void copy(bool titles);
    void copyAll();

  Q_SIGNALS:
    void linesChanged();       // other rows, or another order of them
    void currentLineChanged(); // another row has the focus

  protected:
    void changeEvent(QEvent* event) override;

  private:
    enum class Rows { Same, Loaded };

    void build();
    void connectParts();
    void connectHeader(BandHeader& header);
    void drop(int column, const QPoint& global); // outside its header
    void listen();
    void refresh(Rows rows, std::optional<bool> open = {}); // and opens or closes all groups
    table::Wish wish() const;
    void arrangeRows();
    void readFormats();
    void columnsChanged();
    void changeRows(const std::function<void()>& deed); // those that are seen of the same lines
    void afterChange(std::optional<std::size_t> line);
    void showSorts();
    void tellCount();
    void tellLine();
    void orderTabs();

    host::TGrade& grid_;
    const host::TDataSet* heard_ = nullptr;
    host::TAssinatura gridChanges_;
    host::TAssinatura rowChanges_; // of heard_
    table::Table table_;
    GridModel* model_;
    GridKeys* keys_;
    GridView* view_;
    FilterRow* filters_;
    GridFooter* footer_;
    GridSizes* sizes_;
    GroupPanel* groups_;
    SearchBar* search_;
    QScrollBar* across_;
    GridStatus* status_;
    QPushButton* options_;
    std::unique_ptr<GridLayouts> layouts_;
    SortOrder sorts_;
    std::optional<std::size_t> lastLine_;
};

} // namespace suite::desktop
