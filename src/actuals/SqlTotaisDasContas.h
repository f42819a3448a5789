#pragma once

namespace pct04618::sql {

// The sums of the accounts that stand above others, by establishment. A value goes up by the parent and by the superior
// account alike, so it arrives once for each way; two links that name one account are one way. It starts from the
// base rows of analytic accounts, summed by account first. %0:d projection, %1:s further condition.
inline constexpr const char* TotaisDasContas = R"(
WITH RECURSIVE ANALITICAS AS (
    SELECT NULLIF(CO01_CTBORCADAVLR.IDFILIAL, 0) AS IDFILIAL,
           CO01_CTBORCADAVLR.IDPLANO,
           SUM(COALESCE(CO01_CTBORCADAVLR.VLRBASE, 0)) AS VLRBASE,
           SUM(COALESCE(CO01_CTBORCADAVLR.VLRORCADO, 0)) AS VLRORCADO,
           SUM(COALESCE(CO01_CTBORCADAVLR.VLRREALIZADO, 0)) AS VLRREALIZADO
      FROM CO01_CTBORCADAVLR
     WHERE CO01_CTBORCADAVLR.IDCTBORCADAINF = %0:d
       AND CO01_CTBORCADAVLR.IDDEMACTOT IS NULL%1:s
     GROUP BY 1, 2
), HIERARQUIA AS (
    SELECT ANALITICAS.IDFILIAL,
           CO01_PLANO.IDPLANO,
           CO01_PLANO.IDPLANOPAI,
           CO01_PLANO.CTASUPERIOR,
           CO01_PLANO.CONTA,
           CO01_PLANO.CLASSIFCONTAB,
           CO01_PLANO.CTATITULO,
           ANALITICAS.VLRBASE,
           ANALITICAS.VLRORCADO,
           ANALITICAS.VLRREALIZADO
      FROM ANALITICAS
     INNER JOIN CO01_PLANO
        ON CO01_PLANO.IDPLANO = ANALITICAS.IDPLANO
     WHERE CO01_PLANO.CTATITULO = 2
     UNION ALL
    SELECT HIERARQUIA.IDFILIAL,
           CO01_PLANO.IDPLANO,
           CO01_PLANO.IDPLANOPAI,
           CO01_PLANO.CTASUPERIOR,
           CO01_PLANO.CONTA,
           CO01_PLANO.CLASSIFCONTAB,
           CO01_PLANO.CTATITULO,
           HIERARQUIA.VLRBASE,
           HIERARQUIA.VLRORCADO,
           HIERARQUIA.VLRREALIZADO
      FROM HIERARQUIA
     INNER JOIN CO01_PLANO
        ON CO01_PLANO.IDPLANO = HIERARQUIA.IDPLANOPAI
        OR CO01_PLANO.IDPLANO = HIERARQUIA.CTASUPERIOR
)
SELECT HIERARQUIA.IDFILIAL,
       HIERARQUIA.IDPLANO,
       HIERARQUIA.IDPLANOPAI,
       HIERARQUIA.CTASUPERIOR,
       HIERARQUIA.CONTA,
       HIERARQUIA.CLASSIFCONTAB,
       HIERARQUIA.CTATITULO,
       SUM(COALESCE(HIERARQUIA.VLRBASE, 0)) AS VLRBASE,
       SUM(COALESCE(HIERARQUIA.VLRORCADO, 0)) AS VLRORCADO,
       SUM(COALESCE(HIERARQUIA.VLRREALIZADO, 0)) AS VLRREALIZADO
  FROM HIERARQUIA
 WHERE HIERARQUIA.CTATITULO = 1
 GROUP BY 1, 2, 3, 4, 5, 6, 7
 ORDER BY HIERARQUIA.CLASSIFCONTAB)";

// The links that a value goes up by.
inline constexpr const char* LigacoesDasContas = R"(
SELECT CO01_PLANO.IDPLANO,
       CO01_PLANO.CLASSIFCONTAB,
       CO01_PLANO.IDPLANOPAI,
       CO01_PLANO.CTASUPERIOR
  FROM CO01_PLANO)";

// The analytic accounts from which the totals of some projections start, those included that the journal is going to
// add: %0:s condition on the header of a value row, %1:s first day, %2:s day after the last, %3:s whether an account is
// confronted.
inline constexpr const char* ContasQueTotalizam = R"(
SELECT CO01_PLANO.IDPLANO
  FROM CO01_PLANO
 WHERE CO01_PLANO.CTATITULO = 2
   AND (CO01_PLANO.IDPLANO IN (SELECT CO01_CTBORCADAVLR.IDPLANO
                                 FROM CO01_CTBORCADAVLR
                                WHERE CO01_CTBORCADAVLR.IDDEMACTOT IS NULL
                                  AND %0:s)
        OR (EXISTS (SELECT 1
                      FROM CO01_DIARIO
                     WHERE CO01_DIARIO.IDPLANO = CO01_PLANO.IDPLANO
                       AND CO01_DIARIO.DATA >= %1:s
                       AND CO01_DIARIO.DATA < %2:s)
            AND %3:s)))";

} // namespace pct04618::sql
