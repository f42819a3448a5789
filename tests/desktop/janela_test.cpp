// The shell: messages, progress, failures, and the window that shows what its form says.
#include "apoio/Bases.h"
#include "base/Falhas.h"
#include "desktop/Aplicacao.h"
#include "desktop/Modulo.h"
#include "host/Dialogos.h"
#include "host/Servicos.h"
#include "suite/desktop/form/DialogWindow.h"
#include "suite/desktop/grid/GridPane.h"
#include "suite/desktop/grid/GridView.h"
#include "suite/desktop/shell/DesktopInteraction.h"
#include "suite/desktop/shell/Failures.h"
#include "suite/desktop/shell/MainWindow.h"
#include "suite/desktop/shell/MessageDialog.h"
#include "suite/desktop/shell/StartDialog.h"
#include "suite/program/DesktopCommand.h"
#include "suite/script/FormDriver.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include <cstdlib>
#include <fstream>
#include <thread>
#include <unistd.h>

namespace {

using namespace suite::desktop;
using base::TFalhaBanco;
using base::TTipoFalhaBanco;

constexpr const char* Convite = "Clique no botão \"Selecionar\" para escolher as formas de busca das informações.";

void teclar(QWidget& janela, int tecla, const QString& texto = {}) {
    auto* alvo = janela.focusWidget() ? janela.focusWidget() : &janela;
    for (const auto tipo : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent evento(tipo, tecla, Qt::NoModifier, texto);
        QCoreApplication::sendEvent(alvo, &evento);
    }
}

// What a user does to the modal windows that the deed opens, in order. A window still open behind its step is closed.
void comModais(const std::vector<std::function<void(QDialog&)>>& passos, const std::function<void()>& ato) {
    std::size_t feitos = 0;
    QTimer olhar;
    QObject::connect(&olhar, &QTimer::timeout, [&] {
        auto* janela = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!janela || janela->objectName() == QStringLiteral("progresso"))
            return;
        if (feitos < passos.size())
            passos[feitos](*janela);
        else
            ADD_FAILURE() << "one window too many: " << janela->windowTitle().toStdString();
        ++feitos;
        if (janela->isVisible())
            janela->reject();
    });
    olhar.start(30);
    ato();
    EXPECT_EQ(passos.size(), feitos) << "windows";
}

template <class T>
T& parte(QWidget& janela, const char* nome) {
    auto* achada = janela.findChild<T*>(QString::fromUtf8(nome));
    if (!achada)
        throw std::runtime_error(std::string("no part ") + nome);
    return *achada;
}

TFalhaBanco perdida() {
    return {TTipoFalhaBanco::Conexao, "A conexão foi perdida.", "08006", {335544726}, "CdsX", "connection reset"};
}

class Casca : public testing::Test {
  protected:
    Casca() {
        const auto pasta = std::string(ORCREAL_PASTA_TESTE) + "/casca-" + std::to_string(::getpid());
        std::filesystem::remove_all(pasta);
        for (const char* variavel : {"XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_DATA_HOME"})
            ::setenv(variavel, (pasta + "/" + variavel).c_str(), 1);
    }
    int perguntar(const std::vector<std::string>& botoes, int padrao, const std::function<void(QDialog&)>& passo) {
        int resposta = 0;
        comModais({passo}, [&] {
            resposta = interacao.Mensagem(
                {host::TNivelMensagem::Confirmacao, "Título", "Um\rDois & <b>três</b>", botoes, padrao});
        });
        return resposta;
    }

    QApplication& unica = aplicacao();
    Aside lado;
    int cancelamentos = 0;
    DesktopInteraction interacao{lado, [this] { ++cancelamentos; }};
};

} // namespace

