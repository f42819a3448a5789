// A grid on screen: what keys and mouse do to it, and what it costs.
#include "apoio/Grades.h"
#include "apoio/Hospedeiro.h"
#include "desktop/Aplicacao.h"
#include "suite/desktop/grid/ColumnDialog.h"
#include "suite/desktop/grid/FilterRow.h"
#include "suite/desktop/grid/GridFooter.h"
#include "suite/desktop/grid/GridLayouts.h"
#include "suite/desktop/grid/GridPane.h"
#include "suite/desktop/grid/GroupPanel.h"
#include "suite/desktop/grid/SearchBar.h"
#include "suite/desktop/look/Text.h"
#include "suite/program/LayoutStore.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollBar>

#include <filesystem>
#include <malloc.h>
#include <unistd.h>

using suite::desktop::GridPane;

namespace {

void assentar() {
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
}

void teclar(QWidget& onde, int tecla, Qt::KeyboardModifiers com = Qt::NoModifier) {
    QKeyEvent desce(QEvent::KeyPress, tecla, com);
    QCoreApplication::sendEvent(&onde, &desce);
    assentar();
}

void mover(QWidget& onde, QEvent::Type tipo, QPoint lugar, Qt::MouseButtons botoes, Qt::KeyboardModifiers com) {
    QMouseEvent evento(tipo, lugar, onde.mapToGlobal(lugar), tipo == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                       botoes, com);
    QCoreApplication::sendEvent(&onde, &evento);
    assentar();
}

void arrastar(QWidget& onde, QPoint de, QPoint para, Qt::KeyboardModifiers com = Qt::NoModifier) {
    mover(onde, QEvent::MouseButtonPress, de, Qt::LeftButton, com);
    if (de != para)
        mover(onde, QEvent::MouseMove, para, Qt::LeftButton, com);
    mover(onde, QEvent::MouseButtonRelease, para, Qt::NoButton, com);
}

QString lerArea(const char* formato = "text/plain") {
    return QString::fromUtf8(QApplication::clipboard()->mimeData()->data(QString::fromLatin1(formato)));
}

class Grade : public testing::Test {
  protected:
    Grade() { aplicacao(); }

    void mostrar(host::TGrade& grade) {
        painel = std::make_unique<GridPane>(grade);
        painel->resize(1000, 500);
        painel->show();
        painel->activateWindow();
        painel->view().setFocus();
        assentar();
    }
    // Two establishments of three accounts each, the first of each a title.
    void mostrarSeis() {
        using B = apoio::GradeBalanco;
        const std::int64_t m = 1'000'000;
        balanco.dados.deLinhas({B::linha("3", 10, 1, "Receitas", 30 * m, 30 * m, 60 * m, true, true),
                                B::linha("3.1", 11, 1, "Pães", 10 * m, 10 * m, 20 * m, true, false),
                                B::linha("3.2", 12, 1, "Café", 20 * m, 20 * m, 0, true, false),
                                B::linha("4", 20, 2, "Despesas", 30 * m, 30 * m, 30 * m, false, true),
                                B::linha("4.1", 21, 2, "Água", 0, 0, 0, false, false),
                                B::linha("4.2", 22, 2, "Energia", 5 * m, 1250 * m, 7 * m, false, false)});
        balanco.dados.Open();
        mostrar(balanco.grade);
    }
    QAbstractItemModel& modelo() const { return *painel->view().model(); }
    int coluna(const std::string& campo) const {
        for (int i = 0; i < modelo().columnCount(); ++i)
            if (painel->columnAt(i) == campo)
                return i;
        ADD_FAILURE() << campo;
        return 0;
    }
    std::string campos() const {
        std::string todos;
        for (int i = 0; i < modelo().columnCount(); ++i)
            todos += (i == 0 ? "" : " ") + painel->columnAt(i);
        return todos;
    }
    QString texto(int linha, const std::string& campo) const {
        return modelo().index(linha, coluna(campo)).data().toString();
    }
    suite::desktop::BandHeader& cabecalho(const std::string& campo) const {
        return painel->view().headerOf(coluna(campo));
    }
    QPoint titulo(const std::string& campo) const {
        const auto& c = cabecalho(campo);
        return {c.sectionViewportPosition(coluna(campo)) + c.sectionSize(coluna(campo)) / 2,
                c.height() - c.filterHeight() - 8};
    }
    void clicarTitulo(const std::string& campo, Qt::KeyboardModifiers com = Qt::NoModifier) {
        arrastar(*cabecalho(campo).viewport(), titulo(campo), titulo(campo), com);
    }
    QLineEdit& filtro(const char* campo) const {
        return *painel->findChild<QLineEdit*>(QStringLiteral("Filtro%1").arg(QLatin1String(campo)));
    }
    QString contagem() const { return painel->findChild<QLabel*>(QStringLiteral("ContagemDeLinhas"))->text(); }
    QString total(const std::string& campo) const {
        return painel->findChild<suite::desktop::GridFooter*>()->text(coluna(campo));
    }
    QAction* acao(const QString& comeco) {
        menu = std::make_unique<QMenu>();
        painel->fillMenu(*menu);
        return acaoDe(*menu, comeco);
    }
    static QAction* acaoDe(const QMenu& onde, const QString& comeco) {
        for (auto* a : onde.actions()) {
            if (a->text().remove(QLatin1Char('&')).startsWith(comeco))
                return a;
            if (a->menu())
                if (auto* dentro = acaoDe(*a->menu(), comeco))
                    return dentro;
        }
        return nullptr;
    }

