#pragma once

#include "host/Grade.h"
#include "host/Leiaute.h"
#include "suite/desktop/grid/GridRows.h"

#include <QPointer>
#include <QWidget>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

class QCheckBox;
class QLabel;
class QMenu;
class QPushButton;
class QScrollBar;

namespace suite::desktop {

class FilterRow;
class GridFooter;
class GridModel;
class GridView;
class GroupPanel;
class SearchBar;

// A grid on screen: bands, grouping, sorting, filter, frozen identification, totals, copy, zoom. It shows the dataset's
// columns as they are and copies no rows. What the user does to columns goes into the grid's columns, so that layouts
// and exports see it. Widths, sorting and filter are the pane's own.
class GridPane : public QWidget {
    Q_OBJECT

  public:
    // Named after the grid. The grid must outlive the pane.
    explicit GridPane(host::TGrade& grid, QWidget* parent = nullptr);
    ~GridPane() override;

    host::TGrade& grid() const { return grid_; }
    GridView& view() const { return *view_; }
    // Adds the choice of layouts to the grid's menu. They must outlive the pane.
    void setLayouts(host::TZTDbGridDevLeiaute& layouts) { layouts_ = &layouts; }
    // What the rules say by the font colour of a line, so that it is not said by colour alone.
    void setColourMeanings(std::map<host::TCor, QString> meanings);

    // Rows of the dataset, by position from 0, in the order in which they are shown. Filtered ones are left out, those
    // of collapsed groups are in.
    const std::vector<std::uint32_t>& lines() const;
    std::optional<std::size_t> currentLine() const; // position in the dataset
    std::string columnAt(int index) const;          // field of a column in view, by its place there
    // Fills a menu with what can be done to the grid.
    void fillMenu(QMenu& menu);

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
    void clearFilters();
    void hideZeros(bool on);
    void freeze(bool on);
    void zoom(int steps); // 0: back to the usual size
    void search(const QString& text);
    void findNext(bool forward, bool fromHere = false);
    void copy(bool titles);
    void copyAll();
    void chooseLayout(const std::string& name);
    void saveLayout(const std::string& name);
    void deleteLayout(const std::string& name);

  Q_SIGNALS:
    void linesChanged();       // other rows, or another order of them
    void currentLineChanged(); // another row has the focus

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    enum class Rows { Same, Loaded };
    struct Sorting {
        std::string field;
        bool descending;
    };

    void build();
    void connectView();
    void listen();
    void refresh(Rows rows, std::optional<bool> open = {}); // and opens or closes all groups
    GridRows::Arrangement arrangement() const;
    void arrangeRows();
    void afterChange(std::optional<std::size_t> line);
    void applyWidths();
    int fittingWidth(int column) const;
    void applyZoom();
    double scale() const; // of the zoom
    void showSorts();
    void tellCount();
    void tellLine();
    void orderTabs();
    void toggle(int row);
    bool handleKey(int key, Qt::KeyboardModifiers modifiers, bool inCells);
    bool handleCellKey(int key, Qt::KeyboardModifiers modifiers);
    int currentColumn() const;
    std::optional<std::size_t> placeOf(const std::string& field) const;
    void openMenu(const QPoint& global, int column);
    void fillColumnMenu(QMenu& menu, int column);
    void fillChoiceMenu(QMenu& menu, bool groups);
    void fillLayoutMenu(QMenu& menu);
    void askLayoutName();
    void attempt(const std::function<void()>& deed);

    host::TGrade& grid_;
    host::TZTDbGridDevLeiaute* layouts_ = nullptr;
    const host::TDataSet* heard_ = nullptr;
    host::TAssinatura gridChanges_;
    host::TAssinatura rowChanges_; // of heard_
    std::unique_ptr<GridRows> rows_;
    GridModel* model_;
    GridView* view_;
    FilterRow* filters_;
    GridFooter* footer_;
    GroupPanel* groups_;
    SearchBar* search_;
    QScrollBar* across_;
    QLabel* count_;
    QCheckBox* zeros_;
    QPushButton* clear_;
    QPushButton* options_;
    std::vector<Sorting> sorts_;
    std::map<std::string, int> widths_; // at the usual size
    std::set<std::string> ownWidths_;   // chosen by the user
    bool settingWidths_ = false;
    bool freeze_ = true;
    int zoom_ = 0;
    double usualSize_ = 0; // of the font, in points
    std::optional<std::size_t> lastLine_;
};

} // namespace suite::desktop
