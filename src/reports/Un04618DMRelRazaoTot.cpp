#include "reports/Un04618DMRelRazaoTot.h"

#include "base/FormatoNumerico.h"
#include "base/Texto.h"
#include "core/Lista.h"
#include "host/Dialogos.h"
#include "host/Grade.h"
#include "host/Servicos.h"
#include "host/Utilidades.h"
#include "reports/SqlRazao.h"

#include <algorithm>
#include <array>

namespace pct04618 {

namespace {

using base::Format;
using base::TAlinhamento;
using base::TElementoFaixa;
using base::TEspecieElemento;
using base::TEspecieFaixa;
using base::TLugar;

constexpr base::TPapel Papel{false, 10'000, 10'000, 10'000, 5'000};
constexpr base::TCor Sombra = 0xE6E6E6;
constexpr const char* FormatoCodigo = "000000";
constexpr const char* FormatoFilial = "00000";
constexpr const char* FormatoCredito = "(,0.00);";
constexpr const char* FormatoSaldo = ",0.00;(,0.00)";
constexpr const char* Ordem =
    "IDDEMAC;CLASSIF;CODTOT;DESCTOT;CODCCUSTO;DESCCCUSTO;CONTA;CODSUBCONTA;DATA;HISTORICO;IDDIARIO;FILIAL";

// Groups by their depth, the account's without bands of its own.
enum TNivel : std::uint8_t { Relatorio = 1, Totalizador = 2, CCusto = 3, Conta = 4, SubConta = 5 };
constexpr std::array<const char*, 6> Chaves{"", "IDDEMAC", "IDDEMACTOT", "IDCENTROCUSTO", "IDPLANO", "IDPLANOSUB"};

constexpr std::uint8_t ReguaDosLancamentos = 1;
enum TColuna : std::uint8_t { Data, Historico, NroLcto, Filial, Debito, Credito, Saldo, QuantasColunas };
constexpr const char* TitulosColunas[] = {"DATA", "HISTÓRICO", "NROLCTO", "FILIAL", "DÉBITO", "CRÉDITO", "SALDO"};
constexpr const char* NomesTitulos[] = {"LblData",   "LblHistorico", "LblNroLcto", "LblFilial",
                                        "LblDebito", "LblCredito",   "LblSaldo"};

constexpr std::uint8_t ReguaDosGrupos = 2; // label, code, dash, name, classification
constexpr std::uint8_t ColunasDosGrupos = 5;

std::string Filtro(const std::string& ACondicoes) {
    return ACondicoes.empty() ? std::string() : Format("AND(%s)", {EstaEntreMarcados(ACondicoes)});
}

TElementoFaixa Direita(TElementoFaixa AElemento) {
    AElemento.Alinhamento = TAlinhamento::Direita;
    return AElemento;
}

TElementoFaixa Negrito(TElementoFaixa AElemento) {
    AElemento.Negrito = true;
    return AElemento;
}

TElementoFaixa Fio(const char* ANome, bool AEmbaixo) {
    auto LFio = host::ElementoFio(ANome, TEspecieElemento::FioHorizontal, {0, ReguaDosLancamentos, 0, QuantasColunas});
    return AEmbaixo ? Direita(LFio) : LFio;
}

struct TSomas {
    base::TMoeda Debito;
    base::TMoeda Credito;
};

} // namespace

class TDM04618RelRazaoTot::TFluxo final : public host::TFluxoDeLinhas {
  public:
    explicit TFluxo(const TDM04618RelRazaoTot& ARelatorio)
        : TFluxoDeLinhas(ARelatorio.CdsImpressao), FRelatorio(ARelatorio) {}

  private:
    void AoIniciar() override {
        base::TFaixa LFaixa;
        LFaixa.Nome = "CabecalhoPagina";
        LFaixa.Especie = TEspecieFaixa::CabecalhoPagina;
        LFaixa.Elementos = FRelatorio.ElementosCabecalho(FRelatorio.Titulo(), Papel.Paisagem);
        Emitir(std::move(LFaixa));
        if (auto LCriterios = FRelatorio.FaixaCriterios(); !LCriterios.Elementos.empty())
            Emitir(std::move(LCriterios));
    }

    void AoLer(std::size_t ALinha) override {
        int LNivel = Relatorio;
        if (ALinha > 0) {
            while (LNivel <= SubConta && Igual(Chaves[static_cast<std::size_t>(LNivel)], ALinha, ALinha - 1))
                ++LNivel;
            Fechar(LNivel, ALinha - 1);
        }
        for (; LNivel <= SubConta; ++LNivel)
            Abrir(LNivel, ALinha);
        Detalhe(ALinha);
    }

