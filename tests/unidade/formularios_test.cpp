#include "apoio/Hospedeiro.h"
#include "base/Falhas.h"
#include "host/Dialogos.h"
#include "host/Registro.h"
#include "suite/program/Module.h"
#include "suite/program/UserFolder.h"
#include "suite/script/FormDriver.h"
#include "suite/terminal/Headless.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

class Form : public host::TForm {
  public:
    Form() : TForm("Form", "Título") {
        Registrar({&Data, &A, &B, &Combo, &Recusar});
        A.OnClick = [this] {
            if (A.Checked())
                B.SetChecked(false);
        };
        B.OnClick = [this] {
            if (B.Checked())
                A.SetChecked(false);
        };
        Combo.SetItens({"um", "dois"}, {"1", "2"});
    }
    void ValidarCampos(host::TControle* sender) override {
        if (sender == &Data && Data.Date().Vazia())
            throw base::Abort();
    }
    host::TZTDateEdit Data{"Data"};
    host::TZTCheckBox A{"A"};
    host::TZTCheckBox B{"B"};
    host::TZTComboBox Combo{"Combo"};
    host::TAction Recusar{"Recusar", [] { throw base::Abort(); }};
};

} // namespace

TEST(Controles, MarcarCorreARegraSoQuandoOEstadoMuda) {
    Form form;
    int cliques = 0;
    const auto assinatura = form.B.AoMudar([&] { ++cliques; });
    form.B.SetChecked(true);
    form.A.SetChecked(true);
    EXPECT_FALSE(form.B.Checked()) << "the rule of A ran inside the write";
    form.A.SetChecked(true);
    EXPECT_EQ(2, cliques);
    form.Combo.SetValorSelecionado("2");
    EXPECT_EQ(1, form.Combo.ItemIndex());
    form.Combo.SetValorSelecionado("9");
    EXPECT_EQ("", form.Combo.GetValorSelecionado());
    form.Data.SetTexto("31/02/2024");
    EXPECT_TRUE(form.Data.Date().Vazia());
    EXPECT_FALSE(form.Data.EmBranco()) << "what was typed stays";
    form.Data.SetTexto("");
    EXPECT_TRUE(form.Data.EmBranco());
}

TEST(Controles, ComboTrocaListaEEscolhaDeUmaVezEAvisaSoOValorQueMuda) {
    Form form;
    int avisos = 0;
    std::vector<std::string> valores;
    const auto assinatura = form.Combo.AoMudar([&] { ++avisos; });
    form.Combo.OnChange = [&] { valores.push_back(form.Combo.GetValorSelecionado()); };
    form.Combo.SetValorSelecionado("2");
    form.Combo.SetItens({"dois", "três"}, {"2", "3"}, "2");
    EXPECT_EQ(0, form.Combo.ItemIndex());
    EXPECT_EQ(2, avisos) << "the widgets see the new list at once";
    EXPECT_EQ(std::vector<std::string>{"2"}, valores) << "another place in the list is no other value";
    form.Combo.SetItens({"quatro", "três"}, {"4", "3"}, "3");
    form.Combo.SetItens({"um"}, {"1"});
    form.Combo.SetItens({"um"}, {"1"}, "9");
    EXPECT_EQ((std::vector<std::string>{"2", "3", "1", ""}), valores) << "no value on the way is told";
}

TEST(Assinatura, VaiAteOFimDeQualquerDosLados) {
    std::string ouvido;
    host::TAssinatura antes;
    host::TAssinatura depois;
    {
        host::TLabel rotulo("Rotulo");
        antes = rotulo.AoMudar([&] {
            ouvido += "a";
            depois = {}; // also while they are being told
        });
        depois = rotulo.AoMudar([&] { ouvido += "d"; });
        rotulo.SetCaption("1");
        EXPECT_EQ("a", ouvido);
        auto copia = antes;
        antes = {};
        rotulo.SetCaption("2");
        EXPECT_EQ("aa", ouvido) << "a copy holds it";
        copia = {};
        rotulo.SetCaption("3");
        EXPECT_EQ("aa", ouvido);
        antes = rotulo.AoMudar([&] { ouvido += "x"; });
    }
    antes = {}; // of a control that is gone
    EXPECT_EQ("aa", ouvido);
}

