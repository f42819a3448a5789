// Statements run aside: the window lives while the module waits.
#include "apoio/Bases.h"
#include "base/Falhas.h"
#include "desktop/Aplicacao.h"
#include "host/DataSet.h"
#include "suite/desktop/shell/AsideConnection.h"

#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QPushButton>
#include <QTimer>

#include <thread>

namespace {

using namespace std::chrono_literals;
using base::TFalhaBanco;
using base::TTipoFalhaBanco;
using suite::desktop::Aside;
using suite::desktop::AsideConnection;

constexpr const char* Longa =
    "EXECUTE BLOCK RETURNS (N BIGINT) AS BEGIN N = 0; WHILE (N < 200000000) DO N = N + 1; SUSPEND; END";
constexpr const char* Uma = "SELECT COUNT(*) AS N FROM SC00_EMPRESA";

AsideConnection::Inner ligar(const apoio::Copia& copia) {
    const std::shared_ptr<suite::firebird::Connection> conexao = copia.conectar();
    return {conexao, [conexao] { conexao->attachment().cancel(); },
            [conexao] { conexao->attachment().clearPendingCancel(); }};
}

std::int64_t contar(host::TSQLConnection& conexao, const char* texto = Uma) {
    host::TZTSQLQuery consulta(conexao, "contagem");
    consulta.SQL = texto;
    consulta.Open();
    return consulta.GetInt64FieldValue("N");
}

// Turns of the event loop while the deed runs.
int voltasDurante(const std::function<void()>& ato) {
    int voltas = 0;
    QTimer relogio;
    QObject::connect(&relogio, &QTimer::timeout, [&] { ++voltas; });
    relogio.start(20);
    ato();
    return voltas;
}

// A connection whose calls take a while and cannot be cancelled.
class Surda : public host::TZTConnection, public host::TSQLConnection {
  public:
    std::unique_ptr<host::TZTTransacao> IniciarTransacao() override { return nullptr; }
    std::unique_ptr<host::TZTTransacao> IniciarTransacaoSomenteLeitura() override { return nullptr; }
    void FinalizarTransacao(host::TZTTransacao&) override {}
    void CancelarTransacao(host::TZTTransacao&) override {}
    host::TResultStatus ExecutouSQL(std::span<const host::TInstrucao>, bool) override { return {}; }
    std::vector<std::string> AplicarAlteracoesNoBD(std::span<host::TZTClientDataSet* const>, bool) override {
        return {};
    }
    host::TSQLConnection& GetSQLConnection() override { return *this; }
    std::int64_t BuscarProximoID(std::string_view) override { return 1; }
    std::unique_ptr<host::TCursor> AbrirCursor(const host::TInstrucao&) override {
        std::this_thread::sleep_for(250ms);
        return nullptr;
    }
    void ExecuteDirect(const std::string&) override { std::this_thread::sleep_for(250ms); }
};

class Lado : public testing::Test {
  protected:
    QApplication& unica = aplicacao();
    Aside lado;
};

class LadoNoBanco : public Lado {
  protected:
    apoio::Copia copia{apoio::Base::Demo};
    AsideConnection conexao{lado, ligar(copia)};
};

} // namespace

TEST_F(LadoNoBanco, JanelaViveDuranteUmaInstrucaoLongaECancelarAEncerra) {
    QTimer::singleShot(700, [this] { conexao.cancel(); });
    const int voltas = voltasDurante([this] {
        try {
            contar(conexao, Longa);
            FAIL() << "nothing ended it";
        } catch (const TFalhaBanco& falha) {
            EXPECT_EQ(TTipoFalhaBanco::Cancelado, falha.Tipo());
            EXPECT_EQ("HY008", falha.Estado());
        }
    });
    EXPECT_GT(voltas, 5);
    EXPECT_FALSE(lado.running());
    EXPECT_LT(0, contar(conexao)) << "the next statement is not hit";
    conexao.cancel(); // idle: nothing
    EXPECT_LT(0, contar(conexao));
}

