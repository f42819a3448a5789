#include "base/Falhas.h"
#include "base/FormatoNumerico.h"
#include "suite/export/GridParts.h"
#include "suite/export/XlsxBook.h"

#include <algorithm>
#include <cmath>

namespace suite::exporting {

namespace {

constexpr lxw_color_t BandColor = 0xD6DCE4;
constexpr lxw_color_t CaptionColor = 0xE9EDF2;

// Exact up to 22.
double powerOfTen(int exponent) { return std::pow(10.0, exponent); }

// A spreadsheet keeps 15 significant digits. A number with more has none: it is written as text, so that nothing is
// lost silently.
std::optional<double> sheetNumber(base::TDecimal value) {
    constexpr std::int64_t Limit = 999'999'999'999'999;
    for (; value.Unidades != 0 && value.Unidades % 10 == 0; value.Unidades /= 10)
        --value.Escala;
    if (value.Unidades > Limit || value.Unidades < -Limit)
        return std::nullopt;
    const auto units = static_cast<double>(value.Unidades);
    return value.Escala < 0 ? units * powerOfTen(-value.Escala) : units / powerOfTen(value.Escala);
}

// Nothing before March 1900, where spreadsheets count days that never were.
std::optional<double> sheetDate(base::TDataHora date) {
    constexpr double FirstSafe = 61;
    const double days = static_cast<double>(date.Decimos()) / static_cast<double>(base::TDataHora::DecimosPorDia);
    return days < FirstSafe ? std::nullopt : std::optional(days);
}

// Characters of a UTF-8 text.
std::size_t length(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80; }));
}

// The number formats of a column in the workbook.
struct NumberLook {
    int places = 0;
    std::size_t format;
    std::size_t nil; // of what is below zero and rounds to it: no sign

    NumberLook(XlsxBook& book, std::string_view display) {
        const auto positive = display.substr(0, display.find(';'));
        const auto plain = display.empty() ? "0" : spreadsheetFormat(positive);
        if (const auto point = positive.find('.'); point != std::string_view::npos)
            places = static_cast<int>(
                std::count(positive.begin() + static_cast<std::ptrdiff_t>(point), positive.end(), '0'));
        format = book.numberFormat(display.empty() ? plain : spreadsheetFormat(display));
        nil = book.numberFormat(plain + ";" + plain);
    }
    std::size_t of(const base::TDecimal& value) const {
        return value.Unidades < 0 && value.Escala > places && value.ComEscala(places).Zero() ? nil : format;
    }
};

class XlsxGrid {
  public:
    XlsxGrid(const host::TGrade& grid, const std::filesystem::path& file)
        : grid_(grid), rows_(*grid.DataSet()), columns_(gridColumns(grid)), book_(file, "Consulta"),
          sheet_(book_.sheet()), text_(book_.numberFormat("")), real_(book_.numberFormat("General")),
          date_(book_.numberFormat("dd/mm/yyyy")), time_(book_.numberFormat("dd/mm/yyyy hh:mm:ss")) {
        for (const auto& column : columns_)
            numbers_.push_back(NumberLook(book_, column.format));
    }

    void write(Title title) {
        const auto top = writeTitle(title);
        const auto caption = writeHeader(top);
        if (caption + rows_.RecordCount() >= LXW_ROW_MAX)
            throw base::TFalha("A consulta tem mais linhas do que cabem numa planilha (1.048.576). Exporte para .csv.");
        layOut(top, caption);
        for (std::size_t i = 0; i < rows_.RecordCount(); ++i) {
            ++row_;
            for (std::size_t c = 0; c < columns_.size(); ++c)
                writeCell(i, c);
        }
        book_.close();
    }

  private:
    lxw_col_t lastColumn() const { return static_cast<lxw_col_t>(columns_.size() - 1); }

    // Returns the first row of the header.
    lxw_row_t writeTitle(Title title) {
        if (title.empty())
            return 0;
        auto* heading = book_.newFormat();
        format_set_bold(heading);
        format_set_font_size(heading, 14);
        for (const auto& line : title) {
            book_.check(worksheet_write_string(sheet_, row_, 0, line.c_str(), row_ == 0 ? heading : nullptr));
            ++row_;
        }
        book_.setTitle(title.front());
        return row_ + 1;
    }

    lxw_format* headerFormat(lxw_color_t color, std::uint8_t align) {
        auto* format = book_.newFormat();
        format_set_bold(format);
        format_set_pattern(format, LXW_PATTERN_SOLID);
        format_set_bg_color(format, color);
        format_set_border(format, LXW_BORDER_THIN);
        format_set_border_color(format, 0xBFBFBF);
        format_set_align(format, align);
        if (align != LXW_ALIGN_CENTER)
            format_set_indent(format, align == LXW_ALIGN_LEFT ? 1 : 2); // the filter's button stands on the right
        return format;
    }

    // Returns the row of the captions.
    lxw_row_t writeHeader(lxw_row_t top) {
        row_ = top;
        const auto bands = gridBands(columns_);
        auto* bandFormat = bands.empty() ? nullptr : headerFormat(BandColor, LXW_ALIGN_CENTER);
        for (const auto& band : bands) {
            const auto first = static_cast<lxw_col_t>(band.first);
            const auto* caption = band.caption.c_str();
            if (band.count == 1) // the library merges two cells or more
                book_.check(worksheet_write_string(sheet_, row_, first, caption, bandFormat));
            else
                book_.check(worksheet_merge_range(sheet_, row_, first, row_,
                                                  static_cast<lxw_col_t>(first + band.count - 1), caption, bandFormat));
        }
        row_ += bands.empty() ? 0 : 1;
        auto* left = headerFormat(CaptionColor, LXW_ALIGN_LEFT);
        auto* right = headerFormat(CaptionColor, LXW_ALIGN_RIGHT);
        for (std::size_t c = 0; c < columns_.size(); ++c)
            book_.check(worksheet_write_string(sheet_, row_, static_cast<lxw_col_t>(c),
                                               columns_[c].shown->Titulo.c_str(), columns_[c].right() ? right : left));
        return row_;
    }

