#include "reports/Un04618DMRelPeriodos.h"

#include "core/Un04618Const.h"

#include <array>
#include <set>

namespace pct04618 {

namespace {

using base::TAlinhamento;
using base::TEspecieElemento;
using base::TEspecieFaixa;
using base::TLugar;

constexpr base::TPapel Papel{true, 5'000, 5'000, 5'000, 5'000};
constexpr const char* TituloPadrao = "Contabilidade Gerencial Orçamentária";
constexpr const char* FormatoConta = "0000000000";
constexpr const char* FormatoCodigo = "00000";
constexpr const char* TituloNome = "Nome da Conta/Totalizador [Conta/Totalizador Descarga]";
constexpr const char* Legenda =
    "OBS: Na coluna Ano as letras (B,O,R) referem-se a: B(Valor Base), O(Valor Orçado) e R(Valor Realizado).";

constexpr base::TCor Azul = 0x7A96DF;
constexpr base::TCor Verde = 0xC5DEC5;
constexpr base::TCor AzulClaro = 0xD8E4F8;
constexpr base::TCor Branco = 0xFFFFFF;
constexpr base::TCor Sombra = 0xE6E6E6;

constexpr int Posicoes = MaximoPeriodosEmColunas;
constexpr std::uint8_t NivelConta = 4;
constexpr std::int64_t LinhaOrcado = 2;

// The line of an account.
constexpr std::uint8_t ReguaDaConta = 1;
struct TColunaConta {
    const char* Titulo;
    const char* Campo;
    const char* Nome; // of its element, behind "Dbt" and "Lbl"
    const char* Formato;
};
constexpr TColunaConta ColunasConta[] = {
    {"Classif. Conta/Tot.", "CLASSIFCONTAB", "Classif", ""}, {"Conta/Tot.", "CONTA", "Conta", FormatoConta},
    {"Sub", "SUBCONTA", "SubConta", FormatoCodigo},          {"C.C", "CCUSTO", "CentroCusto", FormatoCodigo},
    {"Filial", "FILIAL", "Filial", FormatoCodigo},
};
constexpr std::uint8_t ColunaNome = std::size(ColunasConta);
constexpr std::uint8_t ColunaLegenda = ColunaNome + 1;
constexpr std::uint8_t ColunasDaConta = ColunaLegenda + 1;

// The lines of values: year, value and percentage of each place, total and its percentage.
constexpr std::uint8_t ReguaDosValores = 2;
constexpr std::uint8_t ColunaAno = 0;
constexpr std::uint8_t ColunaTotal = 1 + 2 * Posicoes;
constexpr std::uint8_t ColunasDosValores = ColunaTotal + 2;
constexpr std::uint8_t ColunaDaPosicao(int APosicao) { return static_cast<std::uint8_t>(2 * APosicao - 1); }

// The groups outside that of the line; they only keep together what is theirs.
constexpr std::array<const char*, NivelConta> Chaves{"CONTA", "SUBCONTA", "FILIAL", "CCUSTO"};
// Where one of these changes another line begins, even under the same codes.
constexpr const char* ChavesDaLinha[] = {"IDPLANO", "IDPLANOSUB", "IDDEMACTOT"};

std::string Numerado(const char* ANome, int ANumero) { return ANome + std::to_string(ANumero); }

// The data column of each place of a row, from 1; 0 for a place that is free.
using TPosicoes = std::array<int, Posicoes + 1>;

TPosicoes Preencher(const std::function<bool(int)>& ATemPeriodo) {
    TPosicoes LColunas{};
    int LPosicao = Posicoes;
    for (int K = Posicoes; K >= 1; --K)
        if (ATemPeriodo(K))
            LColunas[static_cast<std::size_t>(LPosicao--)] = K;
    return LColunas;
}

TPosicoes PosicoesDaLinha(const host::TDataSet& ADados, std::size_t ALinha) {
    return Preencher([&](int K) {
        const auto* LCampo = ADados.FindField(Numerado("PER", K));
        if (!LCampo)
            return false;
        const auto& LColuna = ADados.Colunas()[LCampo->Indice()];
        const auto LLinha = ADados.LinhaDe(ALinha);
        return !LColuna.Nulo(LLinha) && !LColuna.Texto(LLinha).empty();
    });
}

} // namespace

class TDM04618RelPeriodos::TFluxo final : public host::TFluxoDeLinhas {
  public:
    explicit TFluxo(const TDM04618RelPeriodos& ARelatorio)
        : TFluxoDeLinhas(ARelatorio.CdsImpressao), FRelatorio(ARelatorio) {}

