#pragma once

#include "actuals/AtualizadorRealizado.h"
#include "banco/TotalizacaoFixture.h"

namespace apoio {

// Above the accounts of Cadastro stand two further titles, 90 over 100, and 200, into which 101 discharges as well.
// 104 is configured for the confrontation and no more, 105 is in no way part of it. Projection 1 is January, 2 is
// February, both by establishment; 3 is January of another scenario.
inline const char* const Diario = R"(
INSERT INTO CO01_PLANO (IDPLANO, IDEMPRESA, CONTA, CLASSIFCONTAB, NOME, CTATITULO, TPCONTA)
          SELECT 90,  1, 90,  '0', 'Tudo',     1, 3 FROM RDB$DATABASE
UNION ALL SELECT 200, 1, 200, '9', 'Descarga', 1, 3 FROM RDB$DATABASE
UNION ALL SELECT 104, 1, 104, '4', 'À parte',  2, 1 FROM RDB$DATABASE
UNION ALL SELECT 105, 1, 105, '5', 'Caixa',    2, 1 FROM RDB$DATABASE;
UPDATE CO01_PLANO SET IDPLANOPAI = 90 WHERE IDPLANO = 100;
UPDATE CO01_PLANO SET CTASUPERIOR = 200 WHERE IDPLANO = 101;
INSERT INTO CO01_PLANOCFG (IDPLANOCFG, IDPLANO, IDEMPRESA, ORIGEM, ESPECIE) VALUES (9, 104, 1, 21, 50);
INSERT INTO CO01_PLANOCFG (IDPLANOCFG, IDPLANO, IDEMPRESA, ORIGEM, ESPECIE, INFORMACAO1) VALUES (10, 101, 1, 20, 1, 2);
INSERT INTO CO01_DIARIO (IDDIARIO, IDFILIAL, IDPLANO, IDPLANOSUB, DATA, VALOR, TPLANCTO, ORIGEM, TPCTB)
          SELECT  1, 11, 101, NULL, DATE '2024-01-01', 100.00,  1, 1, NULL FROM RDB$DATABASE
UNION ALL SELECT  2, 11, 101, NULL, DATE '2024-01-31',  30.00, -1, 1, 0    FROM RDB$DATABASE
UNION ALL SELECT  3, 12, 101, NULL, DATE '2024-01-15',  30.00, -1, 1, 0    FROM RDB$DATABASE
UNION ALL SELECT  4, 11, 102, 7,    DATE '2024-01-10',  12.34,  1, 2, 0    FROM RDB$DATABASE
UNION ALL SELECT  5, 11, 102, 8,    DATE '2024-01-10',   1.00,  1, 2, 0    FROM RDB$DATABASE
UNION ALL SELECT  6, 11, 103, NULL, DATE '2024-01-10',   5.00,  1, 2, 0    FROM RDB$DATABASE
UNION ALL SELECT  7, 11, 103, NULL, DATE '2024-01-11',   5.00, -1, 2, 0    FROM RDB$DATABASE
UNION ALL SELECT  8, 12, 104, NULL, DATE '2024-01-11',   2.00,  1, 2, 0    FROM RDB$DATABASE
UNION ALL SELECT  9, 11, 105, NULL, DATE '2024-01-11', 900.00,  1, 2, 0    FROM RDB$DATABASE
UNION ALL SELECT 10, 11, 101, NULL, DATE '2024-01-31', 500.00,  1, 5, 0    FROM RDB$DATABASE
UNION ALL SELECT 11, 11, 101, NULL, DATE '2024-01-20',  40.00,  1, 1, 1    FROM RDB$DATABASE
UNION ALL SELECT 12, 11, 101, NULL, DATE '2024-01-20',  80.00, -1, 1, 2    FROM RDB$DATABASE
UNION ALL SELECT 13, 21, 101, NULL, DATE '2024-01-20',   7.00,  1, 1, 0    FROM RDB$DATABASE
UNION ALL SELECT 14, 11, 102, NULL, DATE '2024-02-29', 200.00,  1, 1, 0    FROM RDB$DATABASE
UNION ALL SELECT 15, 12, 102, NULL, DATE '2024-03-01',   9.00,  1, 1, 0    FROM RDB$DATABASE;
)";

