#include "base/Falhas.h"
#include "host/Lookup.h"
#include "unidade/exportacao_apoio.h"

namespace {

// Codes as numbers, and a record that lacks code and key.
struct Contas {
    Contas() {
        conexao.colunas = {{"ID", host::TTipoColuna::Inteiro, 0, 0, ""},
                           {"CODIGO", host::TTipoColuna::Inteiro, 0, 0, ""},
                           {"NOME", host::TTipoColuna::Texto, 0, 20, ""}};
        conexao.linhas = {{base::Inteiro(70), base::Inteiro(7), std::string("Água")},
                          {base::Nulo, base::Nulo, std::string("Sem código")}};
        pesquisa.CommandText = "SELECT";
        pesquisa.Open();
    }
    exportacao::Conexao conexao;
    host::TZTClientDataSet pesquisa{"Pesquisa", conexao};
    host::TZTLookupEx lookup{"Lkp",
                             {.CampoPesquisa = "CODIGO",
                              .CampoChave = "ID",
                              .CampoDescricao = "NOME",
                              .Colunas = {{"NOME", "Nome"}},
                              .MultiSelecao = true}};
};

} // namespace

TEST(Lookup, ZerosAEsquerdaNaoContamEmNumerosENuloNaoEhCodigo) {
    EXPECT_TRUE(host::EhOCodigo(base::Inteiro(7), "007"));
    EXPECT_TRUE(host::EhOCodigo(base::Inteiro(0), "000"));
    EXPECT_FALSE(host::EhOCodigo(base::Inteiro(7), "70"));
    EXPECT_TRUE(host::EhOCodigo(std::string("007"), "007"));
    EXPECT_FALSE(host::EhOCodigo(std::string("7"), "007")) << "in a text they are the code's own";
    EXPECT_FALSE(host::EhOCodigo(base::Nulo, ""));
}

TEST(Lookup, RegistroSemChaveNaoSeEscolheENadaMuda) {
    Contas contas;
    contas.lookup.Escolher(contas.pesquisa, 1);
    try {
        contas.lookup.Escolher(contas.pesquisa, 2);
        FAIL();
    } catch (const base::TFalha& falha) {
        EXPECT_STREQ("O registro escolhido não tem o campo ID, que o identifica. Corrija o cadastro.", falha.what());
    }
    EXPECT_THROW(contas.lookup.Marcar(contas.pesquisa, {1, 2}), base::TFalha);
    EXPECT_EQ(70, contas.lookup.GetID());
    EXPECT_EQ("Água", contas.lookup.GetResultSet().FieldByName("NOME").AsString());
    EXPECT_FALSE(contas.lookup.GetResultSetMultiSelecao().Active());
}
