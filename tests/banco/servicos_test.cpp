// The data services on a real engine, embedded and through a server.
#include "apoio/Bases.h"
#include "base/Falhas.h"
#include "host/DataSet.h"
#include "suite/firebird/Cursor.h"
#include "suite/firebird/Error.h"
#include "suite/firebird/Statement.h"

#include <gtest/gtest.h>
#include <ibase.h>

#include <chrono>
#include <cstdlib>
#include <future>
#include <netinet/in.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

using apoio::Base;
using apoio::Copia;
using base::Inteiro;
using base::TDecimal;
using base::TFalha;
using base::TFalhaBanco;
using base::TTipoFalhaBanco;
using namespace suite::firebird;

namespace {

base::TValor Valor(host::TZTConnection& conexao, const std::string& texto) {
    host::TZTSQLQuery consulta(conexao.GetSQLConnection(), "teste");
    consulta.SQL = texto;
    consulta.Open();
    return consulta.Fields().front().Valor();
}

constexpr const char* Inalcancavel =
    "Não foi possível chegar ao servidor do banco de dados. Verifique o endereço, a porta e se o servidor está no ar.";

void marcarSomenteLeitura(const Copia& copia) {
    const auto quem = apoio::credenciais();
    Disposable<Firebird::IXpbBuilder> bloco(call("teste", [](auto* estado) {
        return master()->getUtilInterface()->getXpbBuilder(estado, Firebird::IXpbBuilder::DPB, nullptr, 0);
    }));
    call("teste", [&](auto* estado) {
        bloco->insertString(estado, isc_dpb_user_name, "SYSDBA");
        if (!quem.password.empty())
            bloco->insertString(estado, isc_dpb_password, quem.password.c_str());
        bloco->insertInt(estado, isc_dpb_set_db_readonly, 1);
    });
    const Ref<Firebird::IProvider> provedor(master()->getDispatcher());
    Ref<Firebird::IAttachment> ligacao(call("teste", [&](auto* estado) {
        return provedor->attachDatabase(estado, copia.alvo().c_str(), bloco->getBufferLength(estado),
                                        bloco->getBuffer(estado));
    }));
    call("teste", [&](auto* estado) { ligacao->detach(estado); });
    static_cast<void>(ligacao.release());
}

// Takes connections on loopback, gives each the same answer to whatever it says, and closes it.
class ServidorEstranho {
  public:
    explicit ServidorEstranho(std::string resposta) : socket_(::socket(AF_INET, SOCK_STREAM, 0)) {
        sockaddr_in endereco{};
        endereco.sin_family = AF_INET;
        endereco.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t tamanho = sizeof endereco;
        auto* const geral = reinterpret_cast<sockaddr*>(&endereco);
        if (::bind(socket_, geral, tamanho) != 0 || ::listen(socket_, 5) != 0 ||
            ::getsockname(socket_, geral, &tamanho) != 0)
            throw std::runtime_error("no socket to listen on");
        porta_ = ntohs(endereco.sin_port);
        atendente_ = std::thread([this, resposta = std::move(resposta)] {
            for (int cliente; (cliente = ::accept(socket_, nullptr, nullptr)) >= 0; ::close(cliente)) {
                char pedido[1024];
                if (!resposta.empty() && ::recv(cliente, pedido, sizeof pedido, 0) > 0)
                    ::send(cliente, resposta.data(), resposta.size(), MSG_NOSIGNAL);
            }
        });
    }
    ~ServidorEstranho() {
        ::shutdown(socket_, SHUT_RDWR);
        atendente_.join();
        ::close(socket_);
    }
    std::string alvo() const { return "127.0.0.1/" + std::to_string(porta_) + ":/x.fdb"; }

