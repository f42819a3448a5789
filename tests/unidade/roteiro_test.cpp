#include "base/Falhas.h"
#include "host/Dialogos.h"
#include "host/Formularios.h"
#include "host/Grade.h"
#include "host/Servicos.h"
#include "host/Utilidades.h"
#include "suite/script/ScriptRunner.h"
#include "unidade/exportacao_apoio.h"

#include <filesystem>
#include <sstream>
#include <unistd.h>

namespace {

using host::GZTUtilsDialogs;
using suite::script::ScriptFailure;

class Dialogo : public host::TFormZTTandorPadraoResult {
  public:
    Dialogo() : TFormZTTandorPadraoResult("Dialogo", "Um diálogo") {
        Fixo.SetEnabled(false);
        Opcao.SetItens({"um", "dois"}, {"1", "2"});
        Registrar({&Data, &Caixa, &Fixo, &Opcao, &ActPerguntar, &ActProgredir, &ActFalhar, &ActRecusar, &ActFechar,
                   &ActEngolir});
    }
    void ActOKExecute(host::TControle*) override {
        if (Data.Date().Vazia()) {
            GZTUtilsDialogs.Informacao("Sem\rdata.");
            host::TZTUtilsControls::AtribuirFocoControle(Data);
            throw base::Abort();
        }
        Fechar(1);
    }
    static void Perguntar() {
        const int resposta = GZTUtilsDialogs.ConfirmacaoCustomizada("Qual?", host::TNivelMensagem::Confirmacao, 7,
                                                                    "Confirmação:", {"Um", "Outro", "Cancelar"});
        GZTUtilsDialogs.Informacao("Foi " + std::to_string(resposta));
    }
    static void Progredir() {
        host::TZTBarraProgressoDlg dialogo(2);
        dialogo.SetTitulo("Andando");
        dialogo.MostrarBarraProgresso();
        for (int i = 0; i < 4 && !dialogo.GetProcessoCancelado(); ++i)
            dialogo.BuscarBarraProgresso(i % 2).AvancarProgresso(0);
    }
    host::TZTDateEdit Data{"Data"};
    host::TZTCheckBox Caixa{"Caixa"};
    host::TZTCheckBox Fixo{"Fixo"};
    host::TZTComboBox Opcao{"Opcao"};
    host::TAction ActPerguntar{"ActPerguntar", Perguntar};
    host::TAction ActProgredir{"ActProgredir", Progredir};
    host::TAction ActFalhar{"ActFalhar", [] {
                                throw base::TFalhaBanco(base::TTipoFalhaBanco::Comando, "O banco falhou.", "42000", {},
                                                        "X", "detalhe");
                            }};
    host::TAction ActRecusar{"ActRecusar", [] { throw base::TFalha("Assim não."); }};
    host::TAction ActFechar{"ActFechar", [this] {
                                Fechar(1);
                                throw base::TFalha("Fechou.");
                            }};
    host::TAction ActEngolir{"ActEngolir", [] {
                                 try {
                                     Perguntar();
                                 } catch (const std::exception&) { // as a rule that reports every failure
                                 }
                             }};
};

class Modulo : public host::TDMPadrao {
  public:
    std::vector<host::TCampoDescrito> DescreverCampos() const override {
        return {{"Nada", base::Nulo},
                {"Sim", true},
                {"Valor", base::TValor(base::TDecimal{1250, 2})},
                {"Dia", base::TValor(*base::TDataHora::De(2024, 1, 31))},
                {"Lista", std::vector<std::string>{"a", "b\rc"}},
                {"Registro", std::vector<host::TCampoDescrito>{{"Dentro", base::TValor("x")}}}};
    }
};

class Janela : public host::TFormZTTandorPadraoSelecao {
  public:
    Janela() : TFormZTTandorPadraoSelecao("Janela", "Uma janela") {
        conexao.colunas = {{"NOME", host::TTipoColuna::Texto, 0, 20, ""},
                           {"VALOR", host::TTipoColuna::Inteiro, 2, 0, ""}};
        conexao.linhas = {{std::string("água"), base::TDecimal{150, 2}}, {base::Nulo, base::TDecimal{-5, 2}}};
        dados.CommandText = "SELECT";
        Fonte.DataSet = &dados;
        Grade.SetColunas({{"NOME", "Nome", "", true, "", -1}, {"VALOR", "Valor", "Faixa", true, ",0.00", 0}});
        Grade.RegraDaCelula = [](const host::TCelula& celula) {
            return host::TAparencia{celula.Selecionada,
                                    {},
                                    celula.Posicao == 1 ? std::optional(host::TCor(0x00AB0C)) : std::nullopt,
                                    false};
        };
        Grade.SetVisible(false);
        PnlTitulo.SetCaption("Nada ainda");
        Registrar({&PnlTitulo, &PnlLegenda, &Grade});
        Registrar({&Fonte});
        FDataModule = std::make_unique<Modulo>();
    }
    void ActSelecionarExecute(host::TControle*) override {
        dialogo.ShowModal();
        dados.Open();
        Grade.SetVisible(true);
    }
    host::TGrade* GradeEmVista() override { return Grade.Visible() ? &Grade : nullptr; }
    exportacao::Conexao conexao;
    host::TZTClientDataSet dados{"Dados", conexao};
    host::TDataSource Fonte{"Fonte"};
    host::TGrade Grade{"Grade", Fonte};
    host::TPanel PnlTitulo{"PnlTitulo"};
    host::TPanel PnlLegenda{"PnlLegenda"};
    Dialogo dialogo;
};

struct Resultado {
    std::string saida;
    std::string falha; // empty: all steps ran
    int codigo = 0;    // as the program ends
};

Resultado executar(const std::string& roteiro) {
    std::istringstream entrada(roteiro);
    std::ostringstream saida;
    Resultado resultado;
    try {
        const suite::exporting::Exporter exportador;
        suite::script::ScriptRunner execucao(
            entrada, saida, [] { return std::make_unique<Janela>(); },
            {exportador, [] { return suite::exporting::Origin{}; }});
        execucao.run();
        if (execucao.toldFailure())
            std::rethrow_exception(execucao.toldFailure());
    } catch (const ScriptFailure& falha) {
        resultado.falha = falha.what();
        resultado.codigo = falha.kind() == ScriptFailure::Kind::WrongStep ? 2 : 1;
    } catch (const base::TFalhaBanco& falha) {
        resultado.falha = falha.what();
        resultado.codigo = 3;
    } catch (const base::TFalha& falha) {
        resultado.falha = falha.what();
        resultado.codigo = 1;
    }
    resultado.saida = saida.str();
    return resultado;
}

constexpr const char* Aberto = R"({"passo":1,"tipo":"dialogo","nome":"Dialogo","estado":"aberto","resultado":null})"
                               "\n";
std::string fechado(int passo, int resultado) {
    return R"({"passo":)" + std::to_string(passo) +
           R"(,"tipo":"dialogo","nome":"Dialogo","estado":"fechado","resultado":)" + std::to_string(resultado) + "}\n";
}

void recusa(const std::string& roteiro, int codigo, const std::string& frase) {
    const auto resultado = executar(roteiro);
    EXPECT_EQ(codigo, resultado.codigo) << roteiro;
    EXPECT_EQ(0U, resultado.falha.find(frase)) << resultado.falha;
}

} // namespace

