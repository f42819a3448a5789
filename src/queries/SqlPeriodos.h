#pragma once

namespace pct04618::sql {

// One selectable block: the scan of the periods, the lines of each type, and the totals and percentages of each row.
// GROUP BY, ORDER BY and INTO go by position, so the order of the columns counts.

// %0:s columns of the periods in the result, %1:s total of the vertical base, %2:s variables of the periods,
// %3:s the scan, %4:s the lines, %5:s their order, %6:s columns of the periods in the lines, %7:s what is done with
// each row.
inline constexpr const char* Periodos = R"(EXECUTE BLOCK
RETURNS (
    IDCTBORCADAINF NUMERIC(18,0),
    TIPOLINHA NUMERIC(2,0),
    DESCTIPOLINHA VARCHAR(1),
    CONTA NUMERIC(18,0),
    CLASSIF VARCHAR(50),
    CLASSIFCONTAB VARCHAR(50),
    NOMECONTA VARCHAR(500),
    CTATITULO NUMERIC(2,0),
    SUBCONTA NUMERIC(5,0),
    CCUSTO NUMERIC(5,0),
    NOMECCUSTO VARCHAR(40),
    IDPLANO NUMERIC(18,0),
    IDPLANOSUB NUMERIC(18,0),
    IDDEMACTOT NUMERIC(18,0),
    FILIAL NUMERIC(5,0),
    ANO VARCHAR(6),%0:s
    TOTAL NUMERIC(15,2),%1:s
    PERCTOT NUMERIC(10,2))
AS
    DECLARE VARIABLE LCOUNTTPPERIODO INTEGER;
    DECLARE VARIABLE LDATAINICIO TIMESTAMP;
    DECLARE VARIABLE LDATAFIM TIMESTAMP;
    DECLARE VARIABLE LDATAIBALANCOREF TIMESTAMP;
    DECLARE VARIABLE LDATAFBALANCOREF TIMESTAMP;
    DECLARE VARIABLE LTPCENARIO NUMERIC(2,0);
    DECLARE VARIABLE LANOORC VARCHAR(6);
    DECLARE VARIABLE LANOBASE VARCHAR(6);
    DECLARE VARIABLE LANOREALIZ VARCHAR(6);
    DECLARE VARIABLE LPER VARCHAR(20);
    DECLARE VARIABLE LTOTALBASE NUMERIC(15,2);
    DECLARE VARIABLE LTOTALORCADO NUMERIC(15,2);
    DECLARE VARIABLE LTOTALREALIZADO NUMERIC(15,2);%2:s
BEGIN
    IDCTBORCADAINF = 0;
%3:s
    FOR
%4:s
    %5:s
    INTO :TIPOLINHA,
         :DESCTIPOLINHA,
         :CTATITULO,
         :CLASSIF,
         :CLASSIFCONTAB,
         :CONTA,
         :NOMECONTA,
         :SUBCONTA,
         :FILIAL,
         :NOMECCUSTO,
         :CCUSTO,
         :IDPLANO,
         :IDPLANOSUB,
         :IDDEMACTOT,
         :ANO%6:s
    DO
    BEGIN
%7:s
        SUSPEND;
    END
END)";