    void AoTerminar() override {
        if (const auto LLinhas = Dados().RecordCount())
            Fechar(Relatorio, LLinhas - 1);
        for (const auto& LTexto : FRelatorio.Observacoes())
            Emitir(FaixaObservacao(LTexto));
        Emitir(FRelatorio.Rodape(Papel.Paisagem, true));
    }

    base::TFaixa Faixa(const char* ANome, TEspecieFaixa AEspecie, int ANivel) const {
        base::TFaixa LFaixa;
        LFaixa.Nome = ANome;
        LFaixa.Especie = AEspecie;
        LFaixa.Nivel = ANivel;
        LFaixa.Repete = AEspecie == TEspecieFaixa::CabecalhoGrupo;
        return LFaixa;
    }

    void Abrir(int ANivel, std::size_t ALinha) {
        FSomas[static_cast<std::size_t>(ANivel)] = {};
        if (ANivel == Relatorio)
            Emitir(Titulos());
        else if (ANivel == Totalizador)
            Emitir(CabecalhoTotalizador(ALinha));
        else if (ANivel == CCusto && FRelatorio.CCustoVisivel())
            Emitir(CabecalhoCCusto(ALinha));
        else if (ANivel == SubConta && FRelatorio.FDm04618->FImprimirDetContasTotaliz)
            Emitir(GhbContasESubBeforePrint(ALinha));
    }

    // The innermost first.
    void Fechar(int ANivel, std::size_t ALinha) {
        for (int I = SubConta; I >= ANivel; --I) {
            if (I == Relatorio)
                Emitir(GfbRelatorioBeforePrint());
            else if (I == Totalizador)
                Emitir(GfbTotalizadorBeforePrint(ALinha));
            else if (I == CCusto && FRelatorio.CCustoVisivel())
                Emitir(GfbCCustoBeforePrint(ALinha));
            else if (I == SubConta && FRelatorio.FDm04618->FImprimirDetContasTotaliz)
                Emitir(GfbContasESubBeforePrint(ALinha));
        }
    }

    base::TFaixa Titulos() const {
        auto LFaixa = Faixa("GhbRelatorio", TEspecieFaixa::CabecalhoGrupo, Relatorio);
        LFaixa.Elementos.push_back(Fio("LnTitulos", false));
        for (std::uint8_t I = 0; I < QuantasColunas; ++I) {
            auto LTitulo =
                Negrito(host::ElementoTexto(NomesTitulos[I], TitulosColunas[I], {0, ReguaDosLancamentos, I, 1}));
            LFaixa.Elementos.push_back(I == Data || I == Historico ? LTitulo : Direita(LTitulo));
        }
        LFaixa.Elementos.push_back(Fio("LnTitulosFim", true));
        LFaixa.Marcador = FRelatorio.FDm04618->FDescricaoRel;
        return LFaixa;
    }

    base::TFaixa CabecalhoTotalizador(std::size_t ALinha) const {
        auto LFaixa = Faixa("GhbTotalizador", TEspecieFaixa::CabecalhoGrupo, Totalizador);
        LFaixa.Elementos.push_back(
            host::ElementoForma("ShpTotalizador", Sombra, {0, ReguaDosGrupos, 0, ColunasDosGrupos}));
        Rotulo(LFaixa, "LblTotalizador", "TOTALIZADOR:");
        Codigo(LFaixa, "DbtCodTot", "CODTOT", ALinha);
        Nome(LFaixa, "DbtDescTot", "DESCTOT", ALinha, 1);
        LFaixa.Elementos.push_back(
            Direita(host::ElementoValor("DbtClassif", Valor("CLASSIF", ALinha), "", {0, ReguaDosGrupos, 4, 1})));
        return LFaixa;
    }

    base::TFaixa CabecalhoCCusto(std::size_t ALinha) const {
        auto LFaixa = Faixa("GhbCCusto", TEspecieFaixa::CabecalhoGrupo, CCusto);
        Rotulo(LFaixa, "LblCCusto", "C. CUSTO:");
        Codigo(LFaixa, "DbtCodCCusto", "CODCCUSTO", ALinha);
        Nome(LFaixa, "DbtDescCCusto", "DESCCCUSTO", ALinha, 2);
        return LFaixa;
    }