TEST(LeitorDeRoteiro, SeparaPassosEPalavras) {
    std::istringstream texto("\xEF\xBB\xBF# comentário\r\n\n  # outro\n\tdefinir  A  #7 b  \r\nsair A");
    suite::script::ScriptReader leitor(texto);
    EXPECT_EQ(4, leitor.peek()->line);
    const auto passo = leitor.next();
    EXPECT_EQ("definir", passo->name);
    EXPECT_EQ((std::vector<std::string>{"A", "#7 b"}), suite::script::splitWords(passo->rest, 2));
    EXPECT_EQ("sair", leitor.next()->name);
    EXPECT_FALSE(leitor.next());
    for (const char* torto : {"\xFF", "a\xC3", "\xC0\x80", "\xED\xA0\x80", "\xF5\x80\x80\x80", "\xE3\x81"}) {
        std::istringstream bytes(torto);
        EXPECT_THROW(suite::script::ScriptReader(bytes).next(), ScriptFailure) << torto;
    }
}

TEST(Roteiro, OsPassosAgemNoDialogoAteQueEleFeche) {
    const auto resultado = executar("selecionar\n"
                                    "clicar actOK\n"
                                    "definir Data 31/01/2024\n"
                                    "definir Opcao 2\n"
                                    "clicar Caixa\n"
                                    "mostrar controles Data Opcao Caixa\n"
                                    "clicar actOK\n"
                                    "mostrar janela\n");
    EXPECT_EQ("", resultado.falha);
    EXPECT_EQ(
        std::string(Aberto) +
            R"({"passo":2,"tipo":"mensagem","nivel":"informacao","titulo":"Informação:","texto":"Sem\rdata.","botoes":["OK"],"resposta":6})"
            "\n"
            R"({"passo":2,"tipo":"foco","controle":"Data"})"
            "\n"
            R"({"passo":6,"tipo":"controles","controles":{)"
            R"("Data":{"tipo":"data","habilitado":true,"visivel":true,"valor":"2024-01-31","texto":"31/01/2024"},)"
            R"("Opcao":{"tipo":"combo","habilitado":true,"visivel":true,"valor":"2","texto":"dois","itens":["um","dois"],"valores":["1","2"]},)"
            R"("Caixa":{"tipo":"caixa","habilitado":true,"visivel":true,"marcado":true,"texto":""}}})"
            "\n" +
            fechado(7, 1) +
            R"({"passo":8,"tipo":"janela","grade":"Grade","legenda":"PnlLegenda","titulo":"Nada ainda","dados":{"Dados":{"aberto":true,"linhas":2}}})"
            "\n",
        resultado.saida);
}

