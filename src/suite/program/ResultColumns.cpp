#include "suite/program/ResultColumns.h"

namespace suite::program {

namespace {

using script::ShownColumn;

constexpr int Periods = 12;

std::vector<ShownColumn> balanceColumns() {
    return {{"CLASSIFCONTAB", "Classificação"},
            {"CONTA", "Conta", 6, false, true},
            {"NOMECONTA", "Nome da Conta", 0, true},
            {"CODIGO", "Sub", 4, false, true},
            {"FILIAL", "Filial", 0, false, true},
            {"CCUSTO", "C.Custo", 0, false, true},
            {"DESCCCUSTO", "Desc.Custo", 9},
            {"TPATUALIZBASE", "TP Atualiz.", 8, false, true},
            {"INDICEATBASE", "% Atualiz.", 8, false, true},
            {"VLRBASE", "Valor Base", 3},
            {"TPPROJECAO", "Proj.", 7, false, true},
            {"TPBASEPROJ", "Base Proj.", 7, false, true},
            {"PERCORCADO", "% Orçado", 8, false, true},
            {"VLRORCADO", "Valor Orçado"},
            {"VLRREALIZADO", "Valor Realizado"},
            {"DELTAVLR", "Variação"},
            {"DELTAPERC", "% Realizado", 1},
            {"DELTAVARIACAO", "% Variação", 2}};
}

// What a narrow table leaves out first: percentages, then the periods from the last on. The total stays.
std::vector<ShownColumn> periodColumns(const host::TDataSet& rows) {
    std::vector<ShownColumn> columns{{"CLASSIFCONTAB", "Classif."},
                                     {"CONTA", "Conta/Tot.", 40, false, true},
                                     {"NOMECONTA", "Nome da Conta/Tot. [Conta/Tot. Desc.]", 0, true},
                                     {"SUBCONTA", "Sub", 41, false, true},
                                     {"FILIAL", "Filial", 0, false, true},
                                     {"CCUSTO", "C.Custo", 0, false, true},
                                     {"ANO", "Ano"}};
    for (int i = 1; i <= Periods && !rows.IsEmpty(); ++i) {
        const auto number = std::to_string(i);
        const auto& titles = rows.Colunas()[rows.FindField("PER" + number)->Indice()];
        if (titles.Nulo(rows.LinhaDe(0)))
            continue;
        columns.push_back({"VAL" + number, std::string(titles.Texto(rows.LinhaDe(0))), 10 + i});
        columns.push_back({"PERC" + number, "% " + std::string(titles.Texto(rows.LinhaDe(0))), 60 + i, false, true});
    }
    columns.push_back({"TOTAL", "Total"});
    columns.push_back({"PERCTOT", "%", 0, false, true});
    return columns;
}

} // namespace

std::vector<ShownColumn> resultColumns(const host::TDataSet& rows) {
    return rows.Nome() == "CdsMostraCtbOrcMensal" ? periodColumns(rows) : balanceColumns();
}

} // namespace suite::program
