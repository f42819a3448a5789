#include "suite/program/Outputs.h"

#include "suite/desktop/paper/PdfFile.h"

#include <charconv>
#include <cstdlib>
#include <ctime>
#include <string_view>

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
        made.add(".pdf", desktop::writePdf);
        return made;
    }();
    return all;
}

exporting::Origin originNow(const std::string& database) { return {"orcreal " ORCREAL_VERSAO, database, now()}; }

} // namespace suite::program
