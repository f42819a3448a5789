#pragma once

#include "base/FormatoNumerico.h"
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

// A workbook, whose rows go to a temporary file a sheet as they come: they must come in order, and hardly take memory.
// Unless closed, it leaves nothing. Failures to write are a std::system_error.
class XlsxBook {
  public:
    explicit XlsxBook(const std::filesystem::path& file);
    ~XlsxBook();
    XlsxBook(const XlsxBook&) = delete;
    XlsxBook& operator=(const XlsxBook&) = delete;

    lxw_worksheet* addSheet(const char* name);
    // A cell's format, made at first use: a look and a number format of the spreadsheet (empty: general).
    lxw_format* format(const host::TAparencia& look, std::size_t numbers);
    std::size_t numberFormat(const std::string& format);
    lxw_format* newFormat();
    void describe(const std::string& title, base::TDataHora made);
    // For every result of the library.
    void check(lxw_error error) const;
    void close();

  private:
    PlainNumbers plain_;
    std::filesystem::path file_;
    std::string folder_; // the library keeps the pointer
    lxw_workbook* book_ = nullptr;
    std::vector<lxw_worksheet*> sheets_;
    std::vector<std::string> numberFormats_;
    std::map<std::uint64_t, lxw_format*> formats_;
};

// Whether an archive holds all its parts to their last tag, and the sheets in order at least that many bytes each.
bool isWholeXlsx(const std::filesystem::path& file, const std::vector<std::uint64_t>& sheets);

} // namespace suite::exporting
