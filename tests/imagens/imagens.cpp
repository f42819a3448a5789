// imagens BANCO PASTA: pictures of the program's windows, each in a state that a user meets, written to the folder.
#include "suite/desktop/form/DialogWindow.h"
#include "suite/desktop/grid/GridPane.h"
#include "suite/desktop/grid/GridView.h"
#include "suite/desktop/look/Appearance.h"
#include "suite/desktop/look/Text.h"
#include "suite/desktop/shell/Desktop.h"
#include "suite/desktop/shell/DesktopInteraction.h"
#include "suite/desktop/shell/Failures.h"
#include "suite/desktop/shell/MainWindow.h"
#include "suite/desktop/shell/MessageDialog.h"
#include "suite/desktop/shell/StartDialog.h"

#include "base/DataHora.h"
#include "base/Falhas.h"
#include "host/Lookup.h"
#include "suite/program/DesktopCommand.h"
#include "suite/program/Module.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTimer>
#include <QTranslator>

#include <iostream>

namespace {

using namespace suite;
using desktop::Look;

QString pasta;

void pausar(int milissegundos) {
    QEventLoop laco;
    QTimer::singleShot(milissegundos, &laco, &QEventLoop::quit);
    laco.exec();
}

void fotografar(QWidget& janela, const char* nome) {
    pausar(250);
    const auto arquivo = pasta + QLatin1Char('/') + QLatin1String(nome) + QStringLiteral(".png");
    if (!janela.grab().save(arquivo))
        throw std::runtime_error("could not write " + arquivo.toStdString());
    std::cout << arquivo.toStdString() << "\n";
}

// Photographs the modal window that the deed opens, and closes it.
void fotografarModal(const char* nome, const std::function<void()>& ato,
                     const std::function<void(QWidget&)>& antes = {}) {
    QTimer::singleShot(500, [&] {
        auto* janela = QApplication::activeModalWidget();
        if (!janela)
            throw std::runtime_error(std::string("no window opened for ") + nome);
        if (antes)
            antes(*janela);
        fotografar(*janela, nome);
        static_cast<QDialog*>(janela)->reject();
    });
    ato();
}

void definir(host::TForm& form, const char* nome, const std::string& valor) {
    auto& controle = form.Controle(nome);
    if (auto* data = dynamic_cast<host::TZTDateEdit*>(&controle))
        data->SetDate(*base::TDataHora::DeTexto(valor));
    else if (auto* lista = dynamic_cast<host::TZTComboBox*>(&controle))
        lista->SetValorSelecionado(valor);
    else
        dynamic_cast<host::TZTCheckBox&>(controle).SetChecked(valor == "1");
    form.SairDe(controle);
}

// Fills the dialog as a user would, and confirms it.
class Usuario : public host::TInteracao {
  public:
    explicit Usuario(desktop::DesktopInteraction& dentro) : dentro_(dentro) {}
    std::function<void(host::TForm&)> preencher;
    host::TForm* dialogo = nullptr; // the last one

    int Mensagem(const host::TMensagem& mensagem) override { return preencher ? 7 : dentro_.Mensagem(mensagem); }
    void Progresso(const host::TEventoProgresso& evento) override { dentro_.Progresso(evento); }
    bool ProgressoCancelado() override { return dentro_.ProgressoCancelado(); }
    void MostrarModal(host::TFormZTTandorPadraoResult& form) override {
        dialogo = &form;
        if (!preencher)
            return dentro_.MostrarModal(form);
        preencher(form);
        dentro_.confirmNextModal(true);
        dentro_.MostrarModal(form);
    }
    bool Falha(const base::TFalha& falha) override { return dentro_.Falha(falha); }
    void Focar(host::TControle& controle) override { dentro_.Focar(controle); }
    void Pesquisar(host::TZTLookupEx& lookup) override { dentro_.Pesquisar(lookup); }
    void ProcessarMensagens() override { dentro_.ProcessarMensagens(); }