  private:
    void AoIniciar() override {}

    void AoLer(std::size_t ALinha) override {
        if (ALinha == 0 || MudouPeriodo(ALinha)) {
            Emitir(CabecalhoPagina(ALinha));
            if (auto LFaixa = FRelatorio.FaixaCriterios(); ALinha == 0 && !LFaixa.Elementos.empty())
                Emitir(std::move(LFaixa));
        }
        if (const auto LNivel = ALinha == 0 ? 1 : NivelQueMudou(ALinha); LNivel <= NivelConta) {
            if (ALinha > 0)
                Emitir(RodapeConta());
            for (int I = LNivel; I < NivelConta; ++I)
                Emitir(GrupoVazio(I));
            Emitir(CabecalhoConta(ALinha));
        }
        Emitir(Detalhe(ALinha));
    }

    void AoTerminar() override {
        if (Dados().RecordCount() > 0)
            Emitir(RodapeConta());
        Emitir(FRelatorio.Rodape(Papel.Paisagem, true));
    }

    bool MudouPeriodo(std::size_t ALinha) const {
        for (int K = 1; K <= Posicoes; ++K)
            if (!Igual(Numerado("PER", K), ALinha, ALinha - 1))
                return true;
        return false;
    }

    // The outermost group that begins with the row, counted from 1; more than there are for none.
    int NivelQueMudou(std::size_t ALinha) const {
        for (int I = 0; I < NivelConta; ++I)
            if (!Igual(Chaves[static_cast<std::size_t>(I)], ALinha, ALinha - 1))
                return I + 1;
        for (const auto* LChave : ChavesDaLinha)
            if (!Igual(LChave, ALinha, ALinha - 1))
                return NivelConta;
        return NivelConta + 1;
    }

    static base::TFaixa GrupoVazio(int ANivel) {
        base::TFaixa LFaixa;
        LFaixa.Nome = std::string("CabecalhoGrupo:") + Chaves[static_cast<std::size_t>(ANivel - 1)];
        LFaixa.Especie = TEspecieFaixa::CabecalhoGrupo;
        LFaixa.Nivel = ANivel;
        LFaixa.MantemJunto = true;
        return LFaixa;
    }

