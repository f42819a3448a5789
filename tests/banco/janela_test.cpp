// The consultation window as a user meets it: what is in view after each way through the selection dialog.
#include "banco/ConsultaFixture.h"
#include "base/Falhas.h"
#include "consultation/Un04618Form.h"
#include "suite/program/LayoutStore.h"
#include "suite/program/Login.h"
#include "suite/script/FormDriver.h"

#include <filesystem>
#include <numeric>
#include <unistd.h>

using apoio::Dia;
using apoio::Lista;
using suite::script::FormDriver;

namespace {

const std::string Convite = "Clique no botão \"Selecionar\" para escolher as formas de busca das informações.";
const std::string Janeiro = "Visualizando projeção orçamentária de 01/01/2024 a 31/01/2024";
const std::string NadaAImprimir = "Não existem dados selecionados para impressão.";
const std::string NadaEmVista = "- -";
const std::string Balanco = "DbgCtbOrcada PnlLegenda";
const std::string PeriodosEmVista = "DbgMostraCtbOrcMensal PnlLegendaGradeOrcMensal";

// January has rows, February a projection without any, March nothing, April both again.
class Janela : public apoio::ModuloDeConsulta {
  protected:
    Janela() {
        Projecao("1 1 - 0 01/01/2024 31/01/2024");
        Projecao("2 1 - 0 01/02/2024 29/02/2024");
        Projecao("4 1 - 0 01/04/2024 30/04/2024");
        const char* const colunas = "IDCTBORCADAINF, IDPLANO, IDFILIAL, VLRBASE, VLRORCADO, VLRREALIZADO";
        Valor(colunas, "1, 100, 11, -1, -60, -45");
        Valor(colunas, "1, 101, 11, -1, -100, -90");
        Valor(colunas, "1, 102, 11, 1, 40, 45");
        Valor(colunas, "4, 102, 11, 1, 7, 7");
    }

    void Abrir() {
        janela.reset();
        instalados.reset();
        conexao = copia.conectar();
        servicos.Conexao = conexao.get();
        servicos.Interacao = &interacao;
        {
            const host::TInstalacaoServicos paraLogin(servicos);
            login = std::make_unique<suite::program::Login>(suite::program::LoginRequest{10, {}, {}, {}});
        }
        servicos.EmpresaLogada = login.get();
        servicos.Contabil = login.get();
        servicos.Sistema = login.get();
        instalados = std::make_unique<host::TInstalacaoServicos>(servicos);
        janela = std::make_unique<pct04618::TForm04618>();
        janela->InitializeForm();
    }
    // Opens the dialog; what the steps leave open is left by "Sair".
    void Selecionar(const std::function<void(FormDriver&)>& passos) {
        if (!janela)
            Abrir();
        interacao.mensagens.clear();
        interacao.aoMostrar = [&](host::TFormZTTandorPadraoResult& dialogo) {
            FormDriver usuario(dialogo);
            passos(usuario);
            if (dialogo.Aberto())
                usuario.click("actSair");
        };
        janela->Executar(janela->Acao("ActSelecionar"));
    }
    static void Preencher(FormDriver& usuario, const char* inicio, const char* fim, const char* modo) {
        const bool balanco = modo[0] <= '3';
        for (const auto& [controle, valor] : {std::pair<const char*, const char*>{"DeDataIni", inicio},
                                              {"DeDataFim", fim},
                                              {"CbSelecionar", balanco ? "1" : "2"},
                                              {"CbDetalharSelecao", modo}}) {
            usuario.define(controle, valor);
            usuario.leave(controle);
        }
    }
    void Consultar(const char* inicio, const char* fim, const char* modo, const std::string& linhas = "") {
        Selecionar([&](FormDriver& usuario) {
            Preencher(usuario, inicio, fim, modo);
            if (!linhas.empty()) {
                usuario.define("ChkLinhaVlrBase", linhas.find('B') == std::string::npos ? "0" : "1");
                usuario.define("ChkLinhaVlrOrcado", linhas.find('O') == std::string::npos ? "0" : "1");
                usuario.define("ChkLinhaVlrRealizado", linhas.find('R') == std::string::npos ? "0" : "1");
            }
            usuario.click("actOK");
        });
    }

