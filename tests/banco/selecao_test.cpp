// The selection dialog as a user drives it, on the demo database: which option is legal when, what is refused, and what
// reaches the query module. Companies 1 (heads the holding), 2 and 3.
#include "apoio/Bases.h"
#include "apoio/Hospedeiro.h"
#include "base/Falhas.h"
#include "host/DbManager.h"
#include "selection/DefinicoesLookups.h"
#include "selection/Un04618FormSelecao.h"
#include "suite/program/Login.h"
#include "suite/script/FormDriver.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

using pct04618::TDetalhePercentual;
using pct04618::TDM04618;
using pct04618::TForm04618Selecao;

namespace {

class Selecao : public testing::Test {
  protected:
    Selecao() { Logar(1); }

    void Logar(std::int64_t empresa) {
        form.reset();
        dm.reset();
        instalados.reset();
        conexao = copia.conectar();
        servicos.Conexao = conexao.get();
        servicos.Interacao = &interacao;
        {
            const host::TInstalacaoServicos paraLogin(servicos);
            login = std::make_unique<suite::program::Login>(suite::program::LoginRequest{empresa, {}, {}, {}});
        }
        servicos.EmpresaLogada = login.get();
        servicos.Contabil = login.get();
        servicos.Sistema = login.get();
        instalados = std::make_unique<host::TInstalacaoServicos>(servicos);
        dm = std::make_unique<TDM04618>();
        dm->FIDEmpresa = login->GetIDEmpresa();
        dm->CarregarFiliais();
        form = std::make_unique<TForm04618Selecao>(*dm);
        form->FormShow();
    }

    void Definir(const char* controle, const std::string& valor) {
        suite::script::FormDriver(*form).define(controle, valor);
    }
    void Sair(const char* controle) { suite::script::FormDriver(*form).leave(controle); }
    void OK() { suite::script::FormDriver(*form).click("actOK"); }
    // Dates, view and mode, each left as a user does who tabs through the form.
    void Periodo(const char* inicio, const char* fim, const char* visualizar, const char* modo) {
        Definir("DeDataIni", inicio);
        Sair("DeDataIni");
        Definir("DeDataFim", fim);
        Sair("DeDataFim");
        Definir("CbSelecionar", visualizar);
        Sair("CbSelecionar");
        Definir("CbDetalharSelecao", modo);
        Sair("CbDetalharSelecao");
    }
    bool Habilitado(const char* controle) const { return form->Controle(controle).Enabled(); }
    bool Marcado(const char* controle) const {
        return dynamic_cast<host::TZTCheckBox&>(form->Controle(controle)).Checked();
    }
    host::TZTLookupEx& Lookup(const char* controle) const {
        return dynamic_cast<host::TZTLookupEx&>(form->Controle(controle));
    }
    // The first two records of its search, marked.
    std::string DoisPrimeiros(const char* controle) const {
        const auto pesquisa = Lookup(controle).Pesquisar();
        const auto& chave = Lookup(controle).Definicao().CampoChave;
        const auto primeiro = pesquisa->FieldByName(chave).AsString();
        pesquisa->Next();
        return "{#" + primeiro + ",#" + pesquisa->FieldByName(chave).AsString() + "}";
    }
    std::string Data(const char* controle) const {
        return dynamic_cast<host::TZTDateEdit&>(form->Controle(controle)).Texto();
    }
    static std::size_t Contar(const std::string& texto, const std::string& parte) {
        std::size_t vezes = 0;
        for (std::size_t i = 0; (i = texto.find(parte, i)) != std::string::npos; i += parte.size())
            ++vezes;
        return vezes;
    }

    apoio::Copia copia{apoio::Base::Demo};
    apoio::Interacao interacao;
    host::TServicos servicos;
    std::unique_ptr<suite::firebird::Connection> conexao;
    std::unique_ptr<suite::program::Login> login;
    std::unique_ptr<host::TInstalacaoServicos> instalados;
    std::unique_ptr<TDM04618> dm;
    std::unique_ptr<TForm04618Selecao> form;
};

using Lista = std::vector<std::string>;

} // namespace

