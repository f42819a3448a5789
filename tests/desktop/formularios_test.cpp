// Dialogs on screen: each kind of control follows its model and gives back what the user does, fields are left once and
// in order, and a whole selection is made with the keyboard alone.
#include "base/Falhas.h"
#include "desktop/SelecaoNaTela.h"
#include "host/Dialogos.h"
#include "host/Utilidades.h"
#include "suite/desktop/form/DateEdit.h"
#include "suite/desktop/form/LookupEdit.h"
#include "suite/desktop/look/ElidedLabel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

#include <algorithm>
#include <functional>

namespace {

using Lista = std::vector<std::string>;

// One control of each kind that needs no database, in a form that has no layout of its own.
class UmDeCada : public host::TFormZTTandorPadraoResult {
  public:
    UmDeCada() : TFormZTTandorPadraoResult("UmDeCada", "Um de cada") {
        LblData.SetCaption("Data:");
        LblTipo.SetCaption("Tipo:");
        PnlOpcoes.SetCaption("Opções");
        ChkUma.SetCaption("Uma");
        ActContar.SetCaption("&Contar");
        CbTipo.SetItens({"1 - Um", "2 - Dois", "3 - Três"}, {"1", "2", "3"});
        Registrar({&LblData, &DeData, &LblTipo, &CbTipo, &PnlOpcoes, &ChkUma, &LblCor, &LblTexto, &ActContar});
    }
    void ActOKExecute(host::TControle*) override { Fechar(1); }
    void ValidarCampos(host::TControle* controle) override {
        if (controle)
            saidas.push_back(controle->Nome());
    }
    Lista saidas;
    int contado = 0;
    host::TLabel LblData{"LblData"};
    host::TZTDateEdit DeData{"DeData"};
    host::TLabel LblTipo{"LblTipo"};
    host::TZTComboBox CbTipo{"CbTipo"};
    host::TPanel PnlOpcoes{"PnlOpcoes"};
    host::TZTCheckBox ChkUma{"ChkUma"};
    host::TLabelColorido LblCor{"LblCor", 0xFF0000, 0xFF0000};
    host::TLabel LblTexto{"LblTexto"};
    host::TAction ActContar{"ActContar", [this] { ++contado; }};
};

class NaTela : public testing::Test {
  protected:
    ~NaTela() override { janela->close(); }
    template <class TWidget>
    TWidget& widget(const char* nome) {
        return dynamic_cast<TWidget&>(*janela->binding().widget(nome));
    }
    void tecla(const char* nome, Qt::Key qual, Qt::KeyboardModifiers com = Qt::NoModifier) {
        QTest::keyClick(janela->binding().widget(nome), qual, com);
    }
    void mostrar() {
        janela->show();
        janela->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(janela.get()));
    }
    QApplication& app = aplicacao();
    struct SemDono : apoio::Interacao {
        void MostrarModal(host::TFormZTTandorPadraoResult&) override {}
    } interacao;
    host::TServicos servicos{.Interacao = &interacao};
    host::TInstalacaoServicos instalados{servicos};
    UmDeCada form;
    std::unique_ptr<suite::desktop::DialogWindow> janela =
        std::make_unique<suite::desktop::DialogWindow>(form, nullptr);
};

} // namespace