    base::TFaixa GhbContasESubBeforePrint(std::size_t ALinha) const {
        auto LFaixa = Faixa("GhbContasESub", TEspecieFaixa::CabecalhoGrupo, SubConta);
        Rotulo(LFaixa, "LblConta", "CONTA:");
        const auto LConta = Texto("CONTA", ALinha);
        const auto LSub = Texto("CODSUBCONTA", ALinha);
        LFaixa.Elementos.push_back(host::ElementoTexto(
            "LblCodContaESubConta", LSub.empty() ? LConta : LConta + "[" + LSub + "]", {0, ReguaDosGrupos, 1, 2}));
        LFaixa.Marcador = LFaixa.Elementos.back().Texto;
        Nome(LFaixa, "DbtNome", "NOME", ALinha, 2);
        return LFaixa;
    }

    static void Rotulo(base::TFaixa& AFaixa, const char* ANome, const char* ATexto) {
        AFaixa.Elementos.push_back(Negrito(host::ElementoTexto(ANome, ATexto, {0, ReguaDosGrupos, 0, 1})));
    }

    void Codigo(base::TFaixa& AFaixa, const char* ANome, const char* ACampo, std::size_t ALinha) const {
        AFaixa.Elementos.push_back(
            host::ElementoValor(ANome, Valor(ACampo, ALinha), FormatoCodigo, {0, ReguaDosGrupos, 1, 1}));
        AFaixa.Elementos.back().Alinhamento = TAlinhamento::Esquerda;
        AFaixa.Marcador = AFaixa.Elementos.back().Texto;
        AFaixa.Elementos.push_back(
            host::ElementoTexto("LblTraco" + std::string(ACampo), " - ", {0, ReguaDosGrupos, 2, 1}));
    }

    // What the group is called; it ends the entry in the outline, too.
    void Nome(base::TFaixa& AFaixa, const char* ANome, const char* ACampo, std::size_t ALinha,
              std::uint8_t AColunas) const {
        AFaixa.Elementos.push_back(
            host::ElementoValor(ANome, Valor(ACampo, ALinha), "", {0, ReguaDosGrupos, 3, AColunas}));
        AFaixa.Elementos.back().Continua = true;
        AFaixa.Marcador += " - " + AFaixa.Elementos.back().Texto;
    }

    std::string Texto(const char* ACampo, std::size_t ALinha) const {
        return host::TextoExibido(Valor(ACampo, ALinha), {});
    }

    void Detalhe(std::size_t ALinha) {
        auto LFaixa = Faixa("Detalhe", TEspecieFaixa::Detalhe, SubConta);
        const auto LValor = [&](const char* ANome, const char* ACampo, const char* AFormato, std::uint8_t AColuna) {
            LFaixa.Elementos.push_back(
                host::ElementoValor(ANome, Valor(ACampo, ALinha), AFormato, {0, ReguaDosLancamentos, AColuna, 1}));
        };
        LValor("DbtData", "DATA", "", Data);
        LValor("DbtHistorico", "HISTORICO", "", Historico);
        LFaixa.Elementos.back().Cabimento = base::TCabimento::Corta;
        LValor("DbtIdDiario", "IDDIARIO", "", NroLcto);
        LValor("DbtFilial", "FILIAL", FormatoFilial, Filial);
        LValor("DbtDebito", "DEBITO", FormatoDuasDecimais, Debito);
        LValor("DbtCredito", "CREDITO", FormatoCredito, Credito);
        Emitir(std::move(LFaixa));
        const TSomas LLinha{MoedaOuZero("DEBITO", ALinha), MoedaOuZero("CREDITO", ALinha)};
        for (auto& LSomas : FSomas) {
            LSomas.Debito = LSomas.Debito + LLinha.Debito;
            LSomas.Credito = LSomas.Credito + LLinha.Credito;
        }
    }

    base::TFaixa Rodape(const char* ANome, int ANivel, const std::string& ATexto) const {
        auto LFaixa = Faixa(ANome, TEspecieFaixa::RodapeGrupo, ANivel);
        const std::string LGrupo(ANome + 3); // behind "Gfb"
        const auto& LSomas = FSomas[static_cast<std::size_t>(ANivel)];
        LFaixa.Elementos.push_back(
            Direita(host::ElementoTexto("LblTotal" + LGrupo, ATexto, {0, ReguaDosLancamentos, Data, Debito})));
        const auto LSoma = [&](const char* AElemento, base::TMoeda AValor, const char* AFormato, TColuna AColuna) {
            LFaixa.Elementos.push_back(host::ElementoValor(AElemento + LGrupo, AValor.Decimal(), AFormato,
                                                           {0, ReguaDosLancamentos, AColuna, 1}));
        };
        LSoma("DbcDebito", LSomas.Debito, FormatoDuasDecimais, Debito);
        LSoma("DbcCredito", LSomas.Credito, FormatoCredito, Credito);
        LSoma("LblSaldo", LSomas.Debito - LSomas.Credito, FormatoSaldo, Saldo);
        for (auto& LElemento : LFaixa.Elementos)
            LElemento.Negrito = true;
        return LFaixa;
    }

