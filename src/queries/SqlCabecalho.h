#pragma once

namespace pct04618::sql {

// Each projection of the list: %s the condition on it.
inline constexpr const char* CabecalhoPorProjecao = R"(
SELECT CO01_CTBORCADAINF.IDCTBORCADAINF,
       CO01_CTBORCADAINF.DATAINICIO,
       CO01_CTBORCADAINF.DATAFIM
  FROM CO01_CTBORCADAINF
 WHERE %s)";

// Each period of the list once: %0:s the condition on it, %1:s what the period is called, %2:s whether it is monthly.
inline constexpr const char* CabecalhoPorPeriodo = R"(
SELECT DISTINCT
       CO01_CTBORCADAINF.DATAINICIO,
       CO01_CTBORCADAINF.DATAFIM,
       CO01_CTBORCADAINF.TPDETALHE,
       CASE WHEN (%2:s) THEN EXTRACT(MONTH FROM CO01_CTBORCADAINF.DATAINICIO) ELSE EXTRACT(YEAR FROM CO01_CTBORCADAINF.DATAINICIO) END AS PERIODO,
       %1:s AS DESCPERIODO
  FROM CO01_CTBORCADAINF
 WHERE %0:s
 ORDER BY CO01_CTBORCADAINF.DATAINICIO ASC)";

// %0:s condition on the projections.
inline constexpr const char* ZerarRealizado =
    "UPDATE CO01_CTBORCADAVLR SET CO01_CTBORCADAVLR.VLRREALIZADO = 0 WHERE %0:s";

} // namespace pct04618::sql
