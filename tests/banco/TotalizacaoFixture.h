#pragma once

#include "banco/ConsultaFixture.h"
#include "base/Falhas.h"

namespace apoio {

// Statement 50 with a line for each stage. 50 (title) stands over 51, 53, 54 and 56, and 51 over 52. 51 and 52 hold
// accounts alone; 53 links 51, and 54 links 61 of statement 40, whose totals exist; 56 links 62, which has none; 55
// (title) links 50.
inline const char* const Demonstracao = R"(
INSERT INTO CO01_DEMAC (IDDEMAC, CODIGO, TITULO, DESCRICAO) VALUES (5, 50, 'Resultado', 'Resultado');
INSERT INTO CO01_DEMAC (IDDEMAC, CODIGO, TITULO, DESCRICAO) VALUES (6, 40, 'Outra', 'Outra');
INSERT INTO CO01_DEMACTOT (IDDEMACTOT, IDDEMAC, IDDEMACTOTPAI, CODIGO, CLASSIF, DESCRICAO, TITULO)
          SELECT 50, 5, NULL, 50, '1',     'Resultado', 1 FROM RDB$DATABASE
UNION ALL SELECT 51, 5, 50,   51, '1.1',   'Vendas',    2 FROM RDB$DATABASE
UNION ALL SELECT 52, 5, 51,   52, '1.1.1', 'Fábrica',   2 FROM RDB$DATABASE
UNION ALL SELECT 53, 5, 50,   53, '1.2',   'Soma',      2 FROM RDB$DATABASE
UNION ALL SELECT 54, 5, 50,   54, '1.3',   'De outra',  2 FROM RDB$DATABASE
UNION ALL SELECT 56, 5, 50,   56, '1.4',   'Sem total', 2 FROM RDB$DATABASE
UNION ALL SELECT 55, 5, NULL, 55, '2',     'Repete',    1 FROM RDB$DATABASE
UNION ALL SELECT 61, 6, NULL, 61, '1',     'Vendas',    2 FROM RDB$DATABASE
UNION ALL SELECT 62, 6, NULL, 62, '2',     'Vazio',     2 FROM RDB$DATABASE;
INSERT INTO CO01_DEMACTOTREL (IDDEMACTOT, IDPLANO, IDPLANOSUB, IDCENTROCUSTO, IDDEMACTOTRELAC)
          SELECT 51, 101,  NULL, NULL, NULL FROM RDB$DATABASE
UNION ALL SELECT 52, 102,  7,    NULL, NULL FROM RDB$DATABASE
UNION ALL SELECT 53, 102,  7,    5,    NULL FROM RDB$DATABASE
UNION ALL SELECT 53, NULL, NULL, NULL, 51   FROM RDB$DATABASE
UNION ALL SELECT 54, 103,  NULL, 5,    NULL FROM RDB$DATABASE
UNION ALL SELECT 54, NULL, NULL, NULL, 61   FROM RDB$DATABASE
UNION ALL SELECT 56, 103,  NULL, 5,    NULL FROM RDB$DATABASE
UNION ALL SELECT 56, NULL, NULL, NULL, 62   FROM RDB$DATABASE
UNION ALL SELECT 55, NULL, NULL, NULL, 50   FROM RDB$DATABASE
UNION ALL SELECT 61, 101,  NULL, NULL, NULL FROM RDB$DATABASE;
)";

