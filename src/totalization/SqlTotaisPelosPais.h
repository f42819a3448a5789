#pragma once

#include "totalization/SqlMescla.h"
#include "totalization/Unir.h"

namespace pct04618::sql {

// Stages 2 and 5: what stands on the analytic totalizers of the statement, carried up the tree of parents. Value rows
// are joined from the left, though none is wanted without one: else the engine starts from them and reads every row of
// the projection.

inline constexpr char AnaliticosDoRelatorio[] = R"(
WITH RECURSIVE HIERARQUIA (IDCTBORCADAINF, IDEMPRESA, IDFILIAL, IDDEMACTOT, IDPLANO, IDPLANOSUB, IDCENTROCUSTO,
                           IDDEMACTOTPAI, CODIGO, CLASSIF, TITULO, PERCORCADO, VLRBASE, VLRORCADO, VLRREALIZADO) AS (
    SELECT CO01_CTBORCADAVLR.IDCTBORCADAINF,
           CO01_CTBORCADAVLR.IDEMPRESA,
           CO01_CTBORCADAVLR.IDFILIAL,
           CO01_CTBORCADAVLR.IDDEMACTOT,
           CAST(NULL AS NUMERIC(18,0)) AS IDPLANO,
           CAST(NULL AS NUMERIC(18,0)) AS IDPLANOSUB,
           CAST(NULL AS NUMERIC(18,0)) AS IDCENTROCUSTO,
           CO01_DEMACTOT.IDDEMACTOTPAI,
           CO01_DEMACTOT.CODIGO,
           CO01_DEMACTOT.CLASSIF,
           CO01_DEMACTOT.TITULO,
           CAST(NULL AS NUMERIC(10,2)) AS PERCORCADO,
           SUM(COALESCE(CO01_CTBORCADAVLR.VLRBASE,0)) AS VLRBASE,
           SUM(COALESCE(CO01_CTBORCADAVLR.VLRORCADO,0)) AS VLRORCADO,
           SUM(COALESCE(CO01_CTBORCADAVLR.VLRREALIZADO,0)) AS VLRREALIZADO
      FROM CO01_DEMACTOT
      LEFT JOIN CO01_CTBORCADAVLR
        ON CO01_CTBORCADAVLR.IDDEMACTOT = CO01_DEMACTOT.IDDEMACTOT
       AND CO01_CTBORCADAVLR.IDCTBORCADAINF = %0:d
     WHERE CO01_DEMACTOT.IDDEMAC = %1:d
       AND CO01_DEMACTOT.TITULO = 2
       AND CO01_CTBORCADAVLR.IDDEMACTOT IS NOT NULL)";

// The detail rows of a totalizer without totalizer links.
inline constexpr char DetalhesDeSomenteContas[] = R"(
       AND CO01_CTBORCADAVLR.IDPLANO IS NOT NULL
       AND NOT EXISTS (SELECT 1
                         FROM CO01_DEMACTOTREL
                        WHERE CO01_DEMACTOTREL.IDDEMACTOT = CO01_DEMACTOT.IDDEMACTOT
                          AND CO01_DEMACTOTREL.IDDEMACTOTRELAC IS NOT NULL))";

inline constexpr char TotaisDosAnaliticos[] = R"(
       AND CO01_CTBORCADAVLR.IDPLANO IS NULL)";

inline constexpr char SubirAosPais[] = R"(
     GROUP BY 1,2,3,4,5,6,7,8,9,10,11,12
     UNION ALL
    SELECT HIERARQUIA.IDCTBORCADAINF,
           HIERARQUIA.IDEMPRESA,
           HIERARQUIA.IDFILIAL,
           CO01_DEMACTOT.IDDEMACTOT,
           HIERARQUIA.IDPLANO,
           HIERARQUIA.IDPLANOSUB,
           HIERARQUIA.IDCENTROCUSTO,
           CO01_DEMACTOT.IDDEMACTOTPAI,
           CO01_DEMACTOT.CODIGO,
           CO01_DEMACTOT.CLASSIF,
           CO01_DEMACTOT.TITULO,
           HIERARQUIA.PERCORCADO,
           HIERARQUIA.VLRBASE,
           HIERARQUIA.VLRORCADO,
           HIERARQUIA.VLRREALIZADO
      FROM CO01_DEMACTOT
      JOIN HIERARQUIA
        ON CO01_DEMACTOT.IDDEMACTOT = HIERARQUIA.IDDEMACTOTPAI
)
SELECT DISTINCT
       HIERARQUIA.IDCTBORCADAINF,
       HIERARQUIA.IDEMPRESA,
       HIERARQUIA.IDFILIAL,
       HIERARQUIA.IDDEMACTOT,
       HIERARQUIA.IDPLANO,
       HIERARQUIA.IDPLANOSUB,
       HIERARQUIA.IDCENTROCUSTO,
       HIERARQUIA.IDDEMACTOTPAI,
       HIERARQUIA.CODIGO,
       HIERARQUIA.CLASSIF,
       HIERARQUIA.TITULO,
       HIERARQUIA.PERCORCADO,
       SUM(COALESCE(HIERARQUIA.VLRBASE,0)) AS VLRBASE,
       SUM(COALESCE(HIERARQUIA.VLRORCADO,0)) AS VLRORCADO,
       SUM(COALESCE(HIERARQUIA.VLRREALIZADO,0)) AS VLRREALIZADO
  FROM HIERARQUIA)";

inline constexpr char FicamOsAnaliticos[] = R"(
   AND HIERARQUIA.TITULO = 2)";

inline constexpr char FicamOsSinteticos[] = R"(
   AND HIERARQUIA.TITULO = 1)";

inline constexpr char PorTotalizadorEmOrdem[] = R"(
 GROUP BY 1,2,3,4,5,6,7,8,9,10,11,12
 ORDER BY 10)";

// Stage 2: a totalizer of accounts alone is the sum of its detail rows and of those of analytic totalizers below it.
inline constexpr auto TotaisAnaliticosSomenteContas =
    Unir<MesclarTotais, AnaliticosDoRelatorio, DetalhesDeSomenteContas, SubirAosPais, ComValor, FicamOsAnaliticos,
         PorTotalizadorEmOrdem, PelaChaveDaLinha>;

// Stage 5: a synthetic totalizer is the sum of the totals of all analytic totalizers below it, at any depth.
inline constexpr auto TotaisSinteticos = Unir<MesclarTotais, AnaliticosDoRelatorio, TotaisDosAnaliticos, SubirAosPais,
                                              ComValor, FicamOsSinteticos, PorTotalizadorEmOrdem, PelaChaveDaLinha>;

} // namespace pct04618::sql
