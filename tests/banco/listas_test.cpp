// Selections of more records than an IN of the engine holds.
#include "banco/PeriodosFixture.h"
#include "base/Falhas.h"
#include "core/Lista.h"
#include "host/DbManager.h"

using apoio::Lista;

namespace {

constexpr int Projecoes = 3200;

// Monthly projections of 2024 with the keys 3, 6, 9 ...; each has a row of account 101 in establishment 11 and one of
// 102 in establishment 12. Between them stand the keys of another scenario, with ten times as much.
class ListasLongas : public apoio::Periodos {
  protected:
    ListasLongas() {
        copia.executar("SET TERM ^ ;\n"
                       "EXECUTE BLOCK AS DECLARE I INTEGER = 3; DECLARE V INTEGER; BEGIN WHILE (I <= " +
                       std::to_string(3 * Projecoes + 1) + R"() DO BEGIN
    V = IIF(MOD(I, 3) = 0, 1, 10);
    INSERT INTO CO01_CTBORCADAINF (IDCTBORCADAINF, IDEMPRESA, TPCENARIO, DATAINICIO, DATAFIM, DATAIBALANCOREF,
                                   DATAFBALANCOREF, TPDETALHE)
    VALUES (:I, 1, IIF(:V = 1, 0, 1), DATEADD(MONTH, MOD(:I, 12), DATE '2024-01-01'),
            DATEADD(MONTH, MOD(:I, 12), DATE '2024-01-20'), '2023-01-01', '2023-12-31', 1);
    INSERT INTO CO01_CTBORCADAVLR (IDCTBORCADAINF, IDEMPRESA, IDFILIAL, IDPLANO, VLRBASE, VLRORCADO, VLRREALIZADO)
    VALUES (:I, 1, 11, 101, :V, :V * 2, :V * 3);
    INSERT INTO CO01_CTBORCADAVLR (IDCTBORCADAINF, IDEMPRESA, IDFILIAL, IDPLANO, VLRBASE, VLRORCADO, VLRREALIZADO)
    VALUES (:I, 1, 12, 102, :V, :V * 2, :V * 3);
    I = I + IIF(MOD(I, 3) = 0, 1, 2);
END END^
SET TERM ; ^
)");
        auto& d = Dm();
        d.FDataInicio = apoio::Dia("01/01/2024");
        d.FDataFim = apoio::Dia("31/12/2024");
        d.FDetalharSelecao = 1;
        d.BuscarListaInformacoesCtbOrcadaInf();
    }
    Lista Balanco() {
        auto& d = Dm();
        d.CdsMostraCtbOrcada.Close();
        d.CdsMostraCtbOrcada.CommandText = d.BuscarDadosOrcamentariaComBaseNoBalanco();
        d.CdsMostraCtbOrcada.Open();
        return apoio::LinhasDe(d.CdsMostraCtbOrcada, {"CONTA", "FILIAL", "VLRBASE", "VLRREALIZADO"});
    }
    Lista PeriodosEmColunas() {
        auto lista = Dm().FInformacoesCtbOrcadaInf.LListaIDs;
        return Abrir(lista.c_str(), {"CONTA", "DESCTIPOLINHA", "VAL1", "VAL4", "VAL5", "TOTAL"});
    }
    // Terms for so many keys, among them those given.
    static std::string Cadeia(const std::string& coluna, std::initializer_list<int> chaves) {
        std::string texto;
        for (const int chave : chaves)
            texto += (texto.empty() ? "" : "\rOR ") + coluna + " = " + std::to_string(chave);
        for (int i = 0; i < 1600; ++i)
            texto += "\rOR " + coluna + " = " + std::to_string(1000 + 2 * i);
        return texto;
    }
    std::int64_t Contar(const char* condicao) const {
        const auto consulta = host::BuscarInstanciaZTUtilsDbManager().AbrirConsultaSQL(
            std::string("SELECT COUNT(*) AS N FROM CO01_CTBORCADAVLR WHERE ") + condicao, "contagem");
        return consulta->GetInt64FieldValue("N");
    }
};

} // namespace

TEST_F(ListasLongas, TodasAsProjecoesContamNosDoisPrimeirosModosENosPeriodos) {
    auto& d = Dm();
    ASSERT_EQ(Projecoes, d.FInformacoesCtbOrcadaInf.QtdePeriodos);
    const Lista balanco{"2|1|3200.000000|9600.000000", "3|2|3200.000000|9600.000000"};
    EXPECT_EQ(balanco, Balanco());
    SoLinhas(false, true, false);
    // Keys 3, 6, 9 and 12 of each dozen: the months of April, July, October and January.
    const Lista periodos{"2|O|1600.00|1600.00|0.00|6400.00", "3|O|1600.00|1600.00|0.00|6400.00"};
    EXPECT_EQ(periodos, PeriodosEmColunas());
    auto cabecalhos = host::BuscarInstanciaZTUtilsDbManager().CreateClientDataSetWithConnection("cabeçalhos");
    d.BuscarCabecalhoOrcamentaria(*cabecalhos, 3);
    EXPECT_EQ(std::size_t{Projecoes}, cabecalhos->RecordCount());
    d.BuscarCabecalhoOrcamentaria(*cabecalhos, 4);
    EXPECT_EQ(4U, cabecalhos->RecordCount());

    d.FListaIDsFilial = pct04618::TStringList{"12"};
    for (int i = 0; i < 1600; ++i)
        d.FListaIDsFilial->push_back(std::to_string(1000 + i));
    d.FIDsContas = Cadeia("CO01_CTBORCADAVLR.IDPLANO", {101, 102});
    EXPECT_EQ(Lista{balanco[1]}, Balanco());
    EXPECT_EQ(Lista{periodos[1]}, PeriodosEmColunas());
    d.FListaIDsFilial->clear();
    d.FIDsContas = Cadeia("CO01_CTBORCADAVLR.IDPLANO", {101});
    EXPECT_EQ(Lista{balanco[0]}, Balanco());
    EXPECT_EQ(Lista{periodos[0]}, PeriodosEmColunas());
    d.FIDsCentroCusto = Cadeia("CO01_CTBORCADAVLR.IDCENTROCUSTO", {5});
    EXPECT_EQ(Lista{}, Balanco());
    d.FEhConsolidadoHolding = true;
    d.FIDsEmpresasDaHolding = Cadeia("CO01_CTBORCADAINF.IDEMPRESA", {1});
    d.FIDsFiliaisDaHolding = Cadeia("CO01_CTBORCADAINF.IDFILIAL", {11});
    EXPECT_EQ(Projecoes, d.BuscarListaInformacoesCtbOrcadaInf().QtdePeriodos);
}

