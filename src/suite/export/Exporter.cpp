#include "suite/export/Exporter.h"

#include "base/ArquivoInteiro.h"
#include "base/Falhas.h"
#include "suite/export/Formats.h"

#include <algorithm>
#include <fstream>

namespace suite::exporting {

namespace {

using std::filesystem::path;

template <class Write>
void writeText(const path& file, const Write& write) {
    std::ofstream out(file, std::ios::binary);
    out.exceptions(std::ios::failbit | std::ios::badbit);
    write(out);
    out.close();
}

void writeCsvFile(const table::Table& table, const path& file, const Heading& heading) {
    writeText(file, [&](std::ostream& out) {
        out << "\xEF\xBB\xBF"; // without it spreadsheets take the accents for another character set
        if (heading.inCsv)
            writeCsvHeading(out, heading);
        writeCsv(out, table);
    });
}

void writeJsonFile(const table::Table& table, const path& file, const Heading& heading) {
    writeText(file, [&](std::ostream& out) { writeJson(out, table, heading); });
}

std::string inSmallLetters(std::string_view text) {
    std::string small(text);
    std::transform(small.begin(), small.end(), small.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return small;
}

} // namespace

std::vector<std::string> Heading::lines() const {
    std::vector<std::string> lines;
    for (std::size_t i = 1; i < criteria.size(); ++i)
        lines.push_back(criteria[i].Nome + ": " + criteria[i].Valor);
    if (!origin.program.empty())
        lines.push_back("Gerado por " + origin.program + " em " + origin.made.Texto() + ", do banco de dados " +
                        origin.database);
    return lines;
}

Heading headingOf(const host::TFormZTTandorPadraoSelecao& window, const table::Table& table, const Origin& origin) {
    Heading heading{window.Criterios(), origin};
    if (auto filters = table.describeFilters(); !filters.empty())
        heading.criteria.push_back({"Filtros", std::move(filters)});
    if (auto sorts = table.describeSorts(); !sorts.empty())
        heading.criteria.push_back({"Ordem", std::move(sorts)});
    return heading;
}

Exporter::Exporter()
    : writers_{{".xlsx", writeXlsx}, {".html", writeHtml}, {".csv", writeCsvFile}, {".json", writeJsonFile}} {}

void Exporter::add(std::string ending, Writer writer) { writers_[std::move(ending)] = std::move(writer); }

void Exporter::write(const table::Table& table, const path& file, const Heading& heading) const {
    write(table, file, file.extension().string(), heading);
}

void Exporter::write(const table::Table& table, const path& file, std::string_view format,
                     const Heading& heading) const {
    const auto writer = writers_.find(inSmallLetters(format));
    if (writer == writers_.end()) {
        std::string endings;
        for (const auto& [ending, _] : writers_)
            endings += (endings.empty() ? "" : ending == writers_.rbegin()->first ? " ou " : ", ") + ending;
        throw base::TFalha("Não é possível exportar para " + file.string() + ": o nome do arquivo deve terminar em " +
                           endings + ".");
    }
    if (!table.active())
        throw base::TFalha("Não há dados para exportar. Faça antes uma seleção.");
    if (table.columnsOfFiles().empty())
        throw base::TFalha("Nenhuma coluna está à vista. Mostre ao menos uma antes de exportar.");
    base::GravarArquivoInteiro(file, [&](const path& aside) { writer->second(table, aside, heading); });
}

} // namespace suite::exporting
