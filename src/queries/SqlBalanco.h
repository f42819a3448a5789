#pragma once

namespace pct04618::sql {

// Base, budget and actual by account and its detail, over the base rows of projections. GROUP BY and ORDER BY go by
// position, so the order of the columns of each level counts.
//
// The last condition says again of the value rows what the first one says of their headers. It changes no line, but
// without it the outer join in front keeps the optimizer from the index of the value rows, and every consultation
// reads the whole table.
//
// %0:s establishment column, %1:s projection base column, %2:s further projection columns of the inner select,
// %3:s and %4:s projection columns of the middle and of the outer select, %5:s grouping, %6:s keys of the projections,
// %7:d scenario, %8:s establishment, %9:s cost centre and %10:s account condition.
inline constexpr const char* Balanco = R"(
SELECT ORCADO2.FILIAL,
       ORCADO2.CTATITULO,
       CASE ORCADO2.RECDESP WHEN 1 THEN 'Receita' ELSE 'Despesa' END AS RECDESP,
       ORCADO2.CLASSIF,
       ORCADO2.IDPLANO,
       ORCADO2.CLASSIFCONTAB,
       ORCADO2.CONTA,
       ORCADO2.NOMECONTA,
       ORCADO2.CODIGO,
       ORCADO2.DESCCCUSTO,
       ORCADO2.CCUSTO,
       %4:s,
       CAST(COALESCE(ORCADO2.VLRBASE, 0) AS NUMERIC(15,6)) AS VLRBASE,
       CAST(COALESCE(ORCADO2.VLRORCADO, 0) AS NUMERIC(15,6)) AS VLRORCADO,
       CAST(COALESCE(ORCADO2.VLRREALIZADO, 0) AS NUMERIC(15,6)) AS VLRREALIZADO,
       CAST(COALESCE(ORCADO2.DELTAVLR, 0) AS NUMERIC(15,6)) AS DELTAVLR,
       CAST(COALESCE(ORCADO2.DELTAPERC, 0) AS NUMERIC(15,6)) AS DELTAPERC,
       CAST(CASE
                WHEN ORCADO2.RECDESP = 1
                     AND COALESCE(ORCADO2.VLRORCADO, 0) <> 0
                     AND COALESCE(ORCADO2.VLRREALIZADO, 0) <> 0 THEN ORCADO2.DELTAPERC - 100
                WHEN ORCADO2.RECDESP = 1
                     AND COALESCE(ORCADO2.VLRORCADO, 0) = 0
                     AND COALESCE(ORCADO2.VLRREALIZADO, 0) <> 0 THEN 100 - ORCADO2.DELTAPERC
                WHEN ORCADO2.RECDESP IN (0, 2)
                     AND (COALESCE(ORCADO2.VLRORCADO, 0) <> 0
                          OR COALESCE(ORCADO2.VLRREALIZADO, 0) <> 0) THEN 100 - ORCADO2.DELTAPERC
                ELSE 0
            END AS NUMERIC(15,6)) AS DELTAVARIACAO
  FROM (SELECT ORCADO.FILIAL,
               ORCADO.CTATITULO,
               ORCADO.RECDESP,
               ORCADO.CLASSIF,
               ORCADO.IDPLANO,
               ORCADO.CLASSIFCONTAB,
               ORCADO.CONTA,
               CASE WHEN ORCADO.CODIGO IS NOT NULL THEN '' || ORCADO.NOME || COALESCE(' [' || ORCADO.DESCRICAO || ']', '') ELSE ORCADO.NOME END AS NOMECONTA,
               ORCADO.CODIGO,
               ORCADO.DESCCCUSTO,
               ORCADO.CCUSTO,
               %3:s,
               ORCADO.VLRBASE,
               ORCADO.VLRORCADO,
               ORCADO.VLRREALIZADO,
               ORCADO.DELTAVLR,
               CASE WHEN (ORCADO.VLRORCADO <> 0) THEN (((ORCADO.VLRREALIZADO * 100) / ORCADO.VLRORCADO)) ELSE 0 END AS DELTAPERC
          FROM (SELECT %0:s,
                       CO01_PLANO.CTATITULO,
                       CO01_PLANO.CLASSIFCONTAB,
                       COALESCE(CO01_PLANOCFG.INFORMACAO1, 0) AS RECDESP,
                       CO01_PLANO.CONTA,
                       CO01_PLANO.NOME,
                       CO01_PLANOSUB.DESCRICAO,
                       CO01_PLANOSUB.CODIGO,
                       CO01_CENTROCUSTO.DESCRICAO AS DESCCCUSTO,
                       CO01_CENTROCUSTO.CODIGO AS CCUSTO,
                       %1:s,
                       NULL AS CLASSIF,
                       %2:sCO01_CTBORCADAVLR.IDPLANO,
                       SUM(COALESCE(CO01_CTBORCADAVLR.VLRBASE,0)) AS VLRBASE,
                       SUM(COALESCE(CO01_CTBORCADAVLR.VLRORCADO,0)) AS VLRORCADO,
                       SUM(COALESCE(CO01_CTBORCADAVLR.VLRREALIZADO,0)) AS VLRREALIZADO,
                       SUM(COALESCE(CO01_CTBORCADAVLR.VLRORCADO,0)) - SUM(COALESCE(CO01_CTBORCADAVLR.VLRREALIZADO,0)) AS DELTAVLR
                  FROM CO01_CTBORCADAVLR
                  LEFT JOIN SC00_FILIAL
                    ON SC00_FILIAL.IDFILIAL = CO01_CTBORCADAVLR.IDFILIAL
                 INNER JOIN CO01_PLANO
                    ON CO01_PLANO.IDPLANO = CO01_CTBORCADAVLR.IDPLANO
                  LEFT JOIN CO01_PLANOSUB
                    ON CO01_PLANOSUB.IDPLANOSUB = CO01_CTBORCADAVLR.IDPLANOSUB
                  LEFT JOIN CO01_CENTROCUSTO
                    ON CO01_CENTROCUSTO.IDCENTROCUSTO = CO01_CTBORCADAVLR.IDCENTROCUSTO
                 INNER JOIN CO01_CTBORCADAINF
                    ON CO01_CTBORCADAINF.IDCTBORCADAINF = CO01_CTBORCADAVLR.IDCTBORCADAINF
                  LEFT JOIN CO01_PLANOCFG
                    ON CO01_PLANOCFG.IDPLANO = CO01_CTBORCADAVLR.IDPLANO
                   AND CO01_PLANOCFG.ORIGEM = 20
                   AND CO01_PLANOCFG.ESPECIE = 1
                 WHERE CO01_CTBORCADAINF.IDCTBORCADAINF IN (%6:s)
                   AND CO01_CTBORCADAINF.TPCENARIO = %7:d
                   AND CO01_CTBORCADAVLR.IDDEMACTOT IS NULL
                   %8:s%9:s%10:s
                   AND CO01_CTBORCADAVLR.IDCTBORCADAINF IN (%6:s)
                 %5:s) ORCADO) ORCADO2
 WHERE ORCADO2.VLRBASE <> 0
    OR ORCADO2.VLRORCADO <> 0
    OR ORCADO2.VLRREALIZADO <> 0
 ORDER BY 6,8,9,11,1)";

