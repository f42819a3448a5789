// The query module and the window on a real engine: which projections answer a selection, and what is told of them.
#include "banco/ConsultaFixture.h"
#include "base/Falhas.h"
#include "consultation/Un04618Form.h"
#include "host/DbManager.h"
#include "suite/firebird/Cursor.h"
#include "suite/firebird/Statement.h"
#include "suite/program/Login.h"

#include <algorithm>
#include <sstream>

using apoio::Dia;
using apoio::Lista;
using base::TDataHora;
using pct04618::TDM04618;

namespace {

class Consulta : public apoio::ModuloDeConsulta {
  protected:
    // The keys that the lookup finds, in ascending order.
    std::string Buscar(std::int32_t modo, const char* inicio, const char* fim) {
        auto& d = Dm();
        d.FDetalharSelecao = modo;
        d.FDataInicio = Dia(inicio);
        d.FDataFim = Dia(fim);
        d.FAnoI = d.FDataInicio.Ano();
        d.FAnoF = d.FDataFim.Ano();
        auto lista = d.BuscarListaInformacoesCtbOrcadaInf().LListaIDs;
        std::replace(lista.begin(), lista.end(), ',', ' ');
        std::istringstream texto(lista);
        std::vector<int> ids{std::istream_iterator<int>(texto), {}};
        std::sort(ids.begin(), ids.end());
        std::string resultado;
        for (int id : ids)
            resultado += (resultado.empty() ? "" : " ") + std::to_string(id);
        return resultado;
    }
    // The lines of the balance query, the named columns of each joined by "|".
    Lista Linhas(const std::vector<const char*>& colunas) {
        auto& d = Dm();
        d.CdsMostraCtbOrcada.Close();
        d.CdsMostraCtbOrcada.CommandText = d.BuscarDadosOrcamentariaComBaseNoBalanco();
        d.CdsMostraCtbOrcada.Open();
        return apoio::LinhasDe(d.CdsMostraCtbOrcada, colunas);
    }
};

const char* const NaoEncontrada = "Não foi encontrada projeção para o período informado.";

} // namespace

TEST_F(Consulta, CadaModoEscolheAsProjecoesQueRespondemSemContarUmMesDuasVezes) {
    Projecao("1 1 - 0 01/01/2024 31/01/2024");
    Projecao("2 1 - 0 01/02/2024 29/02/2024");
    Projecao("3 1 - 0 01/01/2024 31/12/2024");
    Projecao("4 1 - 0 01/01/2024 31/03/2024");
    Projecao("5 1 - 1 01/01/2024 31/01/2024");
    Projecao("6 2 - 0 01/01/2024 31/01/2024");
    Projecao("7 1 - 0 01/01/2025 31/01/2025");
    Projecao("8 1 - 0 01/03/2024 31/03/2025"); // starts and ends in March
    EXPECT_EQ("1", Buscar(1, "01/01/2024", "31/01/2024"));
    EXPECT_EQ("1", Buscar(2, "01/01/2024", "31/01/2024"));
    EXPECT_EQ("1 2 4 8", Buscar(1, "01/01/2024", "31/12/2024")) << "not the year itself; ends are not bounded";
    EXPECT_EQ("1 2 4 8", Buscar(2, "01/01/2024", "31/12/2024"));
    EXPECT_EQ("1 2 3 8", Buscar(1, "01/01/2024", "31/03/2024"));
    EXPECT_EQ("1 2 8", Buscar(3, "01/01/2024", "31/12/2024")) << "within a year: start and end in one month";
    EXPECT_EQ("1 2 3 4 7", Buscar(3, "01/01/2024", "31/01/2025")) << "over years: not March to March";
    EXPECT_EQ("1 2 3 4 7", Buscar(5, "01/01/2024", "31/01/2025"));
    EXPECT_EQ("1 2 3 8", Buscar(0, "01/01/2024", "31/03/2024")) << "a mode that is none";
    Dm().FCenario = 1;
    EXPECT_EQ("5", Buscar(1, "01/01/2024", "31/01/2024"));
    EXPECT_TRUE(interacao.mensagens.empty());
}

