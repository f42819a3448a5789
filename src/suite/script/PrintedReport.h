#pragma once

#include "host/Interacao.h"

#include <string>

namespace suite::script {

// What a script can show of the report printed last: a copy of its rows and of its bands, as members of a JSON object.
struct PrintedReport {
    static constexpr const char* RowsName = "CdsImpressao";

    std::string rows;  // closed before the first print
    std::string bands; // empty before the first print

    PrintedReport();
    void keep(const host::TImpressao& print);
};

} // namespace suite::script