TEST_F(Selecao, CadaModoHabilitaOQueTemSentido) {
    // Company 1: detailed by establishment, with cost centres. One row a control, one column a mode, "+" enabled.
    // clang-format off
    const std::pair<const char*, const char*> tabela[] = {
        //                                   11 12 13 23 24 25
        {"LkpRelatorioDemonstConfig",       "- - - + + +"},
        {"LkpTotalizadorDemonstConfig",     "- - - + + +"},
        {"ChkDetalharTotalizadoresContas",  "- - - + + +"},
        {"ChkDetalharTotalizadoresEstab",   "- - - - + -"},
        {"ChkDetalharTotalizadoresCCusto",  "- - - - + +"},
        {"LkpUsuarioAtrib",                 "- - - - + -"},
        {"ChkDetPercRealizadoXOrcado",      "- - - + + -"},
        {"ChkDetPercAnaliseVertical",       "- - - + + -"},
        {"ChkCalcularPercentualTotal",      "- - + - - -"},
        {"ChkLinhaVlrBase",                 "- - + + + -"},
        {"LkpEstabelecimento",              "+ + + + - -"},
        {"ChkAgruparValFiliais",            "+ + + + - -"},
        {"LkpCentroCusto",                  "+ + + - - -"},
        {"LkpContas",                       "+ + + - - -"},
        {"ChkDetalharCCustoOrcamento",      "- - - - - -"},
        {"ChkValLctoContasContabeis",       "- - - - - +"},
        {"ChkImpColorido",                  "- - + + - -"},
        {"ChkPerSemMov",                    "- - + + - -"},
        {"CbCenario",                       "+ + + + + -"},
    };
    // clang-format on
    std::map<std::string, std::string> visto;
    for (const auto& [visualizar, modo] :
         {std::pair{"1", "1"}, {"1", "2"}, {"1", "3"}, {"2", "3"}, {"2", "4"}, {"2", "5"}}) {
        const bool exato = std::string(modo) == "2";
        Periodo("01/01/2024", exato ? "31/01/2024" : "30/06/2024", visualizar, modo);
        for (const auto& [controle, esperado] : tabela)
            visto[controle] += (visto[controle].empty() ? "" : " ") + std::string(Habilitado(controle) ? "+" : "-");
    }
    for (const auto& [controle, esperado] : tabela)
        EXPECT_EQ(esperado, visto[controle]) << controle;
    EXPECT_TRUE(interacao.mensagens.empty());
}

TEST_F(Selecao, PeriodoPropoeOModoEAVisaoTrocaAsListas) {
    auto& combo = dynamic_cast<host::TZTComboBox&>(form->Controle("CbDetalharSelecao"));
    EXPECT_EQ((Lista{"1", "2", "3"}), combo.Valores()) << "before the first showing";
    Definir("DeDataIni", "01/01/2024");
    Definir("DeDataFim", "31/01/2024");
    Sair("CbSelecionar");
    EXPECT_EQ("2", combo.GetValorSelecionado());
    Definir("DeDataFim", "29/02/2024");
    Sair("CbSelecionar");
    EXPECT_EQ("1", combo.GetValorSelecionado());
    Definir("CbSelecionar", "2");
    Sair("CbSelecionar");
    EXPECT_EQ((Lista{"3", "4", "5"}), combo.Valores());
    EXPECT_EQ("3", combo.GetValorSelecionado());
}