    apoio::GradeBalanco balanco;
    apoio::GradePeriodos periodos;
    std::unique_ptr<GridPane> painel;
    std::unique_ptr<QMenu> menu;
    using Posicoes = std::vector<std::uint32_t>;
};

TEST_F(Grade, CliqueNoTituloOrdenaECtrlJuntaColunas) {
    mostrarSeis();
    clicarTitulo("VLRORCADO");
    EXPECT_EQ((Posicoes{1, 2, 0, 4, 3, 5}), painel->lines()) << "inside the groups";
    clicarTitulo("VLRORCADO");
    EXPECT_EQ((Posicoes{0, 2, 1, 5, 3, 4}), painel->lines());
    clicarTitulo("VLRORCADO");
    EXPECT_EQ((Posicoes{0, 1, 2, 3, 4, 5}), painel->lines());
    clicarTitulo("RECDESP");
    clicarTitulo("NOMECONTA", Qt::ControlModifier);
    EXPECT_EQ((Posicoes{2, 1, 0, 4, 3, 5}), painel->lines());
    painel->view().setCurrentIndex(modelo().index(1, coluna("CONTA")));
    teclar(painel->view(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ((Posicoes{2, 1, 0, 5, 4, 3}), painel->lines());
    EXPECT_EQ(2U, painel->currentLine()) << "the line keeps the focus";
}

TEST_F(Grade, ColunaArrastadaFicaNaFaixaOuVaiParaOPainelDeGrupos) {
    mostrarSeis();
    painel->freeze(false);
    painel->resize(1900, 500);
    assentar();
    const auto soltar = [&](const char* de, const char* em) {
        arrastar(*cabecalho(de).viewport(), titulo(de), titulo(em) + QPoint(2, 0));
    };
    soltar("CLASSIFCONTAB", "CODIGO");
    EXPECT_TRUE(campos().starts_with("CONTA CODIGO CLASSIFCONTAB CCUSTO NOMECONTA")) << campos();
    soltar("CLASSIFCONTAB", "CONTA");
    soltar("VLRBASE", "CONTA");
    soltar("VLRBASE", "VLRORCADO");
    EXPECT_TRUE(
        campos().starts_with("CLASSIFCONTAB CONTA CODIGO CCUSTO NOMECONTA TPATUALIZBASE INDICEATBASE VLRBASE TP"))
        << campos();
    EXPECT_TRUE(painel->lines() == (Posicoes{0, 1, 2, 3, 4, 5})) << "a drag is no click";
    painel->view().setCurrentIndex(modelo().index(1, coluna("CONTA")));
    teclar(painel->view(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_TRUE(campos().starts_with("CONTA CLASSIFCONTAB CODIGO")) << campos();
    EXPECT_EQ(0, painel->view().currentIndex().column()) << "the focus goes along";
    painel->freeze(true);
    assentar();
    ASSERT_NE(&cabecalho("CONTA"), &painel->view().header());
    soltar("CONTA", "CODIGO");
    EXPECT_TRUE(campos().starts_with("CLASSIFCONTAB CODIGO CONTA")) << campos();

    auto* grupos = painel->findChild<suite::desktop::GroupPanel*>();
    auto* titulos = cabecalho("RECDESP").viewport();
    arrastar(*titulos, titulo("RECDESP"), titulos->mapFromGlobal(grupos->mapToGlobal(grupos->rect().center())));
    EXPECT_EQ(1, balanco.grade.Coluna("RECDESP").Grupo);
    EXPECT_EQ("Filial: 1 (3 linhas)", modelo().index(0, 0).data().toString().toStdString());
    EXPECT_EQ("Valor Realizado Tipo Conta: Receita (3 linhas)", modelo().index(1, 0).data().toString().toStdString());
    painel->findChild<QAbstractButton*>(QStringLiteral("GrupoFILIAL"))->click();
    EXPECT_EQ(0, balanco.grade.Coluna("RECDESP").Grupo);
    EXPECT_EQ(-1, balanco.grade.Coluna("FILIAL").Grupo);
    EXPECT_EQ("Valor Realizado Tipo Conta: Despesa (3 linhas)", modelo().index(0, 0).data().toString().toStdString());
}

TEST_F(Grade, LarguraCabeOTextoEFicaComoOUsuarioQuis) {
    mostrarSeis();
    auto& vista = painel->view();
    const int nome = coluna("NOMECONTA");
    const int justa = vista.columnWidth(nome);
    vista.setColumnWidth(nome, 333);
    painel->showColumn("RECDESP", false);
    EXPECT_EQ(333, vista.columnWidth(nome));
    painel->zoom(2);
    EXPECT_NEAR(333 * 1.21, vista.columnWidth(nome), 2);
    painel->zoom(0);
    Q_EMIT vista.header().sectionHandleDoubleClicked(nome);
    EXPECT_EQ(justa, vista.columnWidth(nome));
    balanco.dados.Close();
    balanco.encher(50);
    assentar();
    EXPECT_GT(vista.columnWidth(nome), justa) << "longer names have come";
}

TEST_F(Grade, TeclasAbremEFechamGruposEPercorrem) {
    mostrarSeis();
    auto& vista = painel->view();
    EXPECT_EQ(8, modelo().rowCount());
    EXPECT_EQ("30,00", texto(0, "VLRORCADO").toStdString()) << "titles do not count";
    EXPECT_EQ("", texto(0, "PERCORCADO").toStdString());
    vista.setCurrentIndex(modelo().index(0, 1));
    teclar(vista, Qt::Key_Return);
    EXPECT_EQ(5, modelo().rowCount());
    EXPECT_EQ(0, vista.currentIndex().row());
    EXPECT_FALSE(painel->currentLine());
    teclar(vista, Qt::Key_Plus);
    EXPECT_EQ(8, modelo().rowCount());
    teclar(vista, Qt::Key_Minus, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(2, modelo().rowCount());
    EXPECT_EQ(6U, painel->lines().size());
    balanco.grade.ExpandirTudo();
    EXPECT_EQ(8, modelo().rowCount()) << "as the window asks";
    teclar(vista, Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(modelo().index(7, modelo().columnCount() - 1), vista.currentIndex());
    EXPECT_EQ(5U, painel->currentLine());
    teclar(vista, Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(modelo().index(0, 0), vista.currentIndex());
    const int altura = vista.rowHeight(0);
    teclar(vista, Qt::Key_Equal, Qt::ControlModifier);
    EXPECT_GT(vista.rowHeight(0), altura);
    teclar(vista, Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(altura, vista.rowHeight(0));
    const QPoint seta(10, vista.rowViewportPosition(0) + 5);
    arrastar(*vista.frozen().viewport(), seta, seta);
    EXPECT_EQ(5, modelo().rowCount()) << "a click on the arrow";
}

TEST_F(Grade, FiltroMostraEnquantoSeDigita) {
    mostrarSeis();
    EXPECT_EQ("6 linhas", contagem().toStdString());
    EXPECT_EQ("1.280,00", total("VLRORCADO").toStdString());
    filtro("NOMECONTA").setText(QStringLiteral("agua"));
    EXPECT_EQ((Posicoes{4}), painel->lines());
    EXPECT_EQ("Mostrando 1 de 6 linhas", contagem().toStdString());
    filtro("NOMECONTA").clear();
    filtro("VLRORCADO").setText(QStringLiteral("10..20"));
    EXPECT_EQ((Posicoes{1, 2}), painel->lines());
    EXPECT_EQ("30,00", total("VLRORCADO").toStdString());
    EXPECT_EQ("", total("PERCORCADO").toStdString());
    teclar(filtro("VLRORCADO"), Qt::Key_Period, Qt::KeypadModifier);
    EXPECT_EQ("10..20,", filtro("VLRORCADO").text().toStdString());
    painel->findChild<QPushButton*>(QStringLiteral("LimparFiltros"))->click();
    EXPECT_EQ(6U, painel->lines().size());
    EXPECT_EQ("", filtro("VLRORCADO").text().toStdString());
    painel->hideZeros(true);
    EXPECT_EQ((Posicoes{0, 1, 2, 3, 5}), painel->lines());
    painel->findChild<QPushButton*>(QStringLiteral("LimparFiltros"))->click();
    EXPECT_EQ(6U, painel->lines().size());
    filtro("RECDESP").setText(QStringLiteral("receita"));
    painel->showColumn("RECDESP", false);
    EXPECT_EQ(6U, painel->lines().size()) << "what is out of view filters nothing";
    teclar(painel->view(), Qt::Key_L, Qt::ControlModifier);
    EXPECT_TRUE(filtro("CLASSIFCONTAB").hasFocus());
    teclar(filtro("CLASSIFCONTAB"), Qt::Key_Down);
    EXPECT_TRUE(painel->view().hasFocus());
}

TEST_F(Grade, BuscaRapidaSaltaEAbreOGrupo) {
    mostrarSeis();
    painel->expandAll(false);
    painel->search(QStringLiteral("água"));
    EXPECT_EQ(4U, painel->currentLine());
    EXPECT_EQ(coluna("NOMECONTA"), painel->view().currentIndex().column());
    painel->search(QStringLiteral("1.250,00"));
    EXPECT_EQ(5U, painel->currentLine());
    painel->search(QStringLiteral("receita"));
    const auto primeira = painel->view().currentIndex();
    teclar(painel->view(), Qt::Key_F3);
    EXPECT_NE(primeira, painel->view().currentIndex());
    teclar(painel->view(), Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(primeira, painel->view().currentIndex());
    painel->search(QStringLiteral("não há"));
    EXPECT_EQ(primeira, painel->view().currentIndex());
    const auto rotulos = painel->findChild<suite::desktop::SearchBar*>()->findChildren<QLabel*>();
    EXPECT_TRUE(std::any_of(rotulos.begin(), rotulos.end(), [](const QLabel* rotulo) {
        return rotulo->text().startsWith(QStringLiteral("Nada encontrado"));
    }));
}

TEST_F(Grade, CopiaLevaTitulosETextoComoSeVe) {
    mostrarSeis();
    auto& vista = painel->view();
    const auto marcar = [&](int deLinha, const char* de, int ateLinha, const char* ate) {
        vista.selectionModel()->select({modelo().index(deLinha, coluna(de)), modelo().index(ateLinha, coluna(ate))},
                                       QItemSelectionModel::ClearAndSelect);
    };
    marcar(0, "VLRORCADO", 2, "VLRREALIZADO");
    teclar(vista, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ("Valor Orçado\tValor Realizado\n30,00\t20,00\n30,00\t60,00\n10,00\t20,00", lerArea().toStdString());
    EXPECT_TRUE(lerArea("text/html").contains(QStringLiteral("<td align=\"right\">60,00</td>")));
    teclar(vista, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ("30,00\t20,00\n30,00\t60,00\n10,00\t20,00", lerArea().toStdString());
    marcar(2, "NOMECONTA", 2, "NOMECONTA");
    teclar(vista, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ("Pães", lerArea().toStdString()) << "one cell is itself";
    marcar(1, "CLASSIFCONTAB", 1, "CODIGO");
    teclar(vista, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ("Classificação\tConta/Tot.\tSub\n3\t10\t", lerArea().toStdString()) << "a blank cell is blank";
    balanco.dados.Close();
    using B = apoio::GradeBalanco;
    balanco.dados.deLinhas({B::linha("-3", 10, 1, "=1+1", 0, -30'000'000, 0, true, false)});
    balanco.dados.Open();
    assentar();
    marcar(1, "CLASSIFCONTAB", 1, "VLRORCADO");
    painel->copy(false);
    EXPECT_TRUE(lerArea().startsWith(QStringLiteral("'-3\t10\t\t\t'=1+1\t"))) << lerArea().toStdString();
    EXPECT_TRUE(lerArea().endsWith(QStringLiteral("\t-30,00"))) << "a number is no formula";
    balanco.dados.Close();
    mostrarSeis();
    painel->copyAll();
    EXPECT_EQ(8, lerArea().count(QLatin1Char('\n'))) << "titles, two groups and six lines";
    EXPECT_TRUE(lerArea().contains(QStringLiteral("\nFilial: 2 (3 linhas)\t")));
}

TEST_F(Grade, EscolhaDeColunasEscreveNaGradeENaoOfereceAsTecnicas) {
    mostrarSeis();
    EXPECT_EQ(nullptr, acao(QStringLiteral("CTATITULO")));
    acao(QStringLiteral("Desc.Custo"))->trigger();
    const auto descCusto = acao(QStringLiteral("Colunas"))->menu();
    EXPECT_TRUE(acaoDe(*descCusto, QStringLiteral("Desc.Custo"))->isChecked() ||
                balanco.grade.Coluna("DESCCCUSTO").Grupo == 1);
    painel->groupBy("DESCCCUSTO", false);
    acaoDe(*acao(QStringLiteral("Colunas"))->menu(), QStringLiteral("Valor Realizado Variação"))->trigger();
    EXPECT_FALSE(balanco.grade.Coluna("DELTAVLR").Visivel);

    suite::desktop::ColumnDialog dialogo(balanco.grade.Colunas(), nullptr);
    auto* lista = dialogo.findChild<QListWidget*>();
    EXPECT_EQ(19, lista->count()) << "all but the one that only the rules read";
    EXPECT_EQ("Classificação", lista->item(0)->text().toStdString());
    lista->item(0)->setCheckState(Qt::Unchecked);
    lista->setCurrentRow(1);
    dialogo.findChildren<QPushButton*>()[1]->click(); // down
    EXPECT_FALSE(dialogo.columns()[0].Visivel);
    EXPECT_EQ("CODIGO", dialogo.columns()[1].Campo);
    EXPECT_EQ("CONTA", dialogo.columns()[2].Campo);
    for (int i = 0; i < lista->count(); ++i)
        lista->item(i)->setCheckState(Qt::Unchecked);
    for (const auto* botao : dialogo.findChildren<QPushButton*>())
        if (botao->text() == QStringLiteral("OK")) {
            EXPECT_FALSE(botao->isEnabled()) << "one column must be left";
        }
    periodos.encher(2, 3);
    mostrar(periodos.grade);
    const auto* colunas = acao(QStringLiteral("Colunas"))->menu();
    int ofertas = 0;
    for (const auto* oferta : colunas->actions())
        ofertas += oferta->text().startsWith(QLatin1Char('%')) ? 1 : 0;
    EXPECT_EQ(4, ofertas) << "no percentage of a period that there is not";
    EXPECT_NE(nullptr, acaoDe(*colunas, QStringLiteral("% Fev/2024")));
}

TEST_F(Grade, LeiautesVoltamPeloMenu) {
    const auto pasta = std::filesystem::temp_directory_path() / ("orcreal-grade-" + std::to_string(::getpid()));
    suite::program::LayoutStore armazem(pasta);
    apoio::Interacao interacao;
    host::TServicos servicos;
    servicos.Interacao = &interacao;
    servicos.Leiautes = &armazem;
    const host::TInstalacaoServicos instalados(servicos);
    host::TZTDbGridDevLeiaute leiautes("Gdl", "{K}");
    leiautes.IDUsuario = [] { return 5; };
    leiautes.SetVisaoGradeLeiaute(balanco.grade);
    mostrarSeis();
    EXPECT_EQ(nullptr, acao(QStringLiteral("Padrão")));
    painel->setLayouts(leiautes);
    const auto desenho = campos();
    painel->showColumn("VLRBASE", false);
    painel->moveColumn(0, 2);
    painel->groupBy("RECDESP", true);
    const auto meu = campos();
    painel->layouts()->save("Mês");
    EXPECT_TRUE(acao(QStringLiteral("Mês"))->isChecked());
    acao(QStringLiteral("Padrão"))->trigger();
    EXPECT_EQ(desenho, campos());
    EXPECT_EQ(8, modelo().rowCount());
    acao(QStringLiteral("Mês"))->trigger();
    EXPECT_EQ(meu, campos());
    EXPECT_EQ(10, modelo().rowCount()) << "two levels of groups";
    acao(QStringLiteral("Excluir leiaute"))->trigger();
    EXPECT_EQ(desenho, campos());
    EXPECT_EQ(nullptr, acao(QStringLiteral("Mês")));
    EXPECT_TRUE(interacao.mensagens.empty());
    painel->layouts()->save("  ");
    EXPECT_EQ(std::vector<std::string>{"Informe o nome do leiaute."}, interacao.mensagens);
    std::filesystem::remove_all(pasta);
}

TEST_F(Grade, ConjuntoFechadoNaoMostraNada) {
    int avisos = 0;
    mostrar(balanco.grade);
    QObject::connect(painel.get(), &GridPane::linesChanged, [&] { ++avisos; });
    EXPECT_EQ(0, modelo().rowCount());
    EXPECT_EQ("", contagem().toStdString());
    balanco.encher(100);
    assentar();
    EXPECT_EQ(102, modelo().rowCount());
    EXPECT_EQ(1, avisos);
    painel->view().setCurrentIndex(modelo().index(3, 0));
    EXPECT_EQ(2U, painel->currentLine());
    balanco.dados.Close();
    assentar();
    EXPECT_EQ(0, modelo().rowCount());
    EXPECT_FALSE(painel->currentLine());
    EXPECT_TRUE(painel->lines().empty());
    painel.reset();
    balanco.encher(10); // nobody is left to tell
    balanco.grade.ExpandirTudo();
}

TEST_F(Grade, FormatoDadoDepoisDeAbrirVale) {
    balanco.dados.AfterOpen = [](host::TDataSet& dados) {
        dados.FieldByName("INDICEATBASE").FormatoExibicao = ",0.00 '%'";
    };
    mostrar(balanco.grade);
    balanco.encher(3);
    assentar();
    EXPECT_EQ("0,00 '%'", texto(1, "INDICEATBASE").toStdString());
}

TEST_F(Grade, IdentificacaoFicaEmVista) {
    balanco.encher(100);
    mostrar(balanco.grade);
    auto& vista = painel->view();
    EXPECT_TRUE(vista.frozen().isVisible());
    EXPECT_EQ(5, coluna("NOMECONTA") + 1);
    EXPECT_EQ(vista.columnViewportPosition(5), vista.covered());
    vista.setCurrentIndex(modelo().index(2, modelo().columnCount() - 1));
    EXPECT_GT(vista.horizontalScrollBar()->value(), 0);
    vista.setCurrentIndex(modelo().index(2, coluna("VLRBASE")));
    EXPECT_GE(vista.columnViewportPosition(coluna("VLRBASE")), vista.covered()) << "never below what stays";
    const auto rolado = vista.horizontalScrollBar()->value();
    vista.setCurrentIndex(modelo().index(2, 0));
    EXPECT_EQ(rolado, vista.horizontalScrollBar()->value()) << "it is in view already";
    vista.verticalScrollBar()->setValue(300);
    EXPECT_EQ(300, vista.frozen().verticalScrollBar()->value());
    acao(QStringLiteral("Fixar"))->trigger();
    EXPECT_FALSE(vista.frozen().isVisible());
    periodos.encher(3, 12);
    mostrar(periodos.grade);
    EXPECT_EQ(painel->view().columnViewportPosition(coluna("ANO")), painel->view().covered()) << "the marked ones";
}

TEST_F(Grade, PeriodosSomamUmSoTipoDeLinhaEDizemDeQuemEhALinhaSozinha) {
    periodos.encher(4, 2);
    mostrar(periodos.grade);
    EXPECT_EQ("", total("VAL1").toStdString());
    EXPECT_TRUE(painel->findChild<suite::desktop::GridFooter*>()->label().startsWith(QStringLiteral("Sem soma")));
    EXPECT_EQ("", texto(2, "NOMECONTA").toStdString()) << "the line above says whose it is";
    filtro("ANO").setText(QStringLiteral("R"));
    EXPECT_EQ((Posicoes{2, 5, 8, 11}), painel->lines());
    EXPECT_EQ("709,03", total("VAL1").toStdString()) << "three accounts; the title does not count";
    EXPECT_EQ("Venda de pães", texto(1, "NOMECONTA").toStdString()) << "that line is not in view";
    EXPECT_EQ("", texto(1, "SUBCONTA").toStdString()) << "a zero stays blank";
    filtro("ANO").clear();
    clicarTitulo("VAL1");
    EXPECT_EQ((Posicoes{9, 10, 11, 6, 7, 8, 3, 4, 5, 0, 1, 2}), painel->lines());
}

TEST_F(Grade, SignificadoDaCorTambemEstaEscrito) {
    balanco.grade.Significados = balanco.legenda();
    mostrarSeis();
    const auto& dados = static_cast<const suite::desktop::GridModel&>(modelo());
    EXPECT_EQ("R>", dados.sign(2).toStdString());
    EXPECT_EQ("R<", dados.sign(3).toStdString());
    EXPECT_EQ("", dados.meaning(6).toStdString()) << "an expense on target";
    EXPECT_EQ("D<", dados.sign(7).toStdString());
    EXPECT_TRUE(modelo()
                    .index(2, 0)
                    .data(Qt::ToolTipRole)
                    .toString()
                    .endsWith(QStringLiteral("Receita realizada > projetada")));
    for (const auto* widget : painel->findChildren<QLineEdit*>())
        EXPECT_FALSE(widget->accessibleName().isEmpty());
}

TEST_F(Grade, TabVaiDasOpcoesPelosFiltrosAsLinhas) {
    mostrarSeis();
    painel->moveColumn(1, 0);
    QStringList visitados;
    QWidget* onde = painel->findChild<QPushButton*>(QStringLiteral("OpcoesDaGrade"));
    for (int passos = 0; passos < 500 && visitados.size() < modelo().columnCount() + 3; ++passos) {
        onde = onde->nextInFocusChain();
        if (onde->isVisibleTo(painel.get()) && onde->isEnabled() && (onde->focusPolicy() & Qt::TabFocus) != 0)
            visitados << (onde == &painel->view() ? QStringLiteral("linhas") : onde->objectName());
    }
    QStringList esperados;
    for (int i = 0; i < modelo().columnCount(); ++i)
        esperados << QStringLiteral("Filtro") + suite::desktop::fromUtf8(painel->columnAt(i));
    esperados << QStringLiteral("linhas") << QStringLiteral("OcultarZeradas") << QStringLiteral("GrupoFILIAL");
    EXPECT_EQ("FiltroCONTA", visitados.value(0).toStdString());
    EXPECT_EQ(esperados.join(QLatin1Char(' ')).toStdString(),
              QStringList(visitados.mid(0, esperados.size())).join(QLatin1Char(' ')).toStdString());
}

// What is painted, told by its colours: each cell's ground in a dark palette is dark.
TEST_F(Grade, PaletaEscuraPintaFundoEscuro) {
    const auto antes = QApplication::palette();
    QPalette escura = antes;
    escura.setColor(QPalette::Base, QColor(0x1B1E20));
    escura.setColor(QPalette::Text, QColor(0xFCFCFC));
    QApplication::setPalette(escura);
    periodos.encher(20, 3);
    mostrar(periodos.grade);
    const auto imagem = painel->view().viewport()->grab().toImage();
    QApplication::setPalette(antes);
    const int x = painel->view().columnViewportPosition(coluna("ANO")) + 2;
    for (int linha = 1; linha < 10; ++linha)
        EXPECT_LT(imagem.pixelColor(x, painel->view().rowViewportPosition(linha) + 3).lightness(), 128) << linha;
}

TEST_F(Grade, DuzentasMilLinhasSemCopia) {
    balanco.encher(200'000);
    std::size_t bytes = 0;
    for (const auto& dados : balanco.dados.Colunas())
        bytes += dados.Bytes();
    const auto emUso = [] {
        const auto info = ::mallinfo2();
        return info.uordblks + info.hblkhd;
    };
    const auto antes = emUso();
    mostrar(balanco.grade);
    EXPECT_EQ(204'000, modelo().rowCount());
    EXPECT_LT(emUso() - antes, bytes / 2) << "indexes, no values";
    EXPECT_LT(balanco.perguntas, 10'000U) << "what is seen, and a sample for the widths";
    balanco.perguntas = 0;
    painel->view().scrollToBottom();
    assentar();
    EXPECT_GT(balanco.perguntas, 100U);
    EXPECT_LT(balanco.perguntas, 2'000U);
    balanco.perguntas = 0;
    painel->sortBy(coluna("VLRORCADO"), true, false);
    filtro("NOMECONTA").setText(QStringLiteral("forno"));
    assentar();
    EXPECT_EQ(20'000U, painel->lines().size());
    EXPECT_LT(balanco.perguntas, 4'000U) << "sorting and filtering read values, not cells";
}

// The window listens to the dataset too, and asks for all groups as soon as it opens; whose ear is the first is chance.
TEST(GradeNaTela, QuemOuveAntesPodePedirTodosOsGrupos) {
    aplicacao();
    apoio::GradeBalanco balanco;
    const auto assinatura = balanco.dados.AoMudarEstado([&] {
        if (balanco.dados.Active())
            balanco.grade.ExpandirTudo();
    });
    GridPane painel(balanco.grade);
    balanco.encher(60, 30);
    EXPECT_EQ(painel.lines().size(), 60U);
    balanco.dados.Close();
    EXPECT_TRUE(painel.lines().empty());
    balanco.encher(20, 10);
    EXPECT_EQ(painel.lines().size(), 20U);
}

} // namespace
