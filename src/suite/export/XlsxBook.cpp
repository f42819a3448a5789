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

} // namespace

PlainNumbers::PlainNumbers() : plain_(newlocale(LC_ALL_MASK, "C", nullptr)), before_(uselocale(plain_)) {}

PlainNumbers::~PlainNumbers() {
    uselocale(before_);
    freelocale(plain_);
}

XlsxBook::XlsxBook(const std::filesystem::path& file)
    : file_(file), folder_(std::filesystem::absolute(file).parent_path().string()) {
    // Temporary files lie beside the target: where it has room, they have.
    lxw_workbook_options options{LXW_TRUE, folder_.data(), LXW_FALSE};
    book_ = workbook_new_opt(file.c_str(), &options);
    if (!book_)
        fail("workbook");
}

XlsxBook::~XlsxBook() {
    if (!book_)
        return;
    for (auto* sheet : sheets_)
        std::fclose(sheet->optimize_tmpfile);
    lxw_workbook_free(book_);
}

lxw_worksheet* XlsxBook::addSheet(const char* name) {
    auto* sheet = workbook_add_worksheet(book_, name);
    if (!sheet)
        fail("worksheet");
    return sheets_.emplace_back(sheet);
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

void XlsxBook::describe(const std::string& title, base::TDataHora made) {
    // An absent time would be that of the machine. An archive counts from 1980.
    const auto since = [](base::TDataHora time) { return time.Decimos() / (base::TDataHora::DecimosPorDia / 86'400); };
    static const auto First = *base::TDataHora::De(1980, 1, 1);
    lxw_doc_properties properties{};
    std::string copy = title;
    properties.title = copy.data();
    properties.created = since(std::max(made, First)) - since(*base::TDataHora::De(1970, 1, 1));
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
    std::vector<std::uint64_t> bytes;
    for (auto* sheet : sheets_) {
        lxw_worksheet_write_single_row(sheet);
        auto* rows = sheet->optimize_tmpfile;
        const auto end = std::fflush(rows) == 0 && !std::ferror(rows) ? std::ftell(rows) : -1;
        if (end < 0)
            fail("rows");
        bytes.push_back(static_cast<std::uint64_t>(end));
    }
    check(workbook_close(std::exchange(book_, nullptr)));
    if (!isWholeXlsx(file_, bytes))
        fail("archive");
}

} // namespace suite::exporting
