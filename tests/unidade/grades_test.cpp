// The result grids without a grid in sight: their columns, how each cell looks, and the layouts that a user keeps.
#include "apoio/Hospedeiro.h"
#include "base/Falhas.h"
#include "consultation/EstruturaGrades.h"
#include "consultation/NomesDosPeriodos.h"
#include "consultation/RegrasCelulas.h"
#include "host/Leiaute.h"
#include "suite/program/LayoutStore.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <unistd.h>

using host::TAparencia;
using pct04618::AparenciaDaCelula;
using pct04618::TCelulaBalanco;
using pct04618::TCelulaPeriodos;
namespace cores = pct04618::cores;

namespace {

using Lista = std::vector<std::string>;
using Cor = std::optional<host::TCor>;
constexpr Cor Nenhuma;

// The columns in order: field, "-" where hidden, "@level" where grouped.
std::string Ordem(const std::vector<host::TColunaGrade>& colunas) {
    std::string texto;
    for (const auto& coluna : colunas)
        texto += (texto.empty() ? "" : " ") + std::string(coluna.Visivel ? "" : "-") + coluna.Campo +
                 (coluna.Grupo < 0 ? "" : "@" + std::to_string(coluna.Grupo));
    return texto;
}

// The inverse.
std::vector<host::TColunaGrade> Colunas(const std::string& ordem) {
    std::vector<host::TColunaGrade> colunas;
    std::istringstream palavras(ordem);
    for (std::string palavra; palavras >> palavra;) {
        auto& coluna = colunas.emplace_back();
        coluna.Visivel = palavra[0] != '-';
        coluna.Campo = palavra.substr(coluna.Visivel ? 0 : 1, 1);
        if (const auto arroba = palavra.find('@'); arroba != std::string::npos)
            coluna.Grupo = std::stoi(palavra.substr(arroba + 1));
    }
    return colunas;
}

TCelulaBalanco Balanco(const char* recDesp, const char* variacao, const char* coluna = "NOMECONTA",
                       const char* texto = "", bool titulo = false) {
    return {titulo ? 1 : 2, variacao, recDesp, coluna, texto, false};
}

// Line type, title or not, and the column, in a result of the line types named "BOR".
TCelulaPeriodos Periodos(const std::string& tipos, int linha, int titulo, const char* coluna) {
    TCelulaPeriodos celula;
    celula.LinhaVlrBase = tipos.find('B') != std::string::npos;
    celula.LinhaVlrOrcado = tipos.find('O') != std::string::npos;
    celula.LinhaVlrRealizado = tipos.find('R') != std::string::npos;
    celula.TipoLinha = linha;
    celula.CtaTitulo = titulo;
    celula.Coluna = coluna;
    celula.Texto = "x";
    return celula;
}

} // namespace

TEST(GradeBalanco, CorDizSeReceitaEDespesaFicaramMelhorOuPior) {
    const struct {
        const char* recDesp;
        const char* variacao;
        Cor cor;
    } casos[] = {
        {"Receita", "-0.010000", cores::Vermelho},
        {"Receita", "0.000000", cores::Vermelho},
        {"Receita", "0.000040", cores::Vermelho},
        {"Receita", "0.000100", cores::Azul},
        {"Receita", "", cores::Vermelho},
        {"Receita", "-0.000040", cores::Vermelho},
        {"Despesa", "-8.000000", cores::Roxo},
        {"Despesa", "0.000000", Nenhuma},
        {"Despesa", "0.000040", Nenhuma},
        {"Despesa", "0.000050", Nenhuma},
        {"Despesa", "0.000060", cores::VerdeAzulado},
        {"Despesa", "-0.000040", Nenhuma},
        {"Despesa", "-0.000100", cores::Roxo},
        {"Despesa", "nada", Nenhuma},
        {"", "5.000000", Nenhuma},
        {"receita", "-5.000000", Nenhuma},
    };
    for (const auto& caso : casos)
        for (const char* coluna : {"NOMECONTA", "VLRBASE", "FILIAL"}) {
            const auto cor = AparenciaDaCelula(Balanco(caso.recDesp, caso.variacao, coluna)).Fonte;
            EXPECT_EQ(caso.cor, cor) << caso.recDesp << " " << caso.variacao << " " << coluna;
        }
}