TEST_F(Selecao, PercentuaisSeExcluemEExigemSuasLinhas) {
    Periodo("01/01/2024", "30/06/2024", "2", "3");
    EXPECT_TRUE(Marcado("ChkDetPercAnaliseVertical"));
    EXPECT_FALSE(Marcado("ChkDetPercRealizadoXOrcado"));
    EXPECT_EQ(TDetalhePercentual::dpVertical, dm->FDetalharPercentual);
    EXPECT_FALSE(Habilitado("ChkCalcularPercentualDiferenca"));
    EXPECT_TRUE(Marcado("ChkImpColorido"));
    Definir("ChkDetPercAnaliseVertical", "0");
    EXPECT_TRUE(Marcado("ChkDetPercAnaliseVertical")) << "the only one cannot be switched off";

    Definir("ChkLinhaVlrBase", "0");
    Definir("ChkDetPercRealizadoXBase", "1");
    EXPECT_FALSE(Marcado("ChkDetPercAnaliseVertical"));
    EXPECT_TRUE(Marcado("ChkLinhaVlrBase")) << "the percentage needs the line";
    Definir("ChkLinhaVlrBase", "0");
    Definir("ChkLinhaVlrRealizado", "0");
    EXPECT_TRUE(Marcado("ChkLinhaVlrBase"));
    EXPECT_TRUE(Marcado("ChkLinhaVlrRealizado"));
    EXPECT_TRUE(Habilitado("ChkCalcularPercentualDiferenca"));
    Definir("ChkCalcularPercentualDiferenca", "1");
    EXPECT_FALSE(Marcado("ChkCalcularPercentualTotal"));
    Sair("ChkCalcularPercentualDiferenca");
    EXPECT_TRUE(dm->FCalcularPercentualDiferenca);

    Definir("ChkDetPercAnaliseVertical", "1");
    for (const char* linha : {"ChkLinhaVlrBase", "ChkLinhaVlrOrcado", "ChkLinhaVlrRealizado"})
        Definir(linha, "0");
    OK();
    EXPECT_EQ(Lista{"Marque uma das opções de detalhamento de linhas de valores."}, interacao.mensagens);
    EXPECT_EQ("ChkLinhaVlrBase", interacao.foco);
    EXPECT_TRUE(form->Cancelou()) << "the dialog stays";
}

TEST_F(Selecao, DatasSaoConferidasNaSaidaENoOK) {
    Sair("DeDataIni");
    EXPECT_TRUE(interacao.mensagens.empty()) << "a blank start may be left";
    Sair("DeDataFim");
    EXPECT_EQ("Data final inválida. Verifique.", interacao.mensagens.back());
    OK();
    EXPECT_EQ("Data inicial inválida. Verifique.", interacao.mensagens.back());
    Definir("DeDataIni", "02/02/2012");
    Sair("DeDataIni");
    EXPECT_EQ("A data inicial deve ser o primeiro dia do mês. Verifique.", interacao.mensagens.back());
    EXPECT_EQ("02/02/2012", dm->FDataInicio.Texto()) << "stored although it fails";
    Definir("DeDataIni", "01/02/2012");
    Definir("DeDataFim", "28/02/2012");
    OK();
    EXPECT_EQ("A data final deve ser o último dia do mês.", interacao.mensagens.back());
    EXPECT_EQ("29/02/2012", Data("DeDataFim")) << "corrected, also in a leap year";
    Definir("DeDataIni", "01/03/2012");
    OK();
    EXPECT_EQ("A data inicial não pode ser maior que a data final. Verifique.", interacao.mensagens.back());
    EXPECT_EQ("DeDataFim", interacao.foco);
    EXPECT_TRUE(form->Cancelou());
    Definir("DeDataIni", "01/02/2012");
    OK();
    EXPECT_EQ("Não foi encontrada projeção para o período informado.", interacao.mensagens.back());
    EXPECT_FALSE(form->Cancelou()) << "an OK that passed validation closes the dialog";
    EXPECT_FALSE(dm->CdsMostraCtbOrcada.Active());
}

