#include "reports/Un04618DMRel.h"

#include "base/FormatoNumerico.h"

#include <array>

namespace pct04618 {

namespace {

using base::TAlinhamento;
using base::TEspecieFaixa;

constexpr std::uint8_t ReguaLinhas = 1;
constexpr base::TPapel Papel{true, 10'000, 10'000, 10'000, 5'000};
constexpr const char* Titulo = "Contabilidade Gerencial Orçamentária";

struct TColuna {
    const char* Titulo;
    const char* Campo;
    const char* Formato; // empty for what is no amount
    bool Destaque;       // bold on a synthetic account
    std::size_t Texto;   // characters that the width is made for; 0: as many as there are
};

constexpr TColuna Colunas[] = {{"Classificação", "CLASSIFCONTAB", "", false, 0},
                               {"Conta", "CONTA", "", true, 0},
                               {"Sub", "CODIGO", "", true, 0},
                               {"C.C", "CCUSTO", "", false, 0},
                               {"Desc.CC", "DESCCCUSTO", "", false, 18},
                               {"Filial", "FILIAL", "", true, 0},
                               {"Descrição", "NOMECONTA", "", true, 26},
                               {"Valor Base", "VLRBASE", FormatoDuasDecimais, true, 0},
                               {"% Orçado", "PERCORCADO", FormatoQuatroDecimais, true, 0},
                               {"Valor Orçado", "VLRORCADO", FormatoDuasDecimais, true, 0},
                               {"Valor Realizado", "VLRREALIZADO", FormatoDuasDecimais, true, 0},
                               {"Variação", "DELTAVLR", FormatoDuasDecimais, true, 0},
                               {"% Realizado", "DELTAPERC", FormatoQuatroDecimais, true, 0},
                               {"% Variação", "DELTAVARIACAO", FormatoQuatroDecimais, false, 0},
                               {"Tipo Cta", "RECDESP", "", false, 0}};
constexpr std::uint8_t QuantasColunas = std::size(Colunas);
constexpr std::uint8_t ColunaNome = 6;
constexpr std::uint8_t ColunasSomadas[] = {7, 9, 10};

base::TLugar Lugar(std::uint8_t AColuna, std::uint8_t ALinha = 0) { return {ALinha, ReguaLinhas, AColuna, 1}; }

} // namespace

class TDM04618Rel::TFluxo final : public host::TFluxoDeLinhas {
  public:
    explicit TFluxo(const TDM04618Rel& ARelatorio) : TFluxoDeLinhas(ARelatorio.CdsImpressao), FRelatorio(ARelatorio) {}

  private:
    using TSomas = std::array<base::TMoeda, std::size(ColunasSomadas)>;

    void AoIniciar() override {
        Emitir(FRelatorio.CabecalhoPagina());
        if (auto LFaixa = FRelatorio.FaixaCriterios(); !LFaixa.Elementos.empty())
            Emitir(std::move(LFaixa));
    }

    void AoLer(std::size_t ALinha) override {
        const bool LSintetica = InteiroOuZero("CTATITULO", ALinha) == 1;
        base::TFaixa LFaixa;
        LFaixa.Nome = "Detalhe";
        for (std::uint8_t I = 0; I < QuantasColunas; ++I) {
            const auto& LColuna = Colunas[I];
            auto& LElemento = LFaixa.Elementos.emplace_back(
                host::ElementoValor(std::string("Dbt") + LColuna.Campo, TFluxoDeLinhas::Valor(LColuna.Campo, ALinha),
                                    LColuna.Formato, Lugar(I)));
            LElemento.Negrito = LSintetica && LColuna.Destaque;
            if (I == ColunaNome)
                LElemento.Cabimento = base::TCabimento::Quebra;
        }
        Emitir(std::move(LFaixa));
        for (std::size_t I = 0; I < std::size(ColunasSomadas); ++I) {
            const auto LValor = MoedaOuZero(Colunas[ColunasSomadas[I]].Campo, ALinha);
            FTotais[I] = FTotais[I] + LValor;
            if (!LSintetica)
                FAnaliticas[I] = FAnaliticas[I] + LValor;
        }
    }

    void AoTerminar() override {
        auto LTotais = Totais("Sumario", "LblTotais", "TOTAIS:", FTotais);
        LTotais.Elementos.insert(
            LTotais.Elementos.begin(),
            host::ElementoFio("LnTotais", base::TEspecieElemento::FioHorizontal, {0, ReguaLinhas, 0, QuantasColunas}));
        Emitir(std::move(LTotais));
        Emitir(Totais("Observacao", "LblTotalAnaliticas", "Total das contas analíticas:", FAnaliticas));
        Emitir(FRelatorio.Rodape(Papel.Paisagem, false));
    }

