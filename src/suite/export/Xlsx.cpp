#include "base/Falhas.h"
#include "suite/export/Formats.h"
#include "suite/export/XlsxCells.h"
#include "suite/export/XlsxCriteria.h"
#include "suite/export/XlsxLayout.h"
#include "suite/export/XlsxOutline.h"

namespace suite::exporting {

namespace {

void writeRows(const XlsxGrid& grid, const XlsxSums& sums, lxw_row_t row) {
    XlsxCells cells(grid);
    XlsxOutline outline(grid);
    const auto& rows = grid.table.rows();
    for (const auto one : rows.unfolded()) {
        if (one & table::Rows::GroupBit) {
            const auto group = one & ~table::Rows::GroupBit;
            outline.setGroup(rows.group(group), row);
            sums.writeGroup(group, row);
        } else {
            outline.setLine(one, row);
            cells.write(one, row);
            sums.mark(one, row);
        }
        ++row;
    }
    sums.writeTotal();
}

} // namespace

void writeXlsx(const table::Table& table, const std::filesystem::path& file, const Heading& heading) {
    XlsxBook book(file);
    const XlsxGrid grid(table, book, "Consulta");
    const auto head = writeHead(grid, heading);
    constexpr std::size_t Total = 2; // and the row before it
    if (head.caption + 1 + table.lines().size() + table.rows().groupCount() + Total > LXW_ROW_MAX)
        throw base::TFalha("A consulta tem mais linhas do que cabem numa planilha (1.048.576). Exporte para .csv.");
    const XlsxSums sums(grid, head.caption + 1);
    layOut(grid, head, sums, heading.title());
    writeRows(grid, sums, head.caption + 1);
    writeCriteria(book, heading);
    book.describe(heading.title(), heading.origin.made);
    book.close();
}

} // namespace suite::exporting
