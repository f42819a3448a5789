#pragma once

namespace pct04618::sql {

// Holds the projection until the transaction ends, so that a second rebuild of it waits for the first: %0:d.
inline constexpr const char* ReservarProjecao = R"(
EXECUTE BLOCK
AS
DECLARE VARIABLE LIDCTBORCADAINF NUMERIC(18,0);
BEGIN
    SELECT CO01_CTBORCADAINF.IDCTBORCADAINF
      FROM CO01_CTBORCADAINF
     WHERE CO01_CTBORCADAINF.IDCTBORCADAINF = %0:d
      WITH LOCK
      INTO :LIDCTBORCADAINF;
END)";

// What totalization owns of the projection for the statement: %0:d projection, %1:d statement. Totalizer by totalizer,
// because a single delete reads every row of the projection.
inline constexpr const char* ExcluirTotalizacoes = R"(
EXECUTE BLOCK
AS
DECLARE VARIABLE LIDDEMACTOT NUMERIC(18,0);
BEGIN
    FOR SELECT CO01_DEMACTOT.IDDEMACTOT
          FROM CO01_DEMACTOT
         WHERE CO01_DEMACTOT.IDDEMAC = %1:d
          INTO :LIDDEMACTOT
    DO
        DELETE FROM CO01_CTBORCADAVLR
         WHERE CO01_CTBORCADAVLR.IDCTBORCADAINF = %0:d
           AND CO01_CTBORCADAVLR.IDDEMACTOT = :LIDDEMACTOT;
END)";

} // namespace pct04618::sql
