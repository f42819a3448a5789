#include "suite/verify/SchemaReader.h"

#include "suite/firebird/Statement.h"
#include "suite/verify/ExpectedSchema.h"

namespace suite::verify {

namespace {

// The kind of a trigger packs whether it comes before (0) and, two bits each, up to three actions of which 1 inserts.
constexpr const char* ColumnQuery = R"(
    SELECT R.RDB$RELATION_NAME,
           COALESCE(R.RDB$RELATION_TYPE, IIF(R.RDB$VIEW_BLR IS NULL, 0, 1)),
           C.RDB$FIELD_NAME,
           F.RDB$FIELD_TYPE,
           -COALESCE(F.RDB$FIELD_SCALE, 0),
           COALESCE(F.RDB$CHARACTER_LENGTH, F.RDB$FIELD_LENGTH, 0),
           COALESCE(C.RDB$NULL_FLAG, F.RDB$NULL_FLAG, 0),
           IIF(C.RDB$DEFAULT_SOURCE IS NULL AND F.RDB$DEFAULT_SOURCE IS NULL, 0, 1),
           IIF(C.RDB$IDENTITY_TYPE IS NOT NULL OR EXISTS(
               SELECT 1
                 FROM RDB$DEPENDENCIES D
                INNER JOIN RDB$TRIGGERS T
                   ON T.RDB$TRIGGER_NAME = D.RDB$DEPENDENT_NAME
                WHERE D.RDB$DEPENDED_ON_NAME = C.RDB$RELATION_NAME
                  AND D.RDB$FIELD_NAME = C.RDB$FIELD_NAME
                  AND D.RDB$DEPENDENT_TYPE = 2
                  AND T.RDB$RELATION_NAME = C.RDB$RELATION_NAME
                  AND COALESCE(T.RDB$TRIGGER_INACTIVE, 0) = 0
                  AND BIN_AND(T.RDB$TRIGGER_TYPE + 1, 1) = 0
                  AND 1 IN (BIN_AND(BIN_SHR(T.RDB$TRIGGER_TYPE + 1, 1), 3),
                            BIN_AND(BIN_SHR(T.RDB$TRIGGER_TYPE + 1, 3), 3),
                            BIN_AND(BIN_SHR(T.RDB$TRIGGER_TYPE + 1, 5), 3))), 1, 0)
      FROM RDB$RELATIONS R
     INNER JOIN RDB$RELATION_FIELDS C
        ON C.RDB$RELATION_NAME = R.RDB$RELATION_NAME
     INNER JOIN RDB$FIELDS F
        ON F.RDB$FIELD_NAME = C.RDB$FIELD_SOURCE
     WHERE R.RDB$RELATION_NAME IN ()";

constexpr const char* IndexQuery = R"(
    SELECT I.RDB$INDEX_NAME,
           I.RDB$RELATION_NAME,
           COALESCE(I.RDB$INDEX_INACTIVE, 0),
           COALESCE(I.RDB$INDEX_TYPE, 0),
           CAST(SUBSTRING(I.RDB$EXPRESSION_SOURCE FROM 1 FOR 200) AS VARCHAR(200)),
           S.RDB$FIELD_NAME
      FROM RDB$INDICES I
      LEFT JOIN RDB$INDEX_SEGMENTS S
        ON S.RDB$INDEX_NAME = I.RDB$INDEX_NAME
     WHERE COALESCE(I.RDB$SYSTEM_FLAG, 0) = 0
     ORDER BY I.RDB$INDEX_NAME, S.RDB$FIELD_POSITION)";

TableKind tableKind(std::int64_t code) {
    switch (code) {
    case 0:
        return TableKind::Stored;
    case 1:
        return TableKind::View;
    case 5:
        return TableKind::ClearedOnCommit;
    default:
        return TableKind::Other;
    }
}

ColumnType columnType(std::int64_t code) {
    switch (code) {
    case 7:
        return ColumnType::Whole16;
    case 8:
        return ColumnType::Whole32;
    case 16:
        return ColumnType::Whole64;
    case 10:
    case 27:
        return ColumnType::Float;
    case 14:
    case 37:
        return ColumnType::Text;
    case 261:
        return ColumnType::Blob;
    case 12:
        return ColumnType::Date;
    case 35:
        return ColumnType::Timestamp;
    default:
        return ColumnType::Other;
    }
}

} // namespace

Schema readSchema(firebird::Transaction& transaction) {
    Schema schema;
    std::string names;
    for (const auto& table : ExpectedTables)
        names += (names.empty() ? "'" : ", '") + std::string(table.name) + "'";
    const auto columns = firebird::queryRows(transaction, ColumnQuery + names + ")", "tabelas do banco de dados");
    for (std::size_t row = 0; row < columns[0].Tamanho(); ++row) {
        auto& table = schema.tables[std::string(columns[0].Texto(row))];
        table.kind = tableKind(columns[1].Unidades(row));
        table.columns[std::string(columns[2].Texto(row))] = {.type = columnType(columns[3].Unidades(row)),
                                                             .decimals = static_cast<int>(columns[4].Unidades(row)),
                                                             .length = static_cast<int>(columns[5].Unidades(row)),
                                                             .notNull = columns[6].Unidades(row) != 0,
                                                             .hasDefault = columns[7].Unidades(row) != 0,
                                                             .filledOnInsert = columns[8].Unidades(row) != 0};
    }
    const auto segments = firebird::queryRows(transaction, IndexQuery, "índices do banco de dados");
    for (std::size_t row = 0; row < segments[0].Tamanho(); ++row) {
        const std::string name(segments[0].Texto(row));
        if (schema.indexes.empty() || schema.indexes.back().name != name)
            schema.indexes.push_back({.name = name,
                                      .table = std::string(segments[1].Texto(row)),
                                      .active = segments[2].Unidades(row) == 0,
                                      .ascending = segments[3].Unidades(row) == 0,
                                      .columns = {},
                                      .expression = std::string(segments[4].Texto(row))});
        if (!segments[5].Nulo(row))
            schema.indexes.back().columns.emplace_back(segments[5].Texto(row));
    }
    return schema;
}

} // namespace suite::verify