  private:
    int socket_;
    int porta_ = 0;
    std::thread atendente_;
};

template <class Acao>
TFalhaBanco Falha(Acao&& acao) {
    try {
        acao();
    } catch (const TFalhaBanco& falha) {
        return falha;
    }
    ADD_FAILURE() << "no failure";
    return {TTipoFalhaBanco::Comando, "", "", {}, "", ""};
}

host::TInstrucao Incluir(int id) {
    return {"inclusão",
            "INSERT INTO US09_USUARIO (IDUSUARIO, CODIGO, NOME) VALUES (" + std::to_string(id) + ", 1, 'A')"};
}

const char* const Usuarios = "SELECT COUNT(*) FROM US09_USUARIO";

class CdsUsuario {
  public:
    explicit CdsUsuario(host::TZTConnection& conexao) {
        sds.SetSQLConnection(conexao.GetSQLConnection());
        sds.CommandText = "SELECT U.* FROM US09_USUARIO U ORDER BY U.IDUSUARIO";
        sds.Papeis["IDUSUARIO"] = host::TPapelCampo::Chave;
        sds.Papeis["NOME"] = host::TPapelCampo::Gravado;
        dsp.LocalizaSoPelaChave = true;
        dsp.OnGetTableName = [](std::string& tabela) { tabela = "US09_USUARIO"; };
    }
    void incluir(int id, const std::string& nome) {
        cds.Insert();
        cds.FieldByName("IDUSUARIO").Atribuir(Inteiro(id));
        cds.FieldByName("CODIGO").Atribuir(Inteiro(id));
        cds.FieldByName("NOME").Atribuir(nome);
        cds.Post();
    }
    void renomear(const std::string& nome) {
        cds.Edit();
        cds.FieldByName("NOME").Atribuir(nome);
        cds.Post();
    }
    host::TZTSQLDataSet sds{"SdsUsuario"};
    host::TZTDataSetProvider dsp{"DspUsuario", sds};
    host::TZTClientDataSet cds{"CdsUsuario", dsp};
};

std::vector<std::string> Aplicar(host::TZTConnection& conexao, host::TZTClientDataSet& cds) {
    host::TZTClientDataSet* const lista[] = {&cds};
    return conexao.AplicarAlteracoesNoBD(lista, true);
}

} // namespace

TEST(Servicos, TodosOsTiposChegamExatos) {
    const Copia copia(Base::Vazia);
    const auto conexao = copia.conectar();
    host::TZTSQLQuery q(conexao->GetSQLConnection(), "tipos");
    q.SQL = R"(SELECT CAST(-32768 AS SMALLINT) A, CAST(2147483647 AS INTEGER) B,
        CAST(-9223372036854775807 - 1 AS BIGINT) C, CAST(9223372036854.775807 AS NUMERIC(18,6)) D,
        CAST(0.1 AS DOUBLE PRECISION) E, DATE '2024-02-29' F, TIMESTAMP '1999-12-31 23:59:59.9999' G,
        CAST('AÇÃO é ÿ' AS VARCHAR(20)) H, CAST('ab' AS CHAR(5)) I, CAST(NULL AS NUMERIC(15,2)) J, '' K,
        CAST('longo texto' AS BLOB SUB_TYPE TEXT) L, 1 = 1 M FROM RDB$DATABASE)";
    q.Open();
    const std::vector<std::string> esperado{"-32768",
                                            "2147483647",
                                            "-9223372036854775808",
                                            "9223372036854.775807",
                                            "0.1",
                                            "2024-02-29",
                                            "1999-12-31 23:59:59.9999",
                                            "AÇÃO é ÿ",
                                            "ab",
                                            "",
                                            "",
                                            "longo texto",
                                            "1"};
    ASSERT_EQ(esperado.size(), q.Fields().size());
    for (std::size_t i = 0; i < esperado.size(); ++i)
        EXPECT_EQ(esperado[i], q.Fields()[i].AsString()) << q.Fields()[i].Nome();
    EXPECT_EQ(6, q.FieldByName("D").Descricao().Escala);
    EXPECT_EQ(20, q.FieldByName("H").Descricao().Tamanho);
    EXPECT_TRUE(q.FieldByName("J").IsNull());
    EXPECT_FALSE(q.FieldByName("K").IsNull());
}

