#include "core/Un04618Const.h"
#include "core/Un04618Dm.h"
#include "host/Texto.h"
#include "queries/Condicoes.h"
#include "queries/Periodo.h"
#include "queries/SqlPeriodos.h"
#include "queries/SqlPeriodosLinhas.h"

namespace pct04618 {

namespace {

using host::Format;

struct TTipoLinha {
    std::int64_t Tipo;
    const char* Letra;
    const char* Coluna;
    const char* Ano;
};

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

bool Vertical(const TDM04618& ADm) { return ADm.FDetalharPercentual == TDetalhePercentual::dpVertical; }
bool SobreBase(const TDM04618& ADm) { return ADm.FDetalharPercentual == TDetalhePercentual::dpRealizadoXBase; }
const char* Diferenca(const TDM04618& ADm) { return ADm.FCalcularPercentualDiferenca ? "-100" : ""; }

std::string Varredura(const TDM04618& ADm, bool AImpPerComMov) {
    return Format(sql::VarreduraPeriodos, {
                                              host::Trim(ADm.FInformacoesCtbOrcadaInf.LListaIDs),
                                              std::int64_t{ADm.FCenario},
                                              AImpPerComMov ? " LEFT JOIN" : "INNER JOIN",
                                              Linha(CondicaoFilial(ADm)),
                                              ProjecaoMensal,
                                              DescricaoDoPeriodo(15),
                                              PorPeriodo("", sql::GuardarPeriodo),
                                          });
}

std::string Juncoes(const TDM04618& ADm) {
    if (ADm.FImprimirOrcamentariaBal)
        return sql::JuncoesContas;
    return Format(sql::JuncoesTotalizadores,
                  {
                      ADm.FIDDemac,
                      ADm.FImprimirDetContasTotaliz ? "" : "\n  AND CO01_CTBORCADAVLR.IDPLANO IS NULL",
                      ADm.FIDsTotalizadores.empty() ? "" : "\n  AND(" + ADm.FIDsTotalizadores + ")",
                  });
}

std::string Condicoes(const TDM04618& ADm) {
    const auto& LContas = ADm.FIDsContas;
    const auto& LCentros = ADm.FIDsCentroCusto;
    return Linha(CondicaoFilial(ADm)) + Linha(LContas.empty() ? "" : Format(sql::CondicaoContas, {LContas})) +
           Linha(LCentros.empty() ? "" : Format(sql::CondicaoCentroCusto, {LCentros}));
}

// Value and percentage of a line in one period.
std::string ColunasDoPeriodo(const TDM04618& ADm, const TTipoLinha& ALinha, std::int64_t APeriodo) {
    const auto LValor = Format(sql::ValorDoPeriodo, {APeriodo, ALinha.Coluna});
    if (Vertical(ADm))
        return LValor + Format(sql::BaseVerticalDoPeriodo, {APeriodo, ALinha.Coluna}) +
               Format(sql::SemPercentual, {APeriodo});
    if (ALinha.Tipo == LinhaOrcado.Tipo)
        return LValor + Format(sql::PercentualOrcado, {APeriodo});
    if (ALinha.Tipo == LinhaRealizado.Tipo)
        return LValor + Format(sql::PercentualRealizado,
                               {APeriodo, SobreBase(ADm) ? LinhaBase.Coluna : LinhaOrcado.Coluna, Diferenca(ADm)});
    return LValor + Format(sql::SemPercentual, {APeriodo});
}

std::string LinhasDoTipo(const TDM04618& ADm, const TTipoLinha& ALinha) {
    const bool LSeparaFiliais = !ADm.FAgruparValFiliais && !ADm.FEhConsolidadoHolding;
    return Format(sql::LinhasDoTipo,
                  {
                      ALinha.Tipo,
                      ALinha.Letra,
                      Recuado(ADm.FImprimirOrcamentariaBal ? sql::CabecaContas : sql::CabecaTotalizadores, 15),
                      LSeparaFiliais ? "COALESCE(SC00_FILIAL.FILIAL, 0) AS FILIAL" : "0 AS FILIAL",
                      ALinha.Ano,
                      PorPeriodo("", [&](std::int64_t I) { return ColunasDoPeriodo(ADm, ALinha, I); }),
                      Recuado(Juncoes(ADm), 9),
                      host::Trim(ADm.FInformacoesCtbOrcadaInf.LListaIDs),
                      Condicoes(ADm),
                  });
}

// The line types that are on, one below the other.
std::string Linhas(const TDM04618& ADm) {
    std::string LTexto;
    const auto LAcrescentar = [&](bool ALigada, const TTipoLinha& ALinha) {
        if (ALigada)
            LTexto += (LTexto.empty() ? "" : "\n        UNION ALL\n") + LinhasDoTipo(ADm, ALinha);
    };
    LAcrescentar(ADm.FDetalharLinhaVlrBase, LinhaBase);
    LAcrescentar(ADm.FDetalharLinhaVlrOrcado, LinhaOrcado);
    LAcrescentar(ADm.FDetalharLinhaVlrRealizado, LinhaRealizado);
    return LTexto;
}

std::string Totais(const TDM04618& ADm) {
    const auto LSoma = PorPeriodo(" + ", "VAL%0:d");
    if (Vertical(ADm))
        return Format(sql::TotaisDaLinhaVertical,
                      {PorPeriodo("\n", sql::PercentualVertical), LSoma, PorPeriodo(" + ", "VALVERT%0:d")});
    return Format(sql::TotaisDaLinha, {LSoma, SobreBase(ADm) ? ":LTOTALBASE" : ":LTOTALORCADO", Diferenca(ADm)});
}

std::string Bloco(const TDM04618& ADm, bool AImpPerComMov) {
    const bool LVertical = Vertical(ADm);
    return Format(sql::Periodos, {
                                     PorPeriodo("", LVertical ? sql::RetornoDoPeriodoVertical : sql::RetornoDoPeriodo),
                                     LVertical ? "\n    TOTALVERT NUMERIC(15,2)," : "",
                                     PorPeriodo("", sql::VariaveisDoPeriodo),
                                     Varredura(ADm, AImpPerComMov),
                                     Linhas(ADm),
                                     ADm.FImprimirOrcamentariaBal ? "ORDER BY 5, 7, 8, 11, 9, 1"
                                                                  : "ORDER BY 4,14, 12, 13, 7, 8, 11, 9, 1",
                                     PorPeriodo("", LVertical ? sql::DestinoDoPeriodoVertical : sql::DestinoDoPeriodo),
                                     Totais(ADm),
                                 });
}

} // namespace

void TDM04618::BuscarDadosOrcamentariaBalancoOuDemonstConfigDemonstPeriodosEmColunas(host::TZTClientDataSet& ADataSet,
                                                                                     host::TZTSQLDataSet& ASqlDataSet,
                                                                                     bool AImpPerComMov) {
    ADataSet.Close();
    ADataSet.CommandText = Bloco(*this, AImpPerComMov);
    ASqlDataSet.ParamCheck = false; // names with a colon are the block's own variables
    ADataSet.Open();
}

} // namespace pct04618
