#include "suite/export/XlsxBook.h"

#include "base/Falhas.h"

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

namespace suite::exporting {

namespace {

[[noreturn]] void fail(const char* what) { throw std::system_error(errno, std::generic_category(), what); }

// Black has a number of its own: 0 is no colour.
lxw_color_t colorOf(host::TCor color) { return color == 0 ? lxw_color_t{LXW_COLOR_BLACK} : color; }

std::uint64_t bits(const std::optional<host::TCor>& color) { return color ? 1U << 24 | (*color & 0xFFFFFFU) : 0; }

// What stands beside the digits; a quote for each sign that means something to a spreadsheet.
std::string literal(std::string_view text) {
    std::string quoted;
    for (const char c : text) {
        const bool follows = (static_cast<unsigned char>(c) & 0xC0U) == 0x80;
        if (!follows && std::string_view("()-+ ").find(c) == std::string_view::npos)
            quoted += '\\';
        quoted += c;
    }
    return quoted;
}

std::string section(std::string_view format) {
    constexpr const char* Digits = ",.0";
    const auto first = std::min(format.find_first_of(Digits), format.size());
    std::string before(format.substr(0, first));
    std::string after;
    std::size_t whole = 0;
    std::size_t places = 0;
    bool point = false;
    for (const char c : format.substr(first)) {
        if (c == '0')
            ++(point ? places : whole);
        else if (c == '.')
            point = true;
        else if (c != ',')
            after += c;
    }
    std::string digits(std::max<std::size_t>(whole, 1), '0');
    if (format.find(',') != std::string_view::npos) {
        digits.insert(0, 4 - std::min<std::size_t>(digits.size(), 4), '#');
        for (auto i = digits.size(); i > 3; i -= 3)
            digits.insert(i - 3, 1, ',');
    }
    if (places > 0)
        digits += "." + std::string(places, '0');
    return literal(before) + digits + literal(after);
}

} // namespace

std::string spreadsheetFormat(std::string_view format) {
    const auto divide = format.find(';');
    const auto positive = section(format.substr(0, divide));
    return divide >= format.size() - 1 ? positive : positive + ";" + section(format.substr(divide + 1));
}

PlainNumbers::PlainNumbers() : plain_(newlocale(LC_ALL_MASK, "C", nullptr)), before_(uselocale(plain_)) {}

PlainNumbers::~PlainNumbers() {
    uselocale(before_);
    freelocale(plain_);
}

XlsxBook::XlsxBook(const std::filesystem::path& file, const char* sheet)
    : file_(file), folder_(std::filesystem::absolute(file).parent_path().string()) {
    // Temporary files lie beside the target: where it has room, they have.
    lxw_workbook_options options{LXW_TRUE, folder_.data(), LXW_FALSE};
    book_ = workbook_new_opt(file.c_str(), &options);
    sheet_ = book_ ? workbook_add_worksheet(book_, sheet) : nullptr;
    if (!sheet_) {
        lxw_workbook_free(book_);
        fail("workbook");
    }
}

XlsxBook::~XlsxBook() {
    if (!book_)
        return;
    std::fclose(sheet_->optimize_tmpfile);
    lxw_workbook_free(book_);
}

lxw_format* XlsxBook::newFormat() {
    auto* format = workbook_add_format(book_);
    if (!format)
        throw std::bad_alloc();
    return format;
}

std::size_t XlsxBook::numberFormat(const std::string& format) {
    const auto found = std::find(numberFormats_.begin(), numberFormats_.end(), format);
    const auto index = static_cast<std::size_t>(found - numberFormats_.begin());
    if (found == numberFormats_.end())
        numberFormats_.push_back(format);
    return index;
}

lxw_format* XlsxBook::format(const host::TAparencia& look, std::size_t numbers) {
    auto& format =
        formats_[numbers << 51 | (look.Negrito ? 1ULL << 50 : 0) | bits(look.Fonte) << 25 | bits(look.Fundo)];
    if (format)
        return format;
    format = newFormat();
    format_set_bottom(format, LXW_BORDER_HAIR);
    format_set_bottom_color(format, 0xBFBFBF);
    if (numberFormats_[numbers].empty()) {
        format_set_align(format, LXW_ALIGN_LEFT);
        format_set_indent(format, 1); // away from a number in the column before
    } else {
        format_set_num_format(format, numberFormats_[numbers].c_str());
        format_set_align(format, LXW_ALIGN_RIGHT); // a number written as text stands under the others
    }
    if (look.Negrito)
        format_set_bold(format);
    if (look.Fonte)
        format_set_font_color(format, colorOf(*look.Fonte));
    if (look.Fundo) {
        format_set_pattern(format, LXW_PATTERN_SOLID);
        format_set_bg_color(format, colorOf(*look.Fundo));
    }
    return format;
}

void XlsxBook::setTitle(const std::string& title) {
    lxw_doc_properties properties{};
    std::string copy = title;
    properties.title = copy.data();
    check(workbook_set_properties(book_, &properties));
}

void XlsxBook::check(lxw_error error) const {
    if (error == LXW_ERROR_MAX_STRING_LENGTH_EXCEEDED)
        throw base::TFalha(
            "Um texto tem mais de 32.767 caracteres, o máximo de uma célula de planilha. Exporte para .csv.");
    if (error != LXW_NO_ERROR)
        fail(lxw_strerror(error));
}

void XlsxBook::close() {
    // The library does not look whether its temporary files took all it wrote, so we do: the rows here, what it makes
    // of them in the archive.
    lxw_worksheet_write_single_row(sheet_);
    auto* rows = sheet_->optimize_tmpfile;
    if (std::fflush(rows) != 0 || std::ferror(rows))
        fail("rows");
    const auto bytes = std::ftell(rows);
    check(workbook_close(std::exchange(book_, nullptr)));
    if (bytes < 0 || !isWholeXlsx(file_, static_cast<std::uint64_t>(bytes)))
        fail("archive");
}

} // namespace suite::exporting