TEST(Servicos, ParametrosVoltamIguaisOuSaoRecusadosComONomeDoCampo) {
    const Copia copia(Base::Vazia);
    const auto conexao = copia.conectar();
    Transaction transacao(conexao->attachment(), TransactionMode::ReadWrite);
    Statement incluir(transacao,
                      "INSERT INTO CO01_CTBORCADAVLR (IDCTBORCADAINF, INDICEATBASE, VLRBASE, IDPLANO) VALUES (?,?,?,?)",
                      "inclusão");
    incluir.nameParameters({"IDCTBORCADAINF", "INDICEATBASE", "VLRBASE", "IDPLANO"});
    const std::vector<base::TValor> boa{Inteiro(1), TDecimal{45, 3}, std::string("-12.345"), base::Nulo};
    incluir.execute(transacao, boa);
    const auto linha = [&](const char* coluna) {
        return TextoDe(queryValue(transacao, std::string("SELECT ") + coluna + " FROM CO01_CTBORCADAVLR", "leitura"));
    };
    EXPECT_EQ("0.045000", linha("INDICEATBASE"));
    EXPECT_EQ("-12.35", linha("VLRBASE"));
    EXPECT_EQ("", linha("IDPLANO"));
    EXPECT_EQ("1", linha("IDCTBORCADAVLR")) << "the trigger fills the key";
    for (const auto& [campo, valor] : {std::pair<std::size_t, base::TValor>{2, std::string("doze")},
                                       {0, TDecimal{INT64_MAX, 0}},
                                       {1, TDecimal{INT64_MAX, 0}}}) {
        auto ruim = boa;
        ruim[campo] = valor;
        if (campo == 0) {
            incluir.execute(transacao, ruim); // it fits 64 bits
            continue;
        }
        try {
            incluir.execute(transacao, ruim);
            FAIL() << campo;
        } catch (const TFalha& falha) {
            EXPECT_NE(std::string::npos, std::string(falha.what()).find(campo == 1 ? "INDICEATBASE" : "VLRBASE"))
                << falha.what();
        }
    }
    Statement nome(transacao, "INSERT INTO US09_USUARIO (IDUSUARIO, CODIGO, NOME) VALUES (1, 1, ?)", "inclusão");
    nome.nameParameters({"US09_USUARIO.NOME"});
    for (const auto& texto : {std::string("10 €"), std::string("\xC3"), std::string(101, 'x')}) {
        const std::vector<base::TValor> valor{texto};
        try {
            nome.execute(transacao, valor);
            FAIL() << texto;
        } catch (const TFalha& falha) {
            EXPECT_NE(std::string::npos, std::string(falha.what()).find("US09_USUARIO.NOME")) << falha.what();
        }
    }
}

TEST(Servicos, TransacoesSaoIndependentesEAQueNaoConfirmouNaoDeixaNada) {
    const Copia copia(Base::Vazia);
    const auto conexao = copia.conectar();
    const auto incluir = [&](int id) { conexao->GetSQLConnection().ExecuteDirect(Incluir(id).Texto); };
    EXPECT_THROW(incluir(1), TFalha) << "no open transaction";
    {
        const auto fora = conexao->IniciarTransacao();
        incluir(1);
        {
            const auto dentro = conexao->IniciarTransacao();
            incluir(2);
            EXPECT_EQ("1", TextoDe(Valor(*conexao, Usuarios))) << "reads join the transaction begun last";
            conexao->FinalizarTransacao(*dentro);
            EXPECT_FALSE(dentro->Aberta());
        }
        EXPECT_EQ("2", TextoDe(Valor(*conexao, Usuarios)));
        {
            const auto largada = conexao->IniciarTransacao();
            incluir(3);
        } // let go of: rolled back
        conexao->CancelarTransacao(*fora);
        conexao->CancelarTransacao(*fora);
    }
    EXPECT_EQ("1", TextoDe(Valor(*conexao, Usuarios)));
    const auto leitura = conexao->IniciarTransacaoSomenteLeitura();
    EXPECT_THROW(incluir(4), TFalhaBanco);
    conexao->FinalizarTransacao(*leitura);
}

TEST(Servicos, ExecutouSQLRelataSemLevantar) {
    const Copia copia(Base::Vazia);
    const auto conexao = copia.conectar();
    const host::TInstrucao boas[] = {Incluir(1), Incluir(2)};
    EXPECT_TRUE(conexao->ExecutouSQL(boas, true).Sucesso);
    const host::TInstrucao repetida[] = {Incluir(3), Incluir(1)};
    const auto resultado = conexao->ExecutouSQL(repetida, true);
    EXPECT_FALSE(resultado.Sucesso);
    EXPECT_NE(std::string::npos, resultado.Mensagem.find("mesma chave")) << resultado.Mensagem;
    EXPECT_EQ("2", TextoDe(Valor(*conexao, Usuarios))) << "all or nothing";
    EXPECT_FALSE(conexao->ExecutouSQL(boas, false).Sucesso) << "nothing to join";
    const auto transacao = conexao->IniciarTransacao();
    const host::TInstrucao mais[] = {Incluir(5)};
    EXPECT_TRUE(conexao->ExecutouSQL(mais, false).Sucesso);
    conexao->CancelarTransacao(*transacao);
    EXPECT_EQ("2", TextoDe(Valor(*conexao, Usuarios)));
}

