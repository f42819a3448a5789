#include "base/Falhas.h"
#include "host/DataSet.h"

#include <gtest/gtest.h>

using base::Inteiro;
using base::Nulo;
using base::TValor;
using host::TTipoColuna;

namespace {

// A connection that gives the same rows to whoever asks.
class Conexao : public host::TSQLConnection {
  public:
    std::vector<host::TDescricaoColuna> colunas{{"FILIAL", TTipoColuna::Inteiro, 0, 0, "T"},
                                                {"PLANO", TTipoColuna::Inteiro, 0, 0, "T"},
                                                {"VALOR", TTipoColuna::Inteiro, 2, 0, "T"},
                                                {"NOME", TTipoColuna::Texto, 0, 40, "T"}};
    std::vector<std::vector<TValor>> linhas;
    std::string texto; // the statement asked for last

    std::unique_ptr<host::TCursor> AbrirCursor(const host::TInstrucao& instrucao) override {
        texto = instrucao.Texto;
        return std::make_unique<Cursor>(*this);
    }
    void ExecuteDirect(const std::string&) override {}

  private:
    class Cursor : public host::TCursor {
      public:
        explicit Cursor(const Conexao& conexao) : conexao_(conexao) {}
        const std::vector<host::TDescricaoColuna>& Colunas() const override { return conexao_.colunas; }
        std::size_t Ler(host::TColunas& destino, std::size_t) override {
            if (lido_ == conexao_.linhas.size())
                return 0;
            for (std::size_t i = 0; i < destino.size(); ++i)
                destino[i].Acrescentar(conexao_.linhas[lido_][i]);
            ++lido_;
            return 1;
        }

      private:
        const Conexao& conexao_;
        std::size_t lido_ = 0;
    };
};

class DataSet : public testing::Test {
  protected:
    DataSet() {
        sds.SetSQLConnection(conexao);
        dsp.PermiteCommandText = true;
        cds.CommandText = "SELECT";
        conexao.linhas = {{Inteiro(2), Inteiro(10), base::TDecimal{150, 2}, std::string("água")},
                          {Nulo, Inteiro(20), Nulo, Nulo},
                          {Inteiro(1), Inteiro(10), base::TDecimal{-5, 2}, std::string("")},
                          {Inteiro(1), Nulo, base::TDecimal{0, 2}, std::string("água")}};
    }
    std::vector<std::int64_t> Planos() {
        std::vector<std::int64_t> lista;
        for (cds.First(); !cds.Eof(); cds.Next())
            lista.push_back(cds.FieldByName("PLANO").AsInt64().value_or(-1));
        return lista;
    }
    Conexao conexao;
    host::TZTSQLDataSet sds{"Sds"};
    host::TZTDataSetProvider dsp{"Dsp", sds};
    host::TZTClientDataSet cds{"Cds", dsp};
};

} // namespace

TEST_F(DataSet, NavegaELeSemConfundirNuloComZero) {
    cds.Open();
    EXPECT_EQ(4U, cds.RecordCount());
    EXPECT_EQ((std::vector<std::int64_t>{10, 20, 10, -1}), Planos());
    cds.First();
    EXPECT_TRUE(cds.Bof());
    EXPECT_EQ("1.50", cds.FieldByName("VALOR").AsString());
    EXPECT_EQ("água", cds.FieldByName("NOME").AsString());
    EXPECT_THROW(cds.FieldByName("VALOR").AsInt64(), base::TFalha) << "it has a fraction";
    cds.Next();
    EXPECT_TRUE(cds.FieldByName("VALOR").IsNull());
    EXPECT_FALSE(cds.FieldByName("FILIAL").AsInt64());
    EXPECT_EQ(0, cds.FieldByName("FILIAL").AsInt64OuZero());
    EXPECT_THROW(cds.GetInt64FieldValue("FILIAL"), base::TFalha);
    cds.Next();
    EXPECT_FALSE(cds.FieldByName("NOME").IsNull()) << "an empty text is not null";
    cds.Last();
    cds.Next();
    EXPECT_TRUE(cds.Eof());
    EXPECT_EQ(4U, cds.RecNo());
    try {
        cds.FieldByName("NADA");
        FAIL();
    } catch (const base::TFalha& falha) {
        EXPECT_STREQ("O conjunto de dados Cds não tem o campo NADA.", falha.what());
    }
}

TEST_F(DataSet, ReabrirRefazCamposEEventosEFecharEsqueceTudo) {
    int aberturas = 0;
    cds.AfterOpen = [&](host::TDataSet& d) {
        ++aberturas;
        EXPECT_TRUE(d.FieldByName("VALOR").FormatoExibicao.empty());
        d.FieldByName("VALOR").FormatoExibicao = ",0.00";
    };
    int mudancas = 0;
    const auto assinatura = cds.AoMudarEstado([&] { ++mudancas; });
    cds.Open();
    cds.Open();
    cds.Close();
    conexao.linhas.clear();
    cds.Open();
    EXPECT_EQ(2, aberturas);
    EXPECT_EQ(3, mudancas);
    EXPECT_TRUE(cds.IsEmpty());
    EXPECT_TRUE(cds.Eof());
    EXPECT_EQ(0U, cds.RecNo());
    EXPECT_THROW(cds.FieldByName("VALOR").AsString(), base::TFalha);
    cds.Close();
    cds.AfterOpen = [](host::TDataSet& d) { d.FieldByName("AUSENTE"); };
    EXPECT_THROW(cds.Open(), base::TFalha);
    EXPECT_FALSE(cds.Active()) << "what fails to open is closed";
}

