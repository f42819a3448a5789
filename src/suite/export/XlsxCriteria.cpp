#include "suite/export/XlsxCriteria.h"

namespace suite::exporting {

namespace {

lxw_format* topFormat(XlsxBook& book) {
    auto* format = book.newFormat();
    format_set_align(format, LXW_ALIGN_VERTICAL_TOP);
    return format;
}

} // namespace

void writeCriteria(XlsxBook& book, const Heading& heading) {
    auto* sheet = book.addSheet("Critérios");
    auto* name = topFormat(book);
    format_set_bold(name);
    auto* value = topFormat(book);
    format_set_text_wrap(value);
    book.check(worksheet_set_column(sheet, 0, 0, 20, nullptr));
    book.check(worksheet_set_column(sheet, 1, 1, 100, nullptr));
    worksheet_set_landscape(sheet);
    worksheet_set_paper(sheet, 9); // A4
    worksheet_fit_to_pages(sheet, 1, 0);
    auto rows = heading.criteria;
    if (const auto& origin = heading.origin; !origin.program.empty()) {
        rows.push_back({"Programa", origin.program});
        rows.push_back({"Banco de dados", origin.database});
        rows.push_back({"Gerado em", origin.made.Texto()});
    }
    for (lxw_row_t row = 0; row < rows.size(); ++row) {
        book.check(worksheet_write_string(sheet, row, 0, rows[row].Nome.c_str(), name));
        book.check(worksheet_write_string(sheet, row, 1, rows[row].Valor.c_str(), value));
    }
}

} // namespace suite::exporting