TEST_F(ListasLongas, DemonstracaoTemSeusTotaisENelesAVertical) {
    Demonstracao();
    auto& d = Dm();
    copia.executar("INSERT INTO CO01_CTBORCADAVLR (IDCTBORCADAINF, IDDEMACTOT, IDFILIAL, VLRORCADO) SELECT "
                   "IDCTBORCADAINF, 20, 11, TPCENARIO * 30 + 4 FROM CO01_CTBORCADAINF;"
                   "INSERT INTO CO01_CTBORCADAVLR (IDCTBORCADAINF, IDDEMACTOT, IDFILIAL, VLRORCADO) SELECT "
                   "IDCTBORCADAINF, 22, 11, 1 FROM CO01_CTBORCADAINF;");
    d.FDetalharPercentual = pct04618::TDetalhePercentual::dpVertical;
    d.FIDsTotalizadores = Cadeia("CO01_DEMACTOT.IDDEMACTOT", {22});
    SoLinhas(false, true, false);
    const auto lista = d.FInformacoesCtbOrcadaInf.LListaIDs;
    EXPECT_EQ(Lista{"12|800.00|3200.00|25.00"}, Abrir(lista.c_str(), {"CONTA", "VAL1", "TOTAL", "PERCTOT"}));
}

TEST_F(ListasLongas, RemoverRealizadoPoupaAsProjecoesDoMeio) {
    const auto lista = Dm().FInformacoesCtbOrcadaInf.LListaIDs;
    Dm().RemoverValorRealizado(lista);
    EXPECT_EQ(2 * Projecoes, Contar("VLRREALIZADO = 0"));
    EXPECT_EQ(2 * Projecoes, Contar("VLRREALIZADO = 30"));
}

TEST_F(ListasLongas, TotaisComecamEmTodas) {
    auto& d = Dm();
    copia.executar("INSERT INTO CO01_DEMACTOTREL (IDDEMACTOT, IDPLANO) VALUES (9, 101);");
    d.FIDDemac = 1;
    interacao.cancelado = true; // all of them take half a minute
    EXPECT_THROW(d.GerarTotalizacoesDemonstracoesConfiguraveis(), base::Abort);
    EXPECT_EQ(Lista{"Processo Cancelado."}, interacao.mensagens);
    const auto maximo = std::find_if(interacao.progresso.begin(), interacao.progresso.end(), [](const auto& evento) {
        return evento.Tipo == host::TEventoProgresso::TTipo::Maximo && evento.Valor > 6;
    });
    ASSERT_NE(interacao.progresso.end(), maximo);
    EXPECT_EQ(Projecoes, maximo->Valor);
}

TEST(ListaDeChaves, AteOLimiteEhUmInEAlemDelePoucasFaixas) {
    const auto lista = [](int quantas, int passo) {
        std::string texto;
        for (int i = 0; i < quantas; ++i)
            texto += (i > 0 ? ", " : "") + std::to_string(7 + i * passo);
        return texto;
    };
    EXPECT_EQ("T.ID IN (7)", pct04618::EstaNaLista("T.ID", "7"));
    EXPECT_EQ("T.ID IN (" + lista(1500, 1) + ")", pct04618::EstaNaLista("T.ID", lista(1500, 1)));
    EXPECT_EQ("(T.ID BETWEEN 7 AND 1507 AND SUBSTRING('" + std::string(1501, '1') +
                  "' FROM IIF(T.ID BETWEEN 7 AND 1507, T.ID - 7 + 1, NULL) FOR 1) = '1')",
              pct04618::EstaNaLista("T.ID", lista(1501, 1)));
    const auto longe = pct04618::EstaNaLista("T.ID", lista(1600, 400)); // 75 keys a range
    EXPECT_EQ(22, std::count(longe.begin(), longe.end(), '\n') + 1);
    try {
        pct04618::EstaNaLista("T.ID", lista(1600, 501));
        FAIL() << "each key stands alone";
    } catch (const base::TFalha& falha) {
        EXPECT_EQ("A seleção tem 1600 registros, mais do que cabe em uma consulta. Escolha um período menor ou "
                  "marque menos registros.",
                  std::string(falha.what()));
    }
    const std::string curta = "T.ID = 1\rOR T.ID = 2";
    EXPECT_EQ(curta, pct04618::EstaEntreMarcados(curta));
}