TEST_F(Selecao, EstabelecimentosUmVariosOuTodos) {
    Periodo("01/01/2024", "30/06/2024", "1", "1");
    Definir("LkpEstabelecimento", "2");
    EXPECT_GT(dm->FIDFilial, 0);
    const auto um = dm->FIDFilial;
    Definir("ChkAgruparValFiliais", "1");
    Sair("LkpEstabelecimento");
    EXPECT_FALSE(Habilitado("ChkAgruparValFiliais")) << "one establishment has nothing to group";
    EXPECT_FALSE(Marcado("ChkAgruparValFiliais"));
    Definir("LkpEstabelecimento", "{1,2}");
    EXPECT_EQ("Vários registros selecionados.", Lookup("LkpEstabelecimento").Texto());
    ASSERT_TRUE(dm->FListaIDsFilial);
    EXPECT_EQ(2U, dm->FListaIDsFilial->size());
    EXPECT_EQ(um, dm->FIDFilial) << "several keep the single one as it was";
    Sair("LkpEstabelecimento");
    EXPECT_TRUE(Habilitado("ChkAgruparValFiliais"));
    Definir("LkpEstabelecimento", "{}");
    EXPECT_TRUE(dm->FListaIDsFilial->empty());
    EXPECT_EQ(0, dm->FIDFilial);
    Definir("LkpEstabelecimento", "99");
    EXPECT_EQ(Lista{"Registro não encontrado!"}, interacao.mensagens);
    EXPECT_EQ(-1, Lookup("LkpEstabelecimento").GetID());
    Definir("LkpEstabelecimento", "0");
    EXPECT_EQ("TODOS OS ESTABELECIMENTOS", Lookup("LkpEstabelecimento").Texto());
    Definir("LkpEstabelecimento", "{1,2}");
    Definir("LkpContas", DoisPrimeiros("LkpContas"));
    OK();
    EXPECT_EQ(2U, dm->FListaIDsFilial->size());
    EXPECT_EQ(1U, Contar(dm->FIDsContas, "\rOR CO01_CTBORCADAVLR.IDPLANO = "));
    EXPECT_EQ(0, dm->FIDPlano);
    EXPECT_TRUE(dm->CdsMostraCtbOrcada.Active());
}

TEST_F(Selecao, CondicoesTemUmTermoPorRegistro) {
    Periodo("01/01/2024", "30/06/2024", "1", "1");
    auto& centros = Lookup("LkpCentroCusto");
    EXPECT_EQ("", pct04618::BuscarIDsMultiselecao(centros, "C = ", "IDCENTROCUSTO"));
    Definir("LkpCentroCusto", "101");
    EXPECT_EQ("C = " + std::to_string(centros.GetID()),
              pct04618::BuscarIDsMultiselecao(centros, "C = ", "IDCENTROCUSTO"));
    const auto primeiro = centros.GetID();
    Definir("LkpCentroCusto", "102");
    const auto segundo = centros.GetID();
    Definir("LkpCentroCusto", "{102,101}");
    const auto a = std::to_string(primeiro);
    const auto b = std::to_string(segundo);
    EXPECT_EQ("C = " + a + "\rOR C = " + b, pct04618::BuscarIDsMultiselecao(centros, "C = ", "IDCENTROCUSTO"));
    EXPECT_EQ("C = " + b, pct04618::BuscarIDsMultiselecao(centros, "C = ", "IDCENTROCUSTO", "102", "CODIGO"));
    EXPECT_EQ("", pct04618::BuscarIDsMultiselecao(centros, "C = ", "IDCENTROCUSTO", "103", "CODIGO"));
    Definir("LkpCentroCusto", "{}");
    EXPECT_EQ("", pct04618::BuscarIDsMultiselecao(centros, "C = ", "IDCENTROCUSTO"));
    EXPECT_THROW(Definir("LkpCentroCusto", "{1,x}"), base::TFalha);
}

TEST_F(Selecao, UmaContaTrazAsDeBaixoEASuaClassificacao) {
    Periodo("01/01/2024", "30/06/2024", "1", "1");
    const auto pesquisa = Lookup("LkpContas").Pesquisar();
    ASSERT_FALSE(pesquisa->IsEmpty());
    std::size_t posicao = 1;
    while (pesquisa->IrPara(posicao), pesquisa->FieldByName("CLASSIFCONTAB").AsString() != "3.1")
        ++posicao;
    Definir("LkpContas", "#" + pesquisa->FieldByName("IDPLANO").AsString());
    OK();
    EXPECT_EQ("3.1", dm->FClassificacao);
    EXPECT_GT(dm->FIDPlano, 0);
    auto& linhas = dm->CdsMostraCtbOrcada;
    ASSERT_GT(linhas.RecordCount(), 10U);
    for (; !linhas.Eof(); linhas.Next())
        EXPECT_EQ(0U, linhas.FieldByName("CLASSIFCONTAB").AsString().find("3.1"));
}

