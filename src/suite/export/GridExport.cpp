#include "suite/export/GridExport.h"

#include "base/ArquivoInteiro.h"
#include "base/Falhas.h"
#include "suite/export/GridParts.h"

#include <algorithm>
#include <fstream>

namespace suite::exporting {

namespace {

using std::filesystem::path;

void writeCsvFile(const host::TGrade& grid, const path& file, Title) {
    std::ofstream out(file, std::ios::binary);
    out.exceptions(std::ios::failbit | std::ios::badbit);
    out << "\xEF\xBB\xBF"; // without it spreadsheets take the accents for another character set
    writeCsv(out, *grid.DataSet(), flatColumns(grid));
    out.close();
}

void writeJsonFile(const host::TGrade& grid, const path& file, Title) {
    std::ofstream out(file, std::ios::binary);
    out.exceptions(std::ios::failbit | std::ios::badbit);
    writeJson(out, *grid.DataSet());
    out.close();
}

using Writer = void (*)(const host::TGrade&, const path&, Title);

Writer writerOf(const path& file, std::string_view format) {
    std::string ending(format);
    std::transform(ending.begin(), ending.end(), ending.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    if (ending == ".xlsx")
        return writeXlsx;
    if (ending == ".html")
        return writeHtml;
    if (ending == ".csv")
        return writeCsvFile;
    if (ending == ".json")
        return writeJsonFile;
    throw base::TFalha("Não é possível exportar para " + file.string() +
                       ": o nome do arquivo deve terminar em .xlsx, .html, .csv ou .json.");
}

} // namespace

std::vector<GridColumn> gridColumns(const host::TGrade& grid) {
    std::vector<GridColumn> columns;
    for (const auto& column : grid.Colunas()) {
        const auto* field = grid.DataSet()->FindField(column.Campo);
        if (!field || (!column.Visivel && column.Grupo < 0))
            continue;
        const auto& values = grid.DataSet()->Colunas()[field->Indice()];
        auto format = column.Formato.empty() ? field->FormatoExibicao : column.Formato;
        if (const auto scale = values.Descricao().Escala; format.empty() && scale > 0)
            format = ",0." + std::string(static_cast<std::size_t>(scale), '0');
        columns.push_back({&column, &values, std::move(format)});
    }
    return columns;
}

std::vector<ShownColumn> flatColumns(const host::TGrade& grid) {
    const auto columns = gridColumns(grid);
    std::vector<const host::TColunaGrade*> shown;
    for (const auto& column : columns)
        shown.push_back(column.shown);
    std::vector<ShownColumn> flat;
    for (std::size_t i = 0; i < shown.size(); ++i)
        flat.push_back({shown[i]->Campo, host::TituloPorExtenso(shown, i)});
    return flat;
}

std::vector<GridBand> gridBands(const std::vector<GridColumn>& columns) {
    if (std::all_of(columns.begin(), columns.end(), [](const auto& c) { return c.shown->Faixa.empty(); }))
        return {};
    std::vector<GridBand> bands;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const auto& caption = columns[i].shown->Faixa;
        if (bands.empty() || bands.back().caption != caption)
            bands.push_back({caption, i, 0});
        ++bands.back().count;
    }
    return bands;
}

void exportGrid(const host::TGrade& grid, const path& file, Title title) {
    exportGrid(grid, file, file.extension().string(), title);
}

void exportGrid(const host::TGrade& grid, const path& file, std::string_view format, Title title) {
    const auto writer = writerOf(file, format);
    if (!grid.DataSet() || !grid.DataSet()->Active())
        throw base::TFalha("Não há dados para exportar. Faça antes uma seleção.");
    if (gridColumns(grid).empty())
        throw base::TFalha("Nenhuma coluna está à vista. Mostre ao menos uma antes de exportar.");
    base::GravarArquivoInteiro(file, [&](const path& aside) { writer(grid, aside, title); });
}

} // namespace suite::exporting
