#pragma once

#include <QString>

namespace suite::desktop {

class GridPane;
class SearchBar;

// Finds what is typed into the search bar of a grid, cell by cell from the current one around to it again.
class GridSearch {
  public:
    // Both outlive the object.
    GridSearch(GridPane& pane, SearchBar& bar) : pane_(pane), bar_(bar) {}

    void findNext(bool forward, bool fromHere); // from here: the current cell may be the one

  private:
    GridPane& pane_;
    SearchBar& bar_;
};

} // namespace suite::desktop