TEST(Servicos, LinhasDaTabelaDeTrabalhoVivemComATransacao) {
    const Copia copia(Base::Vazia);
    const auto conexao = copia.conectar();
    const char* const contar = "SELECT COUNT(*) FROM TMP_CO_ORCMATRICIAL";
    const auto transacao = conexao->IniciarTransacao();
    conexao->GetSQLConnection().ExecuteDirect("INSERT INTO TMP_CO_ORCMATRICIAL (QUEBRA) VALUES (1)");
    EXPECT_EQ("1", TextoDe(Valor(*conexao, contar)));
    conexao->FinalizarTransacao(*transacao);
    EXPECT_EQ("0", TextoDe(Valor(*conexao, contar)));
}

TEST(Servicos, AlteracoesSaoGravadasPelaChaveTodasOuNenhuma) {
    const Copia copia(Base::Vazia);
    const auto conexao = copia.conectar();
    CdsUsuario usuarios(*conexao);
    usuarios.cds.Open();
    usuarios.incluir(1, "Ana");
    usuarios.incluir(2, "Bruno");
    EXPECT_EQ(std::vector<std::string>{}, Aplicar(*conexao, usuarios.cds));
    EXPECT_TRUE(usuarios.cds.Alteracoes().empty());

    usuarios.cds.First();
    usuarios.renomear("Ana Júlia");
    usuarios.incluir(2, "repetido");
    EXPECT_EQ(1U, Aplicar(*conexao, usuarios.cds).size());
    EXPECT_EQ(2U, usuarios.cds.Alteracoes().size()) << "still pending";
    EXPECT_EQ("Ana", TextoDe(Valor(*conexao, "SELECT NOME FROM US09_USUARIO WHERE IDUSUARIO = 1")));

    usuarios.cds.Close();
    usuarios.cds.Open();
    usuarios.renomear("Ana Júlia");
    EXPECT_TRUE(Aplicar(*conexao, usuarios.cds).empty());
    EXPECT_EQ("Ana Júlia", TextoDe(Valor(*conexao, "SELECT NOME FROM US09_USUARIO WHERE IDUSUARIO = 1")));

    copia.executar(""); // another attachment comes and goes
    const host::TInstrucao excluir[] = {{"exclusão", "DELETE FROM US09_USUARIO WHERE IDUSUARIO = 1"}};
    ASSERT_TRUE(conexao->ExecutouSQL(excluir, true).Sucesso);
    usuarios.renomear("tarde demais");
    const auto mensagens = Aplicar(*conexao, usuarios.cds);
    ASSERT_EQ(1U, mensagens.size());
    EXPECT_NE(std::string::npos, mensagens[0].find("excluído por outro usuário")) << mensagens[0];
    usuarios.renomear("Žižka");
    EXPECT_NE(std::string::npos, Aplicar(*conexao, usuarios.cds)[0].find("US09_USUARIO.NOME"));
}

TEST(Servicos, AlteracoesEntramNaTransacaoAbertaETambemMudamAChave) {
    const Copia copia(Base::Vazia);
    const auto conexao = copia.conectar();
    CdsUsuario usuario(*conexao);
    host::TZTClientDataSet* const lista[] = {&usuario.cds};
    usuario.cds.Open();
    usuario.incluir(1, "Ana");
    EXPECT_NE(std::vector<std::string>{}, conexao->AplicarAlteracoesNoBD(lista, false)) << "there is no transaction";
    {
        const auto transacao = conexao->IniciarTransacao();
        EXPECT_EQ(std::vector<std::string>{}, conexao->AplicarAlteracoesNoBD(lista, false));
        usuario.cds.Edit();
        usuario.cds.FieldByName("IDUSUARIO").Atribuir(Inteiro(7));
        usuario.cds.Post();
        EXPECT_EQ(std::vector<std::string>{}, conexao->AplicarAlteracoesNoBD(lista, false));
        EXPECT_EQ("7", TextoDe(Valor(*conexao, "SELECT SUM(IDUSUARIO) FROM US09_USUARIO")));
        conexao->CancelarTransacao(*transacao);
    }
    EXPECT_EQ("0", TextoDe(Valor(*conexao, Usuarios)));
}

