#include "suite/script/JsonLines.h"

#include "suite/export/Formats.h"

namespace suite::script {

std::ostream& JsonLines::begin(std::string_view type) {
    return out_ << "{\"passo\":" << line_ << ",\"tipo\":" << exporting::quoteJson(type) << ',';
}

void JsonLines::write(std::string_view type, std::string_view members) { begin(type) << members << "}\n"; }

void JsonLines::writeRows(const host::TDataSet& rows) {
    exporting::writeJsonMembers(begin("linhas"), rows);
    out_ << "}\n";
}

} // namespace suite::script
