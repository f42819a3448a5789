// The headers of a selection, and the removal of actual values, on a real engine.
#include "banco/ConsultaFixture.h"
#include "base/Falhas.h"
#include "host/DbManager.h"

using apoio::Lista;

namespace {

class Cabecalho : public apoio::ModuloDeConsulta {
  protected:
    Lista Buscar(const char* projecoes, pct04618::TDetalharSelecao modo, const std::vector<const char*>& campos) {
        auto& d = Dm();
        d.FInformacoesCtbOrcadaInf.LListaIDs = projecoes;
        dados = host::BuscarInstanciaZTUtilsDbManager().CreateClientDataSetWithConnection("CdsCabecalho");
        d.BuscarCabecalhoOrcamentaria(*dados, modo);
        return apoio::LinhasDe(*dados, campos);
    }
    Lista Valores() {
        Dm();
        const auto consulta = host::BuscarInstanciaZTUtilsDbManager().AbrirConsultaSQL(
            "SELECT IDCTBORCADAINF, IDDEMACTOT, VLRBASE, VLRORCADO, VLRREALIZADO FROM CO01_CTBORCADAVLR ORDER BY 1, 2",
            "valores");
        return apoio::LinhasDe(*consulta, {"IDCTBORCADAINF", "IDDEMACTOT", "VLRBASE", "VLRORCADO", "VLRREALIZADO"});
    }
    void DuasProjecoesComValores() {
        Projecao("1 1 - 0 01/01/2024 31/01/2024");
        Projecao("2 1 - 0 01/02/2024 29/02/2024");
        const char* const colunas = "IDCTBORCADAINF, IDPLANO, IDDEMACTOT, VLRBASE, VLRORCADO, VLRREALIZADO";
        for (const char* valores :
             {"1, 101, NULL, 1, 2, 3", "1, 101, 8, 4, 5, NULL", "1, NULL, 9, 7, 8, 9", "2, 101, NULL, 1, 2, 3"})
            Valor(colunas, valores);
    }

    std::unique_ptr<host::TZTClientDataSet> dados;
};

const Lista Intactas{"1||1.00|2.00|3.00", "1|8|4.00|5.00|", "1|9|7.00|8.00|9.00", "2||1.00|2.00|3.00"};

} // namespace

TEST_F(Cabecalho, UmaLinhaPorProjecaoOuPorPeriodo) {
    Projecao("1 1 - 0 01/03/2024 31/03/2024 1");
    Projecao("2 1 11 0 01/01/2024 31/01/2024 2");
    Projecao("3 1 12 0 01/01/2024 31/01/2024 2");
    Projecao("4 1 - 0 01/01/2024 31/01/2024 1");
    Projecao("5 1 - 0 01/01/2023 31/12/2023 NULL");
    Projecao("6 1 - 0 01/02/2024 29/02/2024 1"); // not asked for
    auto chaves = Buscar("1, 2, 3, 4, 5", 3, {"IDCTBORCADAINF", "DATAINICIO", "DATAFIM"});
    std::sort(chaves.begin(), chaves.end());
    EXPECT_EQ((Lista{"1|2024-03-01|2024-03-31", "2|2024-01-01|2024-01-31", "3|2024-01-01|2024-01-31",
                     "4|2024-01-01|2024-01-31", "5|2023-01-01|2023-12-31"}),
              chaves);
    EXPECT_EQ(3U, dados->Fields().size());
    auto periodos = Buscar("1, 2, 3, 4, 5", 4, {"DATAINICIO", "DATAFIM", "TPDETALHE", "PERIODO", "DESCPERIODO"});
    ASSERT_EQ(4U, periodos.size()) << "equal period and detail fall together";
    std::sort(periodos.begin() + 1, periodos.begin() + 3);
    EXPECT_EQ((Lista{"2023-01-01|2023-12-31||2023|2023", "2024-01-01|2024-01-31|1|1|Janeiro",
                     "2024-01-01|2024-01-31|2|1|Janeiro", "2024-03-01|2024-03-31|1|3|Março"}),
              periodos);
    EXPECT_EQ(5U, dados->Fields().size());
    EXPECT_THROW(Buscar("", 4, {}), base::TFalhaBanco);
    EXPECT_FALSE(dados->Active());
}

TEST_F(Cabecalho, RemoverZeraSoORealizadoDasProjecoes) {
    DuasProjecoesComValores();
    ASSERT_EQ(Intactas, Valores());
    Dm().RemoverValorRealizado("1, 7");
    EXPECT_EQ((Lista{"1||1.00|2.00|0.00", "1|8|4.00|5.00|0.00", "1|9|7.00|8.00|0.00", "2||1.00|2.00|3.00"}), Valores());
    EXPECT_EQ(Lista{"Valores realizados excluídos com sucesso."}, interacao.mensagens);
    EXPECT_THROW(host::ZTConnection().GetSQLConnection().ExecuteDirect("DELETE FROM CO01_CTBORCADAVLR"), base::TFalha)
        << "the transaction has ended";
}

TEST_F(Cabecalho, FalhaAoRemoverNaoEsperaPeloUsuarioComATransacaoAberta) {
    struct TSemTransacao : apoio::Interacao {
        int Mensagem(const host::TMensagem& mensagem) override {
            EXPECT_THROW(host::ZTConnection().GetSQLConnection().ExecuteDirect("DELETE FROM CO01_CTBORCADAVLR"),
                         base::TFalha);
            return Interacao::Mensagem(mensagem);
        }
    } usuario;
    Dm();
    servicos.Interacao = &usuario;
    const host::TInstalacaoServicos comUsuario(servicos);
    EXPECT_THROW(Dm().RemoverValorRealizado("x"), base::Abort);
    EXPECT_EQ(1U, usuario.mensagens.size());
}

TEST_F(Cabecalho, FalhaAoRemoverDesfazMostraEInterrompe) {
    DuasProjecoesComValores();
    // In the second case the update runs, and the commit is what fails.
    copia.executar("CREATE EXCEPTION NAO_ZERAR 'fechado';\n"
                   "SET TERM ^ ;\n"
                   "CREATE TRIGGER AO_CONFIRMAR ON TRANSACTION COMMIT AS\n"
                   "BEGIN\n"
                   "    IF (EXISTS(SELECT 1 FROM CO01_CTBORCADAVLR WHERE VLRREALIZADO = 0)) THEN EXCEPTION NAO_ZERAR;\n"
                   "END^\n"
                   "SET TERM ; ^\n");
    EXPECT_THROW(Dm().RemoverValorRealizado("1, x"), base::Abort);
    EXPECT_THROW(Dm().RemoverValorRealizado("1"), base::Abort);
    EXPECT_EQ(Intactas, Valores());
    EXPECT_THROW(host::ZTConnection().GetSQLConnection().ExecuteDirect("DELETE FROM CO01_CTBORCADAVLR"), base::TFalha);
    ASSERT_EQ(2U, interacao.mensagens.size());
    EXPECT_NE(std::string::npos, interacao.mensagens[1].find("fechado"));
    const std::string frase = "Não foi possível remover o valor realizado da projeção.\r\rErro: ";
    for (const auto& mensagem : interacao.mensagens) {
        EXPECT_EQ(frase, mensagem.substr(0, frase.size()));
        EXPECT_GT(mensagem.size(), frase.size()) << "the failure's own text";
    }
}