TEST_F(Consulta, SoOAnoInteiroNaoRespondeAoAnoInteiro) {
    Projecao("3 1 - 0 01/01/2024 31/12/2024 1 1");
    EXPECT_EQ("3", Buscar(1, "01/01/2024", "31/01/2024").empty() ? "3" : "");
    EXPECT_EQ("", Buscar(1, "01/01/2024", "31/12/2024"));
    EXPECT_EQ((Lista{NaoEncontrada, NaoEncontrada}), interacao.mensagens);
    EXPECT_EQ("3", Buscar(1, "01/01/2024", "30/06/2024"));
    const auto guardada = Dm().FInformacoesCtbOrcadaInf;
    EXPECT_EQ("3", guardada.LListaIDs);
    EXPECT_EQ(1, guardada.QtdePeriodos);
    EXPECT_EQ(1, guardada.TpCCusto);
    EXPECT_EQ("01/01/2020", guardada.DataIBalancoRef.Texto()) << "a single header carries its reference balance";
    Buscar(1, "01/01/2030", "31/12/2030");
    EXPECT_EQ("3", Dm().FInformacoesCtbOrcadaInf.LListaIDs) << "nothing found leaves the stored copy";
    interacao.mensagens.clear();
    EXPECT_EQ("", Buscar(5, "01/01/2030", "31/12/2030"));
    EXPECT_TRUE(interacao.mensagens.empty()) << "mode 5 goes on without projections";
    EXPECT_EQ("", Dm().FInformacoesCtbOrcadaInf.LListaIDs);
    Projecao("4 1 - 0 01/02/2024 29/02/2024 1 NULL");
    EXPECT_EQ("3 4", Buscar(1, "01/01/2024", "30/06/2024"));
    EXPECT_TRUE(Dm().FInformacoesCtbOrcadaInf.DataIBalancoRef.Vazia()) << "two headers carry none";
    EXPECT_EQ(2, Dm().FInformacoesCtbOrcadaInf.QtdePeriodos);
}

TEST_F(Consulta, MaisDeDozeAnosEmColunasEhRecusado) {
    Projecao("1 1 - 0 01/01/2012 31/12/2012");
    EXPECT_EQ("1", Buscar(3, "01/01/2012", "31/12/2024")) << "twelve completed years";
    EXPECT_THROW(Buscar(3, "01/01/2012", "31/01/2025"), base::Abort);
    EXPECT_THROW(Buscar(4, "01/01/2012", "31/01/2025"), base::Abort);
    EXPECT_EQ("1", Buscar(5, "01/01/2012", "31/01/2025"));
    ASSERT_EQ(2U, interacao.mensagens.size());
    EXPECT_EQ("Para a opção 3 - Detalhando períodos em colunas ou 4 - Demonstrando de forma matricial com períodos em "
              "colunas, somente é permitida a visualização do detalhamento em 12 períodos. Por favor verifique os "
              "períodos informados.",
              interacao.mensagens[0]);
}

TEST_F(Consulta, HoldingUneAsEmpresasInteirasEOsEstabelecimentos) {
    Projecao("1 1 - 0 01/01/2024 31/01/2024");
    Projecao("2 2 0 0 01/01/2024 31/01/2024");
    Projecao("3 2 21 0 01/01/2024 31/01/2024");
    Projecao("4 1 12 0 01/01/2024 31/01/2024");
    auto& d = Dm();
    d.FEhConsolidadoHolding = true;
    d.FIDsEmpresasDaHolding = "CO01_CTBORCADAINF.IDEMPRESA = 1\rOR CO01_CTBORCADAINF.IDEMPRESA = 2";
    d.FIDsFiliaisDaHolding = "CO01_CTBORCADAINF.IDFILIAL = 21";
    EXPECT_EQ("1 2 3", Buscar(1, "01/01/2024", "31/01/2024"));
}

TEST_F(Consulta, DetalhePorEstabelecimentoTemRegrasDePeriodoProprias) {
    Projecao("1 1 - 0 01/01/2024 31/01/2024 1");
    Projecao("2 1 - 0 01/01/2024 31/12/2024 2");
    Projecao("3 1 - 1 01/01/2024 31/01/2024 2");
    const auto detalhado = [&](std::int32_t modo, const char* inicio, const char* fim, int cenario = 0) {
        auto& d = Dm();
        d.FDetalharSelecao = modo;
        d.FDataInicio = Dia(inicio);
        d.FDataFim = Dia(fim);
        d.FCenario = cenario;
        return d.CalculoDaProjecaoHeDetalhadoPorFilial();
    };
    EXPECT_FALSE(detalhado(2, "01/01/2024", "31/01/2024"));
    EXPECT_TRUE(detalhado(2, "01/01/2024", "31/12/2024")) << "exactly this period";
    EXPECT_FALSE(detalhado(3, "01/01/2024", "31/12/2024")) << "within a year: the monthly one";
    EXPECT_TRUE(detalhado(3, "01/01/2024", "31/01/2025")) << "over years: the long one";
    EXPECT_FALSE(detalhado(1, "01/01/2024", "31/12/2024")) << "not the year itself, but its month";
    EXPECT_TRUE(detalhado(1, "01/01/2024", "31/01/2024", 1));
    EXPECT_FALSE(detalhado(1, "01/01/2030", "31/01/2030")) << "nothing found reads as global";
    Dm().CarregarFiliais();
    EXPECT_EQ(2U, Dm().CdsFiliais.RecordCount());
}

