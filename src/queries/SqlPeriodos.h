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
    DECLARE VARIABLE LTOTALREALIZADO NUMERIC(15,2);
    DECLARE VARIABLE LCLASSIF VARCHAR(32765);
    DECLARE VARIABLE LCLASSIFCONTAB VARCHAR(32765);
    DECLARE VARIABLE LNOMECONTA VARCHAR(32765);
    DECLARE VARIABLE LNOMECCUSTO VARCHAR(32765);
    DECLARE VARIABLE LCTATITULO BIGINT;
    DECLARE VARIABLE LSUBCONTA BIGINT;
    DECLARE VARIABLE LCCUSTO BIGINT;
    DECLARE VARIABLE LFILIAL BIGINT;
    DECLARE VARIABLE LALEM BOOLEAN;%2:s
BEGIN
    IDCTBORCADAINF = 0;
    LTOTALBASE = 0;
    LTOTALORCADO = 0;
%3:s
    FOR
%4:s
    %5:s
    INTO :TIPOLINHA,
         :DESCTIPOLINHA,
         :LCTATITULO,
         :LCLASSIF,
         :LCLASSIFCONTAB,
         :CONTA,
         :LNOMECONTA,
         :LSUBCONTA,
         :LFILIAL,
         :LNOMECCUSTO,
         :LCCUSTO,
         :IDPLANO,
         :IDPLANOSUB,
         :IDDEMACTOT,
         :ANO%6:s
    DO
    BEGIN
        LALEM = FALSE;
%7:s
        SUSPEND;
    END
END)";

// The periods in order. The keys behind year and month only keep periods that start together in an order of their own.
// %0:s condition on the headers, %1:d scenario, %2:s kind of join, %3:s establishment, %4:s whether a header is
// monthly, %5:s what its period is called.
inline constexpr const char* SelecaoDosPeriodos = R"(        SELECT DISTINCT
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
         WHERE %0:s
           AND CO01_CTBORCADAINF.TPCENARIO = %1:d%3:s
         ORDER BY EXTRACT(YEAR FROM CO01_CTBORCADAINF.DATAINICIO),
                  EXTRACT(MONTH FROM CO01_CTBORCADAINF.DATAINICIO),
                  1, 2, 3, 4)";

// Its scan: as many as there are columns; the labels are those of the last one. %0:s the select, %1:s storing of a
// period in its column.
inline constexpr const char* VarreduraPeriodos = R"(    LCOUNTTPPERIODO = 1;
    FOR
%0:s
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
    BEGIN%1:s
        LCOUNTTPPERIODO = LCOUNTTPPERIODO + 1;
    END
)";

// The lines of one type: %0:d and %1:s the type, %2:s head columns, %3:s establishment column, %4:s label of the year,
// %5:s columns of the periods, %6:s joins, %7:s and %8:s conditions.
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
         WHERE %7:s
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

inline constexpr const char* VariaveisDasPartes = R"(
    DECLARE VARIABLE ALTOVAL%0:d NUMERIC(15,2);
    DECLARE VARIABLE ALTOVALVERT%0:d NUMERIC(15,2);
    DECLARE VARIABLE LPERC%0:d NUMERIC(15,4);
    DECLARE VARIABLE ALTOPERC%0:d NUMERIC(15,4);)";

inline constexpr const char* GuardarPeriodo = R"(
        IF (LCOUNTTPPERIODO = %0:d) THEN
        BEGIN
            PER%0:d = LPER;
            LDATAINICIO%0:d = LDATAINICIO;
            LDATAFIM%0:d = LDATAFIM;
        END)";

// Whether a value row is of the period.
inline constexpr const char* NoPeriodo =
    "(CO01_CTBORCADAINF.DATAINICIO = :LDATAINICIO%0:d) AND (CO01_CTBORCADAINF.DATAFIM = :LDATAFIM%0:d)";

// Sum of an amount in a period. %0:s name of the column, %1:s whether a row counts, %2:s the amount, %3:s what stands
// for a row that does not count.
inline constexpr const char* SomaDoPeriodo = R"(,
               SUM(CASE
                       WHEN %1:s
                           THEN %2:s
                       ELSE %3:s
                   END) AS %0:s)";

inline constexpr const char* SemPercentual = R"(,
               NULL AS PERC%0:d)";

inline constexpr const char* PercentualOrcado = "CAST(CO01_CTBORCADAVLR.PERCORCADO AS NUMERIC(10,2))";

// Percentage of an actual: %0:s column of the divisor.
inline constexpr const char* PercentualRealizado =
    "((COALESCE(CO01_CTBORCADAVLR.VLRREALIZADO,0) * 100) / CO01_CTBORCADAVLR.%0:s)";