// Projection columns of the three levels, plain and by the exact period.
inline constexpr const char* BalancoTpBaseProj = R"(CASE CO01_CTBORCADAVLR.TPBASEPROJ
                           WHEN 0 THEN '1-Rec'
                           WHEN 1 THEN '2-Desp'
                           WHEN 2 THEN '3-Rec/Desp'
                           WHEN 3 THEN '4-Det Cta'
                       END AS TPBASEPROJ)";

inline constexpr const char* BalancoColunasProjecao = R"(CASE CO01_CTBORCADAVLR.TPPROJECAO
                           WHEN 1 THEN 'Calc.'
                           WHEN 2 THEN 'Inf.'
                           WHEN 3 THEN 'Total'
                       END AS TPPROJECAO,
                       CASE CO01_CTBORCADAVLR.TPATUALIZBASE
                           WHEN 0 THEN '1-Capit'
                           WHEN 1 THEN '2-Orig'
                       END AS TPATUALIZBASE,
                       CO01_CTBORCADAVLR.INDICEATBASE,
                       CO01_CTBORCADAVLR.PERCORCADO,
                       )";

inline constexpr const char* BalancoProjecaoMeio = R"(ORCADO.TPBASEPROJ,
               ORCADO.TPPROJECAO,
               ORCADO.TPATUALIZBASE,
               ORCADO.INDICEATBASE,
               ORCADO.PERCORCADO)";

inline constexpr const char* BalancoProjecaoFora = R"(ORCADO2.TPBASEPROJ,
       ORCADO2.TPPROJECAO,
       ORCADO2.TPATUALIZBASE,
       COALESCE(ORCADO2.INDICEATBASE, 0) AS INDICEATBASE,
       COALESCE(ORCADO2.PERCORCADO, 0) AS PERCORCADO)";

inline constexpr const char* BalancoProjecaoForaConstante =
    "0 AS TPBASEPROJ, 0 AS TPPROJECAO, 0 AS TPATUALIZBASE, 0 AS INDICEATBASE, 0 AS PERCORCADO";

} // namespace pct04618::sql