TEST(GradeBalanco, TituloEhNegritoEZeroDeCodigoNaoAparece) {
    EXPECT_FALSE(AparenciaDaCelula(Balanco("Receita", "1")).Negrito);
    for (const char* coluna : {"CONTA", "CODIGO", "CCUSTO", "VLRORCADO", "RECDESP"})
        EXPECT_TRUE(AparenciaDaCelula(Balanco("Receita", "1", coluna, "", true)).Negrito) << coluna;
    for (const char* coluna : {"CONTA", "CODIGO", "CCUSTO"}) {
        EXPECT_TRUE(AparenciaDaCelula(Balanco("", "", coluna, " 0 ")).Vazio) << coluna;
        EXPECT_FALSE(AparenciaDaCelula(Balanco("", "", coluna, "10")).Vazio);
        EXPECT_FALSE(AparenciaDaCelula(Balanco("", "", coluna, "")).Vazio);
    }
    for (const char* coluna : {"NOMECONTA", "FILIAL", "VLRBASE", "TPPROJECAO"})
        EXPECT_FALSE(AparenciaDaCelula(Balanco("", "", coluna, "0")).Vazio) << coluna;
    auto selecionada = Balanco("Receita", "-1", "CONTA", "0", true);
    selecionada.Selecionada = true;
    const auto aparencia = AparenciaDaCelula(selecionada);
    EXPECT_TRUE(aparencia.Negrito);
    EXPECT_TRUE(aparencia.Vazio);
    EXPECT_EQ(Nenhuma, aparencia.Fonte) << "only the colour goes";
    EXPECT_EQ(Nenhuma, aparencia.Fundo);
}

TEST(GradePeriodos, FundoAbreOBlocoEIdentificacaoApareceUmaVez) {
    const struct {
        const char* tipos;
        const char* comFundo;
        const char* comIdentificacao;
    } casos[] = {{"BOR", "1", "1"}, {"BO", "1", "12"}, {"BR", "1", "13"}, {"B", "1", "1"},
                 {"OR", "2", "2"},  {"O", "", "2"},    {"R", "", "3"}};
    for (const auto& caso : casos) {
        std::string comFundo;
        std::string comIdentificacao;
        for (char letra : std::string(caso.tipos)) {
            const int linha = letra == 'B' ? 1 : letra == 'O' ? 2 : 3;
            const auto aparencia = AparenciaDaCelula(Periodos(caso.tipos, linha, 2, "NOMECONTA"));
            comFundo += aparencia.Fundo ? std::to_string(linha) : "";
            comIdentificacao += aparencia.Vazio ? "" : std::to_string(linha);
            EXPECT_EQ(Cor(cores::Preto), aparencia.Fonte) << "on every line";
            EXPECT_FALSE(AparenciaDaCelula(Periodos(caso.tipos, linha, 2, "VAL1")).Vazio) << "values stay";
        }
        EXPECT_EQ(caso.comFundo, comFundo) << caso.tipos;
        EXPECT_EQ(caso.comIdentificacao, comIdentificacao) << caso.tipos;
    }
}

TEST(GradePeriodos, FundoDizQueContaEh) {
    auto celula = Periodos("BOR", 1, 1, "VAL1");
    EXPECT_EQ(Cor(cores::AzulForte), AparenciaDaCelula(celula).Fundo);
    celula.DetContasTotaliz = true;
    celula.IDPlano = "7";
    EXPECT_EQ(Cor(cores::AzulForte), AparenciaDaCelula(celula).Fundo) << "a title stays a title";
    celula.CtaTitulo = 2;
    EXPECT_EQ(Cor(cores::VerdeClaro), AparenciaDaCelula(celula).Fundo);
    celula.IDPlano.clear();
    EXPECT_EQ(Cor(cores::AzulClaro), AparenciaDaCelula(celula).Fundo) << "a totalizer";
    celula.IDPlano = "7";
    celula.DetContasTotaliz = false;
    EXPECT_EQ(Cor(cores::AzulClaro), AparenciaDaCelula(celula).Fundo) << "no detail, no green";
    celula.Selecionada = true;
    EXPECT_EQ(Nenhuma, AparenciaDaCelula(celula).Fundo);
    EXPECT_EQ(Nenhuma, AparenciaDaCelula(celula).Fonte);
    celula.Coluna = "CONTA";
    celula.Texto = "0";
    EXPECT_TRUE(AparenciaDaCelula(celula).Vazio) << "also in the selected line";
}