// Its parts; what cannot be computed makes a high part that no sum holds. %0:s the percentage, %1:s whether it is
// small, %2:s whether it fits, %3:s what is taken off it.
inline constexpr const char* PercentualBaixo = R"(CASE
                                    WHEN %1:s THEN %0:s
                                    WHEN %2:s THEN %0:s - %0:s / 1000000000 * 1000000000
                                    ELSE 0
                                END %3:s)";
inline constexpr const char* PercentualAlto = R"(CASE
                                    WHEN %0:s THEN NULL
                                    WHEN %1:s THEN %2:s / 1000000000
                                    ELSE 1000000000
                                END)";

inline constexpr const char* DestinoDoPeriodo = R"(,
         :VAL%0:d,
         :PERC%0:d)";

inline constexpr const char* DestinoDoPeriodoEmPartes = R"(,
         :VAL%0:d,
         :ALTOVAL%0:d,
         :LPERC%0:d,
         :ALTOPERC%0:d)";

inline constexpr const char* DestinoDoPeriodoVertical = R"(,
         :VAL%0:d,
         :VALVERT%0:d,
         :PERC%0:d)";

inline constexpr const char* DestinoDoPeriodoVerticalEmPartes = R"(,
         :VAL%0:d,
         :ALTOVAL%0:d,
         :VALVERT%0:d,
         :ALTOVALVERT%0:d,
         :PERC%0:d)";

// A low sum takes up its high one (see SqlLimites.h). %0:s the low, %1:s the high one.
inline constexpr const char* Juntar = R"(
        BEGIN
            %0:s = %0:s + COALESCE(%1:s, 0) * 1000000000;
            WHEN SQLSTATE '22003' DO
            BEGIN
                %0:s = NULL;
                LALEM = TRUE;
            END
        END)";

inline constexpr const char* PercentualDoPeriodo = R"(
        PERC%0:d = LPERC%0:d;)";

// Totals of a row. An actual row sees those of the base and the budget of its line, which stand before it.
// %0:s sum of the values, %1:s total that the percentage is of, %2:s what is taken off the percentage, %3:s joining of
// the parts, %4:s whether the percentage fits.
inline constexpr const char* TotaisDaLinha =
    R"(        /* O percentual será calculado sobre: - Se o valor orçado for diferente de zero: Percentual = (Valor realizado * 100)/Valor orçado - Senão Percentual = Zero */
        TOTAL = %0:s;%3:s
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
            IF (%1:s = 0) THEN
                PERCTOT = 0;
            ELSE IF (%4:s) THEN
                PERCTOT = ((COALESCE(:LTOTALREALIZADO,0) * 100) / %1:s) %2:s;
            ELSE
                LALEM = TRUE;
        END)";

// %0:s sum of the values, %1:s sum of the base values, %2:s joining of the parts, %3:s percentages.
inline constexpr const char* TotaisDaLinhaVertical = R"(        TOTAL = %0:s;
        TOTALVERT = %1:s;%2:s
%3:s)";

// %0:s the percentage, %1:s its value, %2:s its base, %3:s whether it fits.
inline constexpr const char* PercentualVertical =
    R"(        %0:s = IIF((:%2:s <> 0) AND %3:s, (:%1:s * 100/:%2:s), NULL);
        IF (%0:s IS NULL AND %2:s <> 0) THEN
            LALEM = TRUE;)";

// Codes and texts of a row. Where one does not fit, a code is NULL and a text is cut. %0:s the cuts.
inline constexpr const char* Identificacao = R"(
        BEGIN
            CTATITULO = LCTATITULO;
            CLASSIF = LCLASSIF;
            CLASSIFCONTAB = LCLASSIFCONTAB;
            NOMECONTA = LNOMECONTA;
            SUBCONTA = LSUBCONTA;
            FILIAL = LFILIAL;
            NOMECCUSTO = LNOMECCUSTO;
            CCUSTO = LCCUSTO;
            WHEN SQLSTATE '22001', SQLSTATE '22003' DO
            BEGIN%0:s
            END
        END)";

// %0:s column, %1:s the largest that it holds.
inline constexpr const char* CodigoQueCabe = R"(
                %0:s = IIF(L%0:s BETWEEN -%1:s AND %1:s, L%0:s, NULL);
                IF (%0:s IS NULL AND L%0:s IS NOT NULL) THEN
                    LALEM = TRUE;)";

// %0:s column, %1:d its length.
inline constexpr const char* TextoQueCabe = R"(
                %0:s = IIF(CHAR_LENGTH(L%0:s) > %1:d, SUBSTRING(L%0:s FROM 1 FOR %1:d - 3) || '...', L%0:s);)";

// %0:s the mark of a line that lacks something, %1:d length that the name has before it.
inline constexpr const char* MarcaDaLinha = R"(
        IF (LALEM) THEN
            NOMECONTA = IIF(CHAR_LENGTH(LNOMECONTA) > %1:d, SUBSTRING(LNOMECONTA FROM 1 FOR %1:d - 3) || '...', COALESCE(LNOMECONTA, '')) || '%0:s';)";

} // namespace pct04618::sql