TEST(Roteiro, FimDoRoteiroEEscSaemDoDialogo) {
    EXPECT_EQ(Aberto + fechado(1, 2), executar("selecionar\n").saida);
    EXPECT_EQ(Aberto + fechado(2, 2), executar("selecionar\ntecla Data Esc\n").saida);
}

TEST(Roteiro, RespostasEsperamNaFilaESobrarOuFaltarEhFalha) {
    const auto resultado = executar("selecionar\nresponder 7\nresponder 2\nclicar ActPerguntar\nclicar ActPerguntar\n");
    EXPECT_EQ("", resultado.falha);
    const auto sete = resultado.saida.find(R"("botoes":["Um","Outro","Cancelar"],"resposta":7})");
    EXPECT_LT(sete, resultado.saida.find("Foi 7"));
    EXPECT_LT(resultado.saida.find("Foi 7"), resultado.saida.find("Foi 2"));
    EXPECT_NE(std::string::npos, resultado.saida.find("Foi 2"));
    recusa("selecionar\nclicar ActPerguntar\n", 1, "Linha 2: Esta pergunta ficou sem resposta: Qual?");
    recusa("responder 6\n\nresponder 7\nselecionar\nclicar ActPerguntar\n", 1, "Linha 3: A resposta 7 sobrou");
    const auto engolida = executar("selecionar\nclicar ActEngolir\nmostrar controles Data\n");
    EXPECT_EQ(1, engolida.codigo) << "a rule that swallows the failure does not hide it";
    EXPECT_EQ(std::string::npos, engolida.saida.find("controles"));
}