TEST(Servicos, QualquerChamadaQueFalhePassaSemDeixarMetade) {
    const Copia copia(Base::Vazia);
    const auto conexao = copia.conectar();
    // Fails the n-th call to the client library, for every n, until a run needs fewer calls than that.
    for (int n = 1;; ++n) {
        int chamadas = 0;
        beforeCall = [&](std::string_view) {
            if (++chamadas == n)
                throw TFalhaBanco(TTipoFalhaBanco::Conexao, "falha de teste", "08006", {}, "", "");
        };
        bool falhou = false;
        try {
            CdsUsuario usuarios(*conexao);
            usuarios.cds.Open();
            usuarios.incluir(100 + 2 * n, "um");
            usuarios.incluir(101 + 2 * n, "dois");
            falhou = !Aplicar(*conexao, usuarios.cds).empty();
        } catch (const TFalha&) {
            falhou = true;
        }
        beforeCall = {};
        const auto linhas = TextoDe(Valor(*conexao, Usuarios));
        ASSERT_EQ(falhou ? "0" : "2", linhas) << "after a failure of call " << n;
        if (!falhou) {
            EXPECT_GT(n, 15);
            break;
        }
    }
}

TEST(Servicos, ProximaChaveVemDoGeradorDaTabelaOuDoSeuGatilho) {
    const Copia copia(Base::Vazia);
    copia.executar(R"(
        CREATE SEQUENCE SEQ_DE_USUARIOS;
        SET TERM ^ ;
        CREATE TRIGGER USUARIO_CHAVE FOR US09_USUARIO BEFORE INSERT AS
        BEGIN IF (NEW.IDUSUARIO IS NULL) THEN NEW.IDUSUARIO = NEXT VALUE FOR SEQ_DE_USUARIOS; END^
        SET TERM ; ^)");
    const auto conexao = copia.conectar();
    const auto primeira = conexao->BuscarProximoID("CO01_CTBORCADAVLR");
    EXPECT_EQ(primeira + 1, conexao->BuscarProximoID("CO01_CTBORCADAVLR"));
    EXPECT_EQ(1, conexao->BuscarProximoID("US09_USUARIO"));
    EXPECT_EQ(2, conexao->BuscarProximoID("US09_USUARIO"));
    EXPECT_THROW(conexao->BuscarProximoID("SC00_FILIAL"), TFalha);
}

TEST(Servicos, QuemEsperaPorUmBloqueioEsperaPoucoEFicaSabendo) {
    const Copia copia(Base::Vazia);
    copia.executar("INSERT INTO US09_USUARIO (IDUSUARIO, CODIGO, NOME) VALUES (1, 1, 'A');");
    const auto um = copia.conectar();
    Attachment outro{Target(copia.alvo()), apoio::credenciais()};
    Transaction dele(outro, TransactionMode::ReadWrite);
    execute(dele, "UPDATE US09_USUARIO SET CODIGO = 2", "dele");
    const host::TInstrucao minha[] = {{"minha", "UPDATE US09_USUARIO SET CODIGO = 3"}};
    const auto inicio = std::chrono::steady_clock::now();
    const auto resultado = um->ExecutouSQL(minha, true);
    EXPECT_GT(std::chrono::steady_clock::now() - inicio, std::chrono::seconds(5)) << "it waits";
    EXPECT_TRUE(resultado.Mensagem.starts_with("Outro usuário (") &&
                resultado.Mensagem.ends_with(") está gravando os mesmos dados. Aguarde um instante e tente novamente."))
        << resultado.Mensagem;
    EXPECT_EQ("1", TextoDe(Valor(*um, "SELECT CODIGO FROM US09_USUARIO"))) << "a read never waits";
    // Whoever waits for one that ends in time goes on behind it.
    auto depois = std::async(std::launch::async, [&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        dele.commit();
    });
    EXPECT_TRUE(um->ExecutouSQL(minha, true).Sucesso);
    depois.get();
    EXPECT_EQ("3", TextoDe(Valor(*um, "SELECT CODIGO FROM US09_USUARIO")));
}