TEST(GradePeriodos, NegritoNoOrcadoNosTotaisENaIdentificacaoDoTitulo) {
    const auto negrito = [](int linha, int titulo, const char* coluna) {
        return AparenciaDaCelula(Periodos("BOR", linha, titulo, coluna)).Negrito;
    };
    for (int linha = 1; linha <= 3; ++linha) {
        EXPECT_TRUE(negrito(linha, 2, "TOTAL"));
        EXPECT_TRUE(negrito(linha, 2, "PERCTOT"));
        EXPECT_EQ(linha == 2, negrito(linha, 2, "VAL1"));
        EXPECT_EQ(linha == 2, negrito(linha, 1, "ANO")) << "a title is bold in its identification only";
        EXPECT_EQ(linha == 2, negrito(linha, 2, "NOMECONTA"));
        for (const char* coluna : {"CLASSIFCONTAB", "NOMECONTA", "CONTA", "SUBCONTA", "CCUSTO", "FILIAL"})
            EXPECT_TRUE(negrito(linha, 1, coluna)) << coluna;
    }
    for (const char* coluna : {"CLASSIFCONTAB", "CONTA", "SUBCONTA", "CCUSTO", "NOMECONTA", "FILIAL", "VAL1"}) {
        auto zero = Periodos("BOR", 1, 2, coluna);
        zero.Texto = " 0";
        const std::string nome = coluna;
        EXPECT_EQ(nome != "NOMECONTA" && nome != "FILIAL" && nome != "VAL1", AparenciaDaCelula(zero).Vazio) << nome;
    }
}

TEST(EstruturaGrades, ColunasNaOrdemComOQueSeVe) {
    const auto balanco = pct04618::ColunasDbtvCtbOrcada();
    EXPECT_EQ("CLASSIFCONTAB CONTA CODIGO CCUSTO -DESCCCUSTO FILIAL@0 NOMECONTA TPATUALIZBASE INDICEATBASE VLRBASE "
              "TPPROJECAO TPBASEPROJ PERCORCADO VLRORCADO VLRREALIZADO DELTAVLR DELTAPERC DELTAVARIACAO RECDESP "
              "-CTATITULO",
              Ordem(balanco));
    Lista titulos;
    for (const auto& coluna : balanco)
        titulos.push_back(coluna.Faixa + "/" + coluna.Titulo + "/" + coluna.Formato);
    EXPECT_EQ((Lista{"/Classificação/",
                     "/Conta/Tot./",
                     "/Sub/",
                     "/C.Custo/",
                     "/Desc.Custo/",
                     "/Filial/",
                     "/Nome da Conta/Totalizador/",
                     "Valor Base/TP Atualiz./",
                     "Valor Base/% Atualiz./",
                     "Valor Base/Valor/,0.00",
                     "Valor Orçado/Proj./",
                     "Valor Orçado/Base Proj./",
                     "Valor Orçado/%/,0.0000",
                     "Valor Orçado/Valor/,0.00",
                     "Valor Realizado/Valor Realizado/,0.00",
                     "Valor Realizado/Variação/,0.00",
                     "Valor Realizado/% Realizado/,0.0000",
                     "Valor Realizado/% Variação/,0.0000",
                     "Valor Realizado/Tipo Conta/",
                     "Valor Realizado//"}),
              titulos);
    const auto periodos = pct04618::ColunasDbtvMostraCtbOrcMensal();
    std::string esperada = "CLASSIFCONTAB CONTA SUBCONTA CCUSTO FILIAL@0 NOMECONTA ANO";
    for (int i = 1; i <= 12; ++i)
        esperada += " -VAL" + std::to_string(i) + " -PERC" + std::to_string(i);
    EXPECT_EQ(esperada + " TOTAL PERCTOT -CTATITULO -TIPOLINHA -IDPLANO", Ordem(periodos));
    for (const auto& coluna : periodos) {
        EXPECT_EQ(&coluna - periodos.data() < 6, coluna.Identificacao) << coluna.Campo;
        EXPECT_EQ(coluna.Campo.starts_with("VAL") || coluna.Campo == "TOTAL" ? ",0.00"
                  : coluna.Campo.starts_with("PERC")                         ? ",0.0000"
                                                                             : "",
                  coluna.Formato)
            << coluna.Campo;
    }
}

