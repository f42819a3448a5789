#include "suite/desktop/GridPane.h"

#include "suite/desktop/Text.h"

namespace suite::desktop {

GridPane::GridPane(host::TGrade& grid, QWidget* parent) : QWidget(parent), grid_(grid) {
    setObjectName(fromUtf8(grid.Nome()));
}

void GridPane::setLayouts(host::TZTDbGridDevLeiaute&) {}

const std::vector<std::uint32_t>& GridPane::lines() const {
    static const std::vector<std::uint32_t> None;
    return None;
}

std::optional<std::size_t> GridPane::currentLine() const { return {}; }

void GridPane::fillMenu(QMenu&) {}

} // namespace suite::desktop