    bool Visivel(const char* controle) const { return janela->Controle(controle).Visible(); }
    // Grid and legend in view, by what their controls say.
    std::string EmVista() const {
        const auto visiveis = [this](std::initializer_list<const char*> nomes) {
            std::string texto;
            for (const char* nome : nomes)
                texto += Visivel(nome) ? nome : "";
            return texto.empty() ? "-" : texto;
        };
        const auto grade = visiveis({"DbgCtbOrcada", "DbgMostraCtbOrcMensal"});
        EXPECT_EQ(grade, janela->GradeEmVista() ? janela->GradeEmVista()->Nome() : "-");
        return grade + " " + visiveis({"PnlLegenda", "PnlLegendaGradeOrcMensal"});
    }
    std::string Titulo() const { return janela->Controle("PnlTitulo").Caption(); }
    host::TDataSet& Dados(const char* nome) const { return janela->DataSet(nome); }
    host::TGrade& Grade(const char* nome) const { return dynamic_cast<host::TGrade&>(janela->Controle(nome)); }
    host::TAparencia Aparencia(std::size_t posicao, const char* campo) const {
        const auto& grade = *janela->GradeEmVista();
        return grade.Aparencia(grade.Celula(posicao, grade.Coluna(campo)));
    }

    std::unique_ptr<suite::program::Login> login;
    std::unique_ptr<pct04618::TForm04618> janela;
};

} // namespace

TEST_F(Janela, ComecaComOConviteENadaEmVista) {
    Abrir();
    EXPECT_EQ(NadaEmVista, EmVista());
    EXPECT_EQ(Convite, Titulo());
    EXPECT_EQ("&Atualizar Realizado", janela->Controle("ActAtualizarRealizado").Caption());
    EXPECT_EQ("Despesa realizada > projetada", janela->Controle("LblDespRealizMaiorProj").Caption());
    Selecionar([this](FormDriver&) { EXPECT_TRUE(Visivel("DbgCtbOrcada")) << "empty, behind the dialog"; });
    EXPECT_EQ(NadaEmVista, EmVista());
    EXPECT_EQ(Convite, Titulo());
    std::string dialogo;
    interacao.aoMostrar = [&](host::TFormZTTandorPadraoResult& form) {
        dialogo = form.Nome();
        form.Executar(form.Acao("actSair"));
    };
    janela->Executar(janela->Acao("ActAtualizarRealizado"));
    EXPECT_EQ("TForm04618AtualizarRealizado", dialogo);
    EXPECT_EQ(Lista{}, interacao.mensagens);
    EXPECT_EQ(NadaEmVista, EmVista()) << "it hands over only after an update";
}

TEST_F(Janela, BalancoFicaEmVistaEnquantoODialogoSoEhAbertoEDeixado) {
    for (const char* modo : {"1", "2"}) {
        Consultar("01/01/2024", "31/01/2024", modo);
        EXPECT_EQ(Balanco, EmVista()) << modo;
        EXPECT_EQ(Janeiro, Titulo());
        EXPECT_EQ(3U, janela->GradeEmVista()->DataSet()->RecordCount());
    }
    Selecionar([](FormDriver&) {});
    EXPECT_EQ(Balanco, EmVista());
    EXPECT_EQ(Janeiro, Titulo());
    EXPECT_EQ((Lista{"Resultado", "Vendas", "Energia"}), apoio::LinhasDe(Dados("CdsMostraCtbOrcada"), {"NOMECONTA"}));
    EXPECT_TRUE(Aparencia(0, "VLRORCADO").Negrito) << "a title";
    EXPECT_FALSE(Aparencia(1, "VLRORCADO").Negrito);
    EXPECT_EQ(pct04618::cores::Vermelho, Aparencia(1, "VLRORCADO").Fonte);
    EXPECT_EQ(pct04618::cores::Roxo, Aparencia(2, "NOMECONTA").Fonte);
    EXPECT_FALSE(Aparencia(1, "CONTA").Vazio);
    const auto& grade = Grade("DbgCtbOrcada");
    EXPECT_EQ("-10,0000", grade.Celula(1, grade.Coluna("DELTAVARIACAO")).Texto())
        << "the grid's format, not the field's";
}

