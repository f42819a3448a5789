#include "suite/program/Outputs.h"

#include "suite/paint/grid/TablePages.h"

#include <charconv>
#include <cstdlib>
#include <ctime>
#include <string_view>
#include <sys/ioctl.h>
#include <unistd.h>

namespace suite::program {

namespace {

base::TDataHora now() {
    std::time_t seconds = std::time(nullptr);
    std::tm parts{};
    if (const char* fixed = std::getenv("SOURCE_DATE_EPOCH")) {
        const std::string_view text(fixed);
        std::from_chars(text.data(), text.data() + text.size(), seconds);
        ::gmtime_r(&seconds, &parts);
    } else {
        ::localtime_r(&seconds, &parts);
    }
    constexpr std::int64_t TenThousandths = 10'000;
    const auto day =
        base::TDataHora::De(parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday).value_or(base::TDataHora());
    return base::TDataHora::DeDecimos(day.Decimos() +
                                      (parts.tm_hour * 3600 + parts.tm_min * 60 + parts.tm_sec) * TenThousandths);
}

} // namespace

const exporting::Exporter& exporter() {
    static const exporting::Exporter all = [] {
        exporting::Exporter made;
        made.add(".pdf", paint::writeTablePdf);
        return made;
    }();
    return all;
}

exporting::Origin originNow(const std::string& database) { return {"orcreal " ORCREAL_VERSAO, database, now()}; }

std::size_t tableWidth(bool terminal) {
    constexpr std::size_t Page = 120;
    winsize size{};
    if (terminal && ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0)
        return std::max<std::size_t>(size.ws_col, 80);
    return Page;
}

} // namespace suite::program