    void layOut(lxw_row_t top, lxw_row_t caption) {
        const auto last = static_cast<lxw_row_t>(caption + rows_.RecordCount());
        const auto fixed = std::find_if(columns_.begin(), columns_.end(),
                                        [](const auto& column) { return !column.shown->Identificacao; });
        worksheet_freeze_panes(sheet_, caption + 1, static_cast<lxw_col_t>(fixed - columns_.begin()));
        for (std::size_t c = 0; c < columns_.size(); ++c)
            book_.check(worksheet_set_column(sheet_, static_cast<lxw_col_t>(c), static_cast<lxw_col_t>(c),
                                             width(columns_[c]), nullptr));
        book_.check(worksheet_autofilter(sheet_, caption, 0, last, lastColumn()));
        char range[LXW_MAX_CELL_RANGE_LENGTH];
        lxw_rowcol_to_range(range, caption, 0, last, lastColumn());
        // Codes such as "0101" are meant to be texts, and need no warning in their corner.
        book_.check(worksheet_ignore_errors(sheet_, LXW_IGNORE_NUMBER_STORED_AS_TEXT, range));
        worksheet_set_landscape(sheet_);
        worksheet_set_paper(sheet_, 9); // A4
        worksheet_set_margins(sheet_, 0.4, 0.4, 0.5, 0.6);
        worksheet_fit_to_pages(sheet_, 1, 0);
        book_.check(worksheet_repeat_rows(sheet_, top, caption));
        book_.check(worksheet_set_footer(sheet_, "&RPágina &P de &N"));
    }

    // Numbers: their least and greatest, since one that does not fit shows as a row of "#". Texts: a sample.
    double width(const GridColumn& column) const {
        constexpr std::size_t Sample = 500;
        constexpr double Widest = 60;
        auto longest = length(column.shown->Titulo) + 3; // the filter's button
        const auto see = [&](std::size_t i) {
            longest = std::max(longest, length(grid_.Celula(i, *column.shown).Texto()));
        };
        const auto count = rows_.RecordCount();
        if (column.type() == host::TTipoColuna::Inteiro) {
            const auto before = [&](std::size_t a, std::size_t b) {
                return column.values->Comparar(rows_.LinhaDe(a), rows_.LinhaDe(b)) < 0;
            };
            std::size_t least = 0;
            std::size_t greatest = 0;
            for (std::size_t i = 0; i < count; ++i) {
                const bool none = column.values->Nulo(rows_.LinhaDe(least));
                least = none || (!column.values->Nulo(rows_.LinhaDe(i)) && before(i, least)) ? i : least;
                greatest = before(greatest, i) ? i : greatest;
            }
            for (const auto i : {least, greatest})
                if (count > 0)
                    see(i);
        } else {
            for (std::size_t i = 0; i < count; i += std::max<std::size_t>(count / Sample, 1))
                see(i);
        }
        return std::min(static_cast<double>(longest) * 1.1 + 2, Widest); // some are bold
    }

    void writeCell(std::size_t position, std::size_t index) {
        const auto& column = columns_[index];
        const auto cell = grid_.Celula(position, *column.shown);
        const auto look = grid_.Aparencia(cell);
        const auto line = rows_.LinhaDe(position);
        const auto place = static_cast<lxw_col_t>(index);
        if (look.Vazio || column.values->Nulo(line)) {
            book_.check(worksheet_write_blank(sheet_, row_, place, book_.format(look, text_)));
            return;
        }
        const auto value = column.values->Valor(line);
        std::optional<double> number;
        auto format = text_;
        if (const auto* decimal = std::get_if<base::TDecimal>(&value)) {
            number = sheetNumber(*decimal);
            format = numbers_[index].of(*decimal);
        } else if (const auto* date = std::get_if<base::TDataHora>(&value)) {
            number = sheetDate(*date);
            format = *date == date->SemHora() ? date_ : time_;
        } else if (const auto* real = std::get_if<double>(&value); real && std::isfinite(*real)) {
            number = *real;
            format = real_;
        }
        if (number)
            book_.check(worksheet_write_number(sheet_, row_, place, *number, book_.format(look, format)));
        else
            book_.check(
                worksheet_write_string(sheet_, row_, place, textOf(cell, value).c_str(), book_.format(look, format)));
    }

    // The text of a number has all its digits, whatever the format shows of them.
    static std::string textOf(const host::TCelula& cell, const base::TValor& value) {
        return std::holds_alternative<base::TDecimal>(value) ? host::TextoExibido(value, {}) : cell.Texto();
    }

    const host::TGrade& grid_;
    const host::TDataSet& rows_;
    std::vector<GridColumn> columns_;
    XlsxBook book_;
    lxw_worksheet* sheet_;
    std::size_t text_;
    std::size_t real_;
    std::size_t date_;
    std::size_t time_;
    std::vector<NumberLook> numbers_; // by column
    lxw_row_t row_ = 0;
};

} // namespace

void writeXlsx(const host::TGrade& grid, const std::filesystem::path& file, Title title) {
    XlsxGrid(grid, file).write(title);
}

} // namespace suite::exporting
