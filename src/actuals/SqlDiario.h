#pragma once

namespace pct04618::sql {

// Whether an account is confronted with the journal: children of the configured accounts, these themselves, and those
// of one kind, the last two unless they are titles. It is never unknown. %0:d company, %1:d holding, %2:d company of
// the chart.
inline constexpr const char* ContaConfrontada = R"((
          EXISTS (SELECT 1
                    FROM CO01_PLANOCFG
                   WHERE CO01_PLANOCFG.IDPLANO = CO01_PLANO.IDPLANOPAI
                     AND CO01_PLANOCFG.ORIGEM = 21
                     AND CO01_PLANOCFG.ESPECIE = 50
                     AND CO01_PLANOCFG.IDEMPRESA IN (%1:d, %0:d))
          OR (COALESCE(CO01_PLANO.CTATITULO, 1) <> 1
              AND ((CO01_PLANO.IDEMPRESA = %2:d AND COALESCE(CO01_PLANO.TPCONTA, 0) = 3)
                   OR EXISTS (SELECT 1
                                FROM CO01_PLANOCFG
                               WHERE CO01_PLANOCFG.IDPLANO = CO01_PLANO.IDPLANO
                                 AND CO01_PLANOCFG.ORIGEM = 21
                                 AND CO01_PLANOCFG.ESPECIE = 50
                                 AND CO01_PLANOCFG.IDEMPRESA IN (%1:d, %0:d))))))";

// What the journal holds for a projection. The entries are summed by the keys of a value row first; what is looked up
// besides comes to each of the sums, once, however often it stands. The outer joins make the account the first step.
// %0:s condition on the establishments, %1:s first day, %2:s day after the last, %3:s column of the establishment, %4:s
// list of books, %5:s whether an account is confronted, %6:s column of the cost centre, %7:s table of the amounts, %8:s
// join of the shares, %9:d projection, %10:s match of the base row by establishment, %11:s by cost centre.
inline constexpr const char* SomasDoDiario = R"(
SELECT DIARIO.IDFILIAL,
       DIARIO.IDPLANO,
       DIARIO.IDPLANOSUB,
       (SELECT MIN(CO01_CTBORCADAVLR.TIPOGERACAO)
          FROM CO01_CTBORCADAVLR
         WHERE CO01_CTBORCADAVLR.IDCTBORCADAINF = %9:d
           AND CO01_CTBORCADAVLR.IDDEMACTOT IS NULL
           AND CO01_CTBORCADAVLR.IDPLANO = DIARIO.IDPLANO
           AND COALESCE(CO01_CTBORCADAVLR.IDPLANOSUB, 0) = COALESCE(DIARIO.IDPLANOSUB, 0)%10:s%11:s) AS TIPOGERACAO,
       DIARIO.IDCENTROCUSTO,
       CASE (SELECT MIN(CAST(CO01_PLANOCFG.INFORMACAO1 AS NUMERIC(2,0)))
               FROM CO01_PLANOCFG
              WHERE CO01_PLANOCFG.IDPLANO = DIARIO.IDPLANO
                AND CO01_PLANOCFG.ORIGEM = 20
                AND CO01_PLANOCFG.ESPECIE = 1) WHEN 1 THEN 1 ELSE 2 END AS RECDESP,
       DIARIO.DEBITOS,
       DIARIO.CREDITOS
  FROM (SELECT %3:s,
               CO01_DIARIO.IDPLANO,
               CO01_DIARIO.IDPLANOSUB,
               %6:s,
               SUM(CASE WHEN CO01_DIARIO.TPLANCTO = 1 THEN COALESCE(%7:s.VALOR, 0) ELSE 0 END) AS DEBITOS,
               SUM(CASE WHEN CO01_DIARIO.TPLANCTO = -1 THEN COALESCE(%7:s.VALOR, 0) * CO01_DIARIO.TPLANCTO ELSE 0 END) AS CREDITOS
          FROM (SELECT CO01_PLANO.IDPLANO
                  FROM CO01_PLANO
                 WHERE %5:s) CONTA
          LEFT JOIN CO01_DIARIO
            ON CO01_DIARIO.IDPLANO = CONTA.IDPLANO
           AND CO01_DIARIO.DATA >= %1:s
           AND CO01_DIARIO.DATA < %2:s%8:s
         WHERE %0:s
           AND CO01_DIARIO.ORIGEM <> 5
           AND COALESCE(CO01_DIARIO.TPCTB, 0) IN (%4:s)
         GROUP BY 1, 2, 3, 4) DIARIO)";

inline constexpr const char* QuotasDoDiario = R"(
          LEFT JOIN CO01_DIARIOCUSTO
            ON CO01_DIARIOCUSTO.IDDIARIO = CO01_DIARIO.IDDIARIO)";
inline constexpr const char* BaseDaFilial = R"(
           AND COALESCE(CO01_CTBORCADAVLR.IDFILIAL, 0) = COALESCE(DIARIO.IDFILIAL, 0))";