TEST_F(Consulta, VariacaoConheceReceitaEDespesa) {
    Projecao("1 1 - 0 01/01/2024 31/01/2024");
    Projecao("2 1 - 0 01/02/2024 29/02/2024");
    const auto linha = [&](int plano, const char* orcado, const char* realizado) {
        Valor("IDCTBORCADAINF, IDPLANO, VLRBASE, VLRORCADO, VLRREALIZADO",
              "1, " + std::to_string(plano) + ", 1, " + orcado + ", " + realizado);
    };
    linha(101, "-200", "-250");
    linha(102, "100", "80");
    linha(103, "100", "NULL");
    Valor("IDCTBORCADAINF, IDPLANO, VLRORCADO", "2, 102, 60");                 // the months of a line add up
    Valor("IDCTBORCADAINF, IDPLANO, VLRBASE", "1, 100, 0");                    // three zeros: no line
    Valor("IDCTBORCADAINF, IDPLANO, IDDEMACTOT, VLRORCADO", "1, 101, 9, 999"); // of a totalizer: never
    Buscar(1, "01/01/2024", "30/06/2024");
    EXPECT_EQ((Lista{"3.1|Vendas|Receita|-200.000000|-250.000000|50.000000|125.000000|25.000000",
                     "3.2|Energia|Despesa|160.000000|80.000000|80.000000|50.000000|50.000000",
                     "3.3d'a|Água|Despesa|100.000000|0.000000|100.000000|0.000000|100.000000"}),
              Linhas({"CLASSIFCONTAB", "NOMECONTA", "RECDESP", "VLRORCADO", "VLRREALIZADO", "DELTAVLR", "DELTAPERC",
                      "DELTAVARIACAO"}));
    copia.executar("UPDATE CO01_CTBORCADAVLR SET VLRREALIZADO = 0 WHERE IDPLANO = 101;"
                   "UPDATE CO01_CTBORCADAVLR SET VLRORCADO = 0, VLRREALIZADO = 10 WHERE IDPLANO = 102;"
                   "UPDATE CO01_CTBORCADAVLR SET VLRORCADO = NULL, VLRBASE = 5 WHERE IDPLANO = 103;");
    EXPECT_EQ((Lista{"Vendas|0.000000|0.000000", "Energia|0.000000|100.000000", "Água|0.000000|0.000000"}),
              Linhas({"NOMECONTA", "DELTAPERC", "DELTAVARIACAO"}));
    copia.executar("UPDATE CO01_CTBORCADAVLR SET VLRORCADO = 0, VLRREALIZADO = -10 WHERE IDPLANO = 101;");
    EXPECT_EQ("Vendas|0.000000|100.000000", Linhas({"NOMECONTA", "DELTAPERC", "DELTAVARIACAO"})[0]);
}