TEST(NomesDosPeriodos, RepetidosDizemOQueOsDistingue) {
    const auto dia = [](const char* texto) { return *texto ? *base::TDataHora::DeTexto(texto) : base::TDataHora(); };
    const auto nomes = [&](const std::vector<std::array<const char*, 5>>& periodos) {
        Lista lista;
        std::vector<pct04618::TPeriodoEmColuna> datas;
        for (const auto& [nome, inicio, fim, inicioRef, fimRef] : periodos) {
            lista.push_back(nome);
            datas.push_back({dia(inicio), dia(fim), dia(inicioRef), dia(fimRef)});
        }
        return pct04618::NomesUnicos(lista, datas);
    };
    EXPECT_EQ((Lista{"Novembro", "Janeiro 2023", "Janeiro 2024"}),
              nomes({{"Novembro", "01/11/2022", "30/11/2022", "", ""},
                     {"Janeiro", "01/01/2023", "31/01/2023", "", ""},
                     {"Janeiro", "01/01/2024", "31/01/2024", "", ""}}));
    EXPECT_EQ((Lista{"2023 (01/01/2023 a 31/03/2023)", "2023 (01/01/2023 a 31/12/2023)", "2024"}),
              nomes({{"2023", "01/01/2023", "31/03/2023", "", ""},
                     {"2023", "01/01/2023", "31/12/2023", "", ""},
                     {"2024", "01/01/2024", "31/12/2024", "", ""}}))
        << "the name is the year";
    EXPECT_EQ((Lista{"Janeiro 2023", "Janeiro 2024 (01/01/2024 a 31/01/2024) (base de 01/01/2022 a 31/12/2022)",
                     "Janeiro 2024 (01/01/2024 a 31/01/2024) (sem base)", "Janeiro 2024 (01/01/2024 a 31/01/2025)"}),
              nomes({{"Janeiro", "01/01/2023", "31/01/2023", "", ""},
                     {"Janeiro", "01/01/2024", "31/01/2024", "01/01/2022", "31/12/2022"},
                     {"Janeiro", "01/01/2024", "31/01/2024", "", ""},
                     {"Janeiro", "01/01/2024", "31/01/2025", "", ""}}));
    EXPECT_EQ((Lista{"Maio", "Maio"}), pct04618::NomesUnicos({"Maio", "Maio"}, {}));
}

namespace {

const char* const Desenho = "A -B C@0 D";

// A grid of four columns with a store on a folder of its own.
class Leiautes : public testing::Test {
  protected:
    Leiautes() {
        servicos.Interacao = &interacao;
        servicos.Leiautes = &armazem;
        instalados.emplace(servicos);
        leiaute.IDUsuario = [this] { return usuario; };
        grade.SetColunas(Colunas(Desenho));
        leiaute.SetVisaoGradeLeiaute(grade);
    }
    ~Leiautes() override { std::filesystem::remove_all(pasta); }

    std::string NaGrade() const { return Ordem(grade.Colunas()); }
    std::filesystem::path Arquivo(const std::string& nome) const { return pasta / "5" / "{K}" / nome; }
    void Escrever(const std::string& nome, const std::string& texto) const {
        std::filesystem::create_directories(Arquivo(nome).parent_path());
        std::ofstream(Arquivo(nome)) << texto;
    }
    std::string Ler(const std::string& nome) const {
        std::ostringstream texto;
        texto << std::ifstream(Arquivo(nome)).rdbuf();
        return texto.str();
    }

    const std::filesystem::path pasta =
        std::filesystem::temp_directory_path() / ("orcreal-leiautes-" + std::to_string(::getpid()));
    suite::program::LayoutStore armazem{pasta};
    apoio::Interacao interacao;
    host::TServicos servicos;
    std::optional<host::TInstalacaoServicos> instalados;
    std::int64_t usuario = 5;
    host::TDataSource fonte{"Ds"};
    host::TGrade grade{"Dbg", fonte};
    host::TZTDbGridDevLeiaute leiaute{"Gdl", "{K}"};
};

} // namespace

TEST_F(Leiautes, VoltamComoForamGuardadosECadaUsuarioTemOsSeus) {
    leiaute.CarregarListaDeLeiautes();
    EXPECT_EQ(Lista{}, leiaute.Leiautes()) << "no folder yet";
    const char* const minhas = "D@1 -A B C@0";
    grade.SetColunas(Colunas(minhas));
    leiaute.Salvar(" Mês / ano: 100% ");
    leiaute.Salvar("Z");
    EXPECT_EQ((Lista{"Mês / ano: 100%", "Z"}), leiaute.Leiautes());
    leiaute.Escolher("");
    EXPECT_EQ(Desenho, NaGrade());
    grade.MudarColuna("A", [](host::TColunaGrade& c) { c.Titulo = "novo"; });
    leiaute.Escolher("Mês / ano: 100%");
    EXPECT_EQ(minhas, NaGrade());
    EXPECT_EQ("novo", grade.Coluna("A").Titulo) << "captions are the grid's";

    usuario = 6;
    leiaute.CarregarListaDeLeiautes();
    EXPECT_EQ(Lista{}, leiaute.Leiautes());
    usuario = 5;
    leiaute.Excluir("Mês / ano: 100%");
    EXPECT_EQ(Lista{"Z"}, leiaute.Leiautes());
    EXPECT_EQ("", leiaute.Escolhido());
    EXPECT_EQ(Desenho, NaGrade()) << "the default takes the place of the one that is gone";
    EXPECT_THROW(leiaute.Salvar("  "), base::TFalha);
    EXPECT_THROW(leiaute.Salvar(std::string(201, 'x')), base::TFalha);
    EXPECT_TRUE(interacao.mensagens.empty());
}