TEST_F(Selecao, HoldingSoConsolidaComRegistrosMarcados) {
    ASSERT_TRUE(Habilitado("LkpEmpresa"));
    EXPECT_EQ("1", Lookup("LkpEmpresa").Codigo()) << "the logged company is shown";
    const auto pesquisa = Lookup("LkpEmpresa").Pesquisar();
    EXPECT_EQ(9U, pesquisa->RecordCount());
    EXPECT_EQ("0", pesquisa->FieldByName("TIPO").AsString()) << "its own establishments first";
    Periodo("01/01/2024", "30/06/2024", "1", "1");
    OK();
    EXPECT_FALSE(dm->FEhConsolidadoHolding);
    Definir("LkpEmpresa", "{}");
    OK();
    EXPECT_FALSE(dm->FEhConsolidadoHolding);
    Definir("LkpEmpresa", "{2,3}");
    OK();
    EXPECT_TRUE(dm->FEhConsolidadoHolding);
    EXPECT_EQ(5U, Contar(dm->FIDsEmpresasDaHolding, "CO01_CTBORCADAINF.IDEMPRESA = ")) << "a term for each record";
    EXPECT_EQ(4U, Contar(dm->FIDsFiliaisDaHolding, "\rOR "));
    ASSERT_TRUE(dm->CdsMostraCtbOrcada.Active());
    EXPECT_EQ("0", dm->CdsMostraCtbOrcada.FieldByName("FILIAL").AsString());
    Sair("CbDetalharSelecao");
    EXPECT_FALSE(Habilitado("LkpEstabelecimento")) << "a consolidated selection has no establishments to choose";
    Logar(2);
    EXPECT_FALSE(Habilitado("LkpEmpresa")) << "company 2 heads no holding";
}