TEST_F(Janela, ModoDeixadoNoDialogoDecideSemSelecao) {
    Consultar("01/01/2024", "31/01/2024", "1");
    Selecionar([](FormDriver& usuario) {
        usuario.define("CbDetalharSelecao", "3");
        usuario.leave("CbDetalharSelecao");
    });
    EXPECT_EQ(NadaEmVista, EmVista());
    EXPECT_EQ(Convite, Titulo());
    EXPECT_TRUE(Dados("CdsMostraCtbOrcada").Active()) << "out of view, but still there";
}

TEST_F(Janela, SemProjecaoOuSemLinhasOBalancoFicaVazio) {
    Consultar("01/01/2024", "31/01/2024", "1");
    Consultar("01/02/2024", "29/02/2024", "1");
    EXPECT_EQ(Balanco, EmVista());
    EXPECT_TRUE(Dados("CdsMostraCtbOrcada").Active() && Dados("CdsMostraCtbOrcada").IsEmpty());
    EXPECT_EQ(Janeiro, Titulo()) << "without rows the title stays as it was";
    Consultar("01/03/2024", "31/03/2024", "1");
    EXPECT_EQ(Balanco, EmVista());
    EXPECT_FALSE(Dados("CdsMostraCtbOrcada").Active());
    EXPECT_EQ(Convite, Titulo());
    EXPECT_FALSE(interacao.mensagens.empty());
}

TEST_F(Janela, DialogoDeixadoDepoisDeUmaBuscaSemProjecaoFechaOResultadoEmVista) {
    for (const auto& [modo, emVista] : {std::pair<const char*, std::string>{"1", Balanco}, {"3", PeriodosEmVista}}) {
        Consultar("01/01/2024", "31/01/2024", modo, modo[0] == '3' ? "BOR" : "");
        ASSERT_TRUE(janela->GradeEmVista()->DataSet()->Active());
        Selecionar([modo = modo](FormDriver& usuario) { Preencher(usuario, "01/03/2024", "31/03/2024", modo); });
        EXPECT_EQ(emVista, EmVista());
        EXPECT_FALSE(janela->GradeEmVista()->DataSet()->Active());
        EXPECT_EQ(Convite, Titulo());
    }
}

TEST_F(Janela, PeriodosDaoNomeAsColunasEAsDemaisSomem) {
    Consultar("01/01/2024", "30/04/2024", "3", "BOR");
    EXPECT_EQ(PeriodosEmVista, EmVista());
    EXPECT_EQ("Visualizando projeção orçamentária de 01/01/2024 a 30/04/2024", Titulo());
    const auto& grade = Grade("DbgMostraCtbOrcMensal");
    const auto periodos = [&] {
        std::string texto;
        for (const auto& coluna : grade.Colunas())
            if (coluna.Visivel && (coluna.Campo.starts_with("VAL") || coluna.Campo.starts_with("PERC")))
                texto += coluna.Campo + "=" + coluna.Titulo + " ";
        return texto;
    };
    EXPECT_EQ("VAL1=Janeiro PERC1=% VAL2=Abril PERC2=% PERCTOT=% ", periodos());
    // A title account first, in three lines.
    EXPECT_EQ(pct04618::cores::AzulForte, Aparencia(0, "VAL1").Fundo);
    EXPECT_FALSE(Aparencia(1, "VAL1").Fundo);
    EXPECT_TRUE(Aparencia(1, "VAL1").Negrito);
    EXPECT_FALSE(Aparencia(0, "NOMECONTA").Vazio);
    EXPECT_TRUE(Aparencia(1, "NOMECONTA").Vazio);
    EXPECT_TRUE(Aparencia(0, "CCUSTO").Vazio) << "a lone zero";
    EXPECT_EQ(pct04618::cores::AzulClaro, Aparencia(3, "VAL1").Fundo);

    Consultar("01/01/2024", "31/01/2024", "3", "OR");
    EXPECT_EQ("VAL1=Janeiro PERC1=% PERCTOT=% ", periodos());
    EXPECT_EQ(pct04618::cores::AzulForte, Aparencia(0, "VAL1").Fundo) << "the budget line opens the block";
    Consultar("01/02/2024", "29/02/2024", "3");
    EXPECT_TRUE(Dados("CdsMostraCtbOrcMensal").Active());
    EXPECT_EQ(NadaEmVista, EmVista());
    EXPECT_EQ(Convite, Titulo());
    Consultar("01/01/2024", "31/01/2024", "1");
    EXPECT_EQ(Balanco, EmVista());
    EXPECT_FALSE(Dados("CdsMostraCtbOrcMensal").Active());
}