TEST_F(Leiautes, ColunaDesconhecidaEhPassadaEAQueFaltaVemNoFim) {
    Escrever("velho.leiaute", "orcreal-leiaute 1\nX visivel grupo 0\nD oculta grupo 7\nA visivel\nfim\n");
    leiaute.Escolher("velho");
    EXPECT_EQ("-D@1 A -B C@0", NaGrade()) << "as designed, with levels that no two columns share";
    bool padrao = false;
    leiaute.SelecaoLeiaute = [&](bool ehPadrao, std::vector<host::TColunaGrade>& colunas) {
        padrao = ehPadrao;
        if (ehPadrao)
            colunas[3].Visivel = false;
    };
    leiaute.Escolher("velho");
    EXPECT_FALSE(padrao);
    leiaute.Escolher("");
    EXPECT_TRUE(padrao);
    EXPECT_EQ("A -B C@0 -D", NaGrade());
}

TEST_F(Leiautes, ArquivoDanificadoEhDitoIgnoradoENuncaPerdido) {
    const Lista danificados{"",
                            "outra coisa\n",
                            "orcreal-leiaute 1\nA visivel\n",
                            "orcreal-leiaute 1\nA talvez\nfim\n",
                            "orcreal-leiaute 1\nA visivel grupo x\nfim\n",
                            "orcreal-leiaute 1\nA visivel\nfim\nA oculta\n",
                            "orcreal-leiaute 2\nA visivel\nfim\n"};
    for (const auto& texto : danificados) {
        Escrever("meu.leiaute", texto);
        leiaute.Escolher("meu");
        EXPECT_EQ(Desenho, NaGrade()) << texto;
        EXPECT_EQ("", leiaute.Escolhido());
        EXPECT_EQ(texto, Ler("meu.leiaute")) << "read, and left alone";
    }
    ASSERT_EQ(danificados.size(), interacao.mensagens.size());
    EXPECT_EQ("O leiaute \"meu\" não pôde ser lido e não foi aplicado. O arquivo " + Arquivo("meu.leiaute").string() +
                  " ficou como está.",
              interacao.mensagens.front());
    EXPECT_NE(std::string::npos, interacao.mensagens.back().find("versão mais nova"));

    Escrever("meu.leiaute", "primeiro");
    leiaute.Salvar("meu");
    Escrever("meu.leiaute", "segundo");
    leiaute.Salvar("meu");
    EXPECT_EQ("primeiro", Ler("meu.leiaute.danificado"));
    EXPECT_EQ("segundo", Ler("meu.leiaute.danificado2"));
    EXPECT_EQ("orcreal-leiaute 1\nA visivel\nB oculta\nC visivel grupo 0\nD visivel\nfim\n", Ler("meu.leiaute"));
    EXPECT_EQ(Lista{"meu"}, leiaute.Leiautes()) << "what was moved aside is not a layout";
    const auto arquivos = std::filesystem::directory_iterator(Arquivo("meu.leiaute").parent_path());
    EXPECT_EQ(3, std::distance(begin(arquivos), end(arquivos))) << "nothing of the writing stays";
}

TEST_F(Leiautes, PastaQueNaoServeNaoImpedeAJanela) {
    std::ofstream{pasta} << "a file where the folder should be";
    leiaute.CarregarListaDeLeiautes();
    EXPECT_EQ(Lista{}, leiaute.Leiautes());
    EXPECT_EQ(1U, interacao.mensagens.size());
    EXPECT_THROW(leiaute.Salvar("meu"), base::TFalha);
    EXPECT_EQ("", leiaute.Escolhido());
    suite::program::LayoutStore semPasta([]() -> std::filesystem::path { throw base::TFalha("sem pasta"); });
    EXPECT_EQ(Lista{}, semPasta.Listar({"{K}", 5})) << "a user without a home has kept nothing";
    EXPECT_THROW(semPasta.Gravar({"{K}", 5}, "meu", {}), base::TFalha);
    servicos.Leiautes = nullptr;
    const host::TInstalacaoServicos semArmazem(servicos);
    leiaute.CarregarListaDeLeiautes();
    leiaute.Escolher("");
    EXPECT_EQ(1U, interacao.mensagens.size()) << "without the service there is only the default";
}
