#include "suite/script/PrintedReport.h"

#include "suite/export/Formats.h"
#include "suite/export/Json.h"
#include "suite/script/GridJson.h"

#include <sstream>

namespace suite::script {

namespace {

using exporting::JsonObject;

std::string describe(const base::TFaixa& band) {
    std::vector<std::string> fields;
    for (const auto& element : band.Elementos)
        fields.push_back(JsonObject()
                             .add("nome", exporting::quoteJson(element.Nome))
                             .add("texto", exporting::quoteJson(element.Texto))
                             .add("negrito", exporting::jsonFlag(element.Negrito))
                             .add("fundo", jsonColour(element.Fundo))
                             .text());
    return JsonObject()
        .add("faixa", exporting::quoteJson(band.Nome))
        .add("nivel", std::to_string(band.Nivel))
        .add("campos", exporting::jsonList(fields))
        .text();
}

} // namespace

PrintedReport::PrintedReport()
    : rows(JsonObject()
               .add("dados", exporting::quoteJson(RowsName))
               .add("aberto", "false")
               .add("colunas", "[]")
               .add("linhas", "[]")
               .members()) {}

void PrintedReport::keep(const host::TImpressao& print) {
    std::ostringstream text;
    exporting::writeJsonMembers(text, print.Linhas);
    rows = text.str();
    std::vector<std::string> all;
    const auto flow = print.Relatorio.Faixas();
    for (base::TFaixa band; flow->Proxima(band);)
        if (!band.Elementos.empty()) // one without any keeps its group together, and prints nothing
            all.push_back(describe(band));
    const auto& definition = print.Relatorio.Definicao();
    bands = JsonObject()
                .add("orientacao", exporting::quoteJson(definition.Papel.Paisagem ? "paisagem" : "retrato"))
                .add("titulo", exporting::quoteJson(definition.Titulo))
                .add("faixas", exporting::jsonList(all))
                .members();
}

} // namespace suite::script
