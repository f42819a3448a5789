#pragma once

namespace pct04618::sql {

// Period clauses of the lookup: %0:s first day, %1:s last day of the selection, as date literals, %2:s whether a header
// is monthly.

// The projection of exactly that period.
inline constexpr const char* PeriodoExato = R"(
   AND CO01_CTBORCADAINF.DATAINICIO = %0:s
   AND CO01_CTBORCADAINF.DATAFIM = %1:s)";

// All that start in the range, without the projection of exactly that range: it would count every month twice.
inline constexpr const char* PeriodoIntermediarios = R"(
   AND CO01_CTBORCADAINF.DATAINICIO BETWEEN %0:s AND %1:s
   AND NOT (
           CO01_CTBORCADAINF.DATAINICIO = %0:s
       AND CO01_CTBORCADAINF.DATAFIM = %1:s
       ))";

// Over several years, in addition: headers of several months, and headers of a single month. %0:s whether a header is
// monthly.
inline constexpr const char* PeriodoVariosAnos = R"(
   AND (
           NOT (%0:s)
        OR (
               (EXTRACT(YEAR FROM CO01_CTBORCADAINF.DATAINICIO) = EXTRACT(YEAR FROM CO01_CTBORCADAINF.DATAFIM))
           AND (%0:s)
           )
       ))";

// Within one year: monthly headers only.
inline constexpr const char* PeriodoMensais = R"(
   AND CO01_CTBORCADAINF.DATAINICIO BETWEEN %0:s AND %1:s
   AND (%2:s))";

// Headers of one company: %0:d company, %1:d scenario, %2:s period clause.
inline constexpr const char* ListaProjecoes = R"(
SELECT CO01_CTBORCADAINF.IDCTBORCADAINF,
       CO01_CTBORCADAINF.DATAIBALANCOREF,
       CO01_CTBORCADAINF.DATAFBALANCOREF,
       CO01_CTBORCADAINF.TPCCUSTO
  FROM CO01_CTBORCADAINF
 WHERE CO01_CTBORCADAINF.IDEMPRESA = %0:d
   AND CO01_CTBORCADAINF.TPCENARIO = %1:d%2:s)";

// Headers of a holding: of whole companies, and of single establishments. %0:s condition over the companies, %1:d
// scenario, %2:s period clause, %3:s condition over the establishments.
inline constexpr const char* ListaProjecoesHolding = R"(
SELECT CO01_CTBORCADAINF.IDCTBORCADAINF,
       CO01_CTBORCADAINF.DATAIBALANCOREF,
       CO01_CTBORCADAINF.DATAFBALANCOREF,
       CO01_CTBORCADAINF.TPCCUSTO
  FROM CO01_CTBORCADAINF
 WHERE (%0:s)
   AND CO01_CTBORCADAINF.TPCENARIO = %1:d
   AND COALESCE(CO01_CTBORCADAINF.IDFILIAL,0) = 0%2:s
 UNION
SELECT CO01_CTBORCADAINF.IDCTBORCADAINF,
       CO01_CTBORCADAINF.DATAIBALANCOREF,
       CO01_CTBORCADAINF.DATAFBALANCOREF,
       CO01_CTBORCADAINF.TPCCUSTO
  FROM CO01_CTBORCADAINF
 WHERE (%3:s)
   AND CO01_CTBORCADAINF.IDFILIAL > 0
   AND CO01_CTBORCADAINF.TPCENARIO = %1:d%2:s)";

// Detail of any header of the selection: %0:d company, %1:d scenario, %2:s period condition.
inline constexpr const char* DetalheDaProjecao = R"(
SELECT FIRST 1 CO01_CTBORCADAINF.TPDETALHE
  FROM CO01_CTBORCADAINF
 WHERE CO01_CTBORCADAINF.IDEMPRESA = %0:d
   AND CO01_CTBORCADAINF.TPCENARIO = %1:d%2:s)";

// Period conditions of that detail: %0:s first day, %1:s last day, %2:s whether a header is monthly. They are other
// rules than the clauses above.
inline constexpr const char* CalculoVariosAnos = R"(
   AND CO01_CTBORCADAINF.DATAINICIO >= %0:s
   AND CO01_CTBORCADAINF.DATAFIM <= %1:s
   AND NOT (
           CO01_CTBORCADAINF.DATAINICIO = %0:s
       AND CO01_CTBORCADAINF.DATAFIM = %1:s
       )
   AND NOT (%2:s))";

inline constexpr const char* CalculoMensais = R"(
   AND CO01_CTBORCADAINF.DATAINICIO >= %0:s
   AND CO01_CTBORCADAINF.DATAFIM <= %1:s
   AND %2:s)";

inline constexpr const char* CalculoGeral = R"(
   AND CO01_CTBORCADAINF.DATAINICIO >= %0:s
   AND CO01_CTBORCADAINF.DATAFIM <= %1:s
   AND (
           NOT (
               CO01_CTBORCADAINF.DATAINICIO = %0:s
           AND CO01_CTBORCADAINF.DATAFIM = %1:s
           )
        OR %2:s
       ))";

// Establishments of the company: %0:d.
inline constexpr const char* Filiais =
    "SELECT SC00_FILIAL.IDFILIAL FROM SC00_FILIAL WHERE SC00_FILIAL.IDEMPRESA = %0:d";

} // namespace pct04618::sql
