// The preview: pages that come while one reads, what is sought and copied, and what reaches a printer.
#include "desktop/Aplicacao.h"
#include "paper/BandPages.h"
#include "suite/desktop/preview/PageMarks.h"
#include "suite/desktop/preview/PreviewWindow.h"
#include "suite/desktop/preview/Spooler.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

namespace {

using namespace suite::desktop;

// A number of lines, in groups of a hundred.
class Linhas final : public base::TRelatorio {
  public:
    explicit Linhas(int quantas) : quantas_(quantas) {
        definicao_.Titulo = "Razão: Vendas";
        definicao_.Reguas = {{{{"Conta 00000, água"}, 1}, {{"1.234,50"}, 0}}};
    }
    const base::TDefinicaoRelatorio& Definicao() const override { return definicao_; }
    std::unique_ptr<base::TFluxoFaixas> Faixas() const override { return std::make_unique<Fluxo>(quantas_); }

  private:
    struct Fluxo final : base::TFluxoFaixas {
        explicit Fluxo(int linhas) : quantas(linhas) {}
        bool Proxima(base::TFaixa& faixa) override {
            faixa = {};
            const bool grupo = feitas % 100 == 0 && !cabecalho;
            if (feitas == quantas)
                return false;
            faixa.Especie = grupo ? base::TEspecieFaixa::CabecalhoGrupo : base::TEspecieFaixa::Detalhe;
            faixa.Nivel = 1;
            base::TElementoFaixa elemento;
            elemento.Texto = (grupo ? "Grupo " : feitas == 777 ? "Conta de Água " : "Conta ") + std::to_string(feitas);
            if (grupo)
                faixa.Marcador = elemento.Texto;
            faixa.Elementos.push_back(elemento);
            elemento.Texto = std::to_string(feitas) + ",50";
            elemento.Lugar.Coluna = 1;
            elemento.Alinhamento = base::TAlinhamento::Direita;
            faixa.Elementos.push_back(elemento);
            cabecalho = grupo;
            feitas += grupo ? 0 : 1;
            return true;
        }
        int quantas;
        int feitas = 0;
        bool cabecalho = false;
    };
    base::TDefinicaoRelatorio definicao_;
    int quantas_;
};

class Previa : public testing::Test {
  protected:
    explicit Previa(int linhas = 1000) : relatorio(linhas) {
        conteudo.caption = QStringLiteral("Visualizando");
        conteudo.document.title = relatorio.Definicao().Titulo;
        conteudo.pages = [this] { return std::make_unique<paper::BandPages>(relatorio, suite::paint::paperMeasure()); };
        janela = std::make_unique<PreviewWindow>(conteudo, nullptr);
        janela->onFailure = [this](const std::exception& e) { falha = e.what(); };
        janela->resize(900, 700);
        janela->show();
    }
    template <class T>
    T& parte(const char* nome) {
        return *janela->findChild<T*>(QString::fromLatin1(nome));
    }
    void executar(const char* nome) { parte<QAction>(nome).trigger(); }
    void esperarTodas() {
        ASSERT_TRUE(QTest::qWaitFor([&] { return !texto("QuantasPaginas").contains("preparando"); }));
    }
    QString texto(const char* nome) { return parte<QLabel>(nome).text(); }
    PageView& paginas() { return parte<PageView>("Paginas"); }

    Linhas relatorio;
    PreviewContent conteudo;
    std::unique_ptr<PreviewWindow> janela;
    std::string falha;
};

// Programs of the print service that write down what they are given.
class Impressoras {
  public:
    Impressoras() {
        programa("lpstat", "case \"$1\" in -e) printf 'laser\\njato\\n';; -d) echo 'destino padrão: jato';; esac");
        programa("lp", "[ -e '" + pasta("cheia") + "' ] && { echo 'sem papel' >&2; exit 1; }; echo \"$@\" >'" +
                           pasta("pedido") + "'; for f; do :; done; head -c 5 \"$f\" >>'" + pasta("pedido") + "'");
        ::setenv("PATH", (pasta("") + ":" + antes_).c_str(), 1);
    }
    ~Impressoras() { ::setenv("PATH", antes_.c_str(), 1); }
    std::string pasta(const char* nome) const { return pasta_.filePath(QString::fromLatin1(nome)).toStdString(); }
    std::string pedido() const {
        std::ifstream entrada(pasta("pedido"));
        return {std::istreambuf_iterator<char>(entrada), {}};
    }

