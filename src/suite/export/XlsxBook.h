#pragma once

#include "host/Grade.h"

#include <filesystem>
#include <locale.h>
#include <map>
#include <string>
#include <vector>
#include <xlsxwriter.h>

namespace suite::exporting {

// The library prints numbers with the locale's decimal sign, and the file must have points.
class PlainNumbers {
  public:
    PlainNumbers();
    ~PlainNumbers();
    PlainNumbers(const PlainNumbers&) = delete;
    PlainNumbers& operator=(const PlainNumbers&) = delete;

  private:
    locale_t plain_;
    locale_t before_;
};

// A workbook of one sheet, whose rows go to a temporary file as they come: they must come in order, and hardly take
// memory. Unless closed, it leaves nothing. Failures to write are a std::system_error.
class XlsxBook {
  public:
    XlsxBook(const std::filesystem::path& file, const char* sheet);
    ~XlsxBook();
    XlsxBook(const XlsxBook&) = delete;
    XlsxBook& operator=(const XlsxBook&) = delete;

    lxw_worksheet* sheet() const { return sheet_; }
    // A cell's format, made at first use: a look and a number format of the spreadsheet (empty: general).
    lxw_format* format(const host::TAparencia& look, std::size_t numbers);
    std::size_t numberFormat(const std::string& format);
    lxw_format* newFormat();
    void setTitle(const std::string& title);
    // For every result of the library.
    void check(lxw_error error) const;
    void close();

  private:
    PlainNumbers plain_;
    std::filesystem::path file_;
    std::string folder_; // the library keeps the pointer
    lxw_workbook* book_ = nullptr;
    lxw_worksheet* sheet_ = nullptr;
    std::vector<std::string> numberFormats_;
    std::map<std::uint64_t, lxw_format*> formats_;
};

// The spreadsheet's own notation for a number format of the host: "#,##0.00" for ",0.00".
std::string spreadsheetFormat(std::string_view format);

// Whether an archive holds all its parts to their last tag, and one of at least that many bytes.
bool isWholeXlsx(const std::filesystem::path& file, std::uint64_t bytes);

} // namespace suite::exporting
