#include "suite/program/TableColumns.h"

#include "base/Texto.h"
#include "suite/export/GridExport.h"

#include <map>

namespace suite::program {

namespace {

struct Manner {
    int rank;
    bool zeroIsBlank;
};

// By field, of both grids. What is not here always stays.
const std::map<std::string, Manner, std::less<>> Manners{
    {"CONTA", {30, true}},         {"CODIGO", {25, true}},       {"SUBCONTA", {25, true}},
    {"FILIAL", {0, true}},         {"CCUSTO", {0, true}},        {"RECDESP", {50, false}},
    {"TPATUALIZBASE", {40, true}}, {"INDICEATBASE", {40, true}}, {"TPPROJECAO", {39, true}},
    {"TPBASEPROJ", {39, true}},    {"PERCORCADO", {40, true}},   {"VLRBASE", {3, false}},
    {"DELTAVARIACAO", {2, false}}, {"DELTAPERC", {1, false}},    {"PERCTOT", {0, true}},
};

constexpr std::string_view PeriodValue = "VAL";
constexpr std::string_view PeriodPercentage = "PERC";

// Percentages of the periods go before their values, and the last periods before the first.
Manner mannerOf(std::string_view field) {
    if (const auto known = Manners.find(field); known != Manners.end())
        return known->second;
    if (field.starts_with(PeriodValue))
        return {5 + base::NumeroOuZero(field.substr(PeriodValue.size())), false};
    if (field.starts_with(PeriodPercentage))
        return {60 + base::NumeroOuZero(field.substr(PeriodPercentage.size())), true};
    return {0, false};
}

} // namespace

std::vector<exporting::ShownColumn> tableColumns(const host::TGrade& grid) {
    auto columns = exporting::flatColumns(grid);
    for (auto& column : columns) {
        const auto manner = mannerOf(column.field);
        column.rank = manner.rank;
        column.zeroIsBlank = manner.zeroIsBlank;
        column.stretches = column.field == "NOMECONTA";
    }
    return columns;
}

} // namespace suite::program