namespace {

class Dialogo : public host::TFormZTTandorPadraoResult {
  public:
    Dialogo() : TFormZTTandorPadraoResult("Dialogo", "Diálogo") { Registrar({&Campo}); }
    // Closes as the rules of a commit do, whatever happens.
    void ActOKExecute(host::TControle*) override {
        Fechar(1);
        throw base::TFalha("gravar");
    }
    host::TZTDateEdit Campo{"Campo"};
};

} // namespace

TEST(DialogoModal, FalhaFicaNeleEnquantoAbertoEAtrasDeleNadaCorre) {
    apoio::Interacao interacao;
    host::TServicos servicos;
    servicos.Interacao = &interacao;
    const host::TInstalacaoServicos instalados(servicos);
    Dialogo form;
    form.Campo.OnExit = [] { throw base::TFalha("sair"); };
    form.Campo.OnKeyDown = [](host::TTecla) -> bool { throw base::TFalha("tecla"); };
    bool depois = false;
    interacao.aoMostrar = [&](host::TFormZTTandorPadraoResult&) {
        suite::script::FormDriver usuario(form);
        EXPECT_FALSE(form.SairDe(form.Campo)) << "the field is not left";
        usuario.press("Campo", host::TTecla::Enter);
        EXPECT_TRUE(form.Aberto());
        EXPECT_THROW(usuario.define("Campo.Outro", "1"), suite::script::WrongUse) << "no failure of the form";
        EXPECT_THROW(form.Realizar([] { throw std::logic_error("fault"); }), std::logic_error);
        usuario.click("actOK");
        depois = true;
    };
    try {
        form.ShowModal();
        FAIL() << "what stands behind the dialog must not run";
    } catch (const base::TFalha& falha) {
        EXPECT_STREQ("gravar", falha.what());
    }
    EXPECT_TRUE(depois) << "no failure goes through whoever shows the dialog";
    EXPECT_EQ((std::vector<std::string>{"sair", "tecla"}), interacao.falhas);
    interacao.aoMostrar = [&](host::TFormZTTandorPadraoResult&) { form.Executar(form.Acao("actSair")); };
    EXPECT_EQ(2, form.ShowModal()) << "the failure was that showing's";
    EXPECT_THROW(form.Executar(form.Acao("actOK")), base::TFalha) << "not shown, it passes at once";
}

TEST(FormDriver, FazOQueOUsuarioPodeENadaMais) {
    Form form;
    suite::script::FormDriver usuario(form);
    bool saiu = false;
    form.Data.OnExit = [&] { saiu = true; };
    usuario.leave("Data");
    EXPECT_FALSE(saiu) << "a refused validation ends before the exit event, without a failure";
    usuario.define("Data", "01/02/2024");
    usuario.leave("Data");
    EXPECT_TRUE(saiu);
    usuario.click("Recusar");
    form.A.SetEnabled(false);
    form.B.OnKeyDown = form.A.OnKeyDown = [](host::TTecla) -> bool {
        ADD_FAILURE() << "a key in a control that nobody is in";
        return true;
    };
    form.B.SetVisible(false);
    for (const char* fora : {"A", "B"}) {
        EXPECT_THROW(usuario.define(fora, "1"), suite::script::WrongUse);
        EXPECT_THROW(usuario.click(fora), suite::script::WrongUse);
        EXPECT_THROW(usuario.leave(fora), suite::script::WrongUse);
        EXPECT_THROW(usuario.press(fora, host::TTecla::Enter), suite::script::WrongUse);
    }
    form.B.SetVisible(true);
    EXPECT_THROW(usuario.define("B", "sim"), base::TFalha);
    EXPECT_THROW(usuario.define("Combo", "3"), base::TFalha);
    try {
        usuario.define("Nada", "1");
        FAIL();
    } catch (const base::TFalha& falha) {
        EXPECT_STREQ("Form não tem \"Nada\". Existem: Data, A, B, Combo, Recusar.", falha.what());
    }
}

