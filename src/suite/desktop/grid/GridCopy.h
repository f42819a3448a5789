#pragma once

namespace suite::desktop {

class GridModel;
class GridView;

// Put rows on the clipboard as text with tabs and as a table of HTML, for spreadsheets and for letters, as they are
// displayed; but a text that a spreadsheet would take for a formula has an apostrophe before it. More than MostHtmlRows
// rows go as text alone.
inline constexpr int MostHtmlRows = 5000;

// What lies between selected cells and is not selected stays empty. Without a selection the current cell is copied. A
// single cell has no title.
void copySelection(const GridView& view, const GridModel& model, bool titles);
void copyAll(const GridModel& model); // with titles

} // namespace suite::desktop