// The periods in order, as many as there are columns; the labels are those of the last one. The keys behind year and
// month only keep periods that start together in an order of their own.
// %0:s keys of the projections, %1:d scenario, %2:s kind of join, %3:s establishment, %4:s whether a header is monthly,
// %5:s what its period is called, %6:s storing of a period in its column.
inline constexpr const char* VarreduraPeriodos = R"(    LCOUNTTPPERIODO = 1;
    FOR
        SELECT DISTINCT
               CO01_CTBORCADAINF.DATAINICIO,
               CO01_CTBORCADAINF.DATAFIM,
               CO01_CTBORCADAINF.DATAIBALANCOREF,
               CO01_CTBORCADAINF.DATAFBALANCOREF,
               CO01_CTBORCADAINF.TPCENARIO,
               IIF(%4:s, EXTRACT(YEAR FROM CO01_CTBORCADAINF.DATAINICIO) || 'O', '    O') AS ANOORC,
               IIF(%4:s, EXTRACT(YEAR FROM CO01_CTBORCADAINF.DATAIBALANCOREF) || 'B', '    B') AS ANOBASE,
               IIF(%4:s, EXTRACT(YEAR FROM CO01_CTBORCADAINF.DATAINICIO) || 'R', '    R') AS ANOREALIZ,
               %5:s AS PER
          FROM CO01_CTBORCADAINF
         %2:s CO01_CTBORCADAVLR
            ON CO01_CTBORCADAVLR.IDCTBORCADAINF = CO01_CTBORCADAINF.IDCTBORCADAINF
         %2:s CO01_PLANO
            ON CO01_PLANO.IDPLANO = CO01_CTBORCADAVLR.IDPLANO
         WHERE CO01_CTBORCADAINF.IDCTBORCADAINF IN (%0:s)
           AND CO01_CTBORCADAINF.TPCENARIO = %1:d%3:s
         ORDER BY EXTRACT(YEAR FROM CO01_CTBORCADAINF.DATAINICIO),
                  EXTRACT(MONTH FROM CO01_CTBORCADAINF.DATAINICIO),
                  1, 2, 3, 4
          INTO :LDATAINICIO,
               :LDATAFIM,
               :LDATAIBALANCOREF,
               :LDATAFBALANCOREF,
               :LTPCENARIO,
               :LANOORC,
               :LANOBASE,
               :LANOREALIZ,
               :LPER
    DO
    BEGIN%6:s
        LCOUNTTPPERIODO = LCOUNTTPPERIODO + 1;
    END
)";

// The lines of one type: %0:d and %1:s the type, %2:s head columns, %3:s establishment column, %4:s label of the year,
// %5:s columns of the periods, %6:s joins, %7:s keys of the projections, %8:s conditions.
inline constexpr const char* LinhasDoTipo = R"(        SELECT DISTINCT
               %0:d AS TIPOLINHA,
               '%1:s' AS DESCTIPOLINHA,
               %2:s,
               COALESCE(CO01_PLANOSUB.CODIGO,0) AS SUBCONTA,
               %3:s,
               CO01_CENTROCUSTO.DESCRICAO AS NOMECCUSTO,
               COALESCE(CO01_CENTROCUSTO.CODIGO,0) AS CCUSTO,
               CO01_CTBORCADAVLR.IDPLANO,
               CO01_CTBORCADAVLR.IDPLANOSUB,
               CO01_CTBORCADAVLR.IDDEMACTOT,
               :%4:s AS ANO%5:s
          FROM CO01_CTBORCADAINF
         %6:s
          LEFT JOIN CO01_PLANOSUB
            ON CO01_PLANOSUB.IDPLANOSUB = CO01_CTBORCADAVLR.IDPLANOSUB
          LEFT JOIN CO01_CENTROCUSTO
            ON CO01_CENTROCUSTO.IDCENTROCUSTO = CO01_CTBORCADAVLR.IDCENTROCUSTO
          LEFT JOIN SC00_FILIAL
            ON SC00_FILIAL.IDFILIAL = CO01_CTBORCADAVLR.IDFILIAL
         WHERE CO01_CTBORCADAINF.IDCTBORCADAINF IN (%7:s)
           AND CO01_CTBORCADAINF.TPCENARIO = :LTPCENARIO%8:s
         GROUP BY 1,2,3,4,5,6,7,8,9,10,11,12,13,14,15)";

// The parts that stand once for each period: %0:d is its number, %1:s the value column of the line type.

inline constexpr const char* RetornoDoPeriodo = R"(
    PER%0:d VARCHAR(20),
    VAL%0:d NUMERIC(15,2),
    PERC%0:d NUMERIC(10,2),)";

inline constexpr const char* RetornoDoPeriodoVertical = R"(
    PER%0:d VARCHAR(20),
    VAL%0:d NUMERIC(15,2),
    VALVERT%0:d NUMERIC(15,2),
    PERC%0:d NUMERIC(10,2),)";

inline constexpr const char* VariaveisDoPeriodo = R"(
    DECLARE VARIABLE LDATAINICIO%0:d TIMESTAMP;
    DECLARE VARIABLE LDATAFIM%0:d TIMESTAMP;)";

inline constexpr const char* GuardarPeriodo = R"(
        IF (LCOUNTTPPERIODO = %0:d) THEN
        BEGIN
            PER%0:d = LPER;
            LDATAINICIO%0:d = LDATAINICIO;
            LDATAFIM%0:d = LDATAFIM;
        END)";

