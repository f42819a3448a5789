#pragma once

namespace pct04618::sql {

// Headers of the company in the scenarios: %0:d company, %1:s list of scenarios, %2:s condition of the period.
inline constexpr const char* CabecalhosRealizado = R"(
SELECT CO01_CTBORCADAINF.*
  FROM CO01_CTBORCADAINF
 WHERE CO01_CTBORCADAINF.IDEMPRESA = %0:d
   AND CO01_CTBORCADAINF.TPCENARIO IN (%1:s)%2:s)";

// The search over projections.
inline constexpr const char* PesquisaRealizado = R"(
SELECT SC00_FILIAL.FILIAL,
       CO01_CTBORCADAINF.DATAINICIO,
       CO01_CTBORCADAINF.DATAFIM,
       CASE CO01_CTBORCADAINF.TPCENARIO
           WHEN 0 THEN '0 - Condições Normais - Previsão Normal'
           WHEN 1 THEN '1 - Condições Favoráveis - Previsão Otimista'
           WHEN 2 THEN '2 - Condições Adversas - Previsão Pessimista'
       END AS DESCTPCENARIO,
       CASE CO01_CTBORCADAINF.TPDETALHE
           WHEN 1 THEN '1 - Global'
           WHEN 2 THEN '2 - Detalhado por estabelecimento'
       END AS TPDETALHE,
       CASE CO01_CTBORCADAINF.TPCCUSTO WHEN 1 THEN '1 - Sim' ELSE '0 - Não' END AS TPCCUSTO,
       CO01_CTBORCADAINF.DATAIBALANCOREF,
       CO01_CTBORCADAINF.DATAFBALANCOREF,
       CO01_CTBORCADAINF.MESESPROJETADOS,
       CO01_CTBORCADAINF.IDCTBORCADAINF,
       CO01_CTBORCADAINF.TPCENARIO,
       CO01_CTBORCADAINF.TPCTB
  FROM CO01_CTBORCADAINF
  LEFT JOIN SC00_FILIAL
    ON SC00_FILIAL.IDFILIAL = CO01_CTBORCADAINF.IDFILIAL)";

// Conditions of the period: %0:s first day, %1:s last day.
inline constexpr const char* CabecalhosDoPeriodo = R"(
   AND CO01_CTBORCADAINF.DATAINICIO = %0:s
   AND CO01_CTBORCADAINF.DATAFIM = %1:s)";
inline constexpr const char* CabecalhosNoIntervalo = R"(
   AND CO01_CTBORCADAINF.DATAINICIO >= %0:s
   AND CO01_CTBORCADAINF.DATAFIM <= %1:s)";

// Sets the actuals of a projection to 0, on rows of all kinds: %0:d projection, %1:s further condition. A row that has
// 0 already is not written again.
inline constexpr const char* ZerarRealizadoDaProjecao = R"(
UPDATE CO01_CTBORCADAVLR
   SET CO01_CTBORCADAVLR.VLRREALIZADO = 0
 WHERE CO01_CTBORCADAVLR.IDCTBORCADAINF = %0:d
   AND CO01_CTBORCADAVLR.VLRREALIZADO IS DISTINCT FROM 0%1:s)";

// Base rows of a projection, which alone take journal amounts and totals of accounts: %0:d projection, %1:s further
// condition.
inline constexpr const char* ValoresDaProjecao = R"(
SELECT CO01_CTBORCADAVLR.*
  FROM CO01_CTBORCADAVLR
 INNER JOIN CO01_PLANO
    ON CO01_PLANO.IDPLANO = CO01_CTBORCADAVLR.IDPLANO
 WHERE CO01_CTBORCADAVLR.IDCTBORCADAINF = %0:d
   AND CO01_CTBORCADAVLR.IDDEMACTOT IS NULL%1:s
 ORDER BY CO01_CTBORCADAVLR.IDFILIAL,
       CO01_CTBORCADAVLR.IDPLANO,
       CO01_CTBORCADAVLR.IDPLANOSUB,
       CO01_CTBORCADAVLR.IDCENTROCUSTO)";
inline constexpr const char* SomenteSinteticas = R"(
   AND CO01_PLANO.CTATITULO = 1)";

// Conditions on the establishment: %0:d.
inline constexpr const char* ValoresDaFilial = R"(
   AND CO01_CTBORCADAVLR.IDFILIAL = %0:d)";

// What stands in a projection, no row where it is gone: %0:d projection, %1:s further condition on its values. LINHAS
// have an actual value; SOMA is that of the accounts that are no title, so that it counts each amount once.
inline constexpr const char* SituacaoDaProjecao = R"(
SELECT COUNT(CASE WHEN CO01_CTBORCADAVLR.VLRREALIZADO <> 0 THEN 1 END) AS LINHAS,
       COALESCE(SUM(CASE
                        WHEN CO01_CTBORCADAVLR.IDDEMACTOT IS NULL
                         AND CO01_PLANO.CTATITULO IS DISTINCT FROM 1 THEN CO01_CTBORCADAVLR.VLRREALIZADO
                    END), 0) AS SOMA
  FROM CO01_CTBORCADAINF
  LEFT JOIN CO01_CTBORCADAVLR
    ON CO01_CTBORCADAVLR.IDCTBORCADAINF = CO01_CTBORCADAINF.IDCTBORCADAINF%1:s
  LEFT JOIN CO01_PLANO
    ON CO01_PLANO.IDPLANO = CO01_CTBORCADAVLR.IDPLANO
 WHERE CO01_CTBORCADAINF.IDCTBORCADAINF = %0:d
 GROUP BY CO01_CTBORCADAINF.IDCTBORCADAINF)";

// Statements with totals in the projections: %s condition on the header of a value row.
inline constexpr const char* DemonstracoesComTotais = R"(
SELECT CO01_DEMAC.IDDEMAC,
       CO01_DEMAC.CODIGO,
       CO01_DEMAC.TITULO
  FROM CO01_DEMAC
 WHERE EXISTS (SELECT 1
                 FROM CO01_DEMACTOT
                INNER JOIN CO01_CTBORCADAVLR
                   ON CO01_CTBORCADAVLR.IDDEMACTOT = CO01_DEMACTOT.IDDEMACTOT
                WHERE CO01_DEMACTOT.IDDEMAC = CO01_DEMAC.IDDEMAC
                  AND %s)
 ORDER BY CO01_DEMAC.CODIGO)";

} // namespace pct04618::sql