TEST_F(NaTela, CadaControleSegueEDevolve) {
    form.ShowModal(); // the state of a shown form; the window stands beside it
    mostrar();
    EXPECT_TRUE(janela->binding().unbound().empty());

    auto& caixa = widget<QCheckBox>("ChkUma");
    int cliques = 0;
    form.ChkUma.OnClick = [&] {
        ++cliques;
        if (cliques > 1)
            form.ChkUma.SetChecked(true); // a rule that keeps it on
    };
    QTest::mouseClick(&caixa, Qt::LeftButton, {}, {5, caixa.height() / 2});
    EXPECT_TRUE(form.ChkUma.Checked());
    QTest::keyClick(&caixa, Qt::Key_Space);
    EXPECT_TRUE(caixa.isChecked()) << "the rule has the last word on screen too";
    form.ChkUma.OnClick = nullptr;
    form.ChkUma.SetChecked(false);
    form.ChkUma.SetCaption("Outra");
    EXPECT_FALSE(caixa.isChecked());
    EXPECT_EQ("Outra", caixa.text());

    auto& lista = widget<QComboBox>("CbTipo");
    int mudancas = 0;
    form.CbTipo.OnChange = [&] { ++mudancas; };
    lista.setFocus();
    QTest::keyClicks(&lista, "3");
    EXPECT_EQ("3", form.CbTipo.GetValorSelecionado());
    tecla("CbTipo", Qt::Key_Up);
    EXPECT_EQ("2", form.CbTipo.GetValorSelecionado());
    EXPECT_EQ(2, mudancas);
    form.CbTipo.SetItens({"A", "B"}, {"a", "b"});
    form.CbTipo.SetValorSelecionado("b");
    EXPECT_EQ(2, lista.count());
    EXPECT_EQ("B", lista.currentText());
    form.CbTipo.SetItemIndex(-1);
    EXPECT_EQ(-1, lista.currentIndex());

    auto& botao = widget<QPushButton>("ActContar");
    QTest::mouseClick(&botao, Qt::LeftButton);
    EXPECT_EQ(1, form.contado);
    form.ActContar.SetEnabled(false);
    QTest::mouseClick(&botao, Qt::LeftButton);
    EXPECT_EQ(1, form.contado);

    auto& rotulo = widget<QLabel>("LblData");
    EXPECT_EQ(&widget<QWidget>("DeData"), rotulo.buddy());
    form.DeData.SetEnabled(false);
    EXPECT_FALSE(rotulo.isEnabled());
    form.LblData.SetCaption("Dia:\rhoje");
    EXPECT_EQ("Dia:\nhoje", rotulo.text());
    EXPECT_FALSE(rotulo.isEnabled()) << "its own change does not enable it";
    form.CbTipo.SetVisible(false);
    EXPECT_FALSE(lista.isVisible());
    form.LblTexto.SetCaption("Receita");
    EXPECT_EQ("Data", widget<QWidget>("DeData").accessibleName());
    auto& cor = widget<QLabel>("LblCor");
    const auto imagem = cor.grab().toImage();
    EXPECT_EQ(QColor(Qt::red), imagem.pixelColor(cor.fontMetrics().height() / 2, imagem.height() / 2));
}

TEST_F(NaTela, FalhasESilenciosDasRegras) {
    form.ShowModal();
    mostrar();
    Lista falhas;
    janela->binding().onFailure = [&](const std::exception& falha) { falhas.emplace_back(falha.what()); };
    auto& caixa = widget<QCheckBox>("ChkUma");
    form.ChkUma.OnClick = [] { throw base::TFalha("O banco caiu."); };
    caixa.click();
    form.ChkUma.OnClick = [] { throw base::Abort(); };
    caixa.click();
    EXPECT_EQ(Lista{"O banco caiu."}, falhas) << "an Abort has told the user already";
    janela.reset();
    form.ChkUma.OnClick = nullptr;
    form.ChkUma.SetChecked(!form.ChkUma.Checked()); // must not reach the widgets that are gone
    form.CbTipo.SetItens({"X"}, {"x"});
    janela = std::make_unique<suite::desktop::DialogWindow>(form, nullptr);
    EXPECT_EQ("X", widget<QComboBox>("CbTipo").currentText()) << "a new window shows the state of the form";
}

