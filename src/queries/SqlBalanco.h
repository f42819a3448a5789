#pragma once

namespace pct04618::sql {

// Base, budget and actual by account and its detail, over the base rows of projections. GROUP BY and ORDER BY go by
// position, so the order of the columns of each level counts; the name alone is ordered by as it is without a mark.
//
// The last condition says again of the value rows what the first one says of their headers. It changes no line, but
// without it the outer join in front keeps the optimizer from the index of the value rows, and every consultation
// reads the whole table.
//
// Of several configurations of an account the one with the lowest key counts: a value row must meet one at most.
// Whether any account has several is asked once, and only then of each row.
//
// %0:s establishment column, %1:s projection base column, %2:s further projection columns of the inner select,
// %3:s and %4:s projection columns of the middle and of the outer select, %5:s grouping, %6:s condition on the headers,
// %7:d scenario, %8:s establishment, %9:s cost centre and %10:s account condition, %11:s to %14:s sums of base, budget
// and actual and their difference, %15:s percentage, %16:s name, %17:s to %22:s the amounts of the result,
// %23:s condition on the projections of value rows.
inline constexpr const char* Balanco = R"(
SELECT ORCADO2.FILIAL,
       ORCADO2.CTATITULO,
       CASE ORCADO2.RECDESP WHEN 1 THEN 'Receita' ELSE 'Despesa' END AS RECDESP,
       ORCADO2.CLASSIF,
       ORCADO2.IDPLANO,
       ORCADO2.CLASSIFCONTAB,
       ORCADO2.CONTA,
       %16:s AS NOMECONTA,
       ORCADO2.CODIGO,
       ORCADO2.DESCCCUSTO,
       ORCADO2.CCUSTO,
       %4:s,
       %17:s AS VLRBASE,
       %18:s AS VLRORCADO,
       %19:s AS VLRREALIZADO,
       %20:s AS DELTAVLR,
       %21:s AS DELTAPERC,
       %22:s AS DELTAVARIACAO
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
               %15:s AS DELTAPERC
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
                       %11:s AS VLRBASE,
                       %12:s AS VLRORCADO,
                       %13:s AS VLRREALIZADO,
                       %14:s AS DELTAVLR
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
                   AND (NOT EXISTS (SELECT 1
                                      FROM CO01_PLANOCFG REPETIDA
                                     WHERE REPETIDA.ORIGEM = 20
                                       AND REPETIDA.ESPECIE = 1
                                     GROUP BY REPETIDA.IDPLANO
                                    HAVING COUNT(*) > 1)
                        OR NOT EXISTS (SELECT 1
                                         FROM CO01_PLANOCFG PRIMEIRA
                                        WHERE PRIMEIRA.IDPLANO = CO01_PLANOCFG.IDPLANO
                                          AND PRIMEIRA.ORIGEM = 20
                                          AND PRIMEIRA.ESPECIE = 1
                                          AND PRIMEIRA.IDPLANOCFG < CO01_PLANOCFG.IDPLANOCFG))
                 WHERE %6:s
                   AND CO01_CTBORCADAINF.TPCENARIO = %7:d
                   AND CO01_CTBORCADAVLR.IDDEMACTOT IS NULL
                   %8:s%9:s%10:s
                   AND %23:s
                 %5:s) ORCADO) ORCADO2
 WHERE ORCADO2.VLRBASE IS DISTINCT FROM 0
    OR ORCADO2.VLRORCADO IS DISTINCT FROM 0
    OR ORCADO2.VLRREALIZADO IS DISTINCT FROM 0
 ORDER BY 6, ORCADO2.NOMECONTA, 9, 11, 1)";

inline constexpr const char* BalancoPercentual =
    "CASE WHEN ORCADO.VLRORCADO = 0 THEN 0 WHEN %0:s THEN ((ORCADO.VLRREALIZADO * 100) / ORCADO.VLRORCADO) END";

// What NUMERIC(15,6) holds of an amount of the result; NULL is what went beyond already.
inline constexpr const char* BalancoCabe = "%0:s BETWEEN -9.223372036854774E12 AND 9.223372036854774E12";
inline constexpr const char* BalancoValor = "CAST(CASE WHEN %1:s THEN %0:s END AS NUMERIC(15,6))";

// The variation is up to 100 off the percentage, and goes beyond a little before it.
inline constexpr const char* BalancoVariacao =
    R"(CAST(CASE WHEN COALESCE(ORCADO2.DELTAPERC, -1E13) < -9223372036754 THEN NULL
                WHEN ORCADO2.RECDESP = 1
                     AND ORCADO2.VLRORCADO <> 0
                     AND ORCADO2.VLRREALIZADO <> 0 THEN ORCADO2.DELTAPERC - 100
                WHEN ORCADO2.RECDESP = 1
                     AND ORCADO2.VLRORCADO = 0
                     AND ORCADO2.VLRREALIZADO <> 0 THEN 100 - ORCADO2.DELTAPERC
                WHEN ORCADO2.RECDESP IN (0, 2)
                     AND (ORCADO2.VLRORCADO <> 0
                          OR ORCADO2.VLRREALIZADO <> 0) THEN 100 - ORCADO2.DELTAPERC
                ELSE 0
            END AS NUMERIC(15,6)))";

// %0:s to %3:s whether base, budget, actual and their difference fit, %4:s the mark.
inline constexpr const char* BalancoNome =
    "CASE WHEN %0:s AND %1:s AND %2:s AND %3:s AND ORCADO2.DELTAPERC >= -9223372036754 THEN ORCADO2.NOMECONTA ELSE "
    "COALESCE(ORCADO2.NOMECONTA, '') || '%4:s' END";

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