    base::TFaixa CabecalhoPagina(std::size_t ALinha) const {
        constexpr std::uint8_t LLinhaContas = LinhasDoCabecalho;
        constexpr std::uint8_t LLinhaValores = LLinhaContas + 1;
        base::TFaixa LFaixa;
        LFaixa.Nome = "CabecalhoPagina";
        LFaixa.Especie = TEspecieFaixa::CabecalhoPagina;
        LFaixa.Elementos = FRelatorio.ElementosCabecalho(FRelatorio.Titulo(), Papel.Paisagem);
        auto& LElementos = LFaixa.Elementos;
        const auto LTitulo = [&](std::string ANome, const char* ATexto, TLugar ALugar, TAlinhamento AAlinhamento) {
            LElementos.push_back(host::ElementoTexto(std::move(ANome), ATexto, ALugar));
            LElementos.back().Negrito = true;
            LElementos.back().Alinhamento = AAlinhamento;
        };
        const auto LFim = [&](const char* ANome, TLugar ALugar) {
            LElementos.push_back(host::ElementoFio(ANome, TEspecieElemento::FioHorizontal, ALugar));
            LElementos.back().Alinhamento = TAlinhamento::Direita;
        };
        LElementos.push_back(
            host::ElementoForma("ShpDadosCabecalho", Sombra, {LLinhaContas, ReguaDaConta, 0, ColunasDaConta}));
        for (std::uint8_t I = 0; I < ColunaNome; ++I)
            LTitulo(std::string("Lbl") + ColunasConta[I].Nome, ColunasConta[I].Titulo,
                    {LLinhaContas, ReguaDaConta, I, 1}, I == 0 ? TAlinhamento::Esquerda : TAlinhamento::Direita);
        LTitulo("LblNomeConta", TituloNome, {LLinhaContas, ReguaDaConta, ColunaNome, 1}, TAlinhamento::Esquerda);
        LElementos.push_back(host::ElementoTexto("LblObs", Legenda, {LLinhaContas, ReguaDaConta, ColunaLegenda, 1}));
        LElementos.back().Alinhamento = TAlinhamento::Direita;
        LFim("LnCabContaFim", {LLinhaContas, ReguaDaConta, 0, ColunasDaConta});
        LTitulo("LblAno", "Ano", {LLinhaValores, ReguaDosValores, ColunaAno, 1}, TAlinhamento::Esquerda);
        LElementos.push_back(FioNoFim("LnCabAnoFim", LLinhaValores));
        const auto LColunas = PosicoesDaLinha(Dados(), ALinha);
        for (int N = 1; N <= Posicoes; ++N) {
            const auto K = LColunas[static_cast<std::size_t>(N)];
            if (K == 0)
                continue;
            const auto LColuna = ColunaDaPosicao(N);
            const TLugar LPercentual{LLinhaValores, ReguaDosValores, static_cast<std::uint8_t>(LColuna + 1), 1};
            const TLugar LValor{LLinhaValores, ReguaDosValores, LColuna, 1};
            if (N > 1)
                LElementos.push_back(host::ElementoFio(Numerado("LnCabVal", N), TEspecieElemento::FioVertical, LValor));
            LElementos.push_back(
                host::ElementoValor(Numerado("DbtPer", N), Valor(Numerado("PER", K), ALinha), "", LValor));
            LElementos.back().Negrito = true;
            LElementos.back().Alinhamento = TAlinhamento::Centro;
            LElementos.push_back(
                host::ElementoFio(Numerado("LnCabPerc", N), TEspecieElemento::FioVertical, LPercentual));
            LTitulo(Numerado("LblPerc", N), "%", LPercentual, TAlinhamento::Centro);
        }
        const TLugar LTotal{LLinhaValores, ReguaDosValores, ColunaTotal, 1};
        const TLugar LPercTotal{LLinhaValores, ReguaDosValores, ColunaTotal + 1, 1};
        LElementos.push_back(host::ElementoFio("LnCabTotal", TEspecieElemento::FioVertical, LTotal));
        LTitulo("LblTotal", "Total", LTotal, TAlinhamento::Centro);
        LElementos.push_back(host::ElementoFio("LnCabPercTotal", TEspecieElemento::FioVertical, LPercTotal));
        LTitulo("LblPercTotal", "%", LPercTotal, TAlinhamento::Centro);
        LFim("LnCabValoresFim", {LLinhaValores, ReguaDosValores, 0, ColunasDosValores});
        return LFaixa;
    }

    static base::TElementoFaixa FioNoFim(const char* ANome, std::uint8_t ALinha) {
        auto LFio = host::ElementoFio(ANome, TEspecieElemento::FioVertical, {ALinha, ReguaDosValores, ColunaAno, 1});
        LFio.Alinhamento = TAlinhamento::Direita;
        return LFio;
    }