TEST_F(NaTela, DatasSeDigitamSoComAlgarismos) {
    form.ShowModal();
    mostrar();
    auto& data = widget<suite::desktop::DateEdit>("DeData");
    const auto digitar = [&](const char* texto) {
        data.setFocus();
        data.selectAll();
        QTest::keyClicks(&data, texto);
        return form.DeData.Texto();
    };
    EXPECT_EQ("01/01/2024", digitar("01012024"));
    EXPECT_EQ("31/12/    ", digitar("3112")) << "as typed";
    EXPECT_EQ("29/02/24  ", digitar("290224"));
    tecla("DeData", Qt::Key_Tab);
    EXPECT_EQ("29/02/2024", form.DeData.Texto()) << "written out when it is left";
    EXPECT_EQ(Lista{"DeData"}, form.saidas);
    const std::tuple<Qt::Key, Qt::KeyboardModifiers, const char*> teclas[] = {
        {Qt::Key_PageDown, Qt::NoModifier, "31/03/2024"},     {Qt::Key_PageUp, Qt::NoModifier, "29/02/2024"},
        {Qt::Key_PageUp, Qt::ControlModifier, "28/02/2023"},  {Qt::Key_Plus, Qt::NoModifier, "01/03/2023"},
        {Qt::Key_Minus, Qt::NoModifier, "28/02/2023"},        {Qt::Key_Home, Qt::ControlModifier, "01/02/2023"},
        {Qt::Key_PageDown, Qt::NoModifier, "01/03/2023"},     {Qt::Key_End, Qt::ControlModifier, "31/03/2023"},
        {Qt::Key_PageDown, Qt::ControlModifier, "31/03/2024"}};
    for (const auto& [qual, com, esperado] : teclas) {
        tecla("DeData", qual, com);
        EXPECT_EQ(esperado, form.DeData.Texto());
    }
    data.selectAll();
    tecla("DeData", Qt::Key_Delete);
    EXPECT_TRUE(form.DeData.EmBranco());
    EXPECT_EQ("31/02/2024", digitar("31022024")) << "a wrong date stays for the rules to refuse";
    tecla("DeData", Qt::Key_Tab);
    EXPECT_EQ("31/02/2024", form.DeData.Texto());
    form.DeData.SetDate(*base::TDataHora::De(2025, 5, 1));
    EXPECT_EQ("01/05/2025", data.shown().toStdString());

    tecla("DeData", Qt::Key_F4);
    auto* calendario = QApplication::activePopupWidget();
    ASSERT_TRUE(calendario);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(QApplication::activePopupWidget());
    EXPECT_EQ("02/05/2025", form.DeData.Texto());

    const QDate hoje(2026, 6, 15);
    using suite::desktop::dateOf;
    EXPECT_EQ(QDate(2024, 2, 1), dateOf("1 /2 /24  ", hoje));
    EXPECT_EQ(QDate(1999, 12, 31), dateOf("31/12/99  ", hoje));
    EXPECT_FALSE(dateOf("31/12/202 ", hoje).isValid());
    EXPECT_FALSE(dateOf("  /  /    ", hoje).isValid());
}