TEST(Roteiro, CancelarValeParaOProximoProgressoEContaTodosOsNiveis) {
    const auto resultado = executar("selecionar\ncancelar 3\nclicar ActProgredir\nclicar ActProgredir\n");
    const auto passo = [](int linha, int nivel, int valor) {
        return R"({"passo":)" + std::to_string(linha) + R"(,"tipo":"progresso","evento":"passo","nivel":)" +
               std::to_string(nivel) + R"(,"valor":)" + std::to_string(valor) + "}\n";
    };
    const auto moldura = [](int linha, const std::string& passos) {
        const auto inicio = R"({"passo":)" + std::to_string(linha) + R"(,"tipo":"progresso","evento":")";
        return inicio + R"(titulo","nivel":0,"texto":"Andando"})" + "\n" + inicio + R"(mostrar","nivel":0})" + "\n" +
               passos + inicio + R"(fechar","nivel":0})" + "\n";
    };
    EXPECT_EQ(Aberto + moldura(3, passo(3, 0, 1) + passo(3, 1, 1) + passo(3, 0, 2)) +
                  moldura(4, passo(4, 0, 1) + passo(4, 1, 1) + passo(4, 0, 2) + passo(4, 1, 2)) + fechado(4, 2),
              resultado.saida);
}

TEST(Roteiro, PassoErradoOuForaDeLugarTerminaComSuaLinha) {
    recusa("\n# nada\nxis\n", 2, "Linha 3: O passo \"xis\" não existe. Existem: abrir, selecionar, ");
    recusa("abrir\nabrir\n", 2, "Linha 2: A janela já está aberta");
    recusa("selecionar\nselecionar\n", 2, "Linha 2: \"selecionar\" cabe à janela");
    recusa("selecionar\nexportar x.csv\n", 2, "Linha 2: \"exportar\" cabe à janela");
    recusa("definir\n", 2, "Linha 1: O passo se escreve \"definir CONTROLE VALOR\".");
    recusa("selecionar agora\n", 2, "Linha 1: O passo se escreve \"selecionar\".");
    recusa("definir Data 1\n", 2, "Linha 1: Janela não tem \"Data\". Existem: ActSelecionar, ");
    recusa("selecionar\ndefinir Fixo 1\n", 2, "Linha 2: Fixo está desabilitado");
    recusa("selecionar\nclicar Fixo\n", 2, "Linha 2: Fixo está desabilitado");
    recusa("selecionar\ndefinir Opcao 3\n", 2, "Linha 2: Opcao não tem o valor \"3\". Valores: 1, 2.");
    recusa("selecionar\ntecla Data F1\n", 2, "Linha 2: A tecla \"F1\" não existe.");
    recusa("clicar PnlTitulo\n", 2, "Linha 1: PnlTitulo não é um botão");
    recusa("responder 1\n", 2, "Linha 1: Uma resposta é 6, 7 ou 2");
    recusa("cancelar 0\n", 2, "Linha 1: \"0\" não é um número");
    recusa("mostrar tudo\n", 2, "Linha 1: Não há o que mostrar por \"tudo\". Existem: controles, ");
    recusa("mostrar linhas\n", 2, "Linha 1: Nenhuma grade está à vista.");
    recusa("mostrar linhas Outros\n", 2, "Linha 1: Não há o conjunto de dados \"Outros\". Existem: Dados.");
    recusa("mostrar relatorio\n", 2, "Linha 1: Nenhum relatório foi impresso.");
}

TEST(Roteiro, FalhaNoDialogoAbertoEhDitaNeleEOsPassosSeguem) {
    const auto dita = [](const char* frase) {
        return std::string(R"({"passo":2,"tipo":"mensagem","nivel":"erro","titulo":"Erro:","texto":")") + frase +
               R"(","botoes":["OK"],"resposta":6})" + "\n";
    };
    const auto doBanco = executar("selecionar\nclicar ActFalhar\nclicar actSair\n");
    EXPECT_EQ(3, doBanco.codigo) << "however the script goes on";
    EXPECT_EQ("O banco falhou.", doBanco.falha);
    EXPECT_EQ(Aberto + dita("O banco falhou.") + fechado(3, 2), doBanco.saida);
    const auto outra = executar("selecionar\nclicar ActRecusar\nclicar actSair\n");
    EXPECT_EQ(1, outra.codigo);
    EXPECT_EQ("Assim não.", outra.falha);
    EXPECT_EQ(Aberto + dita("Assim não.") + fechado(3, 2), outra.saida);
}