    base::TFaixa CabecalhoConta(std::size_t ALinha) const {
        const bool LTitulo = InteiroOuZero("CTATITULO", ALinha) == 1;
        base::TFaixa LFaixa;
        LFaixa.Nome = "ppGroupHeaderBand2";
        LFaixa.Especie = TEspecieFaixa::CabecalhoGrupo;
        LFaixa.Nivel = NivelConta;
        LFaixa.MantemJunto = true;
        LFaixa.Repete = true;
        LFaixa.Elementos.push_back(
            host::ElementoForma("ShpDadosConta", Fundo(ALinha, LTitulo), {0, ReguaDaConta, 0, ColunasDaConta}));
        for (std::uint8_t I = 0; I < ColunaNome; ++I) {
            const auto& LColuna = ColunasConta[I];
            LFaixa.Elementos.push_back(host::ElementoValor(std::string("Dbt") + LColuna.Nome,
                                                           Valor(LColuna.Campo, ALinha), LColuna.Formato,
                                                           {0, ReguaDaConta, I, 1}));
            LFaixa.Elementos.back().Negrito = LTitulo && I > 0;
        }
        LFaixa.Elementos.push_back(
            host::ElementoValor("DbtNomeConta", Valor("NOMECONTA", ALinha), "", {0, ReguaDaConta, ColunaNome, 2}));
        auto& LNome = LFaixa.Elementos.back();
        LNome.Negrito = LTitulo;
        LNome.Continua = true;
        if (LTitulo || EhTotalizador(ALinha))
            LFaixa.Marcador = LFaixa.Elementos[1].Texto + " " + LNome.Texto;
        return LFaixa;
    }

    bool EhTotalizador(std::size_t ALinha) const { return base::EhNulo(Valor("IDPLANO", ALinha)); }

    base::TCor Fundo(std::size_t ALinha, bool ATitulo) const {
        if (!FRelatorio.FImpColorido)
            return Branco;
        if (ATitulo)
            return Azul;
        return !FRelatorio.FDm04618->FImprimirOrcamentariaBal && !EhTotalizador(ALinha) ? Verde : AzulClaro;
    }

    base::TFaixa Detalhe(std::size_t ALinha) const {
        base::TFaixa LFaixa;
        LFaixa.Nome = "Detalhe";
        LFaixa.Nivel = NivelConta;
        const bool LNegrito = InteiroOuZero("TIPOLINHA", ALinha) == LinhaOrcado;
        const auto LValor = [&](std::string ANome, const std::string& ACampo, const char* AFormato,
                                std::uint8_t AColuna) {
            LFaixa.Elementos.push_back(host::ElementoValor(std::move(ANome), Valor(ACampo, ALinha), AFormato,
                                                           {0, ReguaDosValores, AColuna, 1}));
        };
        const auto LFio = [&](std::string ANome, std::uint8_t AColuna) {
            LFaixa.Elementos.push_back(
                host::ElementoFio(std::move(ANome), TEspecieElemento::FioVertical, {0, ReguaDosValores, AColuna, 1}));
        };
        LValor("DbtAno", "ANO", "", ColunaAno);
        LFaixa.Elementos.push_back(FioNoFim("LnAnoFim", 0));
        const auto LColunas = PosicoesDaLinha(Dados(), ALinha);
        for (int N = 1; N <= Posicoes; ++N) {
            const auto K = LColunas[static_cast<std::size_t>(N)];
            if (K == 0)
                continue;
            const auto LColuna = ColunaDaPosicao(N);
            const auto LAoLado = static_cast<std::uint8_t>(LColuna + 1);
            if (N > 1)
                LFio(Numerado("LnVal", N), LColuna);
            LValor(Numerado("DbtVal", N), Numerado("VAL", K), FormatoDuasDecimais, LColuna);
            LFio(Numerado("LnPerc", N), LAoLado);
            LValor(Numerado("DbtPerc", N), Numerado("PERC", K), FormatoDuasDecimais, LAoLado);
        }
        for (auto& LElemento : LFaixa.Elementos)
            LElemento.Negrito = LNegrito && LElemento.Especie == TEspecieElemento::Texto;
        LFio("LnTotal", ColunaTotal);
        LValor("DbtValTotal", "TOTAL", FormatoDuasDecimais, ColunaTotal);
        LFio("LnPercTotal", ColunaTotal + 1);
        LValor("DbtPercTotal", "PERCTOT", FormatoDuasDecimais, ColunaTotal + 1);
        return LFaixa;
    }

