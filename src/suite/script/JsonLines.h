#pragma once

#include "host/DataSet.h"
#include "suite/export/Json.h"

#include <ostream>

namespace suite::script {

// The output of a script: one JSON object a line, each with the line of the script that it comes from.
class JsonLines {
  public:
    explicit JsonLines(std::ostream& out) : out_(out) {}

    void setLine(int line) { line_ = line; }
    int line() const { return line_; }
    void write(std::string_view type, const exporting::JsonObject& members) { write(type, members.members()); }
    void write(std::string_view type, std::string_view members);
    void writeRows(const host::TDataSet& rows);
    // What is written so far is out of the program's hands.
    void flush() { out_.flush(); }

  private:
    std::ostream& begin(std::string_view type);

    std::ostream& out_;
    int line_ = 0;
};

} // namespace suite::script
