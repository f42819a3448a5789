// Bands become pages: what stands together, what is repeated, where columns end, and what a text does that is too wide.
#include "base/Texto.h"
#include "paper/BandPages.h"
#include "suite/paint/report/ReportText.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace base;
using paper::BandPages;

namespace {

double medir(std::string_view texto, bool) { return static_cast<double>(Caracteres(texto)); }

TElementoFaixa elemento(std::string texto, std::uint8_t coluna, TCabimento cabimento = TCabimento::Encolhe) {
    TElementoFaixa feito;
    feito.Texto = std::move(texto);
    feito.Lugar.Coluna = coluna;
    feito.Cabimento = cabimento;
    return feito;
}

TFaixa faixa(TEspecieFaixa especie, int nivel, std::string texto) {
    TFaixa feita;
    feita.Especie = especie;
    feita.Nivel = nivel;
    feita.Elementos.push_back(elemento(std::move(texto), 0));
    return feita;
}

TFaixa grupo(std::string texto, int nivel, bool repete = true, bool junto = false) {
    auto feita = faixa(TEspecieFaixa::CabecalhoGrupo, nivel, std::move(texto));
    feita.Repete = repete;
    feita.MantemJunto = junto;
    feita.Elementos.front().Continua = true;
    return feita;
}

TFaixa linha(int numero, int nivel = 1) {
    return faixa(TEspecieFaixa::Detalhe, nivel, "linha " + std::to_string(numero));
}

class Relatorio final : public TRelatorio {
  public:
    std::vector<TFaixa> faixas{faixa(TEspecieFaixa::CabecalhoPagina, 0, "cabeçalho")};
    TDefinicaoRelatorio definicao;

    Relatorio() {
        definicao.Papel = {false, 0, 0, 0, 0};
        definicao.Reguas = {{{{"uma coluna larga"}, 0}, {{"1.234,50"}, 0}}};
        definicao.Rodape = faixa(TEspecieFaixa::RodapePagina, 0, "");
        definicao.Rodape.Elementos.front().Folha = true;
    }
    const TDefinicaoRelatorio& Definicao() const override { return definicao; }
    std::unique_ptr<TFluxoFaixas> Faixas() const override { return std::make_unique<Fluxo>(faixas); }

