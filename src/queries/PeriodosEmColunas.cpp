#include "queries/PeriodosEmColunas.h"

#include "base/Falhas.h"
#include "base/Texto.h"
#include "core/Lista.h"
#include "core/Projecoes.h"
#include "core/Un04618Const.h"
#include "host/DbManager.h"
#include "queries/Condicoes.h"
#include "queries/Periodo.h"
#include "queries/SqlLimites.h"
#include "queries/SqlPeriodos.h"
#include "queries/SqlPeriodosLinhas.h"

#include <set>

namespace pct04618 {

namespace {

using base::Format;

struct TTipoLinha {
    std::int64_t Tipo;
    const char* Letra;
    const char* Coluna;
    const char* Ano;
};

constexpr std::string_view NumeroAlemDoLimite = "22003"; // SQLSTATE

constexpr TTipoLinha LinhaBase{1, "B", "VLRBASE", "LANOBASE"};
constexpr TTipoLinha LinhaOrcado{2, "O", "VLRORCADO", "LANOORC"};
constexpr TTipoLinha LinhaRealizado{3, "R", "VLRREALIZADO", "LANOREALIZ"};

// A part once for each period; AParte makes it of the period's number.
template <class TParte>
std::string PorPeriodo(const char* ASeparador, TParte AParte) {
    std::string LTexto;
    for (std::int64_t I = 1; I <= MaximoPeriodosEmColunas; ++I)
        LTexto += (I > 1 ? ASeparador : "") + AParte(I);
    return LTexto;
}

std::string PorPeriodo(const char* ASeparador, const char* AModelo) {
    return PorPeriodo(ASeparador, [&](std::int64_t I) { return Format(AModelo, {I}); });
}

// A condition as a line of its own of the WHERE, or nothing.
std::string Linha(const std::string& ACondicao) { return ACondicao.empty() ? "" : "\n           " + ACondicao; }

bool Vertical(const TSelecao& ASelecao) { return ASelecao.FDetalharPercentual == TDetalhePercentual::dpVertical; }
bool SobreBase(const TSelecao& ASelecao) {
    return ASelecao.FDetalharPercentual == TDetalhePercentual::dpRealizadoXBase;
}
const char* Diferenca(const TSelecao& ASelecao) { return ASelecao.FCalcularPercentualDiferenca ? "-100" : ""; }

std::string SelecaoDosPeriodos(const TSelecao& ASelecao, bool AImpPerComMov) {
    return Format(sql::SelecaoDosPeriodos, {
                                               CondicaoProjecoes(ASelecao, "CO01_CTBORCADAINF.IDCTBORCADAINF"),
                                               std::int64_t{ASelecao.FCenario},
                                               AImpPerComMov ? " LEFT JOIN" : "INNER JOIN",
                                               Linha(CondicaoFilial(ASelecao)),
                                               ProjecaoMensal,
                                               DescricaoDoPeriodo(15),
                                           });
}

std::string Juncoes(const TSelecao& ASelecao) {
    if (ASelecao.FImprimirOrcamentariaBal)
        return sql::JuncoesContas;
    return Format(
        sql::JuncoesTotalizadores,
        {
            ASelecao.FIDDemac,
            ASelecao.FImprimirDetContasTotaliz ? "" : "\n  AND CO01_CTBORCADAVLR.IDPLANO IS NULL",
            ASelecao.FIDsTotalizadores.empty() ? "" : "\n  AND(" + EstaEntreMarcados(ASelecao.FIDsTotalizadores) + ")",
            CondicaoProjecoes(ASelecao, "REPETIDA.IDCTBORCADAINF"),
        });
}

std::string Condicoes(const TSelecao& ASelecao) {
    const auto& LContas = ASelecao.FIDsContas;
    const auto& LCentros = ASelecao.FIDsCentroCusto;
    return Linha(CondicaoFilial(ASelecao)) +
           Linha(LContas.empty() ? "" : Format(sql::CondicaoContas, {EstaEntreMarcados(LContas)})) +
           Linha(LCentros.empty() ? "" : Format(sql::CondicaoCentroCusto, {EstaEntreMarcados(LCentros)}));
}

// How the amounts of a line are summed. Whole is what nearly every database takes. In parts no sum overflows, and what
// does not fit is NULL in its own line; it takes twice the sums.
enum class TSoma { Inteira, EmPartes };

// Percentages have four decimals until they stand in their column, and may have 100 taken off.
std::string PercentualCabe(const TSelecao& ASelecao, const std::string& AValor, const std::string& ADivisor) {
    return Format(sql::PercentualCabe,
                  {AValor, ADivisor, ASelecao.FCalcularPercentualDiferenca ? "922337203685377" : "922337203685477.2"});
}

std::string ColunasDaSoma(const std::string& ANome, const std::string& AQuando, const std::string& ABaixo,
                          const std::string& AAlto, const char* ASenao) {
    return Format(sql::SomaDoPeriodo, {ANome, AQuando, ABaixo, ASenao}) +
           Format(sql::SomaDoPeriodo, {"ALTO" + ANome, AQuando, AAlto, "NULL"});
}

std::string Valor(TSoma ASoma, const std::string& ANome, const std::string& AQuando, const std::string& AColuna) {
    if (ASoma == TSoma::Inteira)
        return Format(sql::SomaDoPeriodo, {ANome, AQuando, "COALESCE(" + AColuna + ",0)", "0"});
    return ColunasDaSoma(ANome, AQuando, "COALESCE(" + Format(sql::ParteBaixa, {AColuna}) + ",0)",
                         Format(sql::ParteAlta, {AColuna}), "0");
}

std::string PercentualOrcado(TSoma ASoma, const std::string& ANome, const std::string& AQuando) {
    if (ASoma == TSoma::Inteira)
        return Format(sql::SomaDoPeriodo, {ANome, AQuando, sql::PercentualOrcado, "NULL"});
    return ColunasDaSoma(ANome, AQuando, Format(sql::ParteBaixa, {sql::PercentualOrcado}),
                         Format(sql::ParteAlta, {sql::PercentualOrcado}), "NULL");
}

std::string PercentualRealizado(const TSelecao& ASelecao, TSoma ASoma, const std::string& ANome,
                                const std::string& APeriodo) {
    const std::string LColuna = SobreBase(ASelecao) ? LinhaBase.Coluna : LinhaOrcado.Coluna;
    const auto LDivisor = "CO01_CTBORCADAVLR." + LColuna;
    const auto LQuando = APeriodo + " AND (COALESCE(" + LDivisor + ",0) <> 0)";
    const auto LPercentual = Format(sql::PercentualRealizado, {LColuna});
    if (ASoma == TSoma::Inteira)
        return Format(sql::SomaDoPeriodo, {ANome, LQuando, LPercentual + " " + Diferenca(ASelecao), "0"});
    const std::string LRealizado = "COALESCE(CO01_CTBORCADAVLR.VLRREALIZADO,0)";
    const auto LPequeno = Format(sql::PercentualCabe, {LRealizado, LDivisor, "1E9"});
    const auto LCabe = PercentualCabe(ASelecao, LRealizado, LDivisor);
    return ColunasDaSoma(ANome, LQuando,
                         Format(sql::PercentualBaixo, {LPercentual, LPequeno, LCabe, Diferenca(ASelecao)}),
                         Format(sql::PercentualAlto, {LPequeno, LCabe, LPercentual}), "0");
}

// Value and percentage of a line in one period.
std::string ColunasDoPeriodo(const TSelecao& ASelecao, TSoma ASoma, const TTipoLinha& ALinha, std::int64_t APeriodo) {
    const auto LQuando = Format(sql::NoPeriodo, {APeriodo});
    const auto LNumero = std::to_string(APeriodo);
    const auto LValor = Valor(ASoma, "VAL" + LNumero, LQuando, std::string("CO01_CTBORCADAVLR.") + ALinha.Coluna);
    const auto LSemPercentual = Format(sql::SemPercentual, {APeriodo});
    if (Vertical(ASelecao))
        return LValor +
               Valor(ASoma, "VALVERT" + LNumero, LQuando, std::string("CTBORCADAVLRRELVERT.") + ALinha.Coluna) +
               LSemPercentual;
    if (ALinha.Tipo == LinhaOrcado.Tipo)
        return LValor + PercentualOrcado(ASoma, "PERC" + LNumero, LQuando);
    if (ALinha.Tipo == LinhaRealizado.Tipo)
        return LValor + PercentualRealizado(ASelecao, ASoma, "PERC" + LNumero, LQuando);
    return LValor + LSemPercentual + (ASoma == TSoma::EmPartes ? ", NULL AS ALTOPERC" + LNumero : "");
}

std::string LinhasDoTipo(const TSelecao& ASelecao, TSoma ASoma, const TTipoLinha& ALinha) {
    return Format(sql::LinhasDoTipo,
                  {
                      ALinha.Tipo,
                      ALinha.Letra,
                      Recuado(ASelecao.FImprimirOrcamentariaBal ? sql::CabecaContas : sql::CabecaTotalizadores, 15),
                      ColunaFilial(ASelecao),
                      ALinha.Ano,
                      PorPeriodo("", [&](std::int64_t I) { return ColunasDoPeriodo(ASelecao, ASoma, ALinha, I); }),
                      Recuado(Juncoes(ASelecao), 9),
                      CondicaoProjecoes(ASelecao, "CO01_CTBORCADAINF.IDCTBORCADAINF"),
                      Condicoes(ASelecao),
                  });
}

// The line types that are on, one below the other.
std::string Linhas(const TSelecao& ASelecao, TSoma ASoma) {
    std::string LTexto;
    const auto LAcrescentar = [&](bool ALigada, const TTipoLinha& ALinha) {
        if (ALigada)
            LTexto += (LTexto.empty() ? "" : "\n        UNION ALL\n") + LinhasDoTipo(ASelecao, ASoma, ALinha);
    };
    LAcrescentar(ASelecao.FDetalharLinhaVlrBase, LinhaBase);
    LAcrescentar(ASelecao.FDetalharLinhaVlrOrcado, LinhaOrcado);
    LAcrescentar(ASelecao.FDetalharLinhaVlrRealizado, LinhaRealizado);
    return LTexto;
}

// A total and the periods it is of take up their high sums: first the total, as long as the periods are low.
std::string JuntarPartes(const char* ATotal, const std::string& AColuna) {
    const auto LAltos =
        PorPeriodo(" + ", [&](std::int64_t I) { return "COALESCE(ALTO" + AColuna + std::to_string(I) + ", 0)"; });
    return Format(sql::Juntar, {ATotal, "(" + LAltos + ")"}) + PorPeriodo("", [&](std::int64_t I) {
               const auto LColuna = AColuna + std::to_string(I);
               return Format(sql::Juntar, {LColuna, "ALTO" + LColuna});
           });
}

std::string PercentualVertical(const TSelecao& ASelecao, const std::string& APercentual, const std::string& AValor,
                               const std::string& ABase) {
    return Format(sql::PercentualVertical,
                  {APercentual, AValor, ABase, PercentualCabe(ASelecao, ":" + AValor, ":" + ABase)});
}

std::string TotaisVerticais(const TSelecao& ASelecao, TSoma ASoma) {
    const auto LPercentuais = PorPeriodo("\n", [&](std::int64_t I) {
        const auto LNumero = std::to_string(I);
        return PercentualVertical(ASelecao, "PERC" + LNumero, "VAL" + LNumero, "VALVERT" + LNumero);
    });
    return Format(
        sql::TotaisDaLinhaVertical,
        {
            PorPeriodo(" + ", "VAL%0:d"),
            PorPeriodo(" + ", "VALVERT%0:d"),
            ASoma == TSoma::Inteira ? "" : JuntarPartes("TOTAL", "VAL") + JuntarPartes("TOTALVERT", "VALVERT"),
            LPercentuais + "\n" + PercentualVertical(ASelecao, "PERCTOT", "TOTAL", "TOTALVERT"),
        });
}

std::string TotaisSimples(const TSelecao& ASelecao, TSoma ASoma) {
    const std::string LDivisor = SobreBase(ASelecao) ? ":LTOTALBASE" : ":LTOTALORCADO";
    const auto LPercentuais = PorPeriodo("", [](std::int64_t I) {
        return Format(sql::Juntar, {"LPERC" + std::to_string(I), "ALTOPERC" + std::to_string(I)}) +
               Format(sql::PercentualDoPeriodo, {I});
    });
    return Format(sql::TotaisDaLinha, {
                                          PorPeriodo(" + ", "VAL%0:d"),
                                          LDivisor,
                                          Diferenca(ASelecao),
                                          ASoma == TSoma::Inteira ? "" : JuntarPartes("TOTAL", "VAL") + LPercentuais,
                                          PercentualCabe(ASelecao, ":LTOTALREALIZADO", LDivisor),
                                      });
}

std::string Identificacao() {
    std::string LCortes;
    for (const char* LCodigo : {"SUBCONTA", "FILIAL", "CCUSTO"})
        LCortes += Format(sql::CodigoQueCabe, {LCodigo, "2147483647"});
    LCortes += Format(sql::CodigoQueCabe, {"CTATITULO", "32767"});
    constexpr std::int64_t Nome = 500;
    for (const auto& [LColuna, LTamanho] : {std::pair<const char*, std::int64_t>{"CLASSIF", 50},
                                            {"CLASSIFCONTAB", 50},
                                            {"NOMECCUSTO", 40},
                                            {"NOMECONTA", Nome}})
        LCortes += Format(sql::TextoQueCabe, {LColuna, LTamanho});
    return Format(sql::Identificacao, {LCortes}) +
           Format(sql::MarcaDaLinha, {sql::MarcaAlemDoLimite, Nome - sql::TamanhoDaMarca});
}

const char* Destino(const TSelecao& ASelecao, TSoma ASoma) {
    if (Vertical(ASelecao))
        return ASoma == TSoma::Inteira ? sql::DestinoDoPeriodoVertical : sql::DestinoDoPeriodoVerticalEmPartes;
    return ASoma == TSoma::Inteira ? sql::DestinoDoPeriodo : sql::DestinoDoPeriodoEmPartes;
}

std::string Bloco(const TSelecao& ASelecao, TSoma ASoma, bool AImpPerComMov) {
    const bool LVertical = Vertical(ASelecao);
    const auto LTotais = LVertical ? TotaisVerticais(ASelecao, ASoma) : TotaisSimples(ASelecao, ASoma);
    return Format(sql::Periodos, {
                                     PorPeriodo("", LVertical ? sql::RetornoDoPeriodoVertical : sql::RetornoDoPeriodo),
                                     LVertical ? "\n    TOTALVERT NUMERIC(15,2)," : "",
                                     PorPeriodo("", sql::VariaveisDoPeriodo) +
                                         (ASoma == TSoma::Inteira ? "" : PorPeriodo("", sql::VariaveisDasPartes)),
                                     Format(sql::VarreduraPeriodos, {SelecaoDosPeriodos(ASelecao, AImpPerComMov),
                                                                     PorPeriodo("", sql::GuardarPeriodo)}),
                                     Linhas(ASelecao, ASoma),
                                     ASelecao.FImprimirOrcamentariaBal ? "ORDER BY 5, 7, 8, 11, 9, 1"
                                                                       : "ORDER BY 4,14, 12, 13, 7, 8, 11, 9, 1",
                                     PorPeriodo("", Destino(ASelecao, ASoma)),
                                     LTotais + Identificacao(),
                                 });
}

} // namespace

void CarregarPeriodosEmColunas(const TSelecao& ASelecao, host::TZTClientDataSet& ADataSet,
                               host::TZTSQLDataSet& ASqlDataSet, bool AImpPerComMov) {
    ADataSet.Close();
    ASqlDataSet.ParamCheck = false; // names with a colon are the block's own variables
    ADataSet.CommandText = Bloco(ASelecao, TSoma::Inteira, AImpPerComMov);
    try {
        ADataSet.Open();
    } catch (const base::TFalhaBanco& E) {
        if (E.Estado() != NumeroAlemDoLimite)
            throw;
        ADataSet.CommandText = Bloco(ASelecao, TSoma::EmPartes, AImpPerComMov);
        ADataSet.Open();
    }
}

std::vector<TPeriodoEmColuna> BuscarPeriodosDeMesmoNome(const TSelecao& ASelecao, const host::TDataSet& ADataSet,
                                                        bool AImpPerComMov) {
    std::vector<std::string> LNomes;
    for (int I = 1; I <= MaximoPeriodosEmColunas && !ADataSet.IsEmpty(); ++I)
        if (const auto* LCampo = ADataSet.FindField("PER" + std::to_string(I)); LCampo && !LCampo->IsNull())
            LNomes.push_back(LCampo->AsString());
    if (std::set(LNomes.begin(), LNomes.end()).size() == LNomes.size())
        return {};
    const auto LConsulta = host::BuscarInstanciaZTUtilsDbManager().AbrirConsultaSQL(
        SelecaoDosPeriodos(ASelecao, AImpPerComMov), "períodos das colunas");
    std::vector<TPeriodoEmColuna> LPeriodos;
    for (LConsulta->First(); !LConsulta->Eof() && LPeriodos.size() < LNomes.size(); LConsulta->Next()) {
        if (LConsulta->FieldByName("PER").AsString() != LNomes[LPeriodos.size()])
            return {}; // somebody has written in between
        const auto LData = [&](const char* ACampo) {
            return LConsulta->FieldByName(ACampo).AsDateTime().value_or(base::TDataHora());
        };
        LPeriodos.push_back(
            {LData("DATAINICIO"), LData("DATAFIM"), LData("DATAIBALANCOREF"), LData("DATAFBALANCOREF")});
    }
    return LPeriodos.size() == LNomes.size() ? LPeriodos : std::vector<TPeriodoEmColuna>();
}

} // namespace pct04618