TEST_F(Janela, NuloNoCadastroNaoImpedeResultadoNemTotais) {
    for (const char* coluna :
         {"SC00_FILIAL ALTER FILIAL", "CO01_PLANO ALTER CONTA", "CO01_PLANO ALTER CLASSIFCONTAB",
          "CO01_PLANO ALTER NOME", "CO01_PLANO ALTER CTATITULO", "CO01_PLANOSUB ALTER CODIGO",
          "CO01_PLANOSUB ALTER DESCRICAO", "CO01_CENTROCUSTO ALTER CODIGO", "CO01_CENTROCUSTO ALTER DESCRICAO",
          "CO01_DEMAC ALTER TITULO", "CO01_DEMACTOT ALTER CODIGO", "CO01_DEMACTOT ALTER CLASSIF",
          "CO01_DEMACTOT ALTER DESCRICAO", "CO01_DEMACTOT ALTER TITULO", "CO01_DEMACTOTREL ALTER IDDEMACTOT",
          "CO01_CTBORCADAINF ALTER DATAFIM"})
        copia.executar(std::string("ALTER TABLE ") + coluna + " DROP NOT NULL;");
    copia.executar(R"(
UPDATE SC00_FILIAL SET FILIAL = NULL WHERE IDFILIAL = 11;
UPDATE CO01_PLANO SET CONTA = NULL, CLASSIFCONTAB = NULL, NOME = NULL, CTATITULO = NULL WHERE IDPLANO IN (101, 102);
UPDATE CO01_PLANOSUB SET CODIGO = NULL, DESCRICAO = NULL WHERE IDPLANOSUB = 7;
UPDATE CO01_CENTROCUSTO SET CODIGO = NULL, DESCRICAO = NULL;
UPDATE CO01_DEMAC SET TITULO = NULL;
INSERT INTO CO01_DEMACTOT (IDDEMACTOT, IDDEMAC) VALUES (10, 1);
INSERT INTO CO01_DEMACTOTREL (IDDEMACTOT, IDPLANO) VALUES (9, 102);
INSERT INTO CO01_DEMACTOTREL (IDDEMACTOT, IDDEMACTOTRELAC) VALUES (9, 10);
INSERT INTO CO01_DEMACTOTREL (IDDEMACTOTRELAC) VALUES (9);
INSERT INTO CO01_CTBORCADAVLR (IDCTBORCADAINF, IDPLANO, IDPLANOSUB, IDCENTROCUSTO) VALUES (1, 102, 7, 5);
INSERT INTO CO01_CTBORCADAINF (IDCTBORCADAINF, IDEMPRESA, TPCENARIO, DATAINICIO) VALUES (9, 1, 0, '2024-04-01');
INSERT INTO CO01_CTBORCADAVLR (IDCTBORCADAINF, IDPLANO, VLRORCADO) VALUES (9, 101, 92233720368547758.07);
)");
    const auto olhar = [this] { // every cell as a face looks at it
        const auto& grade = *janela->GradeEmVista();
        for (std::size_t i = 0; i < grade.DataSet()->RecordCount(); ++i)
            for (const auto& coluna : grade.Colunas())
                grade.Aparencia(grade.Celula(i, coluna));
    };
    for (const char* modo : {"1", "2"}) {
        Consultar("01/01/2024", "30/06/2024", modo);
        ASSERT_EQ(Balanco, EmVista());
        olhar();
    }
    EXPECT_EQ((Lista{" [valor além do limite]||-90.000000", "|47.000000|52.000000", "Resultado|-60.000000|-45.000000"}),
              apoio::LinhasDe(Dados("CdsMostraCtbOrcada"), {"NOMECONTA", "VLRORCADO", "VLRREALIZADO"}));
    Consultar("01/01/2024", "31/12/2025", "3", "BOR");
    ASSERT_EQ(PeriodosEmVista, EmVista());
    olhar();
    Selecionar([](FormDriver& usuario) {
        Preencher(usuario, "01/01/2024", "30/04/2024", "3");
        usuario.define("CbSelecionar", "2");
        usuario.leave("CbSelecionar");
        usuario.leave("CbDetalharSelecao");
        usuario.define("LkpRelatorioDemonstConfig", "1");
        usuario.leave("LkpRelatorioDemonstConfig");
        usuario.define("ChkDetalharTotalizadoresContas", "1");
        usuario.leave("ChkDetalharTotalizadoresContas");
        usuario.click("actOK");
    });
    ASSERT_EQ(PeriodosEmVista, EmVista());
    olhar();
    EXPECT_EQ((Lista{"Total|B|2.00", "Total|O|47.00", "Total|R|52.00", "|B|2.00", "|O|47.00", "|R|52.00"}),
              apoio::LinhasDe(Dados("CdsMostraCtbOrcMensal"), {"NOMECONTA", "DESCTIPOLINHA", "TOTAL"}));
    EXPECT_EQ("1", janela->Criterios()[4].Valor) << "a statement without a title";
}