// The value rows before a run, from nothing: those of accounts; ten times as much in the other projections; the totals
// of the other statement; and what an earlier run left, with totals of an establishment that no longer has any.
inline const host::TInstrucao ValoresAntes[] = {{"limpeza", "DELETE FROM CO01_CTBORCADAVLR"},
                                                {"contas", R"(
INSERT INTO CO01_CTBORCADAVLR (IDCTBORCADAINF, IDEMPRESA, IDFILIAL, IDPLANO, IDPLANOSUB, IDCENTROCUSTO, TPBASEPROJ,
                               TPATUALIZBASE, INDICEATBASE, TPPROJECAO, PERCORCADO, VLRBASE, VLRORCADO, VLRREALIZADO)
          SELECT 1, 1, 11, 101, NULL, NULL, 0, 0, 0.045, 1, 2.5, 100, 110, 120 FROM RDB$DATABASE
UNION ALL SELECT 1, 1, 11, 101, 7, NULL, 1, 3, 0.05, 2, 3.5, 1, 2, 4 FROM RDB$DATABASE
UNION ALL SELECT 1, 1, 12, 101, NULL, 5, NULL, NULL, NULL, NULL, NULL, 1000, NULL, 50 FROM RDB$DATABASE
UNION ALL SELECT 1, 1, 11, 102, 7, NULL, NULL, NULL, NULL, NULL, NULL, 10, 20, 40 FROM RDB$DATABASE
UNION ALL SELECT 1, 1, 11, 102, 7, 5, NULL, NULL, NULL, NULL, NULL, 5, 6, 7 FROM RDB$DATABASE
UNION ALL SELECT 1, 1, 11, 102, 8, 5, NULL, NULL, NULL, NULL, NULL, 3, 3, 3 FROM RDB$DATABASE
UNION ALL SELECT 1, 1, 12, 102, 7, 5, NULL, NULL, NULL, NULL, NULL, 8, 9, 10 FROM RDB$DATABASE
UNION ALL SELECT 1, 1, 11, 103, 8, 5, NULL, NULL, NULL, NULL, NULL, 30, 31, 32 FROM RDB$DATABASE
UNION ALL SELECT 1, 1, 12, 103, NULL, NULL, NULL, NULL, NULL, NULL, NULL, 64, 64, 64 FROM RDB$DATABASE)"},
                                                {"outras projeções", R"(
INSERT INTO CO01_CTBORCADAVLR (IDCTBORCADAINF, IDEMPRESA, IDFILIAL, IDPLANO, IDPLANOSUB, IDCENTROCUSTO, VLRBASE,
                               VLRORCADO, VLRREALIZADO)
SELECT INF.IDCTBORCADAINF, VLR.IDEMPRESA, VLR.IDFILIAL, VLR.IDPLANO, VLR.IDPLANOSUB, VLR.IDCENTROCUSTO,
       VLR.VLRBASE * 10, VLR.VLRORCADO * 10, VLR.VLRREALIZADO * 10
  FROM CO01_CTBORCADAVLR VLR
 INNER JOIN CO01_CTBORCADAINF INF
    ON INF.IDCTBORCADAINF > 1)"},
                                                {"totais da outra demonstração", R"(
INSERT INTO CO01_CTBORCADAVLR (IDCTBORCADAINF, IDEMPRESA, IDFILIAL, IDDEMACTOT, VLRBASE, VLRORCADO, VLRREALIZADO)
SELECT VLR.IDCTBORCADAINF, VLR.IDEMPRESA, VLR.IDFILIAL, 61, SUM(VLR.VLRBASE), COALESCE(SUM(VLR.VLRORCADO), 0),
       SUM(VLR.VLRREALIZADO)
  FROM CO01_CTBORCADAVLR VLR
 WHERE VLR.IDPLANO = 101
 GROUP BY 1, 2, 3)"},
                                                {"totais antigos", R"(
INSERT INTO CO01_CTBORCADAVLR (IDCTBORCADAINF, IDEMPRESA, IDFILIAL, IDDEMACTOT, VLRBASE, VLRORCADO, VLRREALIZADO)
SELECT INF.IDCTBORCADAINF, 1, FIL.IDFILIAL, TOT.IDDEMACTOT, 7, 7, 7
  FROM CO01_CTBORCADAINF INF
 CROSS JOIN SC00_FILIAL FIL
 CROSS JOIN CO01_DEMACTOT TOT
 WHERE TOT.IDDEMACTOT IN (50, 51, 53))"}};

// How a run ended, and what it has shown.
struct Rodada {
    Lista mensagens; // without the questions
    std::optional<base::TFalhaBanco> causa;
    Lista projecoes; // those begun, as level 0 of the progress dialog names them
    bool abortou = false;
    std::string falha; // raised beside the abort
};

// Answers a question by its first button: to rebuild the selected statement alone.
class InteracaoDaRodada : public Interacao {
  public:
    int Mensagem(const host::TMensagem& mensagem) override {
        if (mensagem.Botoes.size() > 1)
            return 6;
        if (aoAvisar)
            aoAvisar();
        return Interacao::Mensagem(mensagem);
    }
    void Progresso(const host::TEventoProgresso& evento) override {
        Interacao::Progresso(evento);
        if (aoProgredir)
            aoProgredir(*this, evento);
    }
    std::function<void(InteracaoDaRodada&, const host::TEventoProgresso&)> aoProgredir;
    std::function<void()> aoAvisar; // while a message is open
};
using AoProgredir = decltype(InteracaoDaRodada::aoProgredir);

// Rebuilds statement 50 in projections 1 and 2 over the connection.
inline Rodada Gerar(suite::firebird::Connection& conexao, AoProgredir aoProgredir = {},
                    std::function<void()> aoAvisar = {}) {
    InteracaoDaRodada interacao;
    interacao.aoProgredir = std::move(aoProgredir);
    interacao.aoAvisar = std::move(aoAvisar);
    host::TServicos servicos;
    servicos.Conexao = &conexao;
    servicos.Interacao = &interacao;
    const host::TInstalacaoServicos instalados(servicos);
    pct04618::TDM04618 dm;
    dm.FIDEmpresa = 1;
    dm.FIDDemac = 5;
    dm.FInformacoesCtbOrcadaInf.LListaIDs = "1, 2";
    Rodada rodada;
    try {
        dm.GerarTotalizacoesDemonstracoesConfiguraveis();
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

// All value rows of a projection, every column but the key, in the order of their text; NULL is empty.
inline Lista Linhas(suite::firebird::Connection& conexao, int projecao) {
    host::TZTSQLQuery consulta(conexao.GetSQLConnection(), "linhas");
    consulta.SQL = "SELECT IDCTBORCADAINF, IDEMPRESA, IDFILIAL, IDPLANO, IDPLANOSUB, IDCENTROCUSTO, IDDEMACTOT, "
                   "TPBASEPROJ, TPATUALIZBASE, INDICEATBASE, TPPROJECAO, PERCORCADO, TIPOGERACAO, VLRBASE, VLRORCADO, "
                   "VLRREALIZADO FROM CO01_CTBORCADAVLR WHERE IDCTBORCADAINF = " +
                   std::to_string(projecao);
    consulta.Open();
    Lista linhas;
    for (; !consulta.Eof(); consulta.Next()) {
        std::string linha;
        for (const auto& campo : consulta.Fields())
            linha += (linha.empty() ? "" : "|") + campo.AsString();
        linhas.push_back(linha);
    }
    std::sort(linhas.begin(), linhas.end());
    return linhas;
}

// Projections 1 and 2 are those to rebuild, projection 3 stands beside them.
class Totalizacao : public ModuloDeConsulta {
  protected:
    Totalizacao() {
        copia.executar(Demonstracao);
        Projecao("1 1 - 0 01/01/2024 31/01/2024 2");
        Projecao("2 1 - 0 01/02/2024 29/02/2024 2");
        Projecao("3 1 - 0 01/03/2024 31/03/2024 2");
        const auto preparo = copia.conectar();
        Restaurar(*preparo);
        antes = Todas(*preparo);
        EXPECT_TRUE(Completa(Gerar(*preparo)));
        depois = Todas(*preparo);
        Restaurar(*preparo);
    }
    static void Restaurar(suite::firebird::Connection& conexao) {
        EXPECT_EQ("", conexao.ExecutouSQL(ValoresAntes, true).Mensagem);
    }
    static std::map<int, Lista> Todas(suite::firebird::Connection& conexao) {
        return {{1, Linhas(conexao, 1)}, {2, Linhas(conexao, 2)}, {3, Linhas(conexao, 3)}};
    }
    static testing::AssertionResult Completa(const Rodada& rodada) {
        if (!rodada.abortou && rodada.falha.empty() && rodada.mensagens.empty() && rodada.projecoes.size() == 2)
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << "abort " << rodada.abortou << ", raised \"" << rodada.falha << "\", "
                                           << testing::PrintToString(rodada.mensagens);
    }
    // The rows where that many projections are rebuilt and the others as they were.
    std::map<int, Lista> Prontas(std::size_t quantas) const {
        return {{1, (quantas > 0 ? depois : antes).at(1)}, {2, (quantas > 1 ? depois : antes).at(2)}, {3, antes.at(3)}};
    }

    std::map<int, Lista> antes;
    std::map<int, Lista> depois;
};

} // namespace apoio