TEST_F(DataSet, TextoDoClienteSoValeOndeOProvedorDeixa) {
    sds.CommandText = "PADRAO";
    cds.Open();
    EXPECT_EQ("SELECT", conexao.texto);
    cds.Close();
    dsp.PermiteCommandText = false;
    cds.Open();
    EXPECT_EQ("PADRAO", conexao.texto);
    cds.Close();
    sds.CommandText.clear();
    EXPECT_THROW(cds.Open(), base::TFalha);
}

TEST_F(DataSet, IndiceOrdenaNuloPrimeiroEAchaPelosCamposIniciais) {
    cds.SetIndexFieldNames("FILIAL;PLANO");
    cds.Open();
    EXPECT_EQ((std::vector<std::int64_t>{20, -1, 10, 10}), Planos());
    const std::vector<TValor> chave{Inteiro(1), Inteiro(10)};
    ASSERT_TRUE(cds.FindKey(chave));
    EXPECT_EQ("-0.05", cds.FieldByName("VALOR").AsString());
    const std::vector<TValor> so_filial{std::string("1")};
    ASSERT_TRUE(cds.FindKey(so_filial)) << "a key may come as text";
    EXPECT_TRUE(cds.FieldByName("PLANO").IsNull()) << "the first of the rows that fit";
    const std::vector<TValor> nula{Nulo};
    ASSERT_TRUE(cds.FindKey(nula));
    EXPECT_EQ(1U, cds.RecNo());
    const std::vector<TValor> ausente{Inteiro(1), Inteiro(11)};
    EXPECT_FALSE(cds.FindKey(ausente));
    EXPECT_EQ(1U, cds.RecNo()) << "not found: stays";
    cds.Close();
    cds.SetIndexFieldNames("FILIAL;NADA");
    EXPECT_THROW(cds.Open(), base::TFalha);
}

TEST_F(DataSet, EdicaoFicaPendenteETomaOSeuLugarNoIndice) {
    cds.SetIndexFieldNames("FILIAL;PLANO");
    cds.OnNewRecord = [](host::TZTClientDataSet& d) { d.FieldByName("NOME").Atribuir(std::string("novo")); };
    cds.Open();
    cds.Insert();
    EXPECT_EQ("novo", cds.FieldByName("NOME").AsString()) << "before it is posted";
    cds.FieldByName("FILIAL").Atribuir(Inteiro(1));
    cds.FieldByName("PLANO").Atribuir(std::string("5"));
    cds.FieldByName("VALOR").Atribuir(base::TDecimal{12345, 3});
    EXPECT_THROW(cds.FieldByName("PLANO").Atribuir(std::string("x")), base::TFalha);
    EXPECT_EQ(4U, cds.RecordCount());
    cds.Post();
    EXPECT_EQ(3U, cds.RecNo());
    EXPECT_EQ("12.35", cds.FieldByName("VALOR").AsString()) << "at the scale of the field";
    EXPECT_EQ((std::vector<std::int64_t>{20, -1, 5, 10, 10}), Planos());

    cds.First();
    cds.Edit();
    cds.FieldByName("FILIAL").Atribuir(Inteiro(9));
    cds.Post();
    EXPECT_EQ(5U, cds.RecNo()) << "the edited row moved";
    cds.Edit();
    cds.FieldByName("FILIAL").Clear();
    cds.Cancel();
    EXPECT_EQ(9, cds.FieldByName("FILIAL").AsInt64());
    ASSERT_EQ(2U, cds.Alteracoes().size());
    EXPECT_TRUE(EhNulo(cds.Alteracoes().at(1).Antes[0])) << "the value before the first edit is kept";
    EXPECT_TRUE(cds.Alteracoes().at(4).Inserida);
    cds.Close();
    EXPECT_TRUE(cds.Alteracoes().empty());
}

TEST(Colunas, TextosIguaisSaoGuardadosUmaVez) {
    host::TColuna coluna({"NOME", TTipoColuna::Texto, 0, 40, ""});
    for (int i = 0; i < 100'000; ++i)
        coluna.AcrescentarTexto(i % 2 == 0 ? "Receita" : "nome " + std::to_string(i % 1000));
    EXPECT_EQ("Receita", coluna.Texto(99'998));
    EXPECT_EQ("nome 999", coluna.Texto(99'999));
    EXPECT_EQ(coluna.Codigo(1), coluna.Codigo(1001));
    EXPECT_LT(coluna.Bytes(), 700'000U);
}