TEST_F(Janela, MarcadosDemaisSaoRecusadosSemPerderNada) {
    copia.executar("SET TERM ^ ;\n"
                   "EXECUTE BLOCK AS DECLARE I INTEGER = 1; BEGIN WHILE (I <= 1600) DO BEGIN\n"
                   "    INSERT INTO CO01_PLANO (IDPLANO, IDEMPRESA, CONTA, CLASSIFCONTAB, NOME, CTATITULO, TPCONTA)\n"
                   "    VALUES (:I * 1000, 1, :I + 10, '4', 'x', 2, 3);\n"
                   "    I = I + 1;\n"
                   "END END^\n"
                   "SET TERM ; ^\n");
    Consultar("01/01/2024", "31/01/2024", "1");
    Selecionar([this](FormDriver& usuario) {
        auto& contas = dynamic_cast<host::TZTLookupEx&>(janela->GetFormSelecao().Controle("LkpContas"));
        const auto pesquisa = contas.Pesquisar();
        std::vector<std::size_t> todas(pesquisa->RecordCount());
        std::iota(todas.begin(), todas.end(), 1);
        contas.Marcar(*pesquisa, todas);
        usuario.click("actOK");
        EXPECT_TRUE(janela->GetFormSelecao().Aberto());
    });
    EXPECT_EQ(Lista{"A seleção tem 1604 registros, mais do que cabe em uma consulta. Escolha um período menor ou "
                    "marque menos registros."},
              interacao.mensagens);
    EXPECT_EQ("LkpContas", interacao.foco);
    EXPECT_EQ(3U, janela->GradeEmVista()->DataSet()->RecordCount()) << "the earlier result stands";
}