TEST_F(Selecao, CriteriosDizemOQueFoiPedidoNoCommit) {
    const auto criterios = [&] {
        Lista lista;
        for (const auto& [nome, valor] : form->Criterios())
            lista.push_back(nome + ": " + valor);
        return lista;
    };
    EXPECT_EQ(Lista{}, criterios());
    Periodo("01/01/2024", "30/06/2024", "1", "1");
    const auto pesquisa = Lookup("LkpContas").Pesquisar();
    const auto conta = pesquisa->FieldByName("CONTA").AsString();
    const auto nome = pesquisa->FieldByName("NOME").AsString();
    Definir("LkpContas", conta);
    Definir("LkpEstabelecimento", "{2,1}");
    Definir("ChkAgruparValFiliais", "1");
    OK();
    const Lista primeiro{"Consulta: Orçado x realizado por conta: 1 - Agrupando períodos intermediários",
                         "Empresa: 1 - " + login->company().Nome,
                         "Período: 01/01/2024 a 30/06/2024",
                         "Cenário: 0 - Condições normais - Previsão normal",
                         "Estabelecimentos: 1 - Cedro Dourado Indústria de Móveis S.A. - Matriz Curitiba; 2 - Cedro "
                         "Dourado Indústria de Móveis S.A. - São José dos Pinhais",
                         "Contas: " + conta + " - " + nome + ", com as contas abaixo dela",
                         "Opções: Agrupar valores dos estabelecimentos"};
    EXPECT_EQ(primeiro, criterios());
    Definir("LkpContas", "0");
    Definir("DeDataFim", "30/09/2024");
    EXPECT_EQ(primeiro, criterios()) << "the dialog has moved on, the result has not";
    Definir("DeDataFim", "29/09/2024");
    OK();
    EXPECT_EQ(primeiro, criterios()) << "refused";

    Periodo("01/01/2024", "31/03/2024", "2", "3");
    Definir("LkpRelatorioDemonstConfig", "1");
    Definir("LkpTotalizadorDemonstConfig", "{1010,1020,1030,1040,1050,1060,1070}");
    Definir("ChkDetalharTotalizadoresContas", "1");
    Sair("ChkDetalharTotalizadoresContas");
    Definir("LkpCentroCusto", "101");
    Definir("ChkDetPercRealizadoXBase", "1");
    Definir("ChkCalcularPercentualDiferenca", "1");
    Definir("ChkLinhaVlrOrcado", "0");
    Definir("ChkPerSemMov", "1");
    Definir("CbCenario", "1");
    OK();
    EXPECT_EQ((Lista{"Consulta: Orçado x realizado - 1 - DEMONSTRAÇÃO DO RESULTADO DO EXERCÍCIO: 3 - Demonstrando "
                     "períodos em colunas",
                     "Empresa: 1 - Cedro Dourado Indústria de Móveis S.A.", "Período: 01/01/2024 a 31/03/2024",
                     "Cenário: 1 - Condições favoráveis - Previsão otimista",
                     "Relatório: 1 - DEMONSTRAÇÃO DO RESULTADO DO EXERCÍCIO", "Centros de custo: 101 - Marcenaria",
                     "Totalizadores: 1010 - RECEITA OPERACIONAL BRUTA; 1020 - Venda de produtos; 1030 - Prestação de "
                     "serviços; 1040 - DEDUÇÕES DA RECEITA; 1050 - Tributos sobre vendas e mais 2",
                     "Linhas: Base, Realizado",
                     "Opções: Agrupar valores dos estabelecimentos; Mostrar períodos sem movimento; Detalhar por "
                     "totalizadores: Contas contábeis; Calcular (%) dos totalizadores: Valor realizado x base; "
                     "Calcular percentual: Pelo valor da diferença"}),
              criterios());
    Definir("ChkDetalharTotalizadoresContas", "0"); // its filters stay until it is left
    Definir("ChkDetPercAnaliseVertical", "1");
    Definir("LkpTotalizadorDemonstConfig", "0");
    OK();
    EXPECT_EQ((Lista{"Consulta: Orçado x realizado - 1 - DEMONSTRAÇÃO DO RESULTADO DO EXERCÍCIO: 3 - Demonstrando "
                     "períodos em colunas",
                     "Empresa: 1 - Cedro Dourado Indústria de Móveis S.A.", "Período: 01/01/2024 a 31/03/2024",
                     "Cenário: 1 - Condições favoráveis - Previsão otimista",
                     "Relatório: 1 - DEMONSTRAÇÃO DO RESULTADO DO EXERCÍCIO", "Linhas: Base, Realizado",
                     "Opções: Agrupar valores dos estabelecimentos; Mostrar períodos sem movimento; Calcular (%) dos "
                     "totalizadores: Análise vertical (totalizadores)"}),
              criterios())
        << "what reaches no line is not said";
}

TEST_F(Selecao, CriteriosDeUmaHoldingNomeiamSuasEmpresas) {
    Periodo("01/01/2024", "30/06/2024", "1", "3");
    Definir("LkpEmpresa", "{3}");
    OK();
    const auto& criterios = form->Criterios();
    ASSERT_EQ(6U, criterios.size());
    EXPECT_EQ("Empresas da holding", criterios[4].Nome);
    EXPECT_EQ("3 - Cedro Dourado Serviços e Logística Ltda. - Matriz Paranaguá; 3 - Cedro Dourado Serviços e Logística "
              "Ltda. - Itajaí",
              criterios[4].Valor);
    EXPECT_EQ("Linhas: Base, Orçado, Realizado", criterios[5].Nome + ": " + criterios[5].Valor);
}