TEST(Roteiro, FalhaAtrasDaQualODialogoFechouDizALinhaDoSeuPasso) {
    recusa("selecionar\nclicar Caixa\nclicar ActFechar\nmostrar controles\n", 1, "Linha 3: Fechou.");
}

TEST(Roteiro, MostraGradeEModuloDeDados) {
    const auto resultado = executar("mostrar linhas Dados\n"
                                    "mostrar selecao\n"
                                    "selecionar\n"
                                    "clicar actSair\n"
                                    "mostrar linhas\n"
                                    "mostrar colunas\n"
                                    "mostrar celulas 2\n"
                                    "mostrar celulas 1 selecionada\n"
                                    "mostrar comando Dados\n");
    EXPECT_EQ("", resultado.falha);
    EXPECT_EQ(
        R"({"passo":1,"tipo":"linhas","dados":"Dados","aberto":false,"colunas":[],"linhas":[]}
{"passo":2,"tipo":"selecao","campos":{"Nada":null,"Sim":true,"Valor":12.50,"Dia":"2024-01-31","Lista":["a","b\rc"],"Registro":{"Dentro":"x"}}}
{"passo":3,"tipo":"dialogo","nome":"Dialogo","estado":"aberto","resultado":null}
{"passo":4,"tipo":"dialogo","nome":"Dialogo","estado":"fechado","resultado":2}
{"passo":5,"tipo":"linhas","dados":"Dados","aberto":true,"colunas":["NOME","VALOR"],"linhas":[["água",1.50],[null,-0.05]]}
{"passo":6,"tipo":"colunas","colunas":[{"campo":"NOME","titulo":"Nome","faixa":null,"visivel":true,"formato":null,"grupo":null},{"campo":"VALOR","titulo":"Valor","faixa":"Faixa","visivel":true,"formato":",0.00","grupo":0}]}
{"passo":7,"tipo":"celulas","campos":{"NOME":{"texto":"","negrito":false,"fonte":null,"fundo":"#00AB0C","vazio":false},"VALOR":{"texto":"-0,05","negrito":false,"fonte":null,"fundo":"#00AB0C","vazio":false}}}
{"passo":8,"tipo":"celulas","campos":{"NOME":{"texto":"água","negrito":true,"fonte":null,"fundo":null,"vazio":false},"VALOR":{"texto":"1,50","negrito":true,"fonte":null,"fundo":null,"vazio":false}}}
{"passo":9,"tipo":"comando","texto":"SELECT"}
)",
        resultado.saida);
    const auto arquivo = testing::TempDir() + "roteiro-" + std::to_string(::getpid()) + ".csv";
    EXPECT_EQ("", executar("selecionar\nclicar actSair\nexportar " + arquivo + "\n").falha);
    EXPECT_EQ("\xEF\xBB\xBFNome;Faixa Valor\n;-0,05\nágua;1,50\n", exportacao::conteudo(arquivo));
    std::filesystem::remove(arquivo);
    recusa("exportar " + arquivo + "\n", 2, "Linha 1: Nenhuma grade está à vista");
    recusa("selecionar\nclicar actSair\nexportar a.doc\n", 1, "Linha 3: Não é possível exportar para a.doc");
    recusa("selecionar\nclicar actSair\nmostrar celulas 3\n", 2, "Linha 3: A grade tem 2 linhas");
    recusa("selecionar\nclicar actSair\nmostrar celulas 1 agora\n", 2, "Linha 3: O passo se escreve");
}

TEST(Json, EscapaOQueUmTerminalObedece) {
    EXPECT_EQ(R"("\"\\\r\n\u001b\u007f\u0080\u009f")", suite::exporting::quoteJson("\"\\\r\n\x1B\x7F\u0080\u009F"));
    EXPECT_EQ("\"\u00A0ção \u2421\uFFFD\"", suite::exporting::quoteJson("\u00A0ção \u2421\x9B"));
}