TEST_F(Janela, CriteriosSaoDoResultadoEFaltamSemUm) {
    const auto titulo = [this] {
        const auto criterios = janela->Criterios();
        return criterios.empty() ? std::string("-") : criterios.front().Valor;
    };
    Abrir();
    EXPECT_EQ("-", titulo());
    Consultar("01/01/2024", "31/01/2024", "2");
    const std::string exato = "Orçado x realizado por conta: 2 - Pesquisando período exato";
    EXPECT_EQ(exato, titulo());
    Selecionar([](FormDriver& usuario) { usuario.define("CbDetalharSelecao", "3"); });
    EXPECT_EQ(exato, titulo()) << "left without an OK";
    Consultar("01/02/2024", "29/02/2024", "3");
    EXPECT_EQ("Orçado x realizado por conta: 3 - Demonstrando períodos em colunas", titulo())
        << "a result without rows";
    Consultar("01/03/2024", "31/03/2024", "1");
    EXPECT_EQ("-", titulo()) << "nothing was found";
}

TEST_F(Janela, PeriodosDeMesmoNomeDizemQueAnoOuQueDatasSao) {
    Projecao("5 1 - 0 01/01/2025 31/01/2025");
    Projecao("6 1 - 0 01/01/2025 31/03/2025");
    Projecao("7 1 - 0 01/03/2025 31/12/2025");
    Projecao("8 1 - 0 01/04/2025 30/04/2025"); // without rows
    for (const char* projecao : {"5", "6", "7"})
        Valor("IDCTBORCADAINF, IDPLANO, IDFILIAL, VLRORCADO", std::string(projecao) + ", 101, 12, 1");
    const auto periodos = [&] {
        std::string texto;
        for (const auto& coluna : Grade("DbgMostraCtbOrcMensal").Colunas())
            if (coluna.Visivel && (coluna.Campo.starts_with("VAL") || coluna.Campo.starts_with("PERC")))
                texto += coluna.Titulo + "=" + coluna.Extenso + "; ";
        return texto;
    };
    Consultar("01/01/2024", "31/12/2025", "3", "BOR");
    EXPECT_EQ("Janeiro=Janeiro 2024; %=% Janeiro 2024; Abril=Abril; %=% Abril; Janeiro=Janeiro 2025; %=% Janeiro 2025; "
              "2025=2025 (01/01/2025 a 31/03/2025); %=% 2025 (01/01/2025 a 31/03/2025); "
              "2025=2025 (01/03/2025 a 31/12/2025); %=% 2025 (01/03/2025 a 31/12/2025); %=% Total; ",
              periodos());
    Selecionar([](FormDriver& usuario) {
        Preencher(usuario, "01/01/2024", "31/12/2025", "3");
        usuario.define("ChkPerSemMov", "1");
        usuario.click("actOK");
    });
    EXPECT_NE(std::string::npos, periodos().find("Abril=Abril 2025; ")) << "the period without rows is there too";
    Consultar("01/01/2024", "30/04/2024", "3", "BOR");
    EXPECT_EQ("Janeiro=Janeiro; %=% Janeiro; Fevereiro=Fevereiro; %=% Fevereiro; Abril=Abril; %=% Abril; %=% Total; ",
              periodos());
}

TEST_F(Janela, ModosDeRelatorioImprimemAMenosQueODialogoSejaDeixado) {
    Consultar("01/01/2024", "31/01/2024", "1");
    Consultar("01/03/2024", "31/03/2024", "5");
    EXPECT_EQ(NadaEmVista, EmVista());
    EXPECT_EQ(Convite, Titulo());
    EXPECT_EQ(Lista{"RAZÃO TOTALIZADORES: "}, interacao.relatorios) << "also without a projection";
    Consultar("01/03/2024", "31/03/2024", "4", "OR");
    EXPECT_EQ(NadaEmVista, EmVista());
    ASSERT_FALSE(interacao.mensagens.empty());
    EXPECT_EQ(NadaAImprimir, interacao.mensagens.back());
    Selecionar([](FormDriver& usuario) { Preencher(usuario, "01/03/2024", "31/03/2024", "5"); });
    EXPECT_EQ(NadaEmVista, EmVista());
    EXPECT_EQ(Lista{}, interacao.mensagens);
    EXPECT_EQ(1U, interacao.relatorios.size()) << "left by Sair";
}