    base::TFaixa GfbContasESubBeforePrint(std::size_t ALinha) const {
        const auto LConta = Texto("CONTA", ALinha);
        const auto LSub = Texto("CODSUBCONTA", ALinha);
        return Rodape("GfbContasESub", SubConta,
                      LSub.empty() ? Format("Total da Conta [%s]:", {LConta})
                                   : Format("Total da Conta/SubConta [%s [%s]]:", {LConta, LSub}));
    }

    base::TFaixa GfbCCustoBeforePrint(std::size_t ALinha) const {
        return Rodape("GfbCCusto", CCusto, Format("Total do Centro de Custo [%s]:", {Texto("CODCCUSTO", ALinha)}));
    }

    base::TFaixa GfbTotalizadorBeforePrint(std::size_t ALinha) const {
        return Rodape("GfbTotalizador", Totalizador, Format("Total do Totalizador [%s]:", {Texto("CODTOT", ALinha)}));
    }

    base::TFaixa GfbRelatorioBeforePrint() const {
        auto LFaixa = Rodape("GfbRelatorio", Relatorio, "TOTAL GERAL:");
        LFaixa.Elementos.insert(LFaixa.Elementos.begin(), Fio("LnTotalGeral", false));
        LFaixa.Elementos.push_back(Fio("LnTotalGeralFim", true));
        return LFaixa;
    }