TEST_F(Consulta, LinhasSeparamSubcontaCentroEEstabelecimentoEObedecemAosFiltros) {
    Projecao("1 1 - 0 01/01/2024 31/01/2024");
    const char* const colunas = "IDCTBORCADAINF, IDPLANO, IDPLANOSUB, IDCENTROCUSTO, IDFILIAL, VLRORCADO";
    Valor(colunas, "1, 102, 8, NULL, 11, 1");
    Valor(colunas, "1, 102, 7, 5, 11, 2");
    Valor(colunas, "1, 102, 7, 5, 12, 4");
    Valor(colunas, "1, 101, NULL, NULL, 12, 8");
    Valor(colunas, "1, 100, NULL, NULL, NULL, 16");
    Valor(colunas, "1, 103, NULL, NULL, 11, 32");
    Buscar(1, "01/01/2024", "31/01/2024");
    const std::vector<const char*> campos{"NOMECONTA", "CODIGO", "DESCCCUSTO", "CCUSTO", "FILIAL", "VLRORCADO"};
    const Lista todas{"Resultado||||0|16.000000",
                      "Vendas||||2|8.000000",
                      "Energia [Fábrica]|1|Produção|50|1|2.000000",
                      "Energia [Fábrica]|1|Produção|50|2|4.000000",
                      "Energia [Loja]|2|||1|1.000000",
                      "Água||||1|32.000000"};
    EXPECT_EQ(todas, Linhas(campos));
    auto& d = Dm();
    d.FAgruparValFiliais = true;
    EXPECT_EQ("Energia [Fábrica]|1|Produção|50|0|6.000000", Linhas(campos)[2]);
    d.FAgruparValFiliais = false;
    d.FEhConsolidadoHolding = true;
    EXPECT_EQ("Energia [Fábrica]|1|Produção|50|0|6.000000", Linhas(campos)[2]);
    d.FEhConsolidadoHolding = false;

    d.FIDFilial = 12;
    EXPECT_EQ((Lista{todas[1], todas[3]}), Linhas(campos));
    d.FListaIDsFilial = pct04618::TStringList{"11", "12"};
    EXPECT_EQ(5U, Linhas(campos).size()) << "several win over the single one";
    d.FListaIDsFilial->clear();
    EXPECT_EQ(2U, Linhas(campos).size()) << "an empty list is none";
    d.FIDFilial = 0;

    d.FIDsCentroCusto = "CO01_CTBORCADAVLR.IDCENTROCUSTO = 5\rOR CO01_CTBORCADAVLR.IDCENTROCUSTO = 6";
    EXPECT_EQ((Lista{todas[2], todas[3]}), Linhas(campos));
    d.FIDsCentroCusto.clear();

    d.FIDsContas = "CO01_CTBORCADAVLR.IDPLANO = 101\rOR CO01_CTBORCADAVLR.IDPLANO = 103";
    EXPECT_EQ((Lista{todas[1], todas[5]}), Linhas(campos));
    d.FIDPlano = 100;
    d.FClassificacao = "3";
    EXPECT_EQ(todas, Linhas(campos)) << "one account brings all below it, and the list has no effect";
    d.FIDPlano = 103;
    d.FClassificacao = "3.3d'a";
    EXPECT_EQ((Lista{todas[5]}), Linhas(campos)) << "an apostrophe is quoted";
}

TEST_F(Consulta, PeriodoExatoSeparaPelasColunasDaProjecao) {
    Projecao("1 1 - 0 01/01/2024 31/01/2024");
    const char* const colunas =
        "IDCTBORCADAINF, IDPLANO, TPBASEPROJ, TPPROJECAO, TPATUALIZBASE, INDICEATBASE, PERCORCADO, VLRORCADO";
    Valor(colunas, "1, 101, 0, 1, 0, 0.045, 1.5, 10");
    Valor(colunas, "1, 101, 3, 2, 1, NULL, NULL, 20");
    Valor(colunas, "1, 101, 1, 3, NULL, 0, 0, 40");
    Valor(colunas, "1, 101, 2, NULL, NULL, 0, 0, 80");
    Buscar(2, "01/01/2024", "31/01/2024");
    const std::vector<const char*> campos{"TPBASEPROJ",   "TPPROJECAO", "TPATUALIZBASE",
                                          "INDICEATBASE", "PERCORCADO", "VLRORCADO"};
    auto linhas = Linhas(campos);
    std::sort(linhas.begin(), linhas.end());
    EXPECT_EQ((Lista{"1-Rec|Calc.|1-Capit|0.045000|1.50|10.000000", "2-Desp|Total||0.000000|0.00|40.000000",
                     "3-Rec/Desp|||0.000000|0.00|80.000000", "4-Det Cta|Inf.|2-Orig|0.000000|0.00|20.000000"}),
              linhas);
    Dm().FAgruparValFiliais = true;
    linhas = Linhas(campos);
    ASSERT_EQ(4U, linhas.size()) << "still grouped by columns that now read 0";
    EXPECT_EQ("0|0|0|0|0", linhas[0].substr(0, 9));
    Dm().FDetalharSelecao = 1;
    EXPECT_EQ((Lista{"0|0|0|0|0|150.000000"}), Linhas(campos));
}