TEST_F(LadoNoBanco, FalhaChegaComSeuTipoEValorChegaInteiro) {
    try {
        contar(conexao, "SELECT N FROM NAO_EXISTE");
        FAIL();
    } catch (const TFalhaBanco& falha) {
        EXPECT_EQ(TTipoFalhaBanco::Comando, falha.Tipo());
        EXPECT_EQ("contagem", falha.Instrucao());
    }
    EXPECT_THROW(lado.run([] { throw base::Abort(); }), base::Abort);
    EXPECT_THROW(lado.run([]() -> int { throw std::out_of_range("x"); }), std::out_of_range);
    EXPECT_EQ("feito", *lado.run([] { return std::make_unique<std::string>("feito"); }));
    EXPECT_THROW(conexao.ExecuteDirect("DELETE FROM SC00_EMPRESA"), base::TFalha) << "no open transaction";

    const auto chave = conexao.BuscarProximoID("CO01_CTBORCADAVLR");
    EXPECT_EQ(chave + 1, conexao.BuscarProximoID("CO01_CTBORCADAVLR"));
    EXPECT_EQ(5000, contar(conexao, "EXECUTE BLOCK RETURNS (N INTEGER) AS BEGIN N = 5000; WHILE (N > 0) DO BEGIN "
                                    "SUSPEND; N = N - 1; END END"));
    host::TZTSQLQuery linhas(conexao, "linhas");
    linhas.SQL =
        "EXECUTE BLOCK RETURNS (N INTEGER) AS BEGIN N = 9999; WHILE (N > 0) DO BEGIN SUSPEND; N = N - 1; END END";
    linhas.Open();
    EXPECT_EQ(9999U, linhas.RecordCount()) << "chunks lose nothing";
    EXPECT_LT(0, conexao.lastQuery().count());
}

TEST_F(LadoNoBanco, OutraConexaoTomaOLugarEQuemTemAReferenciaSegue) {
    const apoio::Copia outra{apoio::Base::Demo};
    outra.executar("INSERT INTO SC00_EMPRESA (IDEMPRESA, EMPRESA, NOME) VALUES (990, 990, 'Nova');");
    const auto antes = contar(conexao);
    auto transacao = conexao.IniciarTransacao();
    conexao.ExecuteDirect("UPDATE SC00_EMPRESA SET NOME = 'Mudada' WHERE EMPRESA = 1");
    conexao.exchange(ligar(outra));
    EXPECT_EQ(antes + 1, contar(conexao));
    EXPECT_TRUE(transacao->Aberta());
    conexao.FinalizarTransacao(*transacao); // on the connection it was begun on
    EXPECT_FALSE(transacao->Aberta());
    transacao.reset();
    conexao.exchange(ligar(copia));
    EXPECT_EQ(1, contar(conexao, "SELECT COUNT(*) AS N FROM SC00_EMPRESA WHERE NOME = 'Mudada'"));
}

TEST_F(Lado, CancelarTardeDemaisParaALeituraEDeixaAGravacaoFeita) {
    int cancelados = 0;
    int esquecidos = 0;
    AsideConnection conexao(lado, {std::make_shared<Surda>(), [&] { ++cancelados; }, [&] { ++esquecidos; }});
    const auto cancelarLogo = [&] { QTimer::singleShot(60, [&] { conexao.cancel(); }); };
    cancelarLogo();
    EXPECT_THROW(conexao.AbrirCursor({"x", "x"}), TFalhaBanco);
    EXPECT_EQ(1, cancelados);
    EXPECT_EQ(1, esquecidos);
    cancelarLogo();
    conexao.ExecuteDirect("x");
    EXPECT_EQ(2, esquecidos) << "taken back before the next call";
    conexao.ExecuteDirect("x");
    EXPECT_EQ(2, esquecidos);
}

TEST_F(Lado, NinguemEntraNoModuloEnquantoEleEspera) {
    QPushButton fora(QStringLiteral("fora"));
    QPushButton dentro(QStringLiteral("dentro"));
    int cliquesFora = 0;
    int cliquesDentro = 0;
    QObject::connect(&fora, &QPushButton::clicked, [&] { ++cliquesFora; });
    QObject::connect(&dentro, &QPushButton::clicked, [&] { ++cliquesDentro; });
    for (auto* botao : {&fora, &dentro})
        botao->show();
    lado.admits = [&](const QWidget& janela) { return &janela == &dentro; };
    int avisos = 0;
    bool terminou = false;
    lado.onWaiting = [&](auto desde) {
        EXPECT_GE(desde, Aside::Noticeable);
        ++avisos;
    };
    lado.onWaited = [&] { terminou = true; };
    bool recusou = false;
    QTimer::singleShot(600, [&] {
        for (auto* botao : {&fora, &dentro})
            for (const auto tipo : {QEvent::KeyPress, QEvent::KeyRelease}) {
                QKeyEvent tecla(tipo, Qt::Key_Space, Qt::NoModifier);
                QCoreApplication::sendEvent(botao, &tecla);
            }
        fora.close();
        try {
            lado.run([] {});
        } catch (const std::logic_error&) {
            recusou = true;
        }
    });
    lado.run([] { std::this_thread::sleep_for(900ms); });
    EXPECT_EQ(0, cliquesFora);
    EXPECT_EQ(1, cliquesDentro);
    EXPECT_TRUE(fora.isVisible()) << "nor does a window close";
    EXPECT_TRUE(recusou);
    EXPECT_TRUE(terminou);
    EXPECT_LT(0, avisos);
    fora.click();
    EXPECT_EQ(1, cliquesFora);

    avisos = 0;
    lado.run([] { std::this_thread::sleep_for(100ms); });
    EXPECT_EQ(0, avisos) << "a short wait is not told";
}