TEST_F(Selecao, CommitEscreveASelecaoInteira) {
    Periodo("01/01/2024", "30/06/2024", "2", "3");
    Definir("LkpRelatorioDemonstConfig", "1");
    Sair("LkpRelatorioDemonstConfig");
    Definir("LkpTotalizadorDemonstConfig", DoisPrimeiros("LkpTotalizadorDemonstConfig"));
    Definir("ChkDetalharTotalizadoresContas", "1");
    Sair("ChkDetalharTotalizadoresContas");
    Definir("LkpCentroCusto", "101");
    Definir("ChkDetPercRealizadoXBase", "1");
    Definir("ChkLinhaVlrOrcado", "0");
    Definir("CbCenario", "1");
    OK();
    EXPECT_EQ(3, dm->FDetalharSelecao);
    EXPECT_FALSE(dm->FImprimirOrcamentariaBal);
    EXPECT_TRUE(dm->FImprimirDetContasTotaliz);
    EXPECT_EQ(Lookup("LkpRelatorioDemonstConfig").GetID(), dm->FIDDemac);
    EXPECT_EQ("DEMONSTRAÇÃO DO RESULTADO DO EXERCÍCIO", dm->FDescricaoRel);
    EXPECT_EQ(1U, Contar(dm->FIDsTotalizadores, "\rOR CO01_DEMACTOT.IDDEMACTOT = "));
    EXPECT_EQ("CO01_CTBORCADAVLR.IDCENTROCUSTO = " + std::to_string(Lookup("LkpCentroCusto").GetID()),
              dm->FIDsCentroCusto);
    EXPECT_EQ(TDetalhePercentual::dpRealizadoXBase, dm->FDetalharPercentual);
    EXPECT_TRUE(dm->FDetalharLinhaVlrBase && !dm->FDetalharLinhaVlrOrcado && dm->FDetalharLinhaVlrRealizado);
    EXPECT_EQ(1, dm->FCenario);
    EXPECT_EQ(2024, dm->FAnoI);
    EXPECT_EQ(6, dm->FInformacoesCtbOrcadaInf.QtdePeriodos);
    EXPECT_TRUE(dm->CdsMostraCtbOrcMensal.Active());
    EXPECT_FALSE(dm->CdsMostraCtbOrcada.Active());

    Periodo("01/01/2024", "30/06/2024", "2", "5");
    EXPECT_EQ(0, Lookup("LkpRelatorioDemonstConfig").GetID()) << "each pass wipes what hangs on the statement";
    Definir("ChkDetalharTotalizadoresCCusto", "1");
    Definir("LkpCentroCusto", "101");
    OK();
    EXPECT_EQ("CO01_CENTROCUSTO.IDCENTROCUSTO = " + std::to_string(Lookup("LkpCentroCusto").GetID()),
              dm->FIDsCentroCusto)
        << "the ledger names the table itself";
    EXPECT_FALSE(dm->CdsMostraCtbOrcMensal.Active()) << "earlier results are closed";
}

TEST_F(Selecao, UsuariosSaoSeparadosPelaAtribuicao) {
    Periodo("01/01/2024", "30/06/2024", "2", "4");
    auto& usuarios = Lookup("LkpUsuarioAtrib");
    const auto pesquisa = usuarios.Pesquisar();
    std::string todos;
    std::size_t gestores = 0;
    for (pesquisa->First(); !pesquisa->Eof(); pesquisa->Next()) {
        todos += (todos.empty() ? "#" : ",#") + pesquisa->FieldByName("IDUSUARIOATRIB").AsString();
        gestores += pesquisa->FieldByName("NOMEATRIB").AsString() == "Gestor" ? 1U : 0U;
    }
    ASSERT_GT(gestores, 0U);
    Definir("LkpUsuarioAtrib", "{" + todos + "}");
    OK();
    EXPECT_EQ(pesquisa->RecordCount(), Contar(dm->FIDsUsuariosAtrib, "CO01_DEMACTOTUSUATRIB.IDUSUARIOATRIB = "));
    EXPECT_EQ(gestores, Contar(dm->FIDsUsuariosAtribGestor, "DEMACTOTUSUATRIB_G.IDUSUARIOATRIB = "));
    EXPECT_NE("", dm->FIDsUsuariosAtribSupervisor);
    pesquisa->First();
    while (pesquisa->FieldByName("NOMEATRIB").AsString() != "Gestor")
        pesquisa->Next();
    Definir("LkpUsuarioAtrib", "#" + pesquisa->FieldByName("IDUSUARIOATRIB").AsString());
    OK();
    EXPECT_EQ(1U, Contar(dm->FIDsUsuariosAtribGestor, "="));
    EXPECT_EQ("", dm->FIDsUsuariosAtribSupervisor);
}

