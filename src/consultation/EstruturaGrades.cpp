#include "consultation/EstruturaGrades.h"

#include "base/Falhas.h"
#include "consultation/NomesDosPeriodos.h"
#include "core/Un04618Const.h"

#include <algorithm>

namespace pct04618 {

namespace {

using host::TPapelColuna;

constexpr const char* Base = "Valor Base";
constexpr const char* Orcado = "Valor Orçado";
constexpr const char* Realizado = "Valor Realizado";
constexpr const char* FormatoDinheiro = ",0.00";
constexpr const char* FormatoPercentual = ",0.0000";

// A column under construction: what is not said of it is as for any. The role decides the number format.
struct TDesenho : host::TColunaGrade {
    TDesenho(std::string ACampo, std::string ATitulo, const char* AFaixa = "") {
        Campo = std::move(ACampo);
        Titulo = std::move(ATitulo);
        Faixa = AFaixa;
    }
    TDesenho& Com(TPapelColuna APapel) {
        const bool LPercentual = APapel == TPapelColuna::Percentual || APapel == TPapelColuna::PercentualDesvio;
        if (APapel >= TPapelColuna::Dinheiro)
            Formato = LPercentual ? FormatoPercentual : FormatoDinheiro;
        Papel = APapel;
        return *this;
    }
    TDesenho& Identifica() {
        Identificacao = true;
        return *this;
    }
    TDesenho& Oculta() {
        Visivel = false;
        return *this;
    }
    TDesenho& Agrupada() {
        Grupo = 0;
        return *this;
    }
    TDesenho& Cedendo(int AOrdem) {
        Cede = AOrdem;
        return *this;
    }
    TDesenho& Somando(std::vector<std::string> AParcelas) {
        Parcelas = std::move(AParcelas);
        return *this;
    }
};

host::TColunaGrade& Achar(TColunasGrade& AColunas, const std::string& ACampo) {
    const auto LColuna =
        std::find_if(AColunas.begin(), AColunas.end(), [&](const host::TColunaGrade& C) { return C.Campo == ACampo; });
    if (LColuna == AColunas.end())
        throw base::TFalha("A grade não tem a coluna " + ACampo + ".");
    return *LColuna;
}

// AExtenso is the period without a neighbour to explain it; empty where there is no such period.
void EstruturarColunaPeriodo(TColunasGrade& AColunas, const std::string& ANumero, const std::string& ATitulo,
                             const std::string& AExtenso) {
    auto& LValor = Achar(AColunas, "VAL" + ANumero);
    LValor.Titulo = ATitulo;
    LValor.Extenso = AExtenso;
    LValor.Visivel = !ATitulo.empty();
    auto& LPercentual = Achar(AColunas, "PERC" + ANumero);
    LPercentual.Extenso = LPercentual.Titulo + " " + AExtenso;
    LPercentual.Visivel = LValor.Visivel;
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

// Where room is narrow, percentages give way before values, late periods before early ones, and what describes a
// projection before what it is worth.
TColunasGrade ColunasDbtvCtbOrcada() {
    return {
        TDesenho("CLASSIFCONTAB", "Classificação").Identifica(),
        TDesenho("CONTA", "Conta/Tot.").Identifica().Cedendo(30),
        TDesenho("CODIGO", "Sub").Identifica().Cedendo(25),
        TDesenho("CCUSTO", "C.Custo").Com(TPapelColuna::Detalhe).Identifica(),
        TDesenho("DESCCCUSTO", "Desc.Custo").Identifica().Oculta(),
        TDesenho("FILIAL", "Filial").Com(TPapelColuna::Detalhe).Identifica().Agrupada(),
        TDesenho("NOMECONTA", "Nome da Conta/Totalizador").Com(TPapelColuna::Nome).Identifica(),
        TDesenho("TPATUALIZBASE", "TP Atualiz.", Base).Cedendo(40),
        TDesenho("INDICEATBASE", "% Atualiz.", Base).Cedendo(40),
        TDesenho("VLRBASE", "Valor", Base).Com(TPapelColuna::Dinheiro).Cedendo(3),
        TDesenho("TPPROJECAO", "Proj.", Orcado).Cedendo(39),
        TDesenho("TPBASEPROJ", "Base Proj.", Orcado).Cedendo(39),
        TDesenho("PERCORCADO", "%", Orcado).Com(TPapelColuna::Percentual).Cedendo(40),
        TDesenho("VLRORCADO", "Valor", Orcado).Com(TPapelColuna::Dinheiro),
        TDesenho("VLRREALIZADO", "Valor Realizado", Realizado).Com(TPapelColuna::Dinheiro),
        TDesenho("DELTAVLR", "Variação", Realizado).Com(TPapelColuna::Desvio).Somando({"VLRORCADO", "-VLRREALIZADO"}),
        TDesenho("DELTAPERC", "% Realizado", Realizado).Com(TPapelColuna::Percentual).Cedendo(1),
        TDesenho("DELTAVARIACAO", "% Variação", Realizado).Com(TPapelColuna::PercentualDesvio).Cedendo(2),
        TDesenho("RECDESP", "Tipo Conta", Realizado).Cedendo(50),
        TDesenho("CTATITULO", "", Realizado).Oculta()};
}

host::TRegraDasLinhas LinhasDbtvCtbOrcada() {
    host::TRegraDasLinhas LLinhas;
    LLinhas.Titulo = "CTATITULO";
    LLinhas.Chave = {"IDPLANO", "CONTA", "CODIGO", "CCUSTO", "FILIAL", "CLASSIFCONTAB"};
    LLinhas.Conta = "IDPLANO";
    LLinhas.Favoravel = "DELTAVARIACAO";
    LLinhas.Nivel = "CLASSIFCONTAB";
    return LLinhas;
}

TColunasGrade ColunasDbtvMostraCtbOrcMensal() {
    TColunasGrade LColunas{
        TDesenho("CLASSIFCONTAB", "Classif. Conta/Tot.").Identifica(),
        TDesenho("CONTA", "Conta/Tot.").Identifica().Cedendo(30),
        TDesenho("SUBCONTA", "Sub").Identifica().Cedendo(25),
        TDesenho("CCUSTO", "C.Custo").Com(TPapelColuna::Detalhe).Identifica(),
        TDesenho("FILIAL", "Filial").Com(TPapelColuna::Detalhe).Identifica().Agrupada(),
        TDesenho("NOMECONTA", "Nome da Conta/Tot. [Conta/Tot. Desc.]").Com(TPapelColuna::Nome).Identifica(),
        TDesenho("ANO", "Ano")};
    std::vector<std::string> LPeriodos;
    for (int I = 1; I <= MaximoPeriodosEmColunas; ++I) { // in view once a result has named the period
        LPeriodos.push_back("VAL" + std::to_string(I));
        LColunas.push_back(TDesenho(LPeriodos.back(), "").Com(TPapelColuna::Dinheiro).Oculta().Cedendo(5 + I));
        LColunas.push_back(
            TDesenho("PERC" + std::to_string(I), "%").Com(TPapelColuna::Percentual).Oculta().Cedendo(60 + I));
    }
    for (const auto& LColuna :
         {TDesenho("TOTAL", "Total").Com(TPapelColuna::Total).Somando(LPeriodos),
          TDesenho("PERCTOT", "%").Com(TPapelColuna::Percentual).Cedendo(20), TDesenho("CTATITULO", "").Oculta(),
          TDesenho("TIPOLINHA", "").Oculta(), TDesenho("IDPLANO", "").Oculta()})
        LColunas.push_back(LColuna);
    Achar(LColunas, "PERCTOT").Extenso = "% Total";
    return LColunas;
}

host::TRegraDasLinhas LinhasDbtvMostraCtbOrcMensal() {
    host::TRegraDasLinhas LLinhas;
    LLinhas.Titulo = "CTATITULO";
    LLinhas.Tipo = "TIPOLINHA";
    // Not the name: an amount that does not fit marks it in its own row alone.
    LLinhas.Chave = {"IDPLANO", "IDPLANOSUB", "IDDEMACTOT", "CONTA", "SUBCONTA", "CCUSTO", "FILIAL", "CLASSIFCONTAB"};
    LLinhas.Conta = "IDPLANO";
    LLinhas.Nivel = "CLASSIFCONTAB";
    return LLinhas;
}

TColunasGrade EstruturarColunasPeriodo(TColunasGrade AColunas, const host::TDataSet& ADataSet,
                                       const std::vector<TPeriodoEmColuna>& APeriodos) {
    std::vector<std::string> LTitulos;
    for (int I = 1; I <= MaximoPeriodosEmColunas; ++I) {
        const auto LCampo = "PER" + std::to_string(I);
        const auto* LPeriodo = ADataSet.FindField(LCampo);
        if (!LPeriodo)
            throw base::TFalha(ADataSet.Nome() + " não tem o campo " + LCampo + ".");
        LTitulos.push_back(LPeriodo->AsString());
    }
    const auto LNomes = NomesUnicos(LTitulos, APeriodos);
    for (std::size_t I = 0; I < LTitulos.size(); ++I)
        EstruturarColunaPeriodo(AColunas, std::to_string(I + 1), LTitulos[I], LNomes[I]);
    return AColunas;
}

void AplicarPadraoDbtvCtbOrcada(TColunasGrade& AColunas) { AplicarPadrao(AColunas, {"DESCCCUSTO", "CTATITULO"}); }

void AplicarPadraoDbtvMostraCtbOrcMensal(TColunasGrade& AColunas) {
    AplicarPadrao(AColunas, {"IDPLANO", "CTATITULO", "TIPOLINHA"});
}

} // namespace pct04618