    static base::TFaixa RodapeConta() {
        base::TFaixa LFaixa;
        LFaixa.Nome = "RodapeGrupo:CCUSTO";
        LFaixa.Especie = TEspecieFaixa::RodapeGrupo;
        LFaixa.Nivel = NivelConta;
        LFaixa.Elementos.push_back(host::ElementoFio("LnRodapeConta", TEspecieElemento::FioHorizontal,
                                                     {0, ReguaDosValores, 0, ColunasDosValores}));
        return LFaixa;
    }

    const TDM04618RelPeriodos& FRelatorio;
};

TDM04618RelPeriodos::TDM04618RelPeriodos() {
    SdsImpressao.ParamCheck = false; // names with a colon are the block's own variables
}

std::string TDM04618RelPeriodos::Titulo() const {
    return FDm04618->FDescricaoRel.empty() ? TituloPadrao : FDm04618->FDescricaoRel;
}

base::TRegua TDM04618RelPeriodos::ReguaContas() const {
    base::TRegua LRegua;
    for (const auto& LColuna : ColunasConta) {
        LRegua.push_back({host::AmostrasDoCampo(CdsImpressao, LColuna.Campo, LColuna.Formato), 0});
        LRegua.back().Amostras.emplace_back(LColuna.Titulo);
    }
    LRegua.push_back({{TituloNome}, 0}); // an account's name has the next column, too
    LRegua.push_back({{Legenda}, 1});
    return LRegua;
}

// Places that no row takes share the room that is left, so that the periods stand beside the total.
base::TRegua TDM04618RelPeriodos::ReguaValores() const {
    std::array<std::set<int>, Posicoes + 1> LColunas; // of each place
    for (std::size_t L = 0; L < CdsImpressao.RecordCount(); ++L) {
        const auto LDaLinha = PosicoesDaLinha(CdsImpressao, L);
        for (std::size_t N = 1; N <= Posicoes; ++N)
            if (LDaLinha[N] > 0)
                LColunas[N].insert(LDaLinha[N]);
    }
    base::TRegua LRegua(ColunasDosValores);
    const auto LAcrescentar = [&](std::size_t AColuna, const std::string& ACampo, const char* AFormato) {
        for (auto& LAmostra : host::AmostrasDoCampo(CdsImpressao, ACampo, AFormato))
            LRegua[AColuna].Amostras.push_back(std::move(LAmostra));
    };
    LAcrescentar(ColunaAno, "ANO", "");
    const bool LTodas = !LColunas[1].empty();
    for (int N = 1; N <= Posicoes; ++N) {
        const auto& LDaPosicao = LColunas[static_cast<std::size_t>(N)];
        const std::size_t LColuna = ColunaDaPosicao(N);
        for (const int K : LDaPosicao) {
            LAcrescentar(LColuna, Numerado("PER", K), "");
            LAcrescentar(LColuna, Numerado("VAL", K), FormatoDuasDecimais);
            LAcrescentar(LColuna + 1, Numerado("PERC", K), FormatoDuasDecimais);
        }
        LRegua[LColuna].Peso = LTodas || LDaPosicao.empty() ? 1 : 0;
    }
    LAcrescentar(ColunaTotal, "TOTAL", FormatoDuasDecimais);
    LAcrescentar(ColunaTotal + 1, "PERCTOT", FormatoDuasDecimais);
    return LRegua;
}

void TDM04618RelPeriodos::Imprimir() {
    PrepararCabecalho(TLinhas::DaConsulta);
    CdsImpressao.CommandText = FDm04618->CdsMostraCtbOrcMensal.CommandText;
    TRelatorioDaConsulta::Imprimir();
    CdsImpressao.Close();
    CdsImpressao.Open();
    Mostrar(Definir(Titulo(), Papel, true, {ReguaContas(), ReguaValores()}),
            [this] { return std::make_unique<TFluxo>(*this); });
}

} // namespace pct04618