inline constexpr const char* ValorDoPeriodo = R"(,
               SUM(CASE
                       WHEN (CO01_CTBORCADAINF.DATAINICIO = :LDATAINICIO%0:d) AND (CO01_CTBORCADAINF.DATAFIM = :LDATAFIM%0:d)
                           THEN COALESCE(CO01_CTBORCADAVLR.%1:s,0)
                       ELSE 0
                   END) AS VAL%0:d)";

inline constexpr const char* BaseVerticalDoPeriodo = R"(,
               SUM(CASE
                       WHEN (CO01_CTBORCADAINF.DATAINICIO = :LDATAINICIO%0:d) AND (CO01_CTBORCADAINF.DATAFIM = :LDATAFIM%0:d)
                           THEN COALESCE(CTBORCADAVLRRELVERT.%1:s,0)
                       ELSE 0
                   END) AS VALVERT%0:d)";

inline constexpr const char* SemPercentual = R"(,
               NULL AS PERC%0:d)";

inline constexpr const char* PercentualOrcado = R"(,
               SUM(CASE
                       WHEN (CO01_CTBORCADAINF.DATAINICIO = :LDATAINICIO%0:d) AND (CO01_CTBORCADAINF.DATAFIM = :LDATAFIM%0:d)
                           THEN COALESCE(CAST(CO01_CTBORCADAVLR.PERCORCADO AS NUMERIC(10,2)),NULL)
                       ELSE NULL
                   END) AS PERC%0:d)";

// %1:s column of the divisor, %2:s what is taken off the percentage.
inline constexpr const char* PercentualRealizado = R"(,
               SUM(CASE
                       WHEN (CO01_CTBORCADAINF.DATAINICIO = :LDATAINICIO%0:d) AND (CO01_CTBORCADAINF.DATAFIM = :LDATAFIM%0:d)
                            AND (COALESCE(CO01_CTBORCADAVLR.%1:s,0) <> 0)
                           THEN ((COALESCE(CO01_CTBORCADAVLR.VLRREALIZADO,0) * 100) / CO01_CTBORCADAVLR.%1:s) %2:s
                       ELSE 0
                   END) AS PERC%0:d)";

inline constexpr const char* PercentualVertical =
    "        PERC%0:d = IIF((:VALVERT%0:d <> 0), (:VAL%0:d * 100/:VALVERT%0:d), NULL);";

inline constexpr const char* DestinoDoPeriodo = R"(,
         :VAL%0:d,
         :PERC%0:d)";

inline constexpr const char* DestinoDoPeriodoVertical = R"(,
         :VAL%0:d,
         :VALVERT%0:d,
         :PERC%0:d)";

// Totals of a row. An actual row sees those of the base and the budget of its line, which stand before it.
// %0:s sum of the values, %1:s total that the percentage is of, %2:s what is taken off the percentage.
inline constexpr const char* TotaisDaLinha =
    R"(        /* O percentual será calculado sobre: - Se o valor orçado for diferente de zero: Percentual = (Valor realizado * 100)/Valor orçado - Senão Percentual = Zero */
        TOTAL = %0:s;
        PERCTOT = NULL;
        IF (DESCTIPOLINHA = 'B') THEN
        BEGIN
            LTOTALBASE = TOTAL;
            LTOTALORCADO = 0;
            LTOTALREALIZADO = 0;
        END
        IF (DESCTIPOLINHA = 'O') THEN
            LTOTALORCADO = TOTAL;
        IF (DESCTIPOLINHA = 'R') THEN
        BEGIN
            LTOTALREALIZADO = TOTAL;
            IF (%1:s <> 0) THEN
                PERCTOT = ((COALESCE(:LTOTALREALIZADO,0) * 100) / %1:s) %2:s;
            ELSE
                PERCTOT = 0;
        END)";

// %0:s percentages of the periods, %1:s sum of the values, %2:s sum of the base values.
inline constexpr const char* TotaisDaLinhaVertical = R"(%0:s
        TOTAL = %1:s;
        TOTALVERT = %2:s;
        PERCTOT = IIF((:TOTALVERT <> 0), (:TOTAL * 100/:TOTALVERT), NULL);)";

} // namespace pct04618::sql