TEST_F(Casca, PerguntaRespondePeloTeclado) {
    const std::vector<std::string> tres{"Selecionado", "Sempre todos", "Cancelar"};
    const auto esc = [](QDialog& d) { d.reject(); };
    const auto enter = [](QDialog& d) { teclar(d, Qt::Key_Return); };
    EXPECT_EQ(2, perguntar(tres, 6, esc));
    EXPECT_EQ(7, perguntar({"Sim", "Não"}, 6, esc));
    EXPECT_EQ(6, perguntar({"OK"}, 6, esc));
    EXPECT_EQ(6, perguntar(tres, 6, enter));
    EXPECT_EQ(7, perguntar(tres, 7, enter));
    EXPECT_EQ(2, perguntar(tres, 2, enter));
    EXPECT_EQ(7, perguntar({"Sim", "Não"}, 6, [](QDialog& d) { teclar(d, Qt::Key_N, QStringLiteral("n")); }));
    EXPECT_EQ(7, perguntar(tres, 6, [](QDialog& d) { teclar(d, Qt::Key_E, QStringLiteral("e")); })) << "the second S";
    EXPECT_EQ(2, perguntar(tres, 6, [](QDialog& d) {
                  const auto& texto = parte<QLabel>(d, "texto");
                  EXPECT_EQ("Um\nDois & <b>três</b>", texto.text().toStdString());
                  EXPECT_EQ(Qt::PlainText, texto.textFormat());
                  EXPECT_TRUE(texto.textInteractionFlags() & Qt::TextSelectableByMouse);
                  EXPECT_EQ("Título", d.windowTitle().toStdString());
                  parte<QAbstractButton>(d, "botao2").click();
              }));
}

TEST_F(Casca, ProgressoDeDoisNiveisPerguntaAntesDeCancelar) {
    host::TServicos servicos;
    servicos.Interacao = &interacao;
    const host::TInstalacaoServicos instalados(servicos);
    host::TZTBarraProgressoDlg barra(2);
    barra.SetTitulo("Gerando");
    barra.BuscarBarraProgresso(0).SetValorMaximo(12);
    barra.MostrarBarraProgresso();
    barra.BuscarBarraProgresso(0).SetTexto("Projeção 1");
    barra.BuscarBarraProgresso(1).IniciarSimulacaoProcesso();
    barra.BuscarBarraProgresso(0).AvancarProgresso(5);
    EXPECT_EQ(nullptr, QApplication::activeModalWidget()) << "what is soon done does not flash by";
    std::this_thread::sleep_for(std::chrono::milliseconds(ProgressWindow::ShowAfter + 50));
    EXPECT_FALSE(barra.GetProcessoCancelado());
    ASSERT_NE(nullptr, QApplication::activeModalWidget());
    auto& janela = dynamic_cast<QDialog&>(*QApplication::activeModalWidget());
    EXPECT_EQ("Gerando", janela.windowTitle().toStdString());
    EXPECT_EQ("Projeção 1", parte<QLabel>(janela, "texto0").text().toStdString());
    EXPECT_EQ(12, parte<QProgressBar>(janela, "barra0").maximum());
    EXPECT_EQ(5, parte<QProgressBar>(janela, "barra0").value());
    EXPECT_EQ(0, parte<QProgressBar>(janela, "barra1").maximum()) << "of unknown length";

    teclar(janela, Qt::Key_Escape);
    EXPECT_TRUE(parte<QLabel>(janela, "pergunta").isVisible());
    EXPECT_FALSE(barra.GetProcessoCancelado());
    parte<QAbstractButton>(janela, "continuar").click();
    EXPECT_FALSE(parte<QLabel>(janela, "pergunta").isVisible());
    janela.close();
    EXPECT_TRUE(janela.isVisible() && parte<QLabel>(janela, "pergunta").isVisible());
    parte<QAbstractButton>(janela, "cancelar").click();
    EXPECT_TRUE(barra.GetProcessoCancelado());
    EXPECT_EQ(1, cancelamentos);
    EXPECT_FALSE(parte<QAbstractButton>(janela, "cancelar").isEnabled());
    barra.FecharBarraProgresso();
    EXPECT_FALSE(janela.isVisible());
    EXPECT_FALSE(barra.GetProcessoCancelado()) << "nothing is in view";
    host::TZTBarraProgressoDlg outra(1);
    outra.MostrarBarraProgresso();
    std::this_thread::sleep_for(std::chrono::milliseconds(ProgressWindow::ShowAfter + 50));
    host::Servicos().Interacao->ProcessarMensagens();
    ASSERT_TRUE(janela.isVisible());
    EXPECT_FALSE(outra.GetProcessoCancelado()) << "each starts anew";
    EXPECT_EQ(nullptr, janela.findChild<QProgressBar*>(QStringLiteral("barra1")));
}