  private:
    struct Fluxo final : TFluxoFaixas {
        explicit Fluxo(const std::vector<TFaixa>& todas) : faixas(todas) {}
        bool Proxima(TFaixa& feita) override {
            if (proxima == faixas.size())
                return false;
            feita = faixas[proxima++];
            return true;
        }
        const std::vector<TFaixa>& faixas;
        std::size_t proxima = 0;
    };
};

// Pages of that many lines, header and footer among them.
std::vector<std::vector<std::string>> paginas(const Relatorio& relatorio, int linhas) {
    auto moldura = paper::settingOfText();
    moldura.sheet.height = linhas * 1'000;
    BandPages feitas(relatorio, medir, moldura);
    std::vector<std::vector<std::string>> todas;
    paper::Page pagina;
    while (feitas.next(pagina)) {
        EXPECT_EQ(static_cast<int>(todas.size()) + 1, pagina.number);
        auto& textos = todas.emplace_back();
        for (const auto& texto : pagina.texts) {
            EXPECT_LE(texto.baseline, moldura.sheet.height) << pagina.text(texto);
            textos.emplace_back(pagina.text(texto));
        }
    }
    return todas;
}

using Paginas = std::vector<std::vector<std::string>>;

TEST(Paginas, CabecalhoERodapeEmTodasEAFolhaContada) {
    Relatorio relatorio;
    EXPECT_EQ((Paginas{{"cabeçalho", "1"}}), paginas(relatorio, 5)) << "without a row there is a page all the same";
    for (int i = 1; i <= 4; ++i)
        relatorio.faixas.push_back(linha(i));
    relatorio.faixas.insert(relatorio.faixas.begin() + 4, faixa(TEspecieFaixa::CabecalhoPagina, 0, "outro"));
    EXPECT_EQ((Paginas{{"cabeçalho", "linha 1", "linha 2", "linha 3", "1"}, {"outro", "linha 4", "2"}}),
              paginas(relatorio, 5))
        << "a page carries the header that came before its first band";
}

TEST(Paginas, GrupoQueContinuaRepeteSeuCabecalhoEOutroNao) {
    Relatorio relatorio;
    relatorio.faixas.push_back(grupo("A", 1));
    relatorio.faixas.push_back(grupo("a", 2));
    for (int i = 1; i <= 3; ++i)
        relatorio.faixas.push_back(linha(i, 2));
    relatorio.faixas.push_back(grupo("b", 2));
    relatorio.faixas.push_back(linha(4, 2));
    EXPECT_EQ((Paginas{{"cabeçalho", "A", "a", "linha 1", "linha 2", "1"},
                       {"cabeçalho", "A (continuação)", "a (continuação)", "linha 3", "2"},
                       {"cabeçalho", "A (continuação)", "b", "linha 4", "3"}}),
              paginas(relatorio, 6));
}

TEST(Paginas, NenhumCabecalhoNoPeNenhumTotalSozinho) {
    Relatorio relatorio;
    for (int i = 1; i <= 2; ++i)
        relatorio.faixas.push_back(linha(i));
    relatorio.faixas.push_back(grupo("A", 1, false));
    relatorio.faixas.push_back(linha(3));
    relatorio.faixas.push_back(linha(4));
    relatorio.faixas.push_back(faixa(TEspecieFaixa::RodapeGrupo, 1, "total de A"));
    relatorio.faixas.push_back(faixa(TEspecieFaixa::Sumario, 0, "total"));
    EXPECT_EQ((Paginas{{"cabeçalho", "linha 1", "linha 2", "1"},
                       {"cabeçalho", "A", "linha 3", "2"},
                       {"cabeçalho", "linha 4", "total de A", "total", "3"}}),
              paginas(relatorio, 5));
}

TEST(Paginas, GrupoQueFicaJuntoMudaDePaginaInteiroSeUmaOComporta) {
    Relatorio relatorio;
    relatorio.faixas.push_back(linha(1));
    relatorio.faixas.push_back(grupo("A", 1, false, true));
    relatorio.faixas.push_back(linha(2));
    relatorio.faixas.push_back(linha(3));
    relatorio.faixas.push_back(grupo("B", 1, false, true));
    for (int i = 4; i <= 7; ++i)
        relatorio.faixas.push_back(linha(i));
    EXPECT_EQ((Paginas{{"cabeçalho", "linha 1", "1"},
                       {"cabeçalho", "A", "linha 2", "linha 3", "2"},
                       {"cabeçalho", "B", "linha 4", "linha 5", "3"},
                       {"cabeçalho", "linha 6", "linha 7", "4"}}),
              paginas(relatorio, 5))
        << "a group longer than a page is parted";
}

TEST(Paginas, FaixaQuePedePaginaNovaComecaUma) {
    Relatorio relatorio;
    relatorio.faixas.push_back(linha(1));
    auto nova = grupo("A", 1);
    nova.NovaPagina = true;
    relatorio.faixas.push_back(nova);
    relatorio.faixas.push_back(linha(2));
    EXPECT_EQ((Paginas{{"cabeçalho", "linha 1", "1"}, {"cabeçalho", "A", "linha 2", "2"}}), paginas(relatorio, 9));
}

TEST(Paginas, TextoLargoEncolheQuebraOuEhCortadoComSinal) {
    Relatorio relatorio;
    TFaixa feita;
    feita.Elementos = {elemento("um texto bem mais largo que a coluna", 0, TCabimento::Quebra),
                       elemento("123.456.789,50", 1, TCabimento::Corta)};
    feita.Elementos.back().Alinhamento = TAlinhamento::Direita;
    feita.Elementos.push_back(elemento("", 1));
    feita.Elementos.back().Especie = TEspecieElemento::FioVertical;
    relatorio.faixas = {feita};
    auto moldura = paper::settingOfText();
    moldura.least = 500;
    BandPages feitas(relatorio, medir, moldura);
    paper::Page pagina;
    ASSERT_TRUE(feitas.next(pagina));
    ASSERT_EQ(5U, pagina.texts.size());
    EXPECT_EQ("um texto bem", pagina.text(pagina.texts[0]));
    EXPECT_EQ("mais largo que a", pagina.text(pagina.texts[1]));
    EXPECT_EQ("coluna", pagina.text(pagina.texts[2]));
    EXPECT_EQ("123.456…", pagina.text(pagina.texts[3]));
    ASSERT_EQ(1U, pagina.lines.size());
    EXPECT_EQ(3'000, pagina.lines.front().y2 - pagina.lines.front().y1) << "as high as the wrapped text";
    EXPECT_EQ(17'000, pagina.lines.front().x1);

    feita.Elementos = {elemento("1.234.567,50", 1)};
    relatorio.faixas = {feita};
    BandPages menores(relatorio, medir, moldura);
    ASSERT_TRUE(menores.next(pagina));
    EXPECT_EQ("1.234.567,50", pagina.text(pagina.texts[0])) << "a figure is not cut";
    EXPECT_EQ(666, pagina.texts[0].size);
}

TEST(Paginas, LetrasSaoAsMaioresComQueAsColunasCabem) {
    Relatorio relatorio;
    relatorio.definicao.Papel.Paisagem = true;
    const auto corpo = [&] {
        return paper::Rulers(relatorio.definicao, medir, paper::settingOf(relatorio.definicao.Papel)).size();
    };
    const auto maior = paper::Setting().most;
    EXPECT_EQ(maior, corpo());
    relatorio.definicao.Reguas.front().front().Amostras = {std::string(120, '0')};
    const auto menor = corpo();
    EXPECT_LT(menor, maior);
    EXPECT_EQ(static_cast<paper::Length>(297'000 / (128 + 4 * paper::Setting().padding)), menor);
    relatorio.definicao.Reguas.front().front() = {{"conta"}, 1};
    const paper::Rulers comSobra(relatorio.definicao, medir, paper::settingOf(relatorio.definicao.Papel));
    EXPECT_EQ(297'000, comSobra.right({0, 0, 1, 1})) << "what is left goes to the column that has a share";
}

TEST(Paginas, TextoPuroAlinhaAsColunas) {
    Relatorio relatorio;
    auto feita = linha(1);
    feita.Elementos.push_back(elemento("12,50", 1));
    feita.Elementos.back().Alinhamento = TAlinhamento::Direita;
    relatorio.faixas.push_back(feita);
    feita.Elementos.back().Texto = "1.234,50";
    relatorio.faixas.push_back(feita);
    std::ostringstream saida;
    suite::paint::writeText(saida, relatorio);
    EXPECT_EQ("cabeçalho\nlinha 1             12,50\nlinha 1          1.234,50\n",
              saida.str().substr(0, saida.str().find("\n\n") + 1));
}

} // namespace
