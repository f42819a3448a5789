#pragma once

#include <QObject>

#include <map>
#include <set>
#include <string>

namespace suite::desktop {

class GridFooter;
class GridModel;
class GridView;

// How large a grid is shown: its zoom, and the widths of its columns. A width that the user has chosen stays with its
// column; the others fit what the rows show.
class GridSizes : public QObject {
  public:
    // All outlive the object.
    GridSizes(const GridModel& model, GridView& view, GridFooter& footer);

    void zoom(int steps); // 0: back to the usual size
    // Gives each column its width; one that is new is measured.
    void apply();
    void fit(int column);
    void fitAll(bool chosen); // those that the user has chosen too

  private:
    double scale() const; // of the zoom
    int fittingWidth(int column) const;
    void applyZoom();
    void resized(int column, int width);

    const GridModel& model_;
    GridView& view_;
    GridFooter& footer_;
    std::map<std::string, int> widths_; // at the usual size, by field
    std::set<std::string> chosen_;
    bool applying_ = false;
    int zoom_ = 0;
    double usualSize_; // of the font, in points
};

} // namespace suite::desktop