TEST_F(NaTela, CadaCampoEDeixadoUmaVez) {
    form.ShowModal();
    mostrar();
    widget<QWidget>("DeData").setFocus();
    tecla("DeData", Qt::Key_Return);
    tecla("CbTipo", Qt::Key_Tab);
    tecla("ChkUma", Qt::Key_Backtab);
    EXPECT_EQ((Lista{"DeData", "CbTipo", "ChkUma"}), form.saidas);
    EXPECT_TRUE(widget<QWidget>("CbTipo").hasFocus());
    QTest::mouseClick(&widget<QWidget>("DeData"), Qt::LeftButton);
    EXPECT_EQ("CbTipo", form.saidas.back());
    widget<QWidget>("ChkUma").setFocus(); // by other means than key and mouse
    EXPECT_EQ("DeData", form.saidas.back());
    widget<QComboBox>("CbTipo").setFocus();
    const auto antes = form.saidas.size();
    widget<QComboBox>("CbTipo").showPopup();
    widget<QComboBox>("CbTipo").hidePopup();
    QFocusEvent outraJanela(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(&widget<QWidget>("CbTipo"), &outraJanela);
    EXPECT_EQ(antes, form.saidas.size()) << "neither a popup nor another window leaves a field";
    tecla("CbTipo", Qt::Key_Down);
    EXPECT_EQ("2", form.CbTipo.GetValorSelecionado()) << "down belongs to the list";
    tecla("CbTipo", Qt::Key_Escape);
    EXPECT_FALSE(form.Aberto());
    EXPECT_EQ(antes, form.saidas.size()) << "giving up leaves no field";
}

TEST_F(NaTela, EnquantoUmaOperacaoCorreNadaMaisComeca) {
    form.ShowModal();
    mostrar();
    form.ChkUma.OnClick = [&] {
        QTest::mouseClick(janela->binding().widget("ActContar"), Qt::LeftButton);
        tecla("DeData", Qt::Key_Escape);
        janela->close();
        janela->binding().focus(form.CbTipo);
        EXPECT_FALSE(widget<QWidget>("CbTipo").hasFocus());
    };
    widget<QCheckBox>("ChkUma").click();
    EXPECT_EQ(0, form.contado);
    EXPECT_TRUE(form.Aberto());
    EXPECT_TRUE(widget<QWidget>("CbTipo").hasFocus()) << "the focus goes where it was asked for, at the end";
    janela->close();
    EXPECT_FALSE(form.Aberto());
    EXPECT_EQ(host::TFormZTTandorPadraoResult::ResultadoSair, form.ModalResult());
}

TEST(SelecaoNaTela, TodosOsControlesTemLugarNomeEVez) {
    SelecaoNaTela tela;
    EXPECT_EQ((Lista{"ActCancelar", "BtnCancelar"}), tela.janela->binding().unbound()) << "nothing is behind them";
    const auto caminho = [&](const char* visualizar, const char* modo) {
        Lista vistos;
        tela.mostrar({[&] {
            tela.widget<QWidget>("DeDataIni").setFocus();
            tela.digitar("01012024");
            tela.teclar(Qt::Key_Tab);
            tela.digitar("30062024");
            tela.teclar(Qt::Key_Tab);
            tela.digitar(visualizar);
            tela.teclar(Qt::Key_Tab);
            tela.digitar(modo);
            do {
                vistos.push_back(tela.foco());
                tela.teclar(Qt::Key_Tab);
            } while (tela.foco() != "LkpEmpresa" && vistos.size() < 60);
            for (const auto* controle : tela.form->Controles()) {
                if (!controle->Visible() || controle->Nome() == "LkpPesquisaPerOrcConsulta")
                    continue;
                auto& widget = tela.widget<QWidget>(controle->Nome().c_str());
                const QRect lugar(widget.mapTo(tela.janela.get(), QPoint()), widget.size());
                EXPECT_TRUE(tela.janela->rect().contains(lugar)) << controle->Nome();
                EXPECT_GE(widget.width(), std::min({widget.sizeHint().width(), widget.maximumWidth(), 400}))
                    << controle->Nome() << " is cut";
                EXPECT_NE("", widget.accessibleName().toStdString()) << controle->Nome();
            }
        }});
        return vistos;
    };
    // What is enabled, in the order of the form, the search of periods and the buttons last.
    const auto esperado = [&] {
        Lista nomes;
        bool modo = false;
        for (const auto* controle : tela.form->Controles()) {
            modo = modo || controle->Nome() == "CbDetalharSelecao";
            const bool entrada = !dynamic_cast<const host::TLabel*>(controle) &&
                                 !dynamic_cast<const host::TPanel*>(controle) &&
                                 !dynamic_cast<const host::TAction*>(controle);
            if (modo && entrada && controle->PodeReceberFoco())
                nomes.push_back(controle->Nome());
        }
        nomes.insert(nomes.end(), {"actOK", "actSair"});
        return nomes;
    };
    const auto balanco = caminho("1", "3");
    EXPECT_EQ(esperado(), balanco);
    EXPECT_GT(balanco.size(), 10U);
    const auto matriz = caminho("2", "4");
    EXPECT_EQ(esperado(), matriz);
    EXPECT_EQ(1, std::count(matriz.begin(), matriz.end(), "LkpUsuarioAtrib")) << testing::PrintToString(matriz);
    const auto tamanho = tela.janela->minimumSizeHint().expandedTo(tela.janela->size());
    EXPECT_LE(tamanho.width(), 1280);
    EXPECT_LE(tamanho.height(), 680) << "with the frame of a window, 720";
    EXPECT_TRUE(tela.interacao.mensagens.empty());
}

TEST(SelecaoNaTela, SoComOTeclado) {
    SelecaoNaTela tela;
    const auto enter = [] { SelecaoNaTela::teclar(Qt::Key_Return); };
    tela.mostrar({
        [&] { tela.teclar(Qt::Key_F11); },
        [&] { tela.teclar(Qt::Key_Down); }, // the second projection
        enter,
        [&] {
            EXPECT_EQ("DeDataIni", tela.foco());
            EXPECT_EQ("01/", tela.widget<suite::desktop::DateEdit>("DeDataIni").shown().left(3).toStdString());
            tela.digitar("010124");
            enter();
            tela.digitar("31032024");
            enter();
            tela.digitar("2");
            enter();
            EXPECT_EQ("CbDetalharSelecao", tela.foco());
            tela.digitar("3");
            enter();
            EXPECT_EQ("LkpRelatorioDemonstConfig", tela.foco()) << "the first that the mode has enabled";
            tela.digitar("1");
            enter();
            EXPECT_EQ("DEMONSTRAÇÃO DO RESULTADO DO EXERCÍCIO",
                      tela.widget<suite::desktop::LookupEdit>("LkpRelatorioDemonstConfig").description().toStdString());
            tela.teclar(Qt::Key_F4);
        },
        [&] { tela.teclar(Qt::Key_Space); },
        [&] { tela.teclar(Qt::Key_Down); },
        [&] { tela.teclar(Qt::Key_Space); },
        enter,
        [&] {
            EXPECT_EQ("LkpTotalizadorDemonstConfig", tela.foco());
            while (tela.foco() != "CbCenario" && !tela.foco().empty())
                enter();
            tela.digitar("1");
            enter();
        },
    });
    EXPECT_EQ(Lista{}, tela.interacao.falhas);
    EXPECT_EQ(Lista{}, tela.interacao.mensagens);
    const auto& dm = *tela.dm;
    EXPECT_FALSE(tela.form->Cancelou()) << "Enter on the last field confirms";
    EXPECT_EQ("01/01/2024", dm.FDataInicio.Texto());
    EXPECT_EQ("31/03/2024", dm.FDataFim.Texto());
    EXPECT_FALSE(dm.FImprimirOrcamentariaBal);
    EXPECT_EQ(3, dm.FDetalharSelecao);
    EXPECT_EQ("DEMONSTRAÇÃO DO RESULTADO DO EXERCÍCIO", dm.FDescricaoRel);
    EXPECT_NE(std::string::npos, dm.FIDsTotalizadores.find("\rOR ")) << "two marked";
    EXPECT_EQ(dm.FIDsTotalizadores.find("\rOR "), dm.FIDsTotalizadores.rfind("\rOR "));
    EXPECT_EQ(1, dm.FCenario);
    EXPECT_TRUE(dm.CdsMostraCtbOrcMensal.Active());
}

TEST(SelecaoNaTela, RecusaUmaVezEVoltaAoCampo) {
    SelecaoNaTela tela;
    // A message is a window that takes the focus and gives it back.
    QDialog aviso(tela.janela.get());
    tela.interacao.aoMostrarMensagem = [&] {
        QTimer::singleShot(20, &aviso, &QDialog::accept);
        aviso.exec();
        tela.janela->activateWindow();
        EXPECT_TRUE(QTest::qWaitFor([&] { return tela.foco() != ""; }));
    };
    auto& mensagens = tela.interacao.mensagens;
    const Lista uma{"A data inicial deve ser o primeiro dia do mês. Verifique."};
    tela.mostrar({[&] {
        const auto recusada = [&](const std::function<void()>& saida, const char* como) {
            mensagens.clear();
            tela.widget<QWidget>("DeDataIni").setFocus();
            tela.widget<QLineEdit>("DeDataIni").selectAll();
            tela.digitar("02012024");
            saida();
            QTest::qWait(1);
            EXPECT_EQ(uma, mensagens) << como;
            EXPECT_EQ("DeDataIni", tela.foco()) << como;
        };
        recusada([&] { tela.teclar(Qt::Key_Tab); }, "Tab");
        recusada([&] { tela.teclar(Qt::Key_Return); }, "Enter");
        recusada([&] { QTest::mouseClick(tela.janela->binding().widget("CbCenario"), Qt::LeftButton); }, "mouse");
        recusada([&] { QTest::mouseClick(tela.janela->binding().widget("actOK"), Qt::LeftButton); }, "button");
        recusada([&] { tela.widget<QWidget>("CbCenario").setFocus(Qt::ShortcutFocusReason); }, "shortcut");
        EXPECT_TRUE(tela.form->Aberto());
        mensagens.clear();
        tela.digitar("02");
        QTest::mouseClick(tela.janela->binding().widget("actSair"), Qt::LeftButton);
        EXPECT_FALSE(tela.form->Aberto());
    }});
    EXPECT_EQ(Lista{}, mensagens) << "leaving the dialog validates nothing";
    EXPECT_TRUE(tela.form->Cancelou());
    tela.mostrar({[&] {
        EXPECT_EQ("LkpEmpresa", tela.foco()) << "shown again, it begins where the form says";
        EXPECT_EQ("02/  /    ", tela.widget<suite::desktop::DateEdit>("DeDataIni").shown().toStdString());
        tela.janela->close();
    }});
    EXPECT_EQ(Lista{}, mensagens);
}

TEST(SelecaoNaTela, CodigoDesconhecidoECampoQueAindaVaiSerHabilitado) {
    SelecaoNaTela tela;
    tela.mostrar({[&] {
        tela.widget<QWidget>("DeDataIni").setFocus();
        tela.digitar("01012024");
        tela.teclar(Qt::Key_Tab);
        tela.digitar("30062024");
        tela.teclar(Qt::Key_Tab);
        tela.teclar(Qt::Key_Tab);
        EXPECT_EQ("CbDetalharSelecao", tela.foco());
        auto& centros = tela.widget<suite::desktop::LookupEdit>("LkpCentroCusto");
        EXPECT_FALSE(centros.isEnabled());
        QTest::mouseClick(&centros.code(), Qt::LeftButton);
        EXPECT_EQ("LkpCentroCusto", tela.foco()) << "leaving the mode for it has enabled it";
        tela.digitar("999");
        tela.teclar(Qt::Key_Tab);
        EXPECT_EQ(Lista{"Registro não encontrado!"}, tela.interacao.mensagens);
        EXPECT_EQ("LkpCentroCusto", tela.foco());
        EXPECT_EQ("999", centros.code().selectedText().toStdString());
        tela.teclar(Qt::Key_Tab);
        EXPECT_EQ("LkpContas", tela.foco()) << "he may go on all the same";
        EXPECT_EQ(1U, tela.interacao.mensagens.size());
        centros.code().setFocus();
        centros.code().selectAll();
        tela.digitar("101");
        tela.teclar(Qt::Key_Tab);
        EXPECT_GT(centros.lookup().GetID(), 0);
        EXPECT_EQ(centros.lookup().Texto(), centros.description().toStdString());
        EXPECT_NE("", centros.description().toStdString());
        centros.code().setFocus();
        centros.code().clear();
        tela.teclar(Qt::Key_Delete);
        EXPECT_EQ("TODOS OS CENTRO DE CUSTOS", centros.description().toStdString());
    }});
}

TEST(SelecaoNaTela, PesquisaFiltraMarcaEConservaAsMarcas) {
    SelecaoNaTela tela;
    const auto emVista = [] { return QApplication::activeModalWidget(); };
    const auto contagem = [&] { return emVista()->findChild<QLabel*>("Contagem")->text().toStdString(); };
    auto& empresa = tela.widget<suite::desktop::LookupEdit>("LkpEmpresa");
    const auto marcados = [&] { return empresa.lookup().GetResultSetMultiSelecao().RecordCount(); };
    tela.mostrar({
        [&] { tela.teclar(Qt::Key_F4); },
        [&] {
            EXPECT_EQ("9 registros, 0 marcados", contagem());
            tela.digitar("cedro");
            tela.teclar(Qt::Key_Space);
            tela.digitar("dourado INDUSTRIA"); // accents and case do not matter, and a space is text here
            auto& tabela = *emVista()->findChild<QTableView*>("Registros");
            EXPECT_GT(9, tabela.model()->rowCount());
            EXPECT_LT(0, tabela.model()->rowCount());
            tela.teclar(Qt::Key_Space, Qt::ControlModifier);
            tela.teclar(Qt::Key_Down);
            EXPECT_TRUE(tabela.hasFocus());
            tela.teclar(Qt::Key_Space);
            tela.teclar(Qt::Key_Escape);
        },
        [&] {
            EXPECT_FALSE(empresa.lookup().GetResultSetMultiSelecao().Active()) << "Esc changes nothing";
            EXPECT_EQ("LkpEmpresa", tela.foco());
            tela.teclar(Qt::Key_Down, Qt::AltModifier);
        },
        [&] {
            tela.teclar(Qt::Key_A, Qt::ControlModifier);
            EXPECT_EQ("9 registros, 9 marcados", contagem());
            tela.teclar(Qt::Key_Space);
            tela.teclar(Qt::Key_Return);
        },
        [&] {
            EXPECT_EQ(8U, marcados());
            EXPECT_EQ("Vários registros selecionados.", empresa.description().toStdString());
            tela.teclar(Qt::Key_F4);
        },
        [&] {
            EXPECT_EQ("9 registros, 8 marcados", contagem()) << "marked before come in marked";
            tela.digitar("matriz");
            for (auto* botao : emVista()->findChildren<QPushButton*>())
                if (botao->text() == "&Desmarcar todos")
                    botao->click();
            tela.teclar(Qt::Key_Return);
        },
        [&] {
            EXPECT_LT(0U, marcados());
            EXPECT_GT(8U, marcados()) << "unmarked what the filter showed, and nothing else";
            tela.teclar(Qt::Key_F11);
        },
        [&] {
            tela.digitar("nada disso");
            EXPECT_EQ(0U, contagem().find("0 de "));
            tela.teclar(Qt::Key_Return);
            EXPECT_NE(tela.janela.get(), emVista()) << "there is nothing to pick";
            tela.teclar(Qt::Key_Escape);
        },
    });
    EXPECT_EQ(Lista{}, tela.interacao.falhas);
}