TEST_F(Consulta, EventosDaoFormatosEChaves) {
    Projecao("1 1 - 0 01/01/2024 31/01/2024");
    Valor("IDCTBORCADAINF, IDPLANO, VLRORCADO", "1, 101, 10");
    Buscar(1, "01/01/2024", "31/01/2024");
    auto& d = Dm();
    for (int vez = 0; vez < 2; ++vez) {
        ASSERT_EQ(1U, Linhas({"FILIAL"}).size());
        std::string formatos;
        for (const char* campo : {"INDICEATBASE", "VLRBASE", "PERCORCADO", "VLRORCADO", "VLRREALIZADO", "DELTAVLR",
                                  "DELTAPERC", "DELTAVARIACAO", "FILIAL"})
            formatos += d.CdsMostraCtbOrcada.FieldByName(campo).FormatoExibicao + "|";
        EXPECT_EQ(",0.000000|,0.00|,0.0000|,0.00|,0.00|,0.00|,0.0000|,0.00||", formatos);
    }
    d.CdsMostraCtbOrcMensal.CommandText = "SELECT 1 AS VAL1 FROM RDB$DATABASE";
    EXPECT_THROW(d.CdsMostraCtbOrcMensal.Open(), base::TFalha) << "25 of the 26 formatted fields are missing";
    EXPECT_FALSE(d.CdsMostraCtbOrcMensal.Active());

    d.CdsCtbOrcadaVlr.Open();
    EXPECT_TRUE(d.CdsCtbOrcadaVlr.IsEmpty()) << "the design text yields columns and no rows";
    d.CdsCtbOrcadaVlr.Close();
    d.CdsCtbOrcadaVlr.CommandText =
        "SELECT CO01_CTBORCADAVLR.* FROM CO01_CTBORCADAVLR INNER JOIN CO01_PLANO ON CO01_CTBORCADAVLR.IDPLANO = "
        "CO01_PLANO.IDPLANO WHERE CO01_CTBORCADAVLR.IDCTBORCADAINF = 1";
    d.CdsCtbOrcadaVlr.Open();
    d.CdsCtbOrcadaVlr.Insert();
    const auto chave = d.CdsCtbOrcadaVlr.GetInt64FieldValue("IDCTBORCADAVLR");
    EXPECT_EQ(chave + 1, host::ZTConnection().BuscarProximoID("CO01_CTBORCADAVLR"));
    d.CdsCtbOrcadaVlr.FieldByName("IDCTBORCADAINF").Atribuir(base::Inteiro(1));
    d.CdsCtbOrcadaVlr.FieldByName("IDPLANO").Atribuir(base::Inteiro(102));
    d.CdsCtbOrcadaVlr.FieldByName("VLRREALIZADO").Atribuir(base::TDecimal{-3012, 2});
    d.CdsCtbOrcadaVlr.Post();
    const std::vector<base::TValor> linha{base::Nulo, base::Inteiro(101)};
    ASSERT_TRUE(d.CdsCtbOrcadaVlr.FindKey(linha));
    d.CdsCtbOrcadaVlr.Edit();
    d.CdsCtbOrcadaVlr.FieldByName("VLRREALIZADO").Atribuir(base::Inteiro(7));
    d.CdsCtbOrcadaVlr.Post();
    host::TZTClientDataSet* const alterados[] = {&d.CdsCtbOrcadaVlr};
    EXPECT_EQ(Lista{}, host::ZTConnection().AplicarAlteracoesNoBD(alterados, true));
    EXPECT_EQ((Lista{"Vendas|10.000000|7.000000", "Energia|0.000000|-30.120000"}),
              Linhas({"NOMECONTA", "VLRORCADO", "VLRREALIZADO"}));
}

TEST_F(Consulta, CancelarNoProgressoContaFechaEInterrompe) {
    auto& d = Dm();
    host::TZTBarraProgressoDlg progresso(2);
    progresso.MostrarBarraProgresso();
    d.IncrementarBarraProgresso(1, progresso);
    interacao.cancelado = true;
    EXPECT_THROW(d.IncrementarBarraProgresso(1, progresso), base::Abort);
    EXPECT_EQ(Lista{"Processo Cancelado."}, interacao.mensagens);
    EXPECT_EQ(host::TEventoProgresso::TTipo::Fechar, interacao.progresso.back().Tipo);
}