    const TDM04618RelRazaoTot& FRelatorio;
    std::array<TSomas, 6> FSomas; // by level
};

TDM04618RelRazaoTot::TDM04618RelRazaoTot() {
    CdsImpressao.AfterOpen = [this](host::TDataSet&) { CdsImpressaoAfterOpen(); };
    CdsImpressao.SetIndexFieldNames(Ordem);
}

bool TDM04618RelRazaoTot::CCustoVisivel() const {
    return FDm04618->FImprimirDetCCustoTotaliz && FDm04618->FDetalharValorLctoCCusto;
}

std::string TDM04618RelRazaoTot::Titulo() const { return Format("RAZÃO TOTALIZADORES: %s", {FDm04618->FDescricaoRel}); }

void TDM04618RelRazaoTot::CdsImpressaoBeforeOpen() {
    const auto& LDm = *FDm04618;
    const auto LTotalizadores = Filtro(LDm.FIDsTotalizadores);
    const auto LContas = Filtro(LDm.FIDsContas);
    const auto LCentros = Filtro(LDm.FIDsCentroCusto);
    const auto LInicio = host::GUtilGeral.FormataData(LDm.FDataInicio, true);
    const auto LFim = host::GUtilGeral.FormataData(LDm.FDataFim, true);
    if (LDm.FDetalharValorLctoCCusto)
        CdsImpressao.CommandText = Format(
            sql::RazaoPorCentroDeCusto,
            {std::string(LDm.FImprimirDetCCustoTotaliz ? sql::RazaoColunasDoCentroDeCusto : sql::RazaoSemCentroDeCusto),
             LDm.FIDEmpresa, LInicio, LFim, LDm.FIDDemac, LTotalizadores, LContas, LCentros});
    else
        CdsImpressao.CommandText = Format(
            sql::RazaoPorLancamento, {LDm.FIDEmpresa, LInicio, LFim, LDm.FIDDemac, LTotalizadores, LContas, LCentros});
}

void TDM04618RelRazaoTot::CdsImpressaoAfterOpen() {
    host::GUtilGeral.FormataCampoValor(CdsImpressao.FieldByName("DEBITO"));
    host::GUtilGeral.FormataCampoValor(CdsImpressao.FieldByName("CREDITO"));
}

// Wide enough for every sum: none is above that of all amounts without their signs.
base::TRegua TDM04618RelRazaoTot::ReguaLancamentos() const {
    constexpr std::size_t LHistoricoLegivel = 48;
    base::TRegua LRegua{{host::AmostrasDoCampo(CdsImpressao, "DATA", ""), 0},
                        {host::AmostrasDoCampo(CdsImpressao, "HISTORICO", "", LHistoricoLegivel), 1},
                        {host::AmostrasDoCampo(CdsImpressao, "IDDIARIO", ""), 0},
                        {host::AmostrasDoCampo(CdsImpressao, "FILIAL", FormatoFilial), 0},
                        {},
                        {},
                        {}};
    base::TMoeda LMaior;
    for (const auto* LCampo : {"DEBITO", "CREDITO"}) {
        const auto& LColuna = CdsImpressao.Colunas()[CdsImpressao.FindField(LCampo)->Indice()];
        base::TMoeda LSoma;
        for (std::size_t L = 0; L < CdsImpressao.RecordCount(); ++L) {
            const base::TMoeda LValor(std::get<base::TDecimal>(LColuna.Valor(L)));
            LSoma = LValor.Decimal() < base::TDecimal{} ? LSoma - LValor : LSoma + LValor;
        }
        if (LMaior.Decimal() < LSoma.Decimal())
            LMaior = LSoma;
    }
    for (const auto LColuna : {Debito, Credito, Saldo})
        LRegua[LColuna].Amostras.push_back(base::FormatarNumero(LMaior.Decimal(), FormatoCredito));
    for (std::size_t I = 0; I < QuantasColunas; ++I)
        LRegua[I].Amostras.emplace_back(TitulosColunas[I]);
    return LRegua;
}

base::TRegua TDM04618RelRazaoTot::ReguaGrupos() const {
    base::TRegua LRegua{{{"TOTALIZADOR:"}, 0}, {{"000000"}, 0}, {{" - "}, 0}, {{}, 1}, {}};
    if (FDm04618->FImprimirDetContasTotaliz)
        for (const auto& LConta : host::AmostrasDoCampo(CdsImpressao, "CONTA", ""))
            LRegua[1].Amostras.push_back(LConta);
    LRegua[4].Amostras = host::AmostrasDoCampo(CdsImpressao, "CLASSIF", "");
    return LRegua;
}

std::vector<std::string> TDM04618RelRazaoTot::Observacoes() const {
    const auto& LDm = *FDm04618;
    const auto LLinhas = CdsImpressao.RecordCount();
    if (LLinhas == 0)
        return {"Nenhum lançamento do período está nos totalizadores selecionados."};
    std::vector<std::int64_t> LLancamentos;
    const auto& LColuna = CdsImpressao.Colunas()[CdsImpressao.FindField("IDDIARIO")->Indice()];
    for (std::size_t L = 0; L < LLinhas; ++L)
        LLancamentos.push_back(std::get<base::TDecimal>(LColuna.Valor(L)).Unidades);
    std::sort(LLancamentos.begin(), LLancamentos.end());
    LLancamentos.erase(std::unique(LLancamentos.begin(), LLancamentos.end()), LLancamentos.end());
    std::vector<std::string> LTextos{
        "Lançamentos: " + std::to_string(LLancamentos.size()) + "; linhas: " + std::to_string(LLinhas) +
        ". O TOTAL GERAL soma um lançamento uma vez em cada totalizador que vincula a sua conta."};
    if (LDm.FDetalharValorLctoCCusto && !LDm.FImprimirDetCCustoTotaliz)
        LTextos.emplace_back(
            "Sem o detalhamento por centro de custo, parcelas iguais de um mesmo lançamento saem em uma "
            "só linha e são somadas uma só vez.");
    if (LDm.FIDFilial > 0 || LDm.FListaIDsFilial)
        LTextos.emplace_back("O razão traz os lançamentos de todos os estabelecimentos da empresa.");
    return LTextos;
}

void TDM04618RelRazaoTot::Imprimir() {
    PrepararCabecalho(TLinhas::Proprias);
    TRelatorioDaConsulta::Imprimir();
    {
        host::TZTBarraProgressoDlg LBarra;
        LBarra.SetTitulo("Aguarde buscando informações");
        LBarra.MostrarBarraProgresso();
        LBarra.BuscarBarraProgresso(0).IniciarSimulacaoProcesso();
        CdsImpressao.Close();
        CdsImpressaoBeforeOpen();
        CdsImpressao.Open();
        LBarra.BuscarBarraProgresso(0).PararSimulacaoProcesso();
    }
    Mostrar(Definir(Titulo(), Papel, true, {ReguaLancamentos(), ReguaGrupos()}),
            [this] { return std::make_unique<TFluxo>(*this); });
}

} // namespace pct04618