TEST(Servicos, CancelarTerminaAInstrucaoEDeixaAConexaoBoa) {
    const Copia copia(Base::Demo);
    const auto conexao = copia.conectar();
    const std::string pesada = "SELECT COUNT(*) FROM CO01_DIARIO A CROSS JOIN CO01_DIARIO B CROSS JOIN CO01_DIARIO C";
    auto cancela = std::async(std::launch::async, [&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        conexao->attachment().cancel();
    });
    const auto falha = Falha([&] { Valor(*conexao, pesada); });
    cancela.get();
    EXPECT_EQ(TTipoFalhaBanco::Cancelado, falha.Tipo());
    EXPECT_EQ("HY008", falha.Estado());
    conexao->attachment().cancel(); // idle
    conexao->attachment().clearPendingCancel();
    EXPECT_EQ("0", TextoDe(Valor(*conexao, "SELECT COUNT(*) FROM CO01_CTBORCADAVLR WHERE IDDEMACTOT = -1")));
}

TEST(Servicos, FalhasComunsDizemOQueFazer) {
    const Copia copia(Base::Vazia);
    const auto conexao = copia.conectar();
    const auto tabela = Falha([&] { Valor(*conexao, "SELECT A FROM NADA"); });
    EXPECT_STREQ(
        "A tabela NADA não existe neste banco de dados. Verifique se o banco é o da suíte e se está atualizado.",
        tabela.what());
    EXPECT_EQ("42S02", tabela.Estado());
    EXPECT_EQ("teste", tabela.Instrucao());
    EXPECT_TRUE(tabela.Tem(335544580));
    const auto coluna = Falha([&] { Valor(*conexao, "SELECT SC00_EMPRESA.NADA FROM SC00_EMPRESA"); });
    EXPECT_NE(std::string::npos, std::string(coluna.what()).find("A coluna SC00_EMPRESA.NADA não existe"))
        << coluna.what();
    const auto divisao = Falha([&] { Valor(*conexao, "SELECT 1 / 0 FROM RDB$DATABASE"); });
    EXPECT_EQ("22012", divisao.Estado());
    EXPECT_THROW(Valor(*conexao, "SELECT '€' FROM RDB$DATABASE"), TFalha);
    if (apoio::peloServidor()) {
        auto errada = apoio::credenciais();
        errada.password = "errada";
        const auto senha = Falha([&] { Attachment{Target(copia.alvo()), errada}; });
        EXPECT_STREQ("Usuário ou senha do banco de dados não conferem. Verifique o usuário e a senha informados.",
                     senha.what());
        EXPECT_EQ(TTipoFalhaBanco::Conexao, senha.Tipo());
    } else {
        const Attachment estranho{Target(copia.alvo()), {"FULANO", ""}};
        Attachment& ligacao = const_cast<Attachment&>(estranho);
        Transaction transacao(ligacao, TransactionMode::ReadOnly);
        const auto direito = Falha([&] { queryValue(transacao, Usuarios, "teste"); });
        EXPECT_NE(std::string::npos, std::string(direito.what()).find("não tem permissão")) << direito.what();
        // Another process finds the file taken.
        const auto comando = std::string(ORCREAL_PROGRAMA " --banco '") + copia.arquivo().string() +
                             "' consultar 2>&1 | grep -q 'está aberto por outro programa'";
        EXPECT_EQ(0, std::system(comando.c_str()));
    }
    const auto ausente = Falha([] { Attachment{Target("127.0.0.1/1:/nada.fdb"), {}}; });
    EXPECT_NE(std::string::npos, std::string(ausente.what()).find("servidor do banco")) << ausente.what();
}