TEST_F(Casca, EsperaLongaSemProgressoGanhaUmaJanelaComCancelar) {
    bool esperando = false;
    QTimer::singleShot(1500, [&] {
        if (auto* janela = QApplication::activeModalWidget()) {
            esperando = true;
            parte<QAbstractButton>(*janela, "cancelar").click();
        }
    });
    lado.run([this] {
        for (int i = 0; i < 300 && cancelamentos == 0; ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
    });
    EXPECT_TRUE(esperando);
    EXPECT_EQ(1, cancelamentos);
    EXPECT_EQ(nullptr, QApplication::activeModalWidget());
    EXPECT_EQ(nullptr, QGuiApplication::overrideCursor());
}

TEST_F(Casca, ErroComCausaNoBancoTemOsDetalhesDela) {
    host::TServicos servicos;
    servicos.Interacao = &interacao;
    const host::TInstalacaoServicos instalados(servicos);
    comModais({[](QDialog& d) {
                   EXPECT_EQ("Erros : O banco falhou.", parte<QLabel>(d, "texto").text().toStdString());
                   EXPECT_TRUE(parte<QPlainTextEdit>(d, "detalhes").toPlainText().contains(QStringLiteral("GerarX")));
               },
               [](QDialog& d) { EXPECT_EQ(nullptr, d.findChild<QPlainTextEdit*>(QStringLiteral("detalhes"))); }},
              [] {
                  host::GZTUtilsDialogs.Erro(
                      "Erros : O banco falhou.",
                      TFalhaBanco(TTipoFalhaBanco::Comando, "O banco falhou.", "42000", {1}, "GerarX", "detalhe"));
                  host::GZTUtilsDialogs.Erro("Há um ciclo.");
              });
}

TEST_F(Casca, FalhaGuardaOsDetalhesDobrados) {
    const TFalhaBanco comando(TTipoFalhaBanco::Comando, "Não foi possível.", "42000", {1}, "CdsX", "near line 3");
    comModais({[](QDialog& d) {
                  EXPECT_EQ("Não foi possível.", parte<QLabel>(d, "texto").text().toStdString());
                  auto& detalhes = parte<QPlainTextEdit>(d, "detalhes");
                  EXPECT_FALSE(detalhes.isVisible());
                  parte<QAbstractButton>(d, "abrirDetalhes").click();
                  EXPECT_TRUE(detalhes.isVisible());
                  for (const auto* trecho : {"42000", "CdsX", "near line 3"})
                      EXPECT_TRUE(detalhes.toPlainText().contains(QLatin1String(trecho))) << trecho;
              }},
              [&] {
                  showFailure(
                      comando, [] { FAIL() << "the connection is not lost"; }, nullptr);
              });
    comModais({[](QDialog& d) { EXPECT_EQ("Data inválida.", parte<QLabel>(d, "texto").text().toStdString()); }},
              [] { showFailure(base::TFalha("Data inválida."), {}, nullptr); });
    comModais({}, [] {
        showFailure(base::Abort(), {}, nullptr);
        showFailure(TFalhaBanco(TTipoFalhaBanco::Cancelado, "Cancelada.", "HY008", {}, {}, {}), {}, nullptr);
    });
}

TEST_F(Casca, ConexaoPerdidaOfereceConectarDeNovoAteConseguir) {
    int tentativas = 0;
    const auto conectar = [&] {
        if (++tentativas < 3)
            throw perdida();
    };
    const auto novamente = [](QDialog& d) { parte<QAbstractButton>(d, "botao6").click(); };
    const auto fechar = [](QDialog& d) { parte<QAbstractButton>(d, "botao7").click(); };
    comModais({novamente, novamente, novamente,
               [](QDialog& d) {
                   EXPECT_TRUE(parte<QLabel>(d, "texto").text().contains(QStringLiteral("Repita")))
                       << "it says what is left to do";
               }},
              [&] { showFailure(perdida(), conectar, nullptr); });
    EXPECT_EQ(3, tentativas);
    comModais({fechar}, [&] { showFailure(perdida(), conectar, nullptr); });
    EXPECT_EQ(3, tentativas);
}

TEST_F(Casca, InicioOfereceAUltimaEscolhaSemASenha) {
    EXPECT_FALSE(settings::hasDatabase());
    DatabaseChoice escolha;
    escolha.kind = DatabaseChoice::Kind::Server;
    escolha.host = QStringLiteral("conta");
    escolha.port = 3055;
    escolha.path = QStringLiteral("/dados/é.fdb");
    escolha.password = QStringLiteral("segredo");
    settings::keepDatabase(escolha);
    const auto lida = settings::database();
    EXPECT_EQ("conta/3055:/dados/é.fdb", lida.serverTarget().toStdString());
    EXPECT_EQ("", lida.password.toStdString());

    StartDialog dialogo(lida, true);
    EXPECT_EQ("conta/3055:/dados/é.fdb", dialogo.choice().serverTarget().toStdString());
    parte<QRadioButton>(dialogo, "arquivo").click();
    dialogo.accept();
    EXPECT_NE(QDialog::Accepted, dialogo.result()) << "no file has been named";
    EXPECT_FALSE(parte<QLabel>(dialogo, "recusa").text().isEmpty());
    parte<QRadioButton>(dialogo, "demonstracao").click();
    dialogo.accept();
    EXPECT_EQ(QDialog::Accepted, dialogo.result());
    EXPECT_EQ(DatabaseChoice::Kind::Demo, dialogo.choice().kind);
}

namespace {

// The module's window on the demo company, as the program opens it.
class JanelaDoModulo : public Casca {
  protected:
    // Confirms the selection dialog as the test has filled it, in the place of a user.
    class Usuario : public host::TInteracao {
      public:
        explicit Usuario(DesktopInteraction& dentro) : dentro_(dentro) {}
        std::function<void(host::TFormZTTandorPadraoResult&)> preencher;
        int Mensagem(const host::TMensagem& mensagem) override { return dentro_.Mensagem(mensagem); }
        void Progresso(const host::TEventoProgresso& evento) override { dentro_.Progresso(evento); }
        bool ProgressoCancelado() override { return dentro_.ProgressoCancelado(); }
        void MostrarModal(host::TFormZTTandorPadraoResult& form) override {
            if (preencher)
                preencher(form);
            dentro_.MostrarModal(form);
        }
        void MostrarRelatorio(const host::TImpressao& impressao) override { dentro_.MostrarRelatorio(impressao); }
        void MostrarImpressaoGrade(const host::TImpressaoGrade& impressao) override {
            dentro_.MostrarImpressaoGrade(impressao);
        }
        bool Falha(const base::TFalha& falha) override { return dentro_.Falha(falha); }
        void Focar(host::TControle& controle) override { dentro_.Focar(controle); }
        void Pesquisar(host::TZTLookupEx& lookup) override { dentro_.Pesquisar(lookup); }
        void ProcessarMensagens() override {}

      private:
        DesktopInteraction& dentro_;
    };

    JanelaDoModulo() {
        registrarModulo();
        const suite::program::Options opcoes;
        programa = suite::program::desktopProgram(opcoes, "versão");
        sessao = programa.login({copia.alvo(), {}, {}}, conexao, usuario);
        WindowServices servicos;
        servicos.company = sessao->texts().company;
        servicos.formats = programa.formats;
        servicos.write = [this](const auto& tabela, const auto& arquivo) { sessao->write(tabela, arquivo); };
        servicos.confirmNextModal = [this](bool confirmar) { interacao.confirmNextModal(confirmar); };
        servicos.reconnect = [this] {
            ++reconexoes;
            conexao.exchange(ligar());
        };
        servicos.lastQuerySeconds = [this] { return conexao.lastQuery().count(); };
        janela = std::make_unique<MainWindow>(sessao->window(), servicos);
        interacao.attach(janela.get(), &janela->binding());
        interacao.onFailure = [this](const std::exception& falha) { janela->fail(falha); };
        interacao.tableInView = [this] { return &janela->paneInView()->table(); };
        interacao.headingOf = [this](const auto& tabela) {
            return suite::exporting::headingOf(sessao->window(), tabela, {});
        };
        janela->show();
    }
    ~JanelaDoModulo() override {
        interacao.attach(nullptr, nullptr);
        janela.reset();
    }
    AsideConnection::Inner ligar() { return programa.connect({copia.alvo(), {}, apoio::credenciais().password}); }
    void selecionar(const char* modo, const char* fim = "31/03/2024") {
        usuario.preencher = [=, this](host::TFormZTTandorPadraoResult& form) {
            const auto definir = [&](const char* nome, const std::string& valor) {
                auto& controle = form.Controle(nome);
                if (auto* data = dynamic_cast<host::TZTDateEdit*>(&controle))
                    data->SetDate(*base::TDataHora::DeTexto(valor));
                else
                    dynamic_cast<host::TZTComboBox&>(controle).SetValorSelecionado(valor);
                form.SairDe(controle);
            };
            definir("DeDataIni", "01/01/2024");
            definir("DeDataFim", fim);
            definir("CbSelecionar", "1");
            definir("CbDetalharSelecao", modo);
            if (modo[0] == '3')
                dynamic_cast<host::TZTCheckBox&>(form.Controle("ChkLinhaVlrOrcado")).SetChecked(true);
            interacao.confirmNextModal(true);
        };
        executar("ActSelecionar");
    }
    void executar(const char* nome) {
        comModais({}, [&] { acao(nome).trigger(); });
    }
    QAction& acao(const char* nome) { return parte<QAction>(*janela, nome); }
    bool aVista(const char* nome) { return parte<QWidget>(*janela, nome).isVisible(); }
    std::string texto(const char* nome) { return parte<QLabel>(*janela, nome).text().toStdString(); }
    // Grids are asked through the binding: only one of them may be seen.
    std::string grades() {
        std::string vistas;
        for (const char* nome : {"DbgCtbOrcada", "DbgMostraCtbOrcMensal"})
            if (janela->binding().widget(nome)->isVisible())
                vistas += nome;
        return vistas;
    }

    apoio::Copia copia{apoio::Base::Demo};
    Usuario usuario{interacao};
    DesktopProgram programa = suite::program::desktopProgram({}, "versão");
    AsideConnection conexao{lado, ligar()};
    std::unique_ptr<DesktopSession> sessao;
    std::unique_ptr<MainWindow> janela;
    int reconexoes = 0;
};

} // namespace

TEST_F(JanelaDoModulo, MostraOQueOModeloTemEmVista) {
    EXPECT_EQ("", grades());
    EXPECT_TRUE(aVista("convite"));
    EXPECT_EQ(Convite, texto("PnlTitulo"));
    EXPECT_FALSE(aVista("PnlLegenda") || aVista("PnlLegendaGradeOrcMensal"));
    EXPECT_FALSE(acao("repetir").isEnabled());
    EXPECT_FALSE(acao("exportar.xlsx").isEnabled());
    EXPECT_EQ("&Atualizar Realizado", acao("ActAtualizarRealizado").text().toStdString());

    selecionar("1");
    EXPECT_EQ("DbgCtbOrcada", grades());
    EXPECT_TRUE(aVista("PnlLegenda"));
    EXPECT_FALSE(aVista("PnlLegendaGradeOrcMensal") || aVista("convite"));
    EXPECT_EQ("Visualizando projeção orçamentária de 01/01/2024 a 31/03/2024", texto("PnlTitulo"));
    EXPECT_NE(std::string::npos, texto("linhas").find("linhas"));
    EXPECT_NE(std::string::npos, texto("segundos").find(" s"));

    selecionar("3");
    EXPECT_EQ("DbgMostraCtbOrcMensal", grades());
    EXPECT_TRUE(aVista("PnlLegendaGradeOrcMensal"));
    EXPECT_FALSE(aVista("PnlLegenda"));
    EXPECT_EQ("", texto("LblCorRecRealizMaiorProj")) << "a swatch shows its colour only";

    usuario.preencher = [this](host::TFormZTTandorPadraoResult& form) {
        EXPECT_TRUE(form.Aberto());
        dynamic_cast<host::TZTDateEdit&>(form.Controle("DeDataFim")).SetDate(*base::TDataHora::DeTexto("30/04/2024"));
    };
    executar("repetir");
    EXPECT_EQ("Visualizando projeção orçamentária de 01/01/2024 a 30/04/2024", texto("PnlTitulo"))
        << "confirmed without showing the dialog";
}

TEST_F(JanelaDoModulo, ConsultaInteiraSoComOTeclado) {
    const auto preencher = [](QDialog& dialogo) {
        const auto onde = [&] { return dialogo.focusWidget()->objectName().toStdString(); };
        const auto digitar = [&](const char* texto) { QTest::keyClicks(dialogo.focusWidget(), texto); };
        const auto enter = [&] { QTest::keyClick(dialogo.focusWidget(), Qt::Key_Return); };
        enter(); // past the company
        ASSERT_EQ("DeDataIni", onde());
        digitar("01012024");
        enter();
        digitar("31032024");
        enter();
        while (dialogo.isVisible() && onde() != "CbCenario")
            enter();
        enter(); // the last field confirms
    };
    janela->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(janela.get()));
    comModais({preencher}, [&] { QTest::keyClick(janela.get(), Qt::Key_F2); });
    EXPECT_EQ("Visualizando projeção orçamentária de 01/01/2024 a 31/03/2024", texto("PnlTitulo"));
    auto* grade = janela->paneInView();
    ASSERT_TRUE(grade);
    ASSERT_GT(grade->lines().size(), 0U);
    auto& linhas = grade->view();
    QTest::keyClick(&linhas, Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(linhas.model()->rowCount() - 1, linhas.currentIndex().row());
    QTest::keyClick(&linhas, Qt::Key_Minus, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_LT(linhas.model()->rowCount(), 10) << "the establishments alone";
    const auto antes = grade->lines().size();
    QTest::keyClick(janela.get(), Qt::Key_F5);
    EXPECT_EQ(antes, grade->lines().size());
}

TEST_F(JanelaDoModulo, FalhaNoDialogoAbertoApareceSobreEleEEleFica) {
    copia.executar("ALTER TABLE CO01_CTBORCADAINF DROP TPDETALHE;");
    bool aberto = false;
    const auto ler = [](QDialog& mensagem) {
        EXPECT_TRUE(parte<QLabel>(mensagem, "texto").text().contains(QStringLiteral("TPDETALHE")));
    };
    const auto preencher = [&](QDialog& dialogo) {
        const auto enter = [&] { QTest::keyClick(dialogo.focusWidget(), Qt::Key_Return); };
        enter();
        QTest::keyClicks(dialogo.focusWidget(), "01012024");
        enter();
        QTest::keyClicks(dialogo.focusWidget(), "31032024");
        enter();
        enter();
        ASSERT_EQ("CbDetalharSelecao", dialogo.focusWidget()->objectName().toStdString());
        comModais({ler}, enter);
        aberto = dialogo.isVisible();
        EXPECT_EQ("CbDetalharSelecao", dialogo.focusWidget()->objectName().toStdString()) << "it was not left";
    };
    comModais({preencher}, [&] { acao("ActSelecionar").trigger(); });
    EXPECT_TRUE(aberto);
}

TEST_F(JanelaDoModulo, CommitQueFalhaNaoImprime) {
    copia.executar("DROP INDEX IX_ORCVLR_LINHA; ALTER TABLE CO01_CTBORCADAVLR DROP IDDEMACTOT;");
    usuario.preencher = [this](host::TFormZTTandorPadraoResult& form) {
        suite::script::FormDriver dialogo(form);
        for (const auto& [nome, valor] : {std::pair{"DeDataIni", "01/01/2024"},
                                          {"DeDataFim", "31/03/2024"},
                                          {"CbSelecionar", "2"},
                                          {"CbDetalharSelecao", "4"}}) {
            dialogo.define(nome, valor);
            dialogo.leave(nome);
        }
        interacao.confirmNextModal(true);
    };
    const auto ler = [](QDialog& mensagem) {
        EXPECT_TRUE(parte<QLabel>(mensagem, "texto").text().contains(QStringLiteral("IDDEMACTOT")));
    };
    comModais({ler}, [&] { acao("ActSelecionar").trigger(); }); // and no word of a print behind it
}

TEST_F(JanelaDoModulo, ImprimirAbreAPreviaDoRelatorioEDaGrade) {
    selecionar("1");
    std::string titulo;
    const auto ver = [&](QDialog& previa) { titulo = previa.windowTitle().toStdString(); };
    comModais({ver}, [&] { acao("ActImprimir").trigger(); });
    EXPECT_EQ("Visualizando - Contabilidade Gerencial Orçamentária", titulo);
    comModais({ver}, [&] { acao("ActImprimirGrade").trigger(); });
    EXPECT_EQ("Visualizando - Configuração de percentuais por conta", titulo);
}

TEST_F(JanelaDoModulo, CadaControleTemSeuLugar) {
    for (const auto* controle : sessao->window().Controles()) {
        const bool leiautes = dynamic_cast<const host::TZTDbGridDevLeiaute*>(controle) != nullptr; // a menu of the grid
        EXPECT_EQ(!leiautes, janela->findChild<QObject*>(QString::fromStdString(controle->Nome())) != nullptr)
            << controle->Nome();
    }
}

TEST_F(JanelaDoModulo, TudoOQueRecebeOFocoTemNome) {
    selecionar("1");
    acao("grafico").trigger();
    std::vector<std::string> mudos;
    for (const auto* widget : janela->findChildren<QWidget*>()) {
        const bool recebe = widget->focusPolicy() != Qt::NoFocus && widget->isVisible() && !widget->focusProxy();
        const auto* botao = qobject_cast<const QAbstractButton*>(widget);
        if (recebe && widget->accessibleName().isEmpty() && !(botao && !botao->text().isEmpty()))
            mudos.push_back(std::string(widget->metaObject()->className()) + " " + widget->objectName().toStdString());
    }
    EXPECT_EQ(std::vector<std::string>{}, mudos);
}

TEST_F(JanelaDoModulo, ExportaAsLinhasAVistaNaOrdemEmQueEstao) {
    selecionar("1");
    auto& painel = *janela->paneInView();
    const auto& tabela = painel.table();
    const auto todas = painel.lines().size();
    painel.findChild<QLineEdit*>(QStringLiteral("FiltroNOMECONTA"))->setText(QStringLiteral("a"));
    const auto& colunas = tabela.columns();
    const auto ordem = std::find_if(colunas.begin(), colunas.end(),
                                    [](const auto& coluna) { return coluna.shown->Campo == "CLASSIFCONTAB"; });
    painel.sortBy(static_cast<int>(ordem - colunas.begin()), true, false);
    ASSERT_GT(painel.lines().size(), 2U);
    ASSERT_LT(painel.lines().size(), todas);
    EXPECT_FALSE(std::is_sorted(painel.lines().begin(), painel.lines().end()));
    const auto arquivo = std::string(ORCREAL_PASTA_TESTE) + "/exportada-" + std::to_string(::getpid()) + ".csv";
    sessao->write(tabela, arquivo);
    std::ifstream entrada(arquivo);
    std::vector<std::string> linhas;
    for (std::string linha; std::getline(entrada, linha);)
        linhas.push_back(linha);
    std::filesystem::remove(arquivo);
    ASSERT_EQ(painel.lines().size() + 1, linhas.size()) << "titles and the rows in view";
    for (std::size_t i = 0; i < painel.lines().size(); ++i)
        EXPECT_TRUE(linhas[i + 1].starts_with(base::TextoDe(tabela.value(i, *ordem)) + ";")) << linhas[i + 1];
    EXPECT_THROW(sessao->write(tabela, arquivo + ".nada"), base::TFalha);
}

TEST_F(JanelaDoModulo, ConexaoRefeitaSobAsMesmasFormasESelecaoFica) {
    selecionar("1");
    class Caida : public host::TSQLConnection {
      public:
        std::unique_ptr<host::TCursor> AbrirCursor(const host::TInstrucao&) override { throw perdida(); }
        void ExecuteDirect(const std::string&) override { throw perdida(); }
    };
    // The same connection, but that its statements find the line cut.
    class Cortada : public host::TZTConnection {
      public:
        std::unique_ptr<host::TZTTransacao> IniciarTransacao() override { throw perdida(); }
        std::unique_ptr<host::TZTTransacao> IniciarTransacaoSomenteLeitura() override { throw perdida(); }
        void FinalizarTransacao(host::TZTTransacao&) override { throw perdida(); }
        void CancelarTransacao(host::TZTTransacao&) override {}
        host::TResultStatus ExecutouSQL(std::span<const host::TInstrucao>, bool) override { throw perdida(); }
        std::vector<std::string> AplicarAlteracoesNoBD(std::span<host::TZTClientDataSet* const>, bool) override {
            throw perdida();
        }
        host::TSQLConnection& GetSQLConnection() override { return caida_; }
        std::int64_t BuscarProximoID(std::string_view) override { throw perdida(); }

      private:
        Caida caida_;
    };
    conexao.exchange({std::make_shared<Cortada>(), {}, {}});
    const auto conectar = [](QDialog& d) { parte<QAbstractButton>(d, "botao6").click(); };
    const auto ler = [](QDialog& d) { EXPECT_EQ("botao6", d.focusWidget()->objectName().toStdString()); };
    comModais({conectar, ler}, [this] { acao("repetir").trigger(); });
    EXPECT_EQ(1, reconexoes);
    usuario.preencher = [this](host::TFormZTTandorPadraoResult&) { interacao.confirmNextModal(true); };
    executar("ActSelecionar");
    EXPECT_EQ("DbgCtbOrcada", grades());
    EXPECT_EQ("Visualizando projeção orçamentária de 01/01/2024 a 31/03/2024", texto("PnlTitulo"));
}
