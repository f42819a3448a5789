#include "queries/Balanco.h"

#include "base/Texto.h"
#include "core/Lista.h"
#include "core/Un04618Const.h"
#include "queries/Condicoes.h"
#include "queries/SqlBalanco.h"
#include "queries/SqlLimites.h"

namespace pct04618 {

namespace {

using base::Format;

// What begins with the text, as an operand of LIKE. The text's own wildcards stand for themselves.
std::string ComecaPor(const std::string& ATexto) {
    if (ATexto.find_first_of("_%") == std::string::npos)
        return base::QuotedStr(ATexto + "%");
    std::string LTexto;
    for (const char C : ATexto)
        LTexto += C == '_' || C == '%' || C == '\\' ? std::string{'\\', C} : std::string{C};
    return base::QuotedStr(LTexto + "%") + " ESCAPE '\\'";
}

// One account chosen alone brings all accounts below it; several are taken as they are.
std::string CondicaoContas(const TSelecao& ASelecao) {
    if (ASelecao.FIDPlano > 0)
        return "AND CO01_PLANO.CLASSIFCONTAB LIKE " + ComecaPor(ASelecao.FClassificacao);
    if (!ASelecao.FIDsContas.empty())
        return "AND(" + EstaEntreMarcados(ASelecao.FIDsContas) + ")";
    return {};
}

std::string CondicaoCentroCusto(const TSelecao& ASelecao) {
    return ASelecao.FIDsCentroCusto.empty() ? std::string()
                                            : " AND (" + EstaEntreMarcados(ASelecao.FIDsCentroCusto) + ")";
}

std::string Baixa(const char* AColuna) { return "SUM(COALESCE(" + Format(sql::ParteBaixa, {AColuna}) + ", 0))"; }
std::string Alta(const char* AColuna) { return "SUM(" + Format(sql::ParteAlta, {AColuna}) + ")"; }
std::string Soma(const char* AColuna) { return Format(sql::SomaNoLimite, {Baixa(AColuna), Alta(AColuna)}); }

std::string Diferenca(const char* AColuna, const char* AOutra) {
    return Format(sql::SomaNoLimite, {"(" + Baixa(AColuna) + " - " + Baixa(AOutra) + ")",
                                      "(COALESCE(" + Alta(AColuna) + ", 0) - COALESCE(" + Alta(AOutra) + ", 0))"});
}

std::string Percentual() {
    return Format(sql::BalancoPercentual,
                  {Format(sql::PercentualCabe, {"ORCADO.VLRREALIZADO", "ORCADO.VLRORCADO", "9.223372036854774E12"})});
}

std::string Cabe(const char* AColuna) { return Format(sql::BalancoCabe, {AColuna}); }
std::string Valor(const char* AColuna) { return Format(sql::BalancoValor, {AColuna, Cabe(AColuna)}); }

std::string Nome() {
    return Format(sql::BalancoNome, {Cabe("ORCADO2.VLRBASE"), Cabe("ORCADO2.VLRORCADO"), Cabe("ORCADO2.VLRREALIZADO"),
                                     Cabe("ORCADO2.DELTAVLR"), sql::MarcaAlemDoLimite});
}

constexpr const char* Base = "CO01_CTBORCADAVLR.VLRBASE";
constexpr const char* Orcado = "CO01_CTBORCADAVLR.VLRORCADO";
constexpr const char* Realizado = "CO01_CTBORCADAVLR.VLRREALIZADO";

} // namespace

std::string InstrucaoBalanco(const TSelecao& ASelecao) {
    const bool LExato = ASelecao.FDetalharSelecao == ModoPeriodoExato;
    return Format(sql::Balanco, {
                                    ColunaFilial(ASelecao),
                                    LExato ? sql::BalancoTpBaseProj : "0 AS TPBASEPROJ",
                                    LExato ? sql::BalancoColunasProjecao : "",
                                    LExato ? sql::BalancoProjecaoMeio : "ORCADO.TPBASEPROJ",
                                    LExato && !ASelecao.FAgruparValFiliais ? sql::BalancoProjecaoFora
                                                                           : sql::BalancoProjecaoForaConstante,
                                    LExato ? "GROUP BY 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17"
                                           : "GROUP BY 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13",
                                    CondicaoProjecoes(ASelecao, "CO01_CTBORCADAINF.IDCTBORCADAINF"),
                                    std::int64_t{ASelecao.FCenario},
                                    CondicaoFilial(ASelecao),
                                    CondicaoCentroCusto(ASelecao),
                                    CondicaoContas(ASelecao),
                                    Soma(Base),
                                    Soma(Orcado),
                                    Soma(Realizado),
                                    Diferenca(Orcado, Realizado),
                                    Percentual(),
                                    Nome(),
                                    Valor("ORCADO2.VLRBASE"),
                                    Valor("ORCADO2.VLRORCADO"),
                                    Valor("ORCADO2.VLRREALIZADO"),
                                    Valor("ORCADO2.DELTAVLR"),
                                    "CAST(ORCADO2.DELTAPERC AS NUMERIC(15,6))",
                                    sql::BalancoVariacao,
                                    CondicaoProjecoes(ASelecao, "CO01_CTBORCADAVLR.IDCTBORCADAINF"),
                                });
}

} // namespace pct04618