TEST_F(Selecao, BuscaRapidaOlhaAsColunasMostradas) {
    auto& contas = Lookup("LkpContas");
    const auto pesquisa = contas.Pesquisar();
    const auto achadas = contas.Filtrar(*pesquisa, "energia ELETRICA");
    ASSERT_FALSE(achadas.empty());
    for (const auto posicao : achadas) {
        pesquisa->IrPara(posicao);
        EXPECT_NE(std::string::npos, pesquisa->FieldByName("NOME").AsString().find("nergia elétrica"));
    }
    EXPECT_EQ(1U, contas.Filtrar(*pesquisa, "3.1.01.001").size());
    EXPECT_TRUE(contas.Filtrar(*pesquisa, "nada disso").empty());
    EXPECT_EQ(pesquisa->RecordCount(), contas.Filtrar(*pesquisa, " ").size());
    Periodo("01/01/2024", "30/06/2024", "1", "1");
    contas.Marcar(*pesquisa, contas.Filtrar(*pesquisa, "3.1.01.00"));
    EXPECT_EQ("Vários registros selecionados.", contas.Texto());
}

TEST_F(Selecao, TeclasEPesquisaDePeriodos) {
    interacao.aoPesquisar = [&](host::TZTLookupEx& lookup) {
        const auto pesquisa = lookup.Pesquisar();
        lookup.Escolher(*pesquisa, 2);
    };
    form->Teclar(form->Controle("DeDataIni"), host::TTecla::F11);
    EXPECT_EQ("01/", Data("DeDataIni").substr(0, 3));
    EXPECT_FALSE(Data("DeDataFim").starts_with(" "));
    EXPECT_EQ("DeDataIni", interacao.foco);
    Periodo("01/01/2024", "30/06/2024", "2", "3");
    form->Teclar(form->Controle("CbDetalharSelecao"), host::TTecla::Enter);
    EXPECT_EQ("LkpRelatorioDemonstConfig", interacao.foco);
    EXPECT_TRUE(form->Cancelou());
    form->Teclar(form->Controle("CbCenario"), host::TTecla::Baixo);
    EXPECT_FALSE(form->Cancelou()) << "Enter on the last field confirms";
}

TEST_F(Selecao, PreenchidaDeForaConfirmaSemSerMostrada) {
    form->AtribuirDadosSelecao(0, *base::TDataHora::De(2024, 1, 1), *base::TDataHora::De(2024, 3, 31), 0, 1, 2);
    form->ActOKExecute(nullptr);
    EXPECT_FALSE(form->Cancelou());
    EXPECT_EQ(2, dm->FCenario);
    EXPECT_EQ(3, dm->FInformacoesCtbOrcadaInf.QtdePeriodos);
    EXPECT_TRUE(dm->CdsMostraCtbOrcada.Active());
    form->AtribuirDadosSelecao(0, *base::TDataHora::De(2012, 1, 1), *base::TDataHora::De(2025, 1, 31), 1, 3, 0);
    EXPECT_THROW(form->ActOKExecute(nullptr), base::Abort) << "more than twelve years in columns";
    EXPECT_FALSE(form->Cancelou());
    EXPECT_FALSE(dm->CdsMostraCtbOrcada.Active());
}

TEST_F(Selecao, TotalizadoresSoDeContasLiberamOCentroDeCustoDoOrcamento) {
    Periodo("01/01/2024", "30/06/2024", "2", "4");
    const auto liberado = [&](const char* relatorio) {
        Definir("LkpRelatorioDemonstConfig", relatorio);
        Sair("LkpRelatorioDemonstConfig");
        Definir("ChkDetalharTotalizadoresCCusto", "1");
        Sair("ChkDetalharTotalizadoresCCusto");
        return Habilitado("ChkDetalharCCustoOrcamento");
    };
    EXPECT_FALSE(liberado("3")) << "its totalizers link cost centres";
    copia.executar("UPDATE CO01_DEMACTOTREL SET IDCENTROCUSTO = NULL;");
    EXPECT_TRUE(liberado("3"));
    Definir("ChkDetalharCCustoOrcamento", "1");
    EXPECT_TRUE(Habilitado("ChkDetalharSomenteCCustoTitulo"));
    copia.executar("UPDATE CO01_DEMACTOTREL SET IDPLANO = NULL;");
    EXPECT_FALSE(liberado("3")) << "none links an account";
}
