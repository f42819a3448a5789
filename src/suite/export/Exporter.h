#pragma once

#include "host/Formularios.h"
#include "suite/table/Table.h"

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace suite::exporting {

// Who made an output, from what and when: what the program knows and no window does.
struct Origin {
    std::string program;  // "orcreal 0.1.0"
    std::string database; // as the user names it
    base::TDataHora made;
};

// What stands around the rows of an output: what they were asked for, and where they come from.
struct Heading {
    std::vector<host::TCriterio> criteria; // the first is the title; may be empty
    Origin origin;

    bool inCsv = false; // before the rows

    std::string title() const { return criteria.empty() ? "Consulta" : criteria.front().Valor; }
    // Criteria behind the title and the origin, as "Período: 01/01/2024 a 31/01/2024".
    std::vector<std::string> lines() const;
};

// The criteria of the result in view of a window, with what the table leaves out or orders.
Heading headingOf(const host::TFormZTTandorPadraoSelecao& window, const table::Table& table, const Origin& origin);

// Writes what a table says to a file, whole or not at all: it is written beside and renamed.
class Exporter {
  public:
    // Writes in full, or fails by any exception.
    using Writer = std::function<void(const table::Table&, const std::filesystem::path&, const Heading&)>;

    Exporter(); // .xlsx .html .csv .json
    void add(std::string ending, Writer writer);

    // By the file's ending, or in a format that the name does not tell, as ".xlsx". Throws TFalha, for an ending that
    // is not known too.
    void write(const table::Table& table, const std::filesystem::path& file, const Heading& heading) const;
    void write(const table::Table& table, const std::filesystem::path& file, std::string_view format,
               const Heading& heading) const;

  private:
    std::map<std::string, Writer, std::less<>> writers_;
};

// How a session writes its outputs; the exporter is not owned.
struct Output {
    const Exporter& exporter;
    std::function<Origin()> origin; // as of now
};

} // namespace suite::exporting