TEST_F(Janela, ImprimeOQueOModoTem) {
    const auto imprimir = [&] { janela->Executar(janela->Acao("ActImprimirRelatorio")); };
    Abrir();
    imprimir();
    EXPECT_EQ(Lista{NadaAImprimir}, interacao.mensagens) << "before any selection";
    Consultar("01/01/2024", "31/01/2024", "3", "BOR");
    imprimir();
    Consultar("01/01/2024", "31/01/2024", "1");
    imprimir();
    const std::string titulo = "Contabilidade Gerencial Orçamentária";
    EXPECT_EQ((Lista{titulo, titulo}), interacao.relatorios);
    EXPECT_EQ(Lista{}, interacao.mensagens);
    Consultar("01/02/2024", "29/02/2024", "1");
    imprimir();
    EXPECT_EQ(Lista{NadaAImprimir}, interacao.mensagens) << "open without a row";
    interacao.mensagens.clear();
    janela->GetDm04618().CdsMostraCtbOrcada.Close();
    imprimir();
    EXPECT_EQ(Lista{"Não foram encontrados dados para impressão do relatório.\r\rVerifique a seleção dos dados através "
                    "do botão SELECIONAR."},
              interacao.mensagens);
    EXPECT_EQ(2U, interacao.relatorios.size());
}

TEST_F(Janela, DepoisDeAtualizarORealizadoNinguemEhPerguntado) {
    Consultar("01/01/2024", "31/01/2024", "3", "BOR");
    interacao.aoMostrar = [](host::TFormZTTandorPadraoResult&) { FAIL() << "the dialog stays closed"; };
    auto& d = janela->GetDm04618();
    auto* const atualizar = &janela->Controle("ActAtualizarRealizado");
    d.FDetalharSelecao = 2;
    d.FDataInicio = Dia("01/04/2024");
    d.FDataFim = Dia("30/04/2024");
    d.FIDFilial = 12;
    janela->ActSelecionarExecute(atualizar);
    EXPECT_EQ(Balanco, EmVista());
    EXPECT_EQ("Visualizando projeção orçamentária de 01/04/2024 a 30/04/2024", Titulo());
    EXPECT_EQ(Lista{"Energia|7.000000"}, apoio::LinhasDe(Dados("CdsMostraCtbOrcada"), {"NOMECONTA", "VLRREALIZADO"}));
    EXPECT_EQ(0, d.FIDFilial) << "the establishment is that of the selection dialog";
    EXPECT_TRUE(d.FImprimirOrcamentariaBal);

    d.FDataFim = Dia("15/04/2024");
    d.FDetalharSelecao = 1;
    EXPECT_THROW(janela->ActSelecionarExecute(atualizar), base::Abort);
    EXPECT_EQ(Balanco, EmVista());
    EXPECT_EQ("Visualizando projeção orçamentária de 01/04/2024 a 30/04/2024", Titulo()) << "all as it was";
    EXPECT_TRUE(Dados("CdsMostraCtbOrcada").Active());
}

TEST_F(Janela, ConsultaQueFalhaNaoDeixaOTituloDaAnterior) {
    copia.executar("ALTER TABLE CO01_PLANOCFG DROP INFORMACAO1;"); // which only the balance statement reads
    Consultar("01/01/2024", "31/01/2024", "3", "BOR");
    ASSERT_EQ(PeriodosEmVista, EmVista());
    EXPECT_THROW(Consultar("01/01/2024", "31/01/2024", "1"), base::TFalhaBanco);
    EXPECT_EQ(Balanco, EmVista());
    EXPECT_EQ(Convite, Titulo());
    EXPECT_FALSE(Dados("CdsMostraCtbOrcada").Active());
    EXPECT_FALSE(Dados("CdsMostraCtbOrcMensal").Active());
}

TEST_F(Janela, CommitQueFalhaNaoImprime) {
    copia.executar("DROP INDEX IX_ORCVLR_LINHA; ALTER TABLE CO01_CTBORCADAVLR DROP IDDEMACTOT;");
    EXPECT_THROW(Consultar("01/01/2024", "31/01/2024", "4", "OR"), base::TFalhaBanco);
    EXPECT_FALSE(janela->GetFormSelecao().Cancelou());
    EXPECT_EQ(Lista{}, interacao.mensagens);
    EXPECT_EQ(NadaEmVista, EmVista());
}