  private:
    void programa(const char* nome, const std::string& texto) {
        const auto arquivo = pasta(nome);
        std::ofstream(arquivo) << "#!/bin/sh\n" << texto << "\n";
        std::filesystem::permissions(arquivo, std::filesystem::perms::owner_all);
    }
    QTemporaryDir pasta_;
    std::string antes_ = std::getenv("PATH");
};

void comODialogo(const std::function<void(QDialog&)>& passo, const std::function<void()>& ato) {
    QTimer::singleShot(50, [&] {
        auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialogo);
        passo(*dialogo);
    });
    ato();
}

TEST_F(Previa, AbreNaPrimeiraEnquantoAsOutrasChegam) {
    EXPECT_TRUE(texto("QuantasPaginas").contains("preparando"));
    EXPECT_EQ(0, paginas().currentPage());
    esperarTodas();
    const auto quantas = parte<QSpinBox>("EdtPagina").maximum();
    EXPECT_GT(quantas, 10);
    EXPECT_EQ(QStringLiteral("de %1").arg(quantas), texto("QuantasPaginas"));
    QTest::keyClick(&paginas(), Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(quantas - 1, paginas().currentPage());
    EXPECT_EQ(quantas, parte<QSpinBox>("EdtPagina").value());
    parte<QSpinBox>("EdtPagina").setValue(3);
    EXPECT_EQ(2, paginas().currentPage());
    const auto antes = paginas().zoom();
    QTest::keyClick(&paginas(), Qt::Key_Plus);
    EXPECT_GT(paginas().zoom(), antes);
    EXPECT_EQ(2, paginas().currentPage()) << "what is read stays in view";
    auto& indice = parte<QTreeWidget>("Indice");
    ASSERT_EQ(10, indice.topLevelItemCount());
    Q_EMIT indice.itemClicked(indice.topLevelItem(9), 0);
    EXPECT_GT(paginas().currentPage(), 10);
}

TEST_F(Previa, LocalizaEmTodasAsPaginasEmQualquerGrafia) {
    esperarTodas();
    parte<QLineEdit>("EdtLocalizar").setText(QStringLiteral("AGUA"));
    executar("achar");
    ASSERT_TRUE(paginas().marked());
    EXPECT_EQ("Conta de Água 777", paginas().markedText().toStdString());
    EXPECT_EQ(paginas().marked()->page, paginas().currentPage());
    executar("achar"); // around to itself
    EXPECT_EQ("Conta de Água 777", paginas().markedText().toStdString());
    QTest::keyClick(&paginas(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ("Conta de Água 777", QApplication::clipboard()->text().toStdString());
    parte<QLineEdit>("EdtLocalizar").setText(QStringLiteral("conta 1"));
    executar("acharAntes");
    EXPECT_EQ("Conta 199", paginas().markedText().toStdString()) << "backwards from 777";
    parte<QLineEdit>("EdtLocalizar").setText(QStringLiteral("não há"));
    executar("achar");
    EXPECT_EQ("Nada encontrado.", texto("Aviso").toStdString());
}

TEST_F(Previa, ImprimeAsPaginasPedidasOuDizPorQueNao) {
    esperarTodas();
    {
        const Impressoras impressoras;
        comODialogo(
            [](QDialog& dialogo) {
                EXPECT_EQ("jato", dialogo.findChild<QComboBox*>()->currentText().toStdString()) << "the usual one";
                dialogo.findChild<QSpinBox*>(QStringLiteral("EdtPaginaInicial"))->setValue(2);
                dialogo.findChild<QSpinBox*>(QStringLiteral("EdtPaginaFinal"))->setValue(4);
                dialogo.accept();
            },
            [this] { executar("imprimir"); });
        EXPECT_EQ("", falha);
        EXPECT_EQ(0U, impressoras.pedido().find("-d jato -n 1 -t Razão: Vendas -P 2-4 -- ")) << impressoras.pedido();
        EXPECT_NE(std::string::npos, impressoras.pedido().find("%PDF-"));
        std::ofstream(impressoras.pasta("cheia"));
        comODialogo([](QDialog& dialogo) { dialogo.accept(); }, [this] { executar("imprimir"); });
        EXPECT_EQ("A impressora jato não recebeu o relatório: sem papel", falha);
    }
    ::setenv("PATH", "/nenhuma", 1);
    executar("imprimir");
    ::setenv("PATH", "/usr/local/bin:/usr/bin:/bin", 1);
    EXPECT_EQ(0U, falha.find("Nenhuma impressora foi encontrada")) << falha;
}

} // namespace