inline constexpr const char* BaseDoCentro = R"(
           AND COALESCE(CO01_CTBORCADAVLR.IDCENTROCUSTO, 0) = COALESCE(DIARIO.IDCENTROCUSTO, 0))";

// How many entries a period has for a projection, and how many of them do not enter and why (TDestino), with their
// debits and credits: first those of the confronted accounts, then all others. It goes by account, as the index of the
// journal does, and groups nothing, since to sort the entries costs more than to read them. %0:s condition on the
// establishments, %1:s first day, %2:s day after the last, %3:s whether the book is another, %4:s whether an account is
// confronted, %5:s whether a share is missing, %6:s whether an entry would enter by itself.
inline constexpr const char* DestinosDoDiario = R"(
SELECT 0 AS DEFORA,
       COUNT(*) AS LIDOS,
       COUNT(CASE WHEN COALESCE(CO01_DIARIO.ORIGEM, 5) = 5 THEN 1 END) AS LIDOS1,
       SUM(CASE WHEN COALESCE(CO01_DIARIO.ORIGEM, 5) = 5 AND CO01_DIARIO.TPLANCTO = 1 THEN CO01_DIARIO.VALOR END) AS DEBITOS1,
       SUM(CASE WHEN COALESCE(CO01_DIARIO.ORIGEM, 5) = 5 AND CO01_DIARIO.TPLANCTO = -1 THEN CO01_DIARIO.VALOR END) AS CREDITOS1,
       COUNT(CASE WHEN %3:s THEN 1 END) AS LIDOS2,
       SUM(CASE WHEN %3:s AND CO01_DIARIO.TPLANCTO = 1 THEN CO01_DIARIO.VALOR END) AS DEBITOS2,
       SUM(CASE WHEN %3:s AND CO01_DIARIO.TPLANCTO = -1 THEN CO01_DIARIO.VALOR END) AS CREDITOS2,
       COUNT(CASE WHEN %5:s THEN 1 END) AS LIDOS3,
       SUM(CASE WHEN %5:s AND CO01_DIARIO.TPLANCTO = 1 THEN CO01_DIARIO.VALOR END) AS DEBITOS3,
       SUM(CASE WHEN %5:s AND CO01_DIARIO.TPLANCTO = -1 THEN CO01_DIARIO.VALOR END) AS CREDITOS3
  FROM (SELECT CO01_PLANO.IDPLANO
          FROM CO01_PLANO
         WHERE %4:s) CONTA
  LEFT JOIN CO01_DIARIO
    ON CO01_DIARIO.IDPLANO = CONTA.IDPLANO
   AND CO01_DIARIO.DATA >= %1:s
   AND CO01_DIARIO.DATA < %2:s
 WHERE %0:s
 UNION ALL
SELECT 1,
       COUNT(*),
       COUNT(CASE WHEN COALESCE(CO01_DIARIO.ORIGEM, 5) = 5 THEN 1 END),
       SUM(CASE WHEN COALESCE(CO01_DIARIO.ORIGEM, 5) = 5 AND CO01_DIARIO.TPLANCTO = 1 THEN CO01_DIARIO.VALOR END),
       SUM(CASE WHEN COALESCE(CO01_DIARIO.ORIGEM, 5) = 5 AND CO01_DIARIO.TPLANCTO = -1 THEN CO01_DIARIO.VALOR END),
       COUNT(CASE WHEN %3:s THEN 1 END),
       SUM(CASE WHEN %3:s AND CO01_DIARIO.TPLANCTO = 1 THEN CO01_DIARIO.VALOR END),
       SUM(CASE WHEN %3:s AND CO01_DIARIO.TPLANCTO = -1 THEN CO01_DIARIO.VALOR END),
       COUNT(CASE WHEN %6:s THEN 1 END),
       SUM(CASE WHEN %6:s AND CO01_DIARIO.TPLANCTO = 1 THEN CO01_DIARIO.VALOR END),
       SUM(CASE WHEN %6:s AND CO01_DIARIO.TPLANCTO = -1 THEN CO01_DIARIO.VALOR END)
  FROM (SELECT CO01_PLANO.IDPLANO
          FROM CO01_PLANO
         WHERE NOT %4:s) CONTA
  LEFT JOIN CO01_DIARIO
    ON CO01_DIARIO.IDPLANO = CONTA.IDPLANO
   AND CO01_DIARIO.DATA >= %1:s
   AND CO01_DIARIO.DATA < %2:s
 WHERE %0:s)";
// %s list of books.
inline constexpr const char* OutroLivro = "CO01_DIARIO.ORIGEM <> 5 AND COALESCE(CO01_DIARIO.TPCTB, 0) NOT IN (%s)";
inline constexpr const char* Entraria = "CO01_DIARIO.ORIGEM <> 5 AND COALESCE(CO01_DIARIO.TPCTB, 0) IN (%s)";
inline constexpr const char* SemQuota = R"(
        AND NOT EXISTS (SELECT 1
                          FROM CO01_DIARIOCUSTO
                         WHERE CO01_DIARIOCUSTO.IDDIARIO = CO01_DIARIO.IDDIARIO))";

} // namespace pct04618::sql
