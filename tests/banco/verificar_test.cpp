#include "apoio/Bases.h"
#include "suite/verify/DataChecks.h"

#include <gtest/gtest.h>

using namespace suite::verify;
using suite::firebird::Transaction;
using suite::firebird::TransactionMode;

namespace {

Schema esquemaDe(const apoio::Copia& copia) {
    const auto conexao = copia.conectar();
    Transaction transacao(conexao->attachment(), TransactionMode::ReadOnly);
    return readSchema(transacao);
}

// The commands told run as they stand, and an index so made serves.
TEST(Verificar, ComandosDeIndiceResolvem) {
    const apoio::Copia copia(apoio::Base::Vazia);
    copia.executar("DROP INDEX IX_ORCVLR_LINHA; DROP INDEX IX_ORCMATRICIAL_TOT; DROP INDEX IX_ORCMATRICIAL_PLANO; "
                   "DROP INDEX IX_ORCMATRICIAL_FILIAL;");
    auto esquema = esquemaDe(copia);
    esquema.indexes.clear();
    Findings faltam;
    checkIndexes(esquema, faltam);
    ASSERT_EQ(std::size(ExpectedIndexes), faltam.size());
    for (const auto& linha : faltam)
        copia.executar(linha.substr(linha.rfind("CREATE INDEX")));
    esquema = esquemaDe(copia);
    std::erase_if(esquema.indexes, [](const auto& indice) { return !indice.name.starts_with("IX_ORC"); });
    faltam.clear();
    checkIndexes(esquema, faltam);
    EXPECT_EQ(Findings{}, faltam);
}

TEST(Verificar, GeradorEGatilhoDaChave) {
    const apoio::Copia copia(apoio::Base::Vazia);
    const auto conferir = [&] {
        Findings achados;
        const auto conexao = copia.conectar();
        Transaction transacao(conexao->attachment(), TransactionMode::ReadOnly);
        const auto esquema = readSchema(transacao);
        checkInserts(esquema, achados);
        checkGenerator(transacao, esquema, achados);
        return achados.size();
    };
    copia.executar("DROP TRIGGER CO01_CTBORCADAVLR_CHAVE; DROP SEQUENCE GEN_CO01_CTBORCADAVLR;");
    EXPECT_EQ(2, conferir());
    // A trigger that does not touch the key fills nothing.
    copia.executar("CREATE SEQUENCE OUTRO; SET TERM ^ ; CREATE TRIGGER T FOR CO01_CTBORCADAVLR BEFORE INSERT AS BEGIN "
                   "NEW.VLRBASE = GEN_ID(OUTRO, 0); END^ SET TERM ; ^");
    EXPECT_EQ(1, conferir());
    copia.executar("SET TERM ^ ; ALTER TRIGGER T AS BEGIN NEW.IDCTBORCADAVLR = GEN_ID(OUTRO, 1); END^ SET TERM ; ^");
    EXPECT_EQ(0, conferir());
}

} // namespace