// What stands before a run: base rows of some accounts and of two titles, detail rows, total rows.
inline const host::TInstrucao RealizadoAntes[] = {{"limpeza", "DELETE FROM CO01_CTBORCADAVLR"}, {"valores", R"(
INSERT INTO CO01_CTBORCADAVLR (IDCTBORCADAINF, IDEMPRESA, IDFILIAL, IDPLANO, IDPLANOSUB, IDCENTROCUSTO, IDDEMACTOT,
                               TPPROJECAO, VLRBASE, VLRORCADO, VLRREALIZADO)
SELECT INF.IDCTBORCADAINF, 1, V.IDFILIAL, V.IDPLANO, V.IDPLANOSUB, NULL, V.IDDEMACTOT, V.TPPROJECAO, V.VLRBASE,
       V.VLRORCADO, V.VLRREALIZADO
  FROM CO01_CTBORCADAINF INF
 CROSS JOIN (SELECT 11 AS IDFILIAL, 100 AS IDPLANO, NULL AS IDPLANOSUB, NULL AS IDDEMACTOT, 3 AS TPPROJECAO,
                    1.00 AS VLRBASE, 2.00 AS VLRORCADO, 77.00 AS VLRREALIZADO FROM RDB$DATABASE
   UNION ALL SELECT 11, 101, NULL, NULL, 1, 10.00, 20.00, 77.00 FROM RDB$DATABASE
   UNION ALL SELECT 12, 101, NULL, NULL, 1, 11.00, 21.00, NULL FROM RDB$DATABASE
   UNION ALL SELECT 11, 102, 7, NULL, 1, 12.00, 22.00, 0.00 FROM RDB$DATABASE
   UNION ALL SELECT 12, 103, NULL, NULL, 1, 13.00, 23.00, 5.00 FROM RDB$DATABASE
   UNION ALL SELECT 11, 101, NULL, 51, 1, 10.00, 20.00, 77.00 FROM RDB$DATABASE
   UNION ALL SELECT 11, 103, NULL, 51, 1, 10.00, 20.00, 77.00 FROM RDB$DATABASE
   UNION ALL SELECT 11, NULL, NULL, 51, NULL, 10.00, 20.00, 154.00 FROM RDB$DATABASE) V)"}};

// Updates January and February of the normal scenario over the connection.
inline Rodada Atualizar(suite::firebird::Connection& conexao, AoProgredir aoProgredir = {},
                        std::function<void()> aoAvisar = {}, std::int64_t filial = 0,
                        pct04618::TResultadoRealizado* resultado = nullptr) {
    InteracaoDaRodada interacao;
    interacao.aoProgredir = std::move(aoProgredir);
    interacao.aoAvisar = std::move(aoAvisar);
    host::TServicos servicos;
    servicos.Conexao = &conexao;
    servicos.Interacao = &interacao;
    const host::TInstalacaoServicos instalados(servicos);
    pct04618::TDM04618 dm;
    dm.FIDEmpresa = dm.FIDEmpresaPlano = dm.FIDEmpresaHolding = 1;
    pct04618::TResultadoRealizado proprio;
    auto& feito = resultado ? *resultado : proprio;
    Rodada rodada;
    try {
        pct04618::TAtualizadorRealizado(
            dm, {.DataInicial = Dia("01/01/2024"), .DataFinal = Dia("29/02/2024"), .Cenarios = 1, .IDFilial = filial},
            feito)
            .AtualizarValoresRealizadosNoPeriodo();
    } catch (const base::Abort&) {
        rodada.abortou = true;
    } catch (const base::TFalha& falha) {
        rodada.falha = falha.what();
    }
    rodada.mensagens = interacao.mensagens;
    rodada.causa = interacao.causa;
    for (const auto& evento : interacao.progresso)
        if (evento.Tipo == host::TEventoProgresso::TTipo::Texto && evento.Nivel == 0)
            rodada.projecoes.push_back(evento.Texto);
    return rodada;
}

// Projections 1 and 2 are those of the run, 3 stands beside them.
class Realizado : public ModuloDeConsulta {
  protected:
    Realizado() {
        copia.executar(Demonstracao);
        copia.executar(Diario);
        Projecao("1 1 - 0 01/01/2024 31/01/2024 2");
        Projecao("2 1 - 0 01/02/2024 29/02/2024 2");
        Projecao("3 1 - 1 01/01/2024 31/01/2024 2");
        copia.executar("UPDATE CO01_CTBORCADAINF SET TPCTB = 1;");
        conexao = copia.conectar();
        Restaurar();
        antes = Todas();
        EXPECT_TRUE(Completa(Atualizar(*conexao)));
        depois = Todas();
        Restaurar();
    }
    void Restaurar() { EXPECT_EQ("", conexao->ExecutouSQL(RealizadoAntes, true).Mensagem); }
    std::map<int, Lista> Todas() { return Todas(*conexao); }
    static std::map<int, Lista> Todas(suite::firebird::Connection& outra) {
        return {{1, Linhas(outra, 1)}, {2, Linhas(outra, 2)}, {3, Linhas(outra, 3)}};
    }
    static testing::AssertionResult Completa(const Rodada& rodada) {
        if (!rodada.abortou && rodada.falha.empty() && rodada.mensagens.empty() && rodada.projecoes.size() == 2)
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << "abort " << rodada.abortou << ", raised \"" << rodada.falha << "\", "
                                           << testing::PrintToString(rodada.mensagens);
    }
    // The rows where that many projections are updated and the others as they were.
    std::map<int, Lista> Prontas(std::size_t quantas) const {
        return {{1, (quantas > 0 ? depois : antes).at(1)}, {2, (quantas > 1 ? depois : antes).at(2)}, {3, antes.at(3)}};
    }
    // Those of account or title, a total row as account 0: "account/sub/centre/totalizer=actual" a row.
    Lista Realizados(int projecao, const std::string& condicao = "1 = 1") {
        host::TZTSQLQuery consulta(conexao->GetSQLConnection(), "realizados");
        consulta.SQL =
            "SELECT COALESCE(IDFILIAL, 0) || ' ' || COALESCE(IDPLANO, 0) || '/' || COALESCE(IDPLANOSUB, 0) || "
            "'/' || COALESCE(IDCENTROCUSTO, 0) || '/' || COALESCE(IDDEMACTOT, 0) || '=' || "
            "COALESCE(VLRREALIZADO, 0) AS LINHA FROM CO01_CTBORCADAVLR WHERE IDCTBORCADAINF = " +
            std::to_string(projecao) + " AND " + condicao + " ORDER BY 1";
        consulta.Open();
        return LinhasDe(consulta, {"LINHA"});
    }

    std::map<int, Lista> antes;
    std::map<int, Lista> depois;
};

} // namespace apoio