TEST(Servicos, BancoSomenteDeLeituraEhDitoETemCausa) {
    const Copia copia(Base::Vazia);
    marcarSomenteLeitura(copia);
    const auto conexao = copia.conectar();
    const host::TInstrucao gravar[] = {
        {"Gravar", "UPDATE SC00_EMPRESA SET NOME = 'x'"},
        {"Inserir", "INSERT INTO US09_USUARIO (IDUSUARIO, CODIGO, NOME) VALUES (1, 1, 'A')"}};
    const auto resultado = conexao->ExecutouSQL(gravar, true);
    EXPECT_EQ(
        "O banco de dados está em modo somente de leitura; nada foi gravado. Peça ao administrador que o ponha em "
        "modo de leitura e gravação, ou use os totais como estão.",
        resultado.Mensagem);
    ASSERT_TRUE(resultado.Causa);
    EXPECT_EQ("42000", resultado.Causa->Estado());
    EXPECT_FALSE(conexao->ExecutouSQL(gravar, false).Causa) << "no transaction is no failure of the database";
}

TEST(Servicos, ArquivoProtegidoEConexaoCortadaNaAberturaDizemOQueFazer) {
    const auto falha = [](std::initializer_list<std::intptr_t> estado, std::string_view instrucao) {
        return std::string(toFailure(std::data(estado), std::string(instrucao)).what());
    };
    const auto texto = [](const char* t) { return reinterpret_cast<std::intptr_t>(t); };
    EXPECT_EQ("O arquivo /x.fdb não está liberado para gravação, de que o Firebird precisa também para consultar. Peça "
              "permissão de gravação nele.",
              falha({isc_arg_gds, isc_no_priv, isc_arg_string, texto("read-write"), isc_arg_string, texto("database"),
                     isc_arg_string, texto("/x.fdb"), isc_arg_end},
                    OpeningName));
    EXPECT_NE(std::string::npos, falha({isc_arg_gds, isc_no_priv, isc_arg_string, texto("SELECT"), isc_arg_string,
                                        texto("TABLE"), isc_arg_string, texto("X"), isc_arg_end},
                                       "x")
                                     .find("administrador do banco"));
    for (const auto codigo : {isc_net_read_err, isc_net_write_err}) {
        EXPECT_EQ(Inalcancavel, falha({isc_arg_gds, codigo, isc_arg_end}, OpeningName));
        EXPECT_EQ(0U,
                  falha({isc_arg_gds, codigo, isc_arg_end}, "x").find("A conexão com o banco de dados foi perdida."));
    }
    for (const char* resposta : {"", "HTTP/1.1 400 Bad Request\r\n\r\n"}) {
        const ServidorEstranho servidor(resposta);
        const auto cortada = Falha([&] { Attachment{Target(servidor.alvo()), {"SYSDBA", "x"}}; });
        EXPECT_STREQ(Inalcancavel, cortada.what()) << cortada.Diagnostico();
        EXPECT_EQ(TTipoFalhaBanco::Conexao, cortada.Tipo());
    }
}

TEST(Servicos, ConexaoPerdidaEhContadaComoTal) {
    if (!apoio::peloServidor())
        GTEST_SKIP() << "the embedded engine has no connection to lose";
    const Copia copia(Base::Demo);
    const auto conexao = copia.conectar();
    const auto transacao = conexao->IniciarTransacao();
    conexao->GetSQLConnection().ExecuteDirect(
        "INSERT INTO US09_USUARIO (IDUSUARIO, CODIGO, NOME) VALUES (900, 900, 'A')");
    const auto cursor = conexao->AbrirCursor({"linhas", "SELECT * FROM CO01_DIARIO"});
    host::TColunas colunas(cursor->Colunas().begin(), cursor->Colunas().end());
    ASSERT_EQ(10U, cursor->Ler(colunas, 10));
    copia.executar(
        "DELETE FROM MON$ATTACHMENTS WHERE MON$ATTACHMENT_ID <> CURRENT_CONNECTION AND MON$SYSTEM_FLAG = 0;");
    const auto falha = Falha([&] {
        while (cursor->Ler(colunas, 1000) != 0)
            continue;
    });
    EXPECT_EQ(TTipoFalhaBanco::Conexao, falha.Tipo()) << falha.Diagnostico();
    EXPECT_THROW(conexao->FinalizarTransacao(*transacao), TFalhaBanco);
    const auto nova = copia.conectar();
    EXPECT_EQ("0", TextoDe(Valor(*nova, "SELECT COUNT(*) FROM US09_USUARIO WHERE IDUSUARIO = 900")));
}
