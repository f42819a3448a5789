#include "consultation/EstruturaGrades.h"

#include "base/Falhas.h"
#include "core/Un04618Const.h"

#include <algorithm>

namespace pct04618 {

namespace {

constexpr const char* Base = "Valor Base";
constexpr const char* Orcado = "Valor Orçado";
constexpr const char* Realizado = "Valor Realizado";
constexpr const char* Dinheiro = ",0.00";
constexpr const char* Percentual = ",0.0000";

host::TColunaGrade Coluna(std::string ACampo, const char* ATitulo, const char* AFaixa = "", const char* AFormato = "") {
    host::TColunaGrade LColuna;
    LColuna.Campo = std::move(ACampo);
    LColuna.Titulo = ATitulo;
    LColuna.Faixa = AFaixa;
    LColuna.Formato = AFormato;
    return LColuna;
}

host::TColunaGrade Oculta(host::TColunaGrade AColuna) {
    AColuna.Visivel = false;
    return AColuna;
}

host::TColunaGrade Agrupada(host::TColunaGrade AColuna) {
    AColuna.Grupo = 0;
    return AColuna;
}

host::TColunaGrade Identificacao(host::TColunaGrade AColuna) {
    AColuna.Identificacao = true;
    return AColuna;
}

host::TColunaGrade& Achar(TColunasGrade& AColunas, const std::string& ACampo) {
    const auto LColuna =
        std::find_if(AColunas.begin(), AColunas.end(), [&](const host::TColunaGrade& C) { return C.Campo == ACampo; });
    if (LColuna == AColunas.end())
        throw base::TFalha("A grade não tem a coluna " + ACampo + ".");
    return *LColuna;
}

void EstruturarColunaPeriodo(TColunasGrade& AColunas, const host::TDataSet& ADataSet, const std::string& ANumero) {
    const auto* LPeriodo = ADataSet.FindField("PER" + ANumero);
    if (!LPeriodo)
        throw base::TFalha(ADataSet.Nome() + " não tem o campo PER" + ANumero + ".");
    auto& LValor = Achar(AColunas, "VAL" + ANumero);
    LValor.Titulo = LPeriodo->AsString();
    LValor.Visivel = !LValor.Titulo.empty();
    Achar(AColunas, "PERC" + ANumero).Visivel = LValor.Visivel;
}

void AplicarPadrao(TColunasGrade& AColunas, std::initializer_list<const char*> AOcultas) {
    for (auto& LColuna : AColunas)
        if (LColuna.Grupo >= 0)
            ++LColuna.Grupo;
    Achar(AColunas, "FILIAL").Grupo = 0;
    for (const auto* LCampo : AOcultas)
        Achar(AColunas, LCampo).Visivel = false;
}

} // namespace

TColunasGrade ColunasDbtvCtbOrcada() {
    return {Coluna("CLASSIFCONTAB", "Classificação"),
            Coluna("CONTA", "Conta/Tot."),
            Coluna("CODIGO", "Sub"),
            Coluna("CCUSTO", "C.Custo"),
            Oculta(Coluna("DESCCCUSTO", "Desc.Custo")),
            Agrupada(Coluna("FILIAL", "Filial")),
            Coluna("NOMECONTA", "Nome da Conta/Totalizador"),
            Coluna("TPATUALIZBASE", "TP Atualiz.", Base),
            Coluna("INDICEATBASE", "% Atualiz.", Base),
            Coluna("VLRBASE", "Valor", Base, Dinheiro),
            Coluna("TPPROJECAO", "Proj.", Orcado),
            Coluna("TPBASEPROJ", "Base Proj.", Orcado),
            Coluna("PERCORCADO", "%", Orcado, Percentual),
            Coluna("VLRORCADO", "Valor", Orcado, Dinheiro),
            Coluna("VLRREALIZADO", "Valor Realizado", Realizado, Dinheiro),
            Coluna("DELTAVLR", "Variação", Realizado, Dinheiro),
            Coluna("DELTAPERC", "% Realizado", Realizado, Percentual),
            Coluna("DELTAVARIACAO", "% Variação", Realizado, Percentual),
            Coluna("RECDESP", "Tipo Conta", Realizado),
            Oculta(Coluna("CTATITULO", "", Realizado))};
}

TColunasGrade ColunasDbtvMostraCtbOrcMensal() {
    TColunasGrade LColunas{Identificacao(Coluna("CLASSIFCONTAB", "Classif. Conta/Tot.")),
                           Identificacao(Coluna("CONTA", "Conta/Tot.")),
                           Identificacao(Coluna("SUBCONTA", "Sub")),
                           Identificacao(Coluna("CCUSTO", "C.Custo")),
                           Identificacao(Agrupada(Coluna("FILIAL", "Filial"))),
                           Identificacao(Coluna("NOMECONTA", "Nome da Conta/Tot. [Conta/Tot. Desc.]")),
                           Coluna("ANO", "Ano")};
    for (int I = 1; I <= MaximoPeriodosEmColunas; ++I) { // in view once a result has named the period
        LColunas.push_back(Oculta(Coluna("VAL" + std::to_string(I), "", "", Dinheiro)));
        LColunas.push_back(Oculta(Coluna("PERC" + std::to_string(I), "%", "", Percentual)));
    }
    for (auto& LColuna :
         {Coluna("TOTAL", "Total", "", Dinheiro), Coluna("PERCTOT", "%", "", Percentual),
          Oculta(Coluna("CTATITULO", "")), Oculta(Coluna("TIPOLINHA", "")), Oculta(Coluna("IDPLANO", ""))})
        LColunas.push_back(LColuna);
    return LColunas;
}

TColunasGrade EstruturarColunasPeriodo(TColunasGrade AColunas, const host::TDataSet& ADataSet) {
    for (int I = 1; I <= MaximoPeriodosEmColunas; ++I)
        EstruturarColunaPeriodo(AColunas, ADataSet, std::to_string(I));
    return AColunas;
}

void AplicarPadraoDbtvCtbOrcada(TColunasGrade& AColunas) { AplicarPadrao(AColunas, {"DESCCCUSTO", "CTATITULO"}); }

void AplicarPadraoDbtvMostraCtbOrcMensal(TColunasGrade& AColunas) {
    AplicarPadrao(AColunas, {"IDPLANO", "CTATITULO", "TIPOLINHA"});
}

} // namespace pct04618