TEST_F(Janela, GruposAbremComResultadoNovoEComOutroAgrupamento) {
    Abrir();
    int vezes = 0;
    auto& grade = Grade("DbgCtbOrcada");
    grade.AoExpandirTudo = [&] { ++vezes; };
    grade.MudarColuna("CCUSTO", [](host::TColunaGrade& c) { c.Grupo = 1; });
    EXPECT_EQ(0, vezes) << "nothing to open yet";
    Consultar("01/01/2024", "31/01/2024", "1");
    EXPECT_LT(0, vezes);
    vezes = 0;
    grade.MudarColuna("DESCCCUSTO", [](host::TColunaGrade& c) { c.Visivel = true; });
    EXPECT_EQ(0, vezes) << "the groups that a user closed stay closed";
    grade.MudarColuna("CCUSTO", [](host::TColunaGrade& c) { c.Grupo = -1; });
    EXPECT_EQ(1, vezes);
}

TEST_F(Janela, LeiautePadraoVoltaAoDesenhoComOsPeriodosDoResultado) {
    const auto pasta = std::filesystem::temp_directory_path() / ("orcreal-janela-" + std::to_string(::getpid()));
    suite::program::LayoutStore armazem(pasta);
    servicos.Leiautes = &armazem;
    Consultar("01/01/2024", "31/01/2024", "3", "BOR");
    auto& leiaute = dynamic_cast<host::TZTDbGridDevLeiaute&>(janela->Controle("GdlMostraCtbOrcMensal"));
    auto& grade = *leiaute.Grade();
    EXPECT_EQ("DbgMostraCtbOrcMensal", grade.Nome());
    for (const char* campo : {"IDPLANO", "TIPOLINHA"})
        grade.MudarColuna(campo, [](host::TColunaGrade& c) { c.Visivel = true; });
    grade.MudarColuna("VAL1", [](host::TColunaGrade& c) { c.Visivel = false; });
    grade.MudarColuna("FILIAL", [](host::TColunaGrade& c) { c.Grupo = -1; });
    leiaute.Salvar("meu");
    EXPECT_EQ((Lista{"meu"}), armazem.Listar({"{08472431-F450-4497-9C51-C88301BD20AD}", login->GetIDUsuarioLogado()}));

    leiaute.Escolher("");
    EXPECT_EQ(0, grade.Coluna("FILIAL").Grupo);
    EXPECT_FALSE(grade.Coluna("IDPLANO").Visivel || grade.Coluna("TIPOLINHA").Visivel);
    EXPECT_TRUE(grade.Coluna("VAL1").Visivel);
    EXPECT_FALSE(grade.Coluna("VAL2").Visivel);
    EXPECT_EQ("Janeiro", grade.Coluna("VAL1").Titulo);
    leiaute.Escolher("meu");
    EXPECT_EQ(-1, grade.Coluna("FILIAL").Grupo);
    EXPECT_TRUE(grade.Coluna("IDPLANO").Visivel);
    EXPECT_FALSE(grade.Coluna("VAL1").Visivel);

    Abrir(); // another window of the same user
    const auto& doBalanco = dynamic_cast<host::TZTDbGridDevLeiaute&>(janela->Controle("GdlConsultarProj"));
    const auto& dosPeriodos = dynamic_cast<host::TZTDbGridDevLeiaute&>(janela->Controle("GdlMostraCtbOrcMensal"));
    EXPECT_EQ("{41C1427C-BDE7-4E49-B46D-FDD8B0A9C9B3}", doBalanco.ChaveLeiaute());
    EXPECT_EQ(Lista{}, doBalanco.Leiautes());
    EXPECT_EQ(Lista{"meu"}, dosPeriodos.Leiautes());
    EXPECT_EQ(0, dosPeriodos.Grade()->Coluna("FILIAL").Grupo) << "a window opens with the default";
    std::filesystem::remove_all(pasta);
}