    static base::TFaixa Totais(const char* AFaixa, const char* ANome, const char* ATexto, const TSomas& ASomas) {
        base::TFaixa LFaixa;
        LFaixa.Nome = AFaixa;
        LFaixa.Especie = TEspecieFaixa::Sumario;
        LFaixa.Elementos.push_back(host::ElementoTexto(ANome, ATexto, {0, ReguaLinhas, 0, ColunasSomadas[0]}));
        LFaixa.Elementos.back().Alinhamento = TAlinhamento::Direita;
        for (std::size_t I = 0; I < std::size(ColunasSomadas); ++I)
            LFaixa.Elementos.push_back(host::ElementoValor(std::string("Dbc") + Colunas[ColunasSomadas[I]].Campo,
                                                           ASomas[I].Decimal(), FormatoDuasDecimais,
                                                           Lugar(ColunasSomadas[I])));
        for (auto& LElemento : LFaixa.Elementos)
            LElemento.Negrito = true;
        return LFaixa;
    }

    const TDM04618Rel& FRelatorio;
    TSomas FTotais;
    TSomas FAnaliticas;
};

base::TFaixa TDM04618Rel::CabecalhoPagina() const {
    base::TFaixa LFaixa;
    LFaixa.Nome = "CabecalhoPagina";
    LFaixa.Especie = TEspecieFaixa::CabecalhoPagina;
    LFaixa.Elementos = ElementosCabecalho(Titulo, Papel.Paisagem);
    auto LLinha = LinhasDoCabecalho;
    const auto& LInformacoes = FDm04618->FInformacoesCtbOrcadaInf;
    if (LInformacoes.QtdePeriodos == 1 && !LInformacoes.DataIBalancoRef.Vazia()) {
        LFaixa.Elementos.push_back(
            host::ElementoTexto("LblDataBalancoBase", "Balanço Base: ", {LLinha, ReguaDoCabecalho, 0, 1}));
        LFaixa.Elementos.back().Alinhamento = TAlinhamento::Direita;
        LFaixa.Elementos.push_back(host::ElementoTexto("LblBalancoBase",
                                                       LInformacoes.DataIBalancoRef.SemHora().Texto() + " a " +
                                                           LInformacoes.DataFBalancoRef.SemHora().Texto(),
                                                       {LLinha, ReguaDoCabecalho, 1, 2}));
        ++LLinha;
    }
    LFaixa.Elementos.push_back(host::ElementoFio("LnTitulos", base::TEspecieElemento::FioHorizontal,
                                                 {LLinha, ReguaLinhas, 0, QuantasColunas}));
    for (std::uint8_t I = 0; I < QuantasColunas; ++I) {
        LFaixa.Elementos.push_back(
            host::ElementoTexto(std::string("Lbl") + Colunas[I].Campo, Colunas[I].Titulo, Lugar(I, LLinha)));
        LFaixa.Elementos.back().Negrito = true;
        if (I != 0 && I != 4 && I != ColunaNome && I != QuantasColunas - 1)
            LFaixa.Elementos.back().Alinhamento = TAlinhamento::Direita;
    }
    auto LFio = host::ElementoFio("LnTitulosFim", base::TEspecieElemento::FioHorizontal,
                                  {LLinha, ReguaLinhas, 0, QuantasColunas});
    LFio.Alinhamento = TAlinhamento::Direita;
    LFaixa.Elementos.push_back(LFio);
    return LFaixa;
}

void TDM04618Rel::Imprimir() {
    PrepararCabecalho(TLinhas::DaConsulta);
    CdsImpressao.CommandText = FDm04618->CdsMostraCtbOrcada.CommandText;
    TRelatorioDaConsulta::Imprimir();
    CdsImpressao.Close();
    CdsImpressao.Open();
    base::TRegua LRegua;
    for (std::uint8_t I = 0; I < QuantasColunas; ++I) {
        auto LAmostras = host::AmostrasDoCampo(CdsImpressao, Colunas[I].Campo, Colunas[I].Formato,
                                               Colunas[I].Texto > 0 ? Colunas[I].Texto : 60);
        LAmostras.emplace_back(Colunas[I].Titulo);
        LRegua.push_back({std::move(LAmostras), I == ColunaNome ? 1.0 : 0.0});
    }
    // The sums are what is widest below the amounts.
    for (const auto I : ColunasSomadas) {
        base::TMoeda LSoma;
        const auto& LColuna = CdsImpressao.Colunas()[CdsImpressao.FieldByName(Colunas[I].Campo).Indice()];
        for (std::size_t L = 0; L < CdsImpressao.RecordCount(); ++L)
            if (!LColuna.Nulo(L))
                LSoma = LSoma + base::TMoeda(std::get<base::TDecimal>(LColuna.Valor(L)));
        LRegua[I].Amostras.push_back(base::FormatarNumero(LSoma.Decimal(), FormatoDuasDecimais));
    }
    Mostrar(Definir(Titulo, Papel, false, {std::move(LRegua)}), [this] { return std::make_unique<TFluxo>(*this); });
}

} // namespace pct04618