TEST_F(Consulta, JanelaComecaComOQueAEmpresaLogadaDiz) {
    Dm();
    dm.reset();
    suite::program::Login logada({20, {}, {}, {}});
    servicos.EmpresaLogada = &logada;
    servicos.Contabil = &logada;
    const host::TInstalacaoServicos comLogin(servicos);
    pct04618::TForm04618 janela;
    janela.InitializeForm();
    const auto& d = janela.GetDm04618();
    EXPECT_EQ(2, d.FIDEmpresa);
    EXPECT_EQ(1, d.FIDEmpresaPlano) << "company 2 has no chart of its own";
    EXPECT_EQ(1, d.FIDEmpresaHolding);
    EXPECT_EQ(1U, d.CdsFiliais.RecordCount());
    EXPECT_FALSE(janela.DataSet("CdsMostraCtbOrcada").Active());
    EXPECT_TRUE(logada.BuscarDadosEmpresa(1).EncabecaHolding);
    EXPECT_FALSE(logada.BuscarDadosEmpresa(2).EncabecaHolding);
    EXPECT_EQ(1, logada.BuscarIDHolding(1));
    EXPECT_EQ(1, logada.BuscarIDEmpresaCCusto(2));
    EXPECT_TRUE(logada.BuscarEmpresaUtilizaCtbPorCentroCusto(2));
    copia.executar("DELETE FROM CO01_CENTROCUSTO;");
    EXPECT_FALSE(logada.BuscarEmpresaUtilizaCtbPorCentroCusto(2));
    EXPECT_THROW(suite::program::Login({10, 9, {}, {}}), base::TFalha) << "no establishment 9";
}

TEST(Instrucoes, CadaFormaPreparaEDevolveAsColunasCombinadas) {
    const apoio::Copia copia(apoio::Base::Demo);
    const auto conexao = copia.conectar();
    host::TServicos servicos;
    servicos.Conexao = conexao.get();
    const host::TInstalacaoServicos instalados(servicos);
    TDM04618 d;
    d.FInformacoesCtbOrcadaInf.LListaIDs = " 1, 2 ";
    const Lista esperadas{"FILIAL",       "CTATITULO",     "RECDESP",      "CLASSIF",      "IDPLANO", "CLASSIFCONTAB",
                          "CONTA",        "NOMECONTA",     "CODIGO",       "DESCCCUSTO",   "CCUSTO",  "TPBASEPROJ",
                          "TPPROJECAO",   "TPATUALIZBASE", "INDICEATBASE", "PERCORCADO",   "VLRBASE", "VLRORCADO",
                          "VLRREALIZADO", "DELTAVLR",      "DELTAPERC",    "DELTAVARIACAO"};
    for (unsigned forma = 0; forma < 64; ++forma) {
        d.FDetalharSelecao = (forma & 1U) != 0 ? 2 : 1;
        d.FAgruparValFiliais = (forma & 2U) != 0;
        d.FEhConsolidadoHolding = (forma & 4U) != 0;
        d.FIDFilial = (forma & 8U) != 0 ? 1 : 0;
        d.FIDsCentroCusto = (forma & 16U) != 0 ? "CO01_CTBORCADAVLR.IDCENTROCUSTO = 1" : "";
        d.FIDsContas = (forma & 32U) != 0 ? "CO01_CTBORCADAVLR.IDPLANO = 1" : "";
        const auto cursor = conexao->AbrirCursor({"balanço", d.BuscarDadosOrcamentariaComBaseNoBalanco()});
        Lista colunas;
        for (const auto& coluna : cursor->Colunas()) {
            colunas.push_back(coluna.Nome);
            EXPECT_TRUE(colunas.size() <= 16 || coluna.Escala == 6) << coluna.Nome;
        }
        ASSERT_EQ(esperadas, colunas) << forma;
    }
    // The base rows of a projection are found by the index made for them.
    suite::firebird::Transaction leitura(conexao->attachment(), suite::firebird::TransactionMode::ReadOnly);
    const suite::firebird::Statement balanco(leitura, d.BuscarDadosOrcamentariaComBaseNoBalanco(), "plano");
    EXPECT_NE(std::string::npos, balanco.plan().find("IX_ORCVLR_LINHA")) << balanco.plan();
    EXPECT_EQ(std::string::npos, balanco.plan().find("CO01_CTBORCADAVLR NATURAL")) << balanco.plan();
}