TEST(BarraProgresso, ContaTudoAoHospedeiroEFechaNaFalha) {
    apoio::Interacao interacao;
    host::TServicos servicos;
    servicos.Interacao = &interacao;
    const host::TInstalacaoServicos instalados(servicos);
    try {
        host::TZTBarraProgressoDlg dialogo(2);
        dialogo.MostrarBarraProgresso();
        dialogo.BuscarBarraProgresso(1).SetValorMaximo(6);
        dialogo.BuscarBarraProgresso(1).AvancarProgresso(0);
        dialogo.BuscarBarraProgresso(1).AvancarProgresso(0);
        EXPECT_THROW(dialogo.BuscarBarraProgresso(2), std::out_of_range);
        throw base::TFalha("falha");
    } catch (const base::TFalha&) {
    }
    ASSERT_EQ(5U, interacao.progresso.size());
    EXPECT_EQ(2, interacao.progresso[3].Valor);
    EXPECT_EQ(host::TEventoProgresso::TTipo::Fechar, interacao.progresso.back().Tipo);
}

TEST(Headless, PerguntaSemRespostaEhFalhaEAFalhaDoBancoMostraSuaCausa) {
    std::ostringstream erro;
    suite::terminal::Headless interacao(erro, false);
    EXPECT_EQ(6, interacao.Mensagem({host::TNivelMensagem::Informacao, "", "linha\rseguinte", {"OK"}, 6}));
    EXPECT_EQ("linha\nseguinte\n", erro.str());
    EXPECT_FALSE(interacao.failure());
    const base::TFalhaBanco causa(base::TTipoFalhaBanco::Bloqueio, "Ocupado.", "40001", {7}, "Reservar", "a\nb\x1B");
    interacao.Mensagem({host::TNivelMensagem::Erro, "", "Erros : Ocupado.", {"OK"}, 6, causa});
    EXPECT_NE(std::string::npos,
              erro.str().find("Erros : Ocupado.\n(SQLSTATE 40001, instrução Reservar, códigos 7: a\nb␛)\n"))
        << erro.str();
    EXPECT_EQ(base::TTipoFalhaBanco::Bloqueio, interacao.failure()->Tipo());
    EXPECT_THROW(interacao.Mensagem({host::TNivelMensagem::Confirmacao, "", "Sim?", {"Sim", "Não"}, 6}), base::TFalha);
    interacao.Progresso({host::TEventoProgresso::TTipo::Texto, 0, "texto", 0});
    EXPECT_EQ(std::string::npos, erro.str().find("texto")) << "no progress outside a terminal";
}

TEST(Modulo, RegistraSuaClasseEnquantoCarregado) {
    ASSERT_FALSE(host::FindClass("TForm04618"));
    {
        const suite::program::Module modulo(ORCREAL_MODULO);
        EXPECT_EQ("5.40", modulo.versionRecord("MinVersionDatabase"));
        EXPECT_EQ("Pct04618", modulo.information().Nome);
        EXPECT_EQ("Consultas e relatórios Orçamento x Realizado", modulo.information().Descricao);
        EXPECT_TRUE(host::FindClass("TForm04618"));
    }
    EXPECT_FALSE(host::FindClass("TForm04618")) << "unloading unregisters";
    EXPECT_THROW(suite::program::Module("/nada/Pct04618.so"), base::TFalha);
}

TEST(Modulo, ArquivoQueNaoEhModuloEhRecusadoEUmSemTextosSuportado) {
    const std::string pasta = ORCREAL_MODULOS "/";
    for (const char* nome : {"modulo_nulo.so", "modulo_dado.so"})
        try {
            const suite::program::Module modulo(pasta + nome);
            FAIL() << nome;
        } catch (const base::TFalha& falha) {
            EXPECT_EQ("O arquivo " + pasta + nome + " não é um módulo deste programa.", falha.what());
        }
    EXPECT_EQ(":  (banco de dados a partir da versão )",
              suite::program::Module(pasta + "modulo_calado.so").description());
}

TEST(PastaDoUsuario, HomeIncompletaNaoContaESemNenhumaHaUmaFrase) {
    using suite::program::chooseHome;
    EXPECT_EQ("/casa", chooseHome("/casa", "/conta"));
    for (const char* home : {static_cast<const char*>(nullptr), "", "casa", "./casa"})
        EXPECT_EQ("/conta", chooseHome(home, "/conta"));
    for (const char* conta : {static_cast<const char*>(nullptr), "", "conta"})
        EXPECT_THROW(chooseHome("casa", conta), base::TFalha);
}