  private:
    desktop::DesktopInteraction& dentro_;
};

void consultar(desktop::MainWindow& janela, Usuario& usuario, const char* modo) {
    usuario.preencher = [modo](host::TForm& form) {
        definir(form, "DeDataIni", "01/01/2024");
        definir(form, "DeDataFim", modo[0] == '3' ? "30/06/2024" : "30/09/2024");
        definir(form, "CbSelecionar", "1");
        definir(form, "CbDetalharSelecao", modo);
        if (modo[0] == '3')
            for (const auto* linha : {"ChkLinhaVlrBase", "ChkLinhaVlrOrcado", "ChkLinhaVlrRealizado"})
                definir(form, linha, "1");
    };
    janela.findChild<QAction*>(QStringLiteral("ActSelecionar"))->trigger();
    usuario.preencher = {};
}

// The income statement with its accounts, which makes its totals first.
void demonstracao(desktop::MainWindow& janela, Usuario& usuario) {
    usuario.preencher = [](host::TForm& form) {
        definir(form, "CbSelecionar", "2");
        definir(form, "CbDetalharSelecao", "3");
        auto& relatorio = dynamic_cast<host::TZTLookupEx&>(form.Controle("LkpRelatorioDemonstConfig"));
        relatorio.Digitar("1");
        form.SairDe(relatorio);
        definir(form, "ChkDetalharTotalizadoresContas", "1");
        definir(form, "ChkAgruparValFiliais", "1");
    };
    janela.findChild<QAction*>(QStringLiteral("ActSelecionar"))->trigger();
    usuario.preencher = {};
}

void escolherLinha(desktop::MainWindow& janela, int linha) {
    auto& vista = janela.paneInView()->view();
    vista.setCurrentIndex(vista.model()->index(linha, 0));
}

void inicio() {
    desktop::DatabaseChoice escolha;
    desktop::StartDialog primeiro(escolha, false);
    primeiro.show();
    fotografar(primeiro, "inicio");
    escolha.kind = desktop::DatabaseChoice::Kind::Server;
    escolha.host = QStringLiteral("contabilidade.exemplo.com.br");
    escolha.path = QStringLiteral("/dados/suite.fdb");
    desktop::StartDialog servidor(escolha, true);
    servidor.show();
    fotografar(servidor, "inicio-servidor");
}

void mensagens(desktop::DesktopInteraction& interacao, desktop::MainWindow& janela) {
    using Tipo = host::TEventoProgresso::TTipo;
    fotografarModal("pergunta", [&] {
        interacao.Mensagem({host::TNivelMensagem::Confirmacao,
                            "Confirmação:",
                            "Já existem projeções geradas para os totalizadores do relatório.\r\rDeseja somente "
                            "consultar ou reatualizar e consultar as projeções \rpara os totalizadores?",
                            {"Consultar", "Reatualizar", "Cancelar"},
                            6});
    });
    const base::TFalhaBanco falha(base::TTipoFalhaBanco::Conexao,
                                  "A conexão com o banco de dados foi perdida. Conecte-se novamente; o que já estava "
                                  "confirmado permanece gravado.",
                                  "08006", {335544726}, "CdsMostraCtbOrcada",
                                  "Error reading data from the connection.");
    fotografarModal(
        "falha",
        [&] {
            desktop::showFailure(
                falha, [] {}, &janela);
        },
        [](QWidget& dialogo) { dialogo.findChild<QAbstractButton*>(QStringLiteral("abrirDetalhes"))->click(); });
    for (const auto& evento : std::vector<host::TEventoProgresso>{
             {Tipo::Titulo, 0, "Demonstrações Configuráveis: Gerando totalizadores relatórios.", 0},
             {Tipo::Maximo, 0, {}, 12},
             {Tipo::Passo, 0, {}, 5},
             {Tipo::Texto, 0, "Projeção 01/05/2024 a 31/05/2024, Matriz", 0},
             {Tipo::Maximo, 1, {}, 6},
             {Tipo::Passo, 1, {}, 2},
             {Tipo::Texto, 1, "Somando as contas analíticas", 0},
             {Tipo::Mostrar, 0, {}, 0}})
        interacao.Progresso(evento);
    pausar(desktop::ProgressWindow::ShowAfter + 200);
    fotografar(*QApplication::activeModalWidget(), "progresso");
    interacao.Progresso({Tipo::Fechar, 0, {}, 0});
}

void janelas(const std::string& banco) {
    program::Options opcoes;
    const auto programa = program::desktopProgram(opcoes, "orcreal");
    desktop::Aside lado;
    desktop::AsideConnection conexao(lado, programa.connect({banco, {}, {}}));
    desktop::DesktopInteraction interacao(lado, [&] { conexao.cancel(); });
    Usuario usuario(interacao);
    const auto sessao = programa.login({banco, {}, {}}, conexao, usuario);
    desktop::WindowServices servicos;
    servicos.company = sessao->texts().company;
    servicos.establishment = sessao->texts().establishment;
    servicos.user = sessao->texts().user;
    servicos.database = "demonstracao.fdb";
    servicos.write = [&](const auto& tabela, const auto& arquivo) { sessao->write(tabela, arquivo); };
    servicos.formats = programa.formats;
    servicos.reconnect = [] {};
    servicos.confirmNextModal = [&](bool confirmar) { interacao.confirmNextModal(confirmar); };
    servicos.lastQuerySeconds = [&] { return conexao.lastQuery().count(); };
    desktop::MainWindow janela(sessao->window(), servicos);
    interacao.attach(&janela, &janela.binding());
    janela.resize(1280, 760);
    janela.show();
    fotografar(janela, "janela-inicio");
    fotografarModal("selecao", [&] { janela.findChild<QAction*>(QStringLiteral("ActSelecionar"))->trigger(); });
    consultar(janela, usuario, "1");
    fotografar(janela, "janela-agrupando-periodos");
    auto* grafico = janela.findChild<QAction*>(QStringLiteral("grafico"));
    grafico->trigger();
    fotografar(janela, "janela-maiores-variacoes");
    grafico->trigger();
    consultar(janela, usuario, "3");
    fotografar(janela, "janela-periodos-em-colunas");
    grafico->trigger();
    escolherLinha(janela, 4);
    fotografar(janela, "janela-grafico-da-linha");
    grafico->trigger();
    demonstracao(janela, usuario);
    fotografar(janela, "janela-demonstracao");
    fotografarModal("selecao-demonstracao",
                    [&] { janela.findChild<QAction*>(QStringLiteral("ActSelecionar"))->trigger(); });
    fotografarModal("pesquisa", [&] {
        interacao.Pesquisar(dynamic_cast<host::TZTLookupEx&>(usuario.dialogo->Controle("LkpTotalizadorDemonstConfig")));
    });
    for (const auto look : {Look::Dark, Look::Contrast}) {
        desktop::apply(look);
        const auto nome = "janela-" + desktop::nameOf(look).toStdString();
        fotografar(janela, nome.c_str());
    }
    desktop::apply(Look::System);
    mensagens(interacao, janela);
    interacao.attach(nullptr, nullptr);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "Uso: imagens BANCO PASTA\n";
        return 2;
    }
    QApplication aplicacao(argc, argv);
    QLocale::setDefault(QLocale(QStringLiteral("pt_BR")));
    QTranslator textos;
    if (textos.load(QStringLiteral("qtbase_pt_BR"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&textos);
    pasta = QString::fromLocal8Bit(argv[2]);
    QDir().mkpath(pasta);
    try {
        const program::Module modulo(program::moduleFile());
        inicio();
        janelas(argv[1]);
        return 0;
    } catch (const std::exception& falha) {
        std::cerr << falha.what() << "\n";
        return 1;
    }
}
